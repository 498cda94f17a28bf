// Names that somebody wrote on a card, as they may be shown.
#pragma once

#include <QString>

namespace vantor {

// The text with everything that is not seen but steers (control characters, marks that turn the direction of
// reading) spelt out as "\u202e": nothing in it speaks to a terminal or turns the words around it.
QString steeringSpeltOut(QStringView text);
// The same of control characters alone: what joins letters and pictures in names of files stays.
QString controlsSpeltOut(QStringView text);
// As steeringSpeltOut(), cut behind kMostLabelLetters, so that it does not hold up the screen either.
inline constexpr qsizetype kMostLabelLetters = 200;
QString shownLabel(const QString& text);

}  // namespace vantor
