// What several motifs have in common: skylines, clouds, stars, trees.
#pragma once

#include <cmath>
#include <random>

#include "samples/Canvas.h"

namespace vantor::samples {

// Whole numbers of [low, high] by chance, the same row of them for the same seed.
class Random {
  public:
    explicit Random(int seed) : m_engine(unsigned(seed)) {}
    double between(double low, double high) {
        return std::floor(low) + m_engine() % unsigned(high - low + 1);
    }

  private:
    std::mt19937 m_engine;
};

// A mountain line: `base` less up to `height` units, with features some `width` units wide.
Canvas::Edge mountainLine(double base, double height, double width, int seed, int octaves = 5);
// A soft hill line of two waves.
Canvas::Edge hillLine(double base, double height, double width, double phase);
// One colour at the edge running into another `depth` units below it.
Canvas::Shade fading(Colour edge, Colour deep, double depth);

// Clouds in the band [from, to), densest in the middle; `clear` of [0, 65535] is how much of the sky stays
// clear.
void paintClouds(Canvas& canvas, double from, double to, Colour light, Colour shadow, int clear, int seed,
                 int strongest = 230);
void paintStars(Canvas& canvas, int count, double to, int seed);
void paintFir(Canvas& canvas, Point foot, double height, Colour dark, Colour light);
void paintLeafTree(Canvas& canvas, Point foot, double height, Colour crown, Colour trunk, int seed);
void paintSail(Canvas& canvas, Point waterline, double height, Colour sail, Colour hull);

// A flower seen from above: petals around a centre.
struct Flower {
    Point centre;
    double radius = 0;
    int petals = 8;
    Colour inner;  // petal colour near the centre
    Colour outer;
    Colour eye;
    double turn = 0;
    double flatness = 256;  // height of the flower in 1/256 of its width
};
void paintFlower(Canvas& canvas, const Flower& flower);

}  // namespace vantor::samples
