// The motifs of the card's photos: landscapes, flowers and skies painted from numbers.
#pragma once

#include <vector>

#include "samples/Canvas.h"

namespace vantor::samples {

// A motif paints itself at any size; it is at its best between 4:3 and 3:2.
struct Scene {
    const char* name;
    Picture (*paint)(int width, int height);
};

// Every motif, no two alike.
const std::vector<Scene>& scenes();

// The motif of the given name. A name that no motif has ends the program, so that no card is painted wrongly.
const Scene& sceneNamed(const char* name);

// One frame of the card's movies: the sun has gone down `evening`/255 of its way over the sea, and a boat has
// sailed `voyage`/255 of its own.
Picture sunsetAt(int width, int height, int evening, int voyage);

// Bars and ramps to judge colours by.
Picture testCard(int width, int height);

}  // namespace vantor::samples
