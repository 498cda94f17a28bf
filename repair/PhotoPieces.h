// A JPEG photo in pieces, put together by its coded units and the seams between its rows.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "repair/ClusterKinds.h"
#include "repair/ClusterRow.h"
#include "repair/FreeClusters.h"
#include "repair/JpegHead.h"
#include "repair/JpegUnits.h"
#include "repair/MediumBlocks.h"

namespace vantor {

struct PiecedPhoto {
    std::vector<std::uint64_t> clusters;  // in the order of the file
    std::uint64_t bytes = 0;              // to the picture's end mark
    std::size_t joins = 0;                // places where one piece ends and another goes on
    bool joinsShow = true;                // a foreign piece would have shown at each of them
};

// Finds where the clusters of one photo lie. Any one thread.
class PhotoPieces {
  public:
    // Of one photo: coded units that are read in all its trials, and in one call.
    static constexpr std::uint64_t kMostUnits = 9'200'000;
    static constexpr std::uint64_t kMostUnitsAtOnce = 4'000'000;
    static constexpr std::size_t kMostJoins = 4;

    PhotoPieces(MediumBlocks& medium, const FreeClusters& free, ClusterKinds& kinds,
                const std::atomic<int>& stop)
        : m_medium(medium), m_free(free), m_kinds(kinds), m_stop(stop) {}

    // The photo that begins in the cluster; nothing unless every unit of it is found, and the end mark right
    // behind the last. Takes what it reads off `units`, and reads no more than these.
    std::optional<PiecedPhoto> assemble(std::uint64_t firstCluster, std::uint64_t& units);

  private:
    // A cluster boundary, by the number of the cluster behind it, and how to read on there.
    struct Cut {
        std::size_t number = 0;
        JpegUnits::Snapshot before;
    };
    struct Trial {
        std::uint64_t cluster = 0;
        float misfit = 0;
        bool shows = false;
    };

    bool solve(const Cut& from, std::vector<std::uint64_t> clusters, std::size_t joins, bool joinsShow);
    std::vector<Trial> trialsAt(const Cut& cut, const std::vector<std::uint64_t>& clusters, float limit);
    std::optional<Trial> tryAt(JpegUnits& units, ClusterRow& supply, const Cut& cut, std::uint64_t cluster,
                               float limit);
    void spend(std::uint64_t units) { m_unitsLeft -= std::min(m_unitsLeft, units); }
    ClusterRow rowOf(std::vector<std::uint64_t> clusters) const;

    MediumBlocks& m_medium;
    const FreeClusters& m_free;
    ClusterKinds& m_kinds;
    const std::atomic<int>& m_stop;

    std::optional<JpegHead> m_head;
    std::vector<float> m_own;      // of each unit on the way that is being tried
    std::vector<float> m_shifted;  // likewise
    std::vector<unsigned> m_seams;
    std::uint64_t m_unitsLeft = 0;
    PiecedPhoto m_found;
};

}  // namespace vantor
