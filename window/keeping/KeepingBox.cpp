// Boxes with an explanation beneath each.
#include "window/keeping/KeepingBox.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace vantor {

namespace {

constexpr int kSideMargin = 16;
constexpr int kSpacing = 12;

QLabel* explanation(const char* name, QWidget* parent) {
    auto* const label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setProperty("role", QStringLiteral("quiet"));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace

KeepingBox::KeepingBox(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("keepingBox"));
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(kSideMargin, 0, kSideMargin, 0);
    grid->setHorizontalSpacing(kSpacing);
    grid->setVerticalSpacing(kOptionGap);
    grid->setColumnStretch(1, 1);

    rememberBox = new QCheckBox(tr("Re&member this search"), this);
    rememberBox->setObjectName(QStringLiteral("rememberBox"));
    m_rememberExplanation = explanation("rememberExplanation", this);
    grid->addWidget(rememberBox, 0, 0);
    grid->addWidget(m_rememberExplanation, 0, 1, 1, 2);

    copyBox = new QCheckBox(tr("Keep a &copy of the card while searching"), this);
    copyBox->setObjectName(QStringLiteral("copyBox"));
    m_copyExplanation = explanation("copyExplanation", this);
    copyPlaceButton = new QPushButton(tr("Choo&se…"), this);
    copyPlaceButton->setObjectName(QStringLiteral("copyPlaceButton"));
    copyPlaceButton->setProperty("role", QStringLiteral("link"));
    copyPlaceButton->setAccessibleName(tr("Choose where the copy is kept"));
    grid->addWidget(copyBox, 1, 0);
    grid->addWidget(m_copyExplanation, 1, 1);
    grid->addWidget(copyPlaceButton, 1, 2);
    for (const int row : {0, 1}) {
        grid->setRowMinimumHeight(row, lineHeight());
    }
    setReplaces(false);
    setCopyPlace({}, {});
}

int KeepingBox::lineHeight() const {
    return copyPlaceButton->sizeHint().height();
}

void KeepingBox::setReplaces(bool another) {
    m_rememberExplanation->setText(
        another ? tr("To go on later, also after a power cut. It takes the place of the search that is "
                     "remembered now.")
                : tr("To go on later, also after a power cut."));
    rememberBox->setAccessibleDescription(m_rememberExplanation->text());
}

void KeepingBox::offer(bool remembering, bool copying) {
    for (QWidget* widget :
         {static_cast<QWidget*>(rememberBox), static_cast<QWidget*>(m_rememberExplanation)}) {
        widget->setVisible(remembering);
    }
    for (QWidget* widget : {static_cast<QWidget*>(copyBox), static_cast<QWidget*>(m_copyExplanation),
                            static_cast<QWidget*>(copyPlaceButton)}) {
        widget->setVisible(copying);
    }
    setVisible(remembering || copying);
}

void KeepingBox::setCopyPlace(const QString& path, const QString& words) {
    m_copyPath = path;
    m_copyExplanation->setText(
        path.isEmpty()
            ? tr("Best for a card that fails or is slow: it is read once, all else reads the copy.")
            : words);
    m_copyExplanation->setToolTip(path);
    copyBox->setAccessibleDescription(m_copyExplanation->text());
    copyBox->setChecked(!path.isEmpty());
}

QString KeepingBox::wantedCopy() const {
    return copyBox->isChecked() ? m_copyPath : QString();
}

}  // namespace vantor
