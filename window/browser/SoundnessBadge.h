// The small marks on an item's picture that say how sound it is.
#pragma once

#include <QRect>

#include "results/BrowserOrder.h"

class QPainter;

namespace vantor {

// In the corners of the picture's place: bottom right the verdict, top right a warning when not all sectors
// could be read, bottom left that it is saved. Nothing for what is not known yet. Each differs by its shape,
// not only by its colour.
void paintBadges(QPainter* painter, const QRect& place, const ItemFacts& facts);

}  // namespace vantor
