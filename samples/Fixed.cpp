// Sine, square root and noise in whole numbers.
#include "samples/Fixed.h"

#include "samples/Random.h"

namespace vantor::samples {

int sine(std::int64_t angle) {
    const std::int64_t turn = angle & (kFullTurn - 1);
    const bool lowerHalf = turn >= kHalfTurn;
    const std::int64_t x = lowerHalf ? turn - kHalfTurn : turn;
    const std::int64_t hump = x * (kHalfTurn - x);
    const std::int64_t square = static_cast<std::int64_t>(kHalfTurn) * kHalfTurn;
    const auto value = static_cast<int>(16 * hump * kUnity / (5 * square - 4 * hump));
    return lowerHalf ? -value : value;
}

int cosine(std::int64_t angle) {
    return sine(angle + kFullTurn / 4);
}

std::int64_t squareRoot(std::int64_t value) {
    if (value <= 0)
        return 0;
    std::int64_t root = 0;
    std::int64_t bit = std::int64_t{1} << 62;
    while (bit > value)
        bit >>= 2;
    for (; bit != 0; bit >>= 2) {
        if (value >= root + bit) {
            value -= root + bit;
            root = (root >> 1) + bit;
        } else {
            root >>= 1;
        }
    }
    return root;
}

namespace {

std::int64_t latticeValue(std::int64_t x, std::int64_t y, std::uint32_t seed) {
    std::uint32_t hash = static_cast<std::uint32_t>(x) * 0x9E3779B1u +
                         static_cast<std::uint32_t>(y) * 0x85EBCA77u + seed * 0xC2B2AE3Du;
    hash = (hash ^ (hash >> 15)) * 0x2C1B3C6Du;
    hash = (hash ^ (hash >> 12)) * 0x297A2D39u;
    return (hash ^ (hash >> 15)) & 0xFFFF;
}

}  // namespace

int valueNoise(std::int64_t x, std::int64_t y, std::uint32_t seed) {
    const std::int64_t column = x >> 16;
    const std::int64_t row = y >> 16;
    const std::int64_t right = smooth(x & 0xFFFF);
    const std::int64_t down = smooth(y & 0xFFFF);
    const std::int64_t a = latticeValue(column, row, seed);
    const std::int64_t b = latticeValue(column + 1, row, seed);
    const std::int64_t c = latticeValue(column, row + 1, seed);
    const std::int64_t d = latticeValue(column + 1, row + 1, seed);
    const std::int64_t top = a * 65536 + (b - a) * right;
    const std::int64_t bottom = c * 65536 + (d - c) * right;
    return static_cast<int>((top + (((bottom - top) >> 16) * down)) >> 16);
}

int cloudNoise(std::int64_t x, std::int64_t y, std::uint32_t seed, int octaves) {
    std::int64_t sum = 0;
    std::int64_t weights = 0;
    for (int octave = 0; octave < octaves; ++octave) {
        const std::int64_t weight = std::int64_t{1} << (octaves - octave);
        sum += weight * valueNoise(x << octave, y << octave, seed + static_cast<std::uint32_t>(octave) * 101);
        weights += weight;
    }
    return static_cast<int>(sum / weights);
}

}  // namespace vantor::samples
