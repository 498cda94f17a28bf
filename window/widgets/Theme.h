// The looks that every window shares: colours, type sizes, and a palette for each of the desktop's two looks.
#pragma once

#include <QBrush>
#include <QColor>
#include <QIcon>
#include <QPalette>

class QApplication;
class QWidget;

namespace vantor {

enum class Look { Light, Dark };

// Interface thread, as everything here.
Look currentLook();

// A colour by what it is for; which one that is depends on the look of the moment.
struct Tone {
    QColor light;
    QColor dark;

    operator QColor() const { return currentLook() == Look::Dark ? dark : light; }
    operator QBrush() const { return QColor(*this); }
};

namespace theme {

inline const Tone kInk{{0x1b, 0x24, 0x30}, {0xe8, 0xec, 0xf3}};
inline const Tone kQuietInk{{0x50, 0x5c, 0x72}, {0xaa, 0xb4, 0xc5}};
// Behind white, and for what is drawn.
inline const Tone kAccent{{0x1f, 0x5f, 0xd6}, {0x2f, 0x6f, 0xe0}};
inline const Tone kLink{{0x1f, 0x3f, 0xd6}, {0x8a, 0xb0, 0xff}};
inline const Tone kAccentWash{{0xe3, 0xec, 0xfd}, {0x1f, 0x33, 0x58}};
inline const Tone kDone{{0x1a, 0x7f, 0x4b}, {0x1a, 0x7f, 0x4b}};
inline const Tone kCard{{0xff, 0xff, 0xff}, {0x1e, 0x23, 0x2b}};
inline const Tone kOtherRow{{0xf7, 0xf9, 0xfd}, {0x23, 0x29, 0x33}};
inline const Tone kRule{{0xd3, 0xdb, 0xe9}, {0x3a, 0x43, 0x50}};
inline const Tone kDisabledInk{{0x8a, 0x94, 0xa6}, {0x7d, 0x88, 0x9a}};
inline const Tone kToolTip{{0x1b, 0x24, 0x30}, {0x3a, 0x43, 0x50}};

// One unit of the spacing grid, in pixels before scaling.
inline constexpr int kUnit = 8;

// The height of a rectangle in which text is measured: more than any text of ours takes.
inline constexpr int kAnyHeight = 10000;

}  // namespace theme

// The background of the main window and of every panel: red 241/255, green 244/255, blue 250/255, opaque; in
// the dark look its counterpart.
QColor commonBackground();

// Style, palette and style sheet for the whole program; once, before the first window. The light look.
void applyTheme(QApplication& application);

// Everything that is shown changes with it.
void setLook(QApplication& application, Look look);

// A style sheet that was written for the light look, in the colours of another. Colours that it does not know
// stay as they are.
QString sheetInLook(const QString& sheet, Look look);

// Gives a window the common background.
void setCommonBackground(QWidget* window);

// An icon of the program's own, by its name in resources/icons without the ending; drawn for the look of the
// moment whenever it is painted.
QIcon ownIcon(const QString& name);
// Gives every button below that names an icon of ours (property "ownIcon") that icon.
void dressIcons(QWidget* root);

}  // namespace vantor
