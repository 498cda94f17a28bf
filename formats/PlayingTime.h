// How long a movie or sound plays, from what its head counts in.
#pragma once

#include <cstdint>

namespace vantor {

// Milliseconds of so many units, `perSecond` of which make a second; 0 where that cannot be a length.
constexpr std::uint64_t playingTimeMs(std::uint64_t units, std::uint64_t perSecond) {
    constexpr std::uint64_t kMostSeconds = 1000 * 3600, kMostPerSecond = 1'000'000'000'000;
    if (perSecond == 0 || perSecond > kMostPerSecond || units / perSecond > kMostSeconds)
        return 0;
    return units / perSecond * 1000 + units % perSecond * 1000 / perSecond;
}

}  // namespace vantor
