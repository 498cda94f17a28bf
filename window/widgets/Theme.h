// The looks that every window shares: colours, type sizes, and the light palette that holds whatever the
// desktop's theme.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>

class QApplication;
class QWidget;

namespace vantor {

namespace theme {

inline const QColor kInk{0x1b, 0x24, 0x30};
inline const QColor kQuietInk{0x50, 0x5c, 0x72};
inline const QColor kAccent{0x1f, 0x5f, 0xd6};
inline const QColor kAccentWash{0xe3, 0xec, 0xfd};
inline const QColor kDone{0x1a, 0x7f, 0x4b};
inline const QColor kCard{0xff, 0xff, 0xff};
inline const QColor kRule{0xd3, 0xdb, 0xe9};
inline const QColor kDisabledInk{0x8a, 0x94, 0xa6};

// One unit of the spacing grid, in pixels before scaling.
inline constexpr int kUnit = 8;

// The height of a rectangle in which text is measured: more than any text of ours takes.
inline constexpr int kAnyHeight = 10000;

}  // namespace theme

// The background of the main window and of every panel: red 241/255, green 244/255, blue 250/255, opaque.
QColor commonBackground();

// Style, palette and style sheet for the whole program; once, before the first window.
void applyTheme(QApplication& application);

// Gives a window the common background.
void setCommonBackground(QWidget* window);

// An icon of the program's own, by its name in resources/icons without the ending.
QIcon ownIcon(const QString& name);

}  // namespace vantor
