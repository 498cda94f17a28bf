// Which clusters of a medium may hold coded units of a JPEG picture, by their bytes alone.
#pragma once

#include <cstdint>
#include <vector>

#include "repair/FreeClusters.h"
#include "repair/MediumBlocks.h"

namespace vantor {

// In coded units a byte of 0xFF is followed by zero or is part of a restart mark, and there are many of them.
class ClusterKinds {
  public:
    enum class Kind : std::uint8_t {
        NotLookedAt,
        Foreign,  // no coded units
        Scans,    // units, and marks as they stand between the scans of a progressive picture
        Quiet,    // may be, but nothing speaks for it
        Units,
        End,  // units, and among them the mark that ends a picture
    };

    ClusterKinds(MediumBlocks& medium, const FreeClusters& grid);

    // Looks at each cluster once.
    Kind kindOf(std::uint64_t cluster);
    bool mayHoldUnits(std::uint64_t cluster) { return kindOf(cluster) > Kind::Scans; }
    bool mayHoldScans(std::uint64_t cluster) { return kindOf(cluster) > Kind::Foreign; }

  private:
    MediumBlocks& m_medium;
    const FreeClusters& m_grid;
    std::vector<Kind> m_kinds;
    std::vector<std::uint8_t> m_bytes;
};

}  // namespace vantor
