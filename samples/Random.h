// The card's own source of pseudo-random numbers, so that every machine builds the same card.
#pragma once

#include <cstdint>

namespace vantor::samples {

// splitmix64 (Steele, Lea, Flood 2014; public-domain reference by Vigna): one state word, full period. Draw
// once a statement, or within braces: the order in which a call's arguments are evaluated is the compiler's
// choice.
class Random {
  public:
    explicit Random(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t next() {
        m_state += 0x9E3779B97F4A7C15u;
        return mix(m_state);
    }

    // A number of [low, high]; the small bias of the modulo is of no matter here.
    int between(int low, int high) {
        return low + static_cast<int>(next() % static_cast<std::uint64_t>(high - low + 1));
    }

    static std::uint64_t mix(std::uint64_t z) {
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }

  private:
    std::uint64_t m_state;
};

}  // namespace vantor::samples
