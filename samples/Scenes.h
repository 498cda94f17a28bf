// The motifs of the card's pictures: landscapes, flowers and skies, no two alike.
#pragma once

#include <QImage>

namespace vantor::samples {

class Canvas;

// A motif paints itself at any size; it is at its best between 4:3 and 3:2.
using Scene = void(Canvas& canvas);
Scene seaSunset, lilacBay, alpineLake, autumnLake;
Scene blueRidges, pinkRidges, rainbowHills, balloons, mistyForest;
Scene lavenderRows, meadow, sunflower, daisies, pinkCosmos;
Scene starryNight, aurora, citySkyline, fireworks;

QImage painted(Scene* scene, int width, int height);
// The same place from its other side, in the light of a later hour.
QImage seenAgain(const QImage& picture, const QColor& light);

// One frame of the card's movies: the sun has gone down `evening` of [0, 1] of its way over the sea, and a
// boat has sailed `voyage` of its own.
QImage sunsetAt(int width, int height, double evening, double voyage);
// Bars and ramps to judge colours by.
QImage testCard(int width, int height);

}  // namespace vantor::samples
