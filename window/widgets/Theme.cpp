// Applies the shared looks.
#include "window/widgets/Theme.h"

#include <QApplication>
#include <QFile>
#include <QFontMetrics>
#include <QPalette>
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

QPalette lightPalette() {
    QPalette palette(commonBackground());
    palette.setColor(QPalette::Window, commonBackground());
    palette.setColor(QPalette::Base, theme::kCard);
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf9, 0xfd));
    palette.setColor(QPalette::Button, theme::kCard);
    palette.setColor(QPalette::Highlight, theme::kAccent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, theme::kInk);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, theme::kQuietInk);
    palette.setColor(QPalette::Link, theme::kAccent);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, theme::kInk);
        palette.setColor(QPalette::Disabled, role, theme::kDisabledInk);
    }
    return palette;
}

}  // namespace

QColor commonBackground() {
    return QColor(241, 244, 250);
}

void applyTheme(QApplication& application) {
    loadResources();
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(lightPalette());
    QFile sheet(QStringLiteral(":/style.qss"));
    if (sheet.open(QIODevice::ReadOnly)) {
        const double base = application.font().pointSizeF();
        QString text = QString::fromUtf8(sheet.readAll());
        text.replace(QStringLiteral("@heading@"), QString::number(base * kHeadingScale));
        text.replace(QStringLiteral("@title@"),
                     QString::number(QFontMetrics(application.font()).height() + theme::kUnit));
        application.setStyleSheet(text);
    }
}

void setCommonBackground(QWidget* window) {
    QPalette palette = window->palette();
    palette.setColor(QPalette::Window, commonBackground());
    window->setPalette(palette);
    window->setAutoFillBackground(true);
}

QIcon ownIcon(const QString& name) {
    return QIcon(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
}

}  // namespace vantor
