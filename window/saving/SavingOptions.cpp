// From the controls to the policy and back.
#include "window/saving/SavingOptions.h"

#include "ui_SavingOptions.h"

namespace vantor {

namespace {

constexpr std::uint64_t kKilobyte = 1000;

}  // namespace

int changedChoices(const SavingChoices& choices) {
    const SavePolicy& policy = choices.policy;
    return int{policy.folders != SaveFolders::Card} + int{policy.names != SaveNames::Original} +
           int{policy.minPixels != 0} + int{policy.minBytes != 0} + int{policy.skipUnsound} +
           int{policy.parts} + int{!policy.skipDuplicates} + int{!choices.report};
}

SavingOptions::SavingOptions(QWidget* parent) : Panel(parent), m_ui(std::make_unique<Ui::SavingOptions>()) {
    m_ui->setupUi(window);
    window->setObjectName(QStringLiteral("savingOptions"));
    for (const auto& [text, value] :
         {std::pair{tr("As on the card"), SaveFolders::Card}, std::pair{tr("By type"), SaveFolders::Type},
          std::pair{tr("By type and date"), SaveFolders::Date}}) {
        m_ui->foldersBox->addItem(text, static_cast<int>(value));
    }
    // Lines of one height, whatever stands in them.
    for (QWidget* const line : std::initializer_list<QWidget*>{
             m_ui->namesBox, m_ui->minPixelsField, m_ui->minBytesField, m_ui->skipUnsoundBox, m_ui->partsBox,
             m_ui->keepDuplicatesBox, m_ui->reportBox}) {
        line->setMinimumHeight(m_ui->foldersBox->sizeHint().height());
    }
    connect(m_ui->minPixelsBox, &QCheckBox::toggled, m_ui->minPixelsField, &QWidget::setEnabled);
    connect(m_ui->minBytesBox, &QCheckBox::toggled, m_ui->minBytesField, &QWidget::setEnabled);
    connect(m_ui->okButton, &QPushButton::clicked, this, [this] { stopModalWithCode(kButtonPressed); });
    connect(m_ui->cancelButton, &QPushButton::clicked, window, &QDialog::reject);
    awakeFromNib();
}

SavingOptions::~SavingOptions() = default;

bool SavingOptions::ask(SavingChoices& choices) {
    show(choices);
    m_ui->foldersBox->setFocus();
    if (runModalForWindow(window) != kButtonPressed) {
        return false;
    }
    choices = chosen();
    return true;
}

void SavingOptions::show(const SavingChoices& choices) {
    const SavePolicy& policy = choices.policy;
    m_ui->foldersBox->setCurrentIndex(m_ui->foldersBox->findData(static_cast<int>(policy.folders)));
    m_ui->namesBox->setChecked(policy.names == SaveNames::Original);
    m_ui->minPixelsBox->setChecked(policy.minPixels != 0);
    if (policy.minPixels != 0) {
        m_ui->minPixelsField->setValue(static_cast<int>(policy.minPixels));
    }
    m_ui->minBytesBox->setChecked(policy.minBytes != 0);
    if (policy.minBytes != 0) {
        m_ui->minBytesField->setValue(static_cast<int>(policy.minBytes / kKilobyte));
    }
    m_ui->skipUnsoundBox->setChecked(policy.skipUnsound);
    m_ui->partsBox->setChecked(policy.parts);
    m_ui->keepDuplicatesBox->setChecked(!policy.skipDuplicates);
    m_ui->reportBox->setChecked(choices.report);
}

SavingChoices SavingOptions::chosen() const {
    SavingChoices choices;
    SavePolicy& policy = choices.policy;
    policy.folders = static_cast<SaveFolders>(m_ui->foldersBox->currentData().toInt());
    policy.names = m_ui->namesBox->isChecked() ? SaveNames::Original : SaveNames::Found;
    policy.minPixels =
        m_ui->minPixelsBox->isChecked() ? static_cast<std::uint32_t>(m_ui->minPixelsField->value()) : 0;
    policy.minBytes = m_ui->minBytesBox->isChecked()
                          ? static_cast<std::uint64_t>(m_ui->minBytesField->value()) * kKilobyte
                          : 0;
    policy.skipUnsound = m_ui->skipUnsoundBox->isChecked();
    policy.parts = m_ui->partsBox->isChecked();
    policy.skipDuplicates = !m_ui->keepDuplicatesBox->isChecked();
    choices.report = m_ui->reportBox->isChecked();
    policy.checksums = choices.report;
    return choices;
}

}  // namespace vantor
