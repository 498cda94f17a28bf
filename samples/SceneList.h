// The motifs by name, so that each file of motifs can offer its own.
#pragma once

#include "samples/Canvas.h"

namespace vantor::samples {

// Water (ScenesSea.cpp)
Picture seaSunset(int width, int height);
Picture lilacBay(int width, int height);
Picture palmBeach(int width, int height);
Picture lighthouse(int width, int height);
Picture underWater(int width, int height);
Picture alpineLake(int width, int height);
Picture autumnLake(int width, int height);

// Land (ScenesLand.cpp)
Picture blueRidges(int width, int height);
Picture pinkRidges(int width, int height);
Picture dunes(int width, int height);
Picture rainbowHills(int width, int height);
Picture balloons(int width, int height);
Picture autumnTrees(int width, int height);
Picture winterCabin(int width, int height);
Picture mistyForest(int width, int height);

// Flowers (ScenesGarden.cpp)
Picture lavenderRows(int width, int height);
Picture tulipRows(int width, int height);
Picture meadow(int width, int height);
Picture sunflower(int width, int height);
Picture daisies(int width, int height);
Picture cherryBranch(int width, int height);
Picture pinkCosmos(int width, int height);

// Dark (ScenesNight.cpp)
Picture starryNight(int width, int height);
Picture aurora(int width, int height);
Picture citySkyline(int width, int height);
Picture fireworks(int width, int height);
Picture cityLights(int width, int height);
Picture moonDesert(int width, int height);

}  // namespace vantor::samples
