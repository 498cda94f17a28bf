// What several motifs have in common: skylines, clouds, stars, trees, birds.
#pragma once

#include "samples/Canvas.h"
#include "samples/Random.h"

namespace vantor::samples {

// A mountain line: `base` less up to `height` units, with features some `width` units wide.
Canvas::Edge mountainLine(std::int64_t base, std::int64_t height, std::int64_t width, std::uint32_t seed,
                          int octaves = 5);
// A soft hill line of two waves.
Canvas::Edge hillLine(std::int64_t base, std::int64_t height, std::int64_t width, std::int64_t phase);
// One colour at the edge running into another `depth` units below it.
Canvas::Shade fading(Colour edge, Colour deep, std::int64_t depth);

// Clouds in the band [from, to), densest in the middle; `clear` of [0, 65535] is how much of the sky stays
// clear.
void paintClouds(Canvas& canvas, std::int64_t from, std::int64_t to, Colour light, Colour shadow, int clear,
                 std::uint32_t seed, int strongest = 230);
void paintStars(Canvas& canvas, int count, std::int64_t to, std::uint64_t seed);
void paintBird(Canvas& canvas, Point at, std::int64_t span, Colour colour);
void paintFir(Canvas& canvas, Point foot, std::int64_t height, Colour dark, Colour light);
void paintLeafTree(Canvas& canvas, Point foot, std::int64_t height, Colour crown, Colour trunk,
                   std::uint64_t seed);
void paintSail(Canvas& canvas, Point waterline, std::int64_t height, Colour sail, Colour hull);

// A flower seen from above: petals around a centre.
struct Flower {
    Point centre;
    std::int64_t radius = 0;
    int petals = 8;
    Colour inner;  // petal colour near the centre
    Colour outer;
    Colour eye;
    std::int64_t turn = 0;
    std::int64_t flatness = 256;  // height of the flower in 1/256 of its width
};
void paintFlower(Canvas& canvas, const Flower& flower);

}  // namespace vantor::samples
