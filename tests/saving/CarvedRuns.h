// What the tests of the saver carve.
#pragma once

#include "results/CarvedRun.h"

namespace vantor {

// Sectors that were read without a refusal, half-open.
inline CarvedRun run(std::uint64_t first, std::uint64_t end) {
    return {{{first, end}}, false};
}

constexpr qsizetype kWavBytes = 100'000;  // 196 sectors

}  // namespace vantor
