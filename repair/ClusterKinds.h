// Which clusters of a medium may hold coded units of a JPEG picture, by their bytes alone.
#pragma once

#include <cstdint>
#include <functional>
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

    // Each free cluster whose bytes speak for units or scans, from the one behind `from` on and round to the
    // one before it, until `take` returns false. A stretch that had none is passed over the next time.
    void eachCoded(std::uint64_t from, const std::function<bool(std::uint64_t cluster)>& take);

  private:
    bool isCoded(std::uint64_t cluster);
    // Of those in [cluster, end); false once `take` returned it.
    bool takeCoded(std::uint64_t cluster, std::uint64_t end,
                   const std::function<bool(std::uint64_t cluster)>& take);

    MediumBlocks& m_medium;
    const FreeClusters& m_grid;
    std::vector<Kind> m_kinds;
    std::vector<bool> m_passedOver;  // stretches of kStretch clusters without a coded one
    std::vector<std::uint8_t> m_bytes;
};

}  // namespace vantor
