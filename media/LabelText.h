// Names that somebody wrote on a card, as they may be shown.
#pragma once

#include <QString>

namespace vantor {

// The text with everything that is not seen but steers (control characters, marks that turn the direction of
// reading) spelt out as "\u202e", and cut behind kMostLabelLetters: nothing in it speaks to a terminal, turns
// the words around it or holds up the screen.
inline constexpr qsizetype kMostLabelLetters = 200;
QString shownLabel(const QString& text);

}  // namespace vantor
