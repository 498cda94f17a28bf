// Loading and closing of the secondary windows.
#include "window/panels/Panels.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <algorithm>

#include "ui_BrowseInfo.h"
#include "ui_ClearPreview.h"
#include "ui_LoadDrive.h"
#include "ui_SaveFileInfo.h"
#include "ui_SaveFileInfoForRaw.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kPanelPicture = 6 * theme::kUnit;
// A sheet has no frame of its own and does not take the keyboard away.
constexpr Qt::WindowFlags kSheet = Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus;

void setPicture(QLabel* label, const QString& name) {
    label->setPixmap(ownIcon(name).pixmap(kPanelPicture, kPanelPicture));
}

// As high as its wrapped text needs at the width it was drawn with, and no higher.
void fitToWords(QDialog* window) {
    window->ensurePolished();
    window->layout()->activate();
    // Wider where a line that cannot be wrapped is.
    const int width = std::max(window->minimumWidth(), window->layout()->totalMinimumSize().width());
    const QLayout* const layout = window->layout();
    const int height =
        layout->hasHeightForWidth() ? layout->totalHeightForWidth(width) : layout->totalSizeHint().height();
    window->setFixedSize(width, height);
}

void dressSheet(QDialog* window) {
    window->setAttribute(Qt::WA_ShowWithoutActivating);
    window->setProperty("role", QStringLiteral("sheet"));
    fitToWords(window);
}

}  // namespace

Panel::Panel(QWidget* parent, Qt::WindowFlags flags) : m_window(std::make_unique<QDialog>(parent, flags)) {
    window = m_window.get();
}

Panel::~Panel() = default;

void Panel::awakeFromNib() {
    setCommonBackground(window);
}

PanelWords Panel::words() const {
    return {{},
            window->findChild<QLabel*>(QStringLiteral("panelHeading"))->text(),
            window->findChild<QLabel*>(QStringLiteral("panelText"))->text()};
}

void Panel::setWords(const PanelWords& words) {
    auto* const icon = window->findChild<QLabel*>(QStringLiteral("panelIcon"));
    setPicture(icon, words.picture);
    icon->setAccessibleName(words.heading);
    window->findChild<QLabel*>(QStringLiteral("panelHeading"))->setText(words.heading);
    window->findChild<QLabel*>(QStringLiteral("panelText"))->setText(words.text);
}

int runModalForWindow(QDialog* window) {
    window->setWindowModality(Qt::ApplicationModal);
    fitToWords(window);
    const int code = window->exec();
    window->hide();
    return code;
}

void Panel::stopModalWithCode(int code) {
    window->done(code);
}

Browse_Info::Browse_Info(QWidget* parent) : Panel(parent) {
    Ui::BrowseInfo ui;
    ui.setupUi(window);
    setPicture(ui.panelIcon, QStringLiteral("folder"));
    connect(ui.continueButton, &QPushButton::clicked, this, [this, ui] { Continue_Btn(ui.continueButton); });
    awakeFromNib();
}

void Browse_Info::Continue_Btn(QObject*) {
    stopModalWithCode(kButtonPressed);
}

SaveFile_Info::SaveFile_Info(QWidget* parent) : Panel(parent) {
    Ui::SaveFileInfo ui;
    ui.setupUi(window);
    setPicture(ui.panelIcon, QStringLiteral("ok"));
    connect(ui.okButton, &QPushButton::clicked, this, [this, ui] { OK_Btn(ui.okButton); });
    awakeFromNib();
}

void SaveFile_Info::OK_Btn(QObject*) {
    stopModalWithCode(kButtonPressed);
}

SaveFile_Info_For_RAW::SaveFile_Info_For_RAW(QWidget* parent) : Panel(parent) {
    Ui::SaveFileInfoForRaw ui;
    ui.setupUi(window);
    setPicture(ui.panelIcon, QStringLiteral("ok"));
    connect(ui.okButton, &QPushButton::clicked, this, [this, ui] { OK_Btn(ui.okButton); });
    awakeFromNib();
}

void SaveFile_Info_For_RAW::OK_Btn(QObject*) {
    stopModalWithCode(kButtonPressed);
}

ClearPreview_Modeless::ClearPreview_Modeless(QWidget* parent) : Panel(parent, kSheet) {
    Ui::ClearPreview ui;
    ui.setupUi(window);
    setPicture(ui.panelIcon, QStringLiteral("preview"));
    dressSheet(window);
    awakeFromNib();
}

LoadDrive_Modeless::LoadDrive_Modeless(QWidget* parent) : Panel(parent, kSheet) {
    Ui::LoadDrive ui;
    ui.setupUi(window);
    setPicture(ui.panelIcon, QStringLiteral("drive"));
    dressSheet(window);
    awakeFromNib();
}

}  // namespace vantor
