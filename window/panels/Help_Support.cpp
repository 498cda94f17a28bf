// Set-up and actions of the help window.
#include "window/panels/Help_Support.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>

#include "catalogue/Language.h"
#include "ui_HelpSupport.h"
#include "window/panels/About.h"
#include "window/widgets/Alerts.h"
#include "window/widgets/Theme.h"

namespace vantor {

Help_Support::Help_Support(QWidget* parent, const QString& resourcesFolder,
                           std::function<bool(const QString&)> openDocument)
    : Panel(parent), m_resourcesFolder(resourcesFolder), m_openDocument(std::move(openDocument)) {
    Ui::HelpSupport ui;
    ui.setupUi(window);
    ui.panelIcon->setPixmap(
        ownIcon(QStringLiteral("vantor-recovery")).pixmap(6 * theme::kUnit, 6 * theme::kUnit));
    ui.helpVersion->setText(tr("Version %1").arg(QCoreApplication::applicationVersion()));
    _Help_File_Label = ui._Help_File_Label;
    connect(ui.continueButton, &QPushButton::clicked, this,
            [this, ui] { ContinuePressed(ui.continueButton); });
    aboutButton = ui.aboutButton;
    forgetButton = ui.forgetButton;
    connect(aboutButton, &QPushButton::clicked, this, [this] { showAbout(window); });
    connect(_Help_File_Label, &QPushButton::clicked, this, [this] { HelpFilePressed(_Help_File_Label); });
    Help_Support::awakeFromNib();
}

// The button looks and behaves like a link: underlined, blue, bold, with the hand for a cursor.
void Help_Support::awakeFromNib() {
    Panel::awakeFromNib();
    QFont font = _Help_File_Label->font();
    font.setBold(true);
    font.setUnderline(true);
    _Help_File_Label->setFont(font);
    // A style sheet measures its buttons in the font of before.
    _Help_File_Label->setMinimumWidth(QFontMetrics(font).horizontalAdvance(_Help_File_Label->text()) +
                                      theme::kUnit);
    _Help_File_Label->setCursor(Qt::OpenHandCursor);
    _Help_File_Label->setProperty("role", QStringLiteral("link"));
}

void Help_Support::ContinuePressed(QObject*) {
    stopModalWithCode(1);
}

void Help_Support::HelpFilePressed(QObject*) {
    const QString language = localeOfTexts().name().section(u'_', 0, 0);
    const QString inLanguage = m_resourcesFolder + QStringLiteral("/Help_%1.pdf").arg(language);
    const QString document =
        QFileInfo::exists(inLanguage) ? inLanguage : m_resourcesFolder + QStringLiteral("/Help.pdf");
    if (QFileInfo::exists(document)) {
        if (!m_openDocument(document)) {
            tellFailure(
                tr("The help document could not be opened."),
                tr("This desktop has no program that shows PDF documents. It lies here:") + u'\n' + document,
                window);
        }
        return;
    }
    Show_MessageBox(tr("Help file does not exist!"));
}

}  // namespace vantor
