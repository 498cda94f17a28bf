// A stretch of sectors.
#pragma once

#include <cstdint>

namespace vantor {

// Sectors [first, end) of the medium.
struct SectorRun {
    std::uint64_t first = 0;
    std::uint64_t end = 0;

    bool operator==(const SectorRun&) const = default;
};

}  // namespace vantor
