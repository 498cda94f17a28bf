// An item's bytes put together from several places of the medium, beside the run it was carved from.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "media/SectorRun.h"

namespace vantor {

// Why the pieces are believed to belong together.
enum class AssemblyProof {
    Proved,  // a chain of the allocation table with the directory's length, or sums, sample tables, block
             // counts
    Likely,  // everything fits, but another piece might fit as well: the user has to look
};

// The bytes of the item are those of the runs one behind the other, cut to `bytes`.
struct Assembly {
    std::vector<SectorRun> runs;
    std::uint64_t bytes = 0;
    AssemblyProof proof = AssemblyProof::Likely;
    bool byDirectory = false;  // the card's directory told the pieces; else they were searched for
};

}  // namespace vantor
