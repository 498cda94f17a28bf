// A progressive JPEG photo in pieces, put together by the codes of its scans.
#pragma once

#include <atomic>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "repair/ClusterKinds.h"
#include "repair/ClusterRow.h"
#include "repair/PhotoPieces.h"
#include "repair/ProgressiveUnits.h"

namespace vantor {

// Finds where the clusters of one photo lie. Any one thread.
class ProgressivePieces {
  public:
    // Of one photo: coded units that are read in all its trials.
    static constexpr std::uint64_t kMostUnits = 10'000'000;
    static constexpr std::size_t kMostJoins = 3;

    ProgressivePieces(MediumBlocks& medium, const FreeClusters& free, ClusterKinds& kinds,
                      const std::atomic<int>& stop)
        : m_medium(medium), m_free(free), m_kinds(kinds), m_stop(stop) {}

    // The photo that begins in the cluster; nothing unless each scan has all its units, and the end mark
    // stands behind the last. A foreign piece shows where there is one join, and not where bare bits stand
    // there.
    std::optional<PiecedPhoto> assemble(std::uint64_t firstCluster);

  private:
    // A cluster boundary, by the number of the cluster behind it, and how to read on there.
    struct Cut {
        std::size_t number = 0;
        ProgressiveUnits::Place before;
    };
    struct Trial {
        std::uint64_t cluster = 0;
        std::uint64_t reach = 0;  // bytes read behind the cut
    };

    bool solve(std::size_t joins, bool outermost);
    bool readOn(std::deque<Cut>& cuts, bool outermost);
    bool joinAt(const Cut& cut, const std::vector<std::uint64_t>& way, std::size_t joins);
    void takeFound();

    MediumBlocks& m_medium;
    const FreeClusters& m_free;
    ClusterKinds& m_kinds;
    const std::atomic<int>& m_stop;

    std::unique_ptr<ClusterRow> m_row;
    std::unique_ptr<ProgressiveUnits> m_units;
    std::uint64_t m_unitsLeft = 0;
    PiecedPhoto m_found;
};

}  // namespace vantor
