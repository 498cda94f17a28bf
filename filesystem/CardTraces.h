// What a search noted in passing for those who read the card's directories afterwards.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "media/SectorRun.h"

namespace vantor {

// Places that are worth a second look; they prove nothing. Each list is in the order of the medium.
struct CardTraces {
    std::vector<SectorRun> directories;      // sectors that look like rows of a directory or file records
    std::vector<std::uint64_t> bootSectors;  // sectors that look like a file system's first, or its copy
};

// Where a file was found by its own bytes, and as what.
struct FoundStart {
    std::uint64_t sector = 0;
    QString extension;  // without the dot, of any case
};

}  // namespace vantor
