// What of archives can be told wherever it lies on a medium.
#pragma once

#include <atomic>
#include <cstdint>
#include <vector>

#include "repair/ArchiveDirectory.h"
#include "repair/MediumBlocks.h"

namespace vantor {

// Where the heads of members and the records behind directories begin on a medium, in bytes.
struct ArchivePlaces {
    struct End {
        std::uint64_t at = 0;
        ArchiveEnd told;
    };
    std::vector<std::uint64_t> members;
    std::vector<End> ends;
};
ArchivePlaces archivePlaces(MediumBlocks& medium, const std::atomic<int>& stop);

}  // namespace vantor
