// The box in which an item is ticked for saving.
#pragma once

#include <QRect>

class QPainter;

namespace vantor {

// What can be clicked of it, in pixels; larger than what is drawn.
inline constexpr int kTickReach = 24;

// In the middle of the place.
void paintTick(QPainter* painter, const QRect& place, bool ticked, bool pointedAt);

}  // namespace vantor
