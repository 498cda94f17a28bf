// How long a movie or a sound plays, out of what its headers count.
#pragma once

#include <cstdint>

namespace vantor {

// Milliseconds of so many units at so many a second; 0 where that is no time or more than a recording lasts
// (100 days).
constexpr std::uint64_t playTime(std::uint64_t units, std::uint64_t perSecond) {
    constexpr std::uint64_t kMostSeconds = std::uint64_t{100} * 24 * 3600;
    if (perSecond == 0 || units / perSecond >= kMostSeconds)
        return 0;
    const std::uint64_t rest = units % perSecond;
    // A rate beyond what can be multiplied is that of a clock, whose small steps do not matter.
    const std::uint64_t coarse = perSecond >= std::uint64_t{1} << 50 ? 1'000'000 : 1;
    return units / perSecond * 1000 + rest / coarse * 1000 / (perSecond / coarse);
}

}  // namespace vantor
