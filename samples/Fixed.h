// Integer mathematics for painting and sound: floating point may round differently from one machine to the
// next.
#pragma once

#include <cstdint>

namespace vantor::samples {

constexpr int kHalfTurn = 32768;
constexpr int kFullTurn = 2 * kHalfTurn;
constexpr int kUnity = 32767;  // what sine() yields for 1

// Sine of an angle in 1/65536 turns, within [-kUnity, kUnity]; Bhaskara's approximation, right to 0.2 %.
int sine(std::int64_t angle);
int cosine(std::int64_t angle);

// The whole part of the square root.
std::int64_t squareRoot(std::int64_t value);

// Floor division: towards minus infinity, unlike the operator.
constexpr std::int64_t floorDivide(std::int64_t a, std::int64_t b) {
    const std::int64_t quotient = a / b;
    return (a % b != 0 && (a < 0) != (b < 0)) ? quotient - 1 : quotient;
}

constexpr std::int64_t clampTo(std::int64_t value, std::int64_t low, std::int64_t high) {
    return value < low ? low : (value > high ? high : value);
}

// Smooth step of t within [0, 65536]: 3t² − 2t³ in the same scale.
constexpr std::int64_t smooth(std::int64_t t) {
    return (((t * t) >> 16) * (3 * 65536 - 2 * t)) >> 16;
}

// Value noise at a point given in 1/65536 lattice cells; yields [0, 65535].
int valueNoise(std::int64_t x, std::int64_t y, std::uint32_t seed);

// Octaves of value noise, each half as strong and twice as fine; yields [0, 65535].
int cloudNoise(std::int64_t x, std::int64_t y, std::uint32_t seed, int octaves);

}  // namespace vantor::samples
