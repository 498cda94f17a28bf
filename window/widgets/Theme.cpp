// Applies the shared looks.
#include "window/widgets/Theme.h"

#include <QApplication>
#include <QFile>
#include <QFontMetrics>
#include <QPalette>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QWidget>

// Named from outside every namespace, as the resource system wants it.
static void loadResources() {
    Q_INIT_RESOURCE(window);
}

namespace vantor {

namespace {

// Headings against the desktop's own text size; there are these two sizes and no more.
constexpr double kHeadingScale = 1.2;
const Tone kBackground{{241, 244, 250}, {0x15, 0x19, 0x1f}};
constexpr char kHasBackground[] = "commonBackground";

Look lookOfTheMoment = Look::Light;

// What a colour of the sheet becomes in the dark look, as the colour of text and as that of anything else.
struct Counterpart {
    const char* light;
    const char* darkText;
    const char* dark;
};
constexpr Counterpart kCounterparts[] = {
    {"#ffffff", "#ffffff", "#1e232b"},  // text: on an accent
    {"#1b2430", "#e8ecf3", "#3a4350"},  // ground: of a tool tip
    {"#505c72", "#aab4c5", "#aab4c5"}, {"#8a94a6", "#7d889a", "#7d889a"}, {"#1f3fd6", "#8ab0ff", "#8ab0ff"},
    {"#1f5fd6", "#8ab0ff", "#2f6fe0"}, {"#1a52ba", "#8ab0ff", "#2763cc"}, {"#16459c", "#8ab0ff", "#1f52ad"},
    {"#0d2f70", "#a9c5ff", "#a9c5ff"}, {"#c3d3f2", "#2c3a55", "#2c3a55"}, {"#d3e2fc", "#27457d", "#27457d"},
    {"#e3ecfd", "#1f3358", "#1f3358"}, {"#e3e9f4", "#2d3541", "#2d3541"}, {"#d3dbe9", "#3a4350", "#3a4350"},
    {"#c3cddd", "#4d5868", "#4d5868"}, {"#b9c4d6", "#4d5868", "#4d5868"}, {"#f7f9fd", "#232933", "#232933"},
    {"#f1f4fa", "#2a313c", "#2a313c"},
};

// One role is left to the desktop: by it DesktopLook sees which look the desktop has.
QPalette paletteOfLook() {
    QPalette palette;
    const bool dark = currentLook() == Look::Dark;
    palette.setColor(QPalette::Window, commonBackground());
    palette.setColor(QPalette::Base, theme::kCard);
    palette.setColor(QPalette::AlternateBase, theme::kOtherRow);
    palette.setColor(QPalette::Button, theme::kCard);
    palette.setColor(QPalette::Light, dark ? QColor(0x3a, 0x43, 0x50) : QColor(Qt::white));
    palette.setColor(QPalette::Mid, theme::kRule);
    palette.setColor(QPalette::Dark, theme::kDisabledInk);
    palette.setColor(QPalette::Shadow, dark ? QColor(Qt::black) : QColor(0x76, 0x76, 0x76));
    palette.setColor(QPalette::Highlight, theme::kAccent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, theme::kToolTip);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, theme::kQuietInk);
    palette.setColor(QPalette::Link, theme::kLink);
    palette.setColor(QPalette::LinkVisited, theme::kLink);
    palette.setColor(QPalette::BrightText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, theme::kInk);
        palette.setColor(QPalette::Disabled, role, theme::kDisabledInk);
    }
    return palette;
}

QString textOf(const QString& resource) {
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString styleSheet(const QApplication& application) {
    const double base = application.font().pointSizeF();
    QString text = textOf(QStringLiteral(":/style.qss"));
    text.replace(QStringLiteral("@heading@"), QString::number(base * kHeadingScale));
    text.replace(QStringLiteral("@title@"),
                 QString::number(QFontMetrics(application.font()).height() + theme::kUnit));
    return sheetInLook(text, currentLook());
}

void giveBackground(QWidget* window) {
    QPalette palette = window->palette();
    palette.setColor(QPalette::Window, commonBackground());
    window->setPalette(palette);
}

}  // namespace

Look currentLook() {
    return lookOfTheMoment;
}

QColor commonBackground() {
    return kBackground;
}

void applyTheme(QApplication& application) {
    loadResources();
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    setLook(application, Look::Light);
}

void setLook(QApplication& application, Look look) {
    lookOfTheMoment = look;
    application.setPalette(paletteOfLook());
    application.setStyleSheet(styleSheet(application));
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->property(kHasBackground).toBool()) {
            giveBackground(window);
        }
    }
    for (QWidget* const widget : QApplication::allWidgets()) {
        widget->update();
    }
}

QString sheetInLook(const QString& sheet, Look look) {
    if (look == Look::Light) {
        return sheet;
    }
    static const QRegularExpression colour(QStringLiteral("([a-z-]+)(\\s*:[^:;{}]*?)(#[0-9a-f]{6})\\b"));
    QString text;
    qsizetype from = 0;
    for (auto matches = colour.globalMatch(sheet); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const bool ofText = match.capturedView(1).endsWith(u"color") &&
                            !match.capturedView(1).contains(u"background") &&
                            !match.capturedView(1).contains(u"border");
        QString found = match.captured(3);
        for (const Counterpart& known : kCounterparts) {
            if (match.capturedView(3) == QLatin1String(known.light)) {
                found = QLatin1String(ofText ? known.darkText : known.dark);
            }
        }
        text += QStringView(sheet).mid(from, match.capturedStart(3) - from);
        text += found;
        from = match.capturedEnd(3);
    }
    text += QStringView(sheet).mid(from);
    static const QRegularExpression picture(QStringLiteral("/(down|grip-vertical|grip-horizontal)\\.svg"));
    return text.replace(picture, QStringLiteral("/\\1-dark.svg"));
}

void setCommonBackground(QWidget* window) {
    window->setProperty(kHasBackground, true);
    window->setAutoFillBackground(true);
    giveBackground(window);
}

}  // namespace vantor
