// The motifs of the card's pictures: landscapes, flowers and skies, no two alike.
#pragma once

#include <QImage>

namespace vantor::samples {

class Canvas;

// A motif paints itself at any size; it is at its best between 4:3 and 3:2.
using Scene = void(Canvas& canvas);
Scene seaSunset, lilacBay, palmBeach, lighthouse, underWater, alpineLake, autumnLake;
Scene blueRidges, pinkRidges, dunes, rainbowHills, balloons, autumnTrees, winterCabin, mistyForest;
Scene lavenderRows, tulipRows, meadow, sunflower, daisies, cherryBranch, pinkCosmos;
Scene starryNight, aurora, citySkyline, fireworks, cityLights, moonDesert;

QImage painted(Scene* scene, int width, int height);

// One frame of the card's movies: the sun has gone down `evening` of [0, 1] of its way over the sea, and a
// boat has sailed `voyage` of its own.
QImage sunsetAt(int width, int height, double evening, double voyage);
// Bars and ramps to judge colours by.
QImage testCard(int width, int height);

}  // namespace vantor::samples
