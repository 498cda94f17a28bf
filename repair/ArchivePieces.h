// An archive in pieces, put together by the directory at its end and the sums of its members. Office
// documents are archives.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "repair/ArchiveDirectory.h"
#include "repair/ArchivePlaces.h"
#include "repair/FreeClusters.h"
#include "repair/LaidClusters.h"
#include "repair/MediumBlocks.h"

namespace vantor {

struct PiecedArchive {
    std::vector<std::uint64_t> clusters;  // in the order of the file
    std::uint64_t bytes = 0;
    bool proved = false;  // by the sums of all members
};

// How much may still be done. Places and records that are looked at, clusters that are laid and blocks that
// are read count as steps, and so do bytes that are unpacked, by what they cost.
struct ArchiveEffort {
    static constexpr std::uint64_t kBlock = 50'000;  // steps
    static constexpr std::uint64_t kBytesAStep = 4;
    // Of one archive, and of all of a medium beside reading it once.
    static constexpr std::uint64_t kOfOne = std::uint64_t{1} << 28;
    static constexpr std::uint64_t kOfAll = std::uint64_t{1} << 33;

    std::uint64_t left = kOfAll;

    void spend(std::uint64_t steps) { left -= std::min(left, steps); }
};

// The archives of a grid of clusters. Any one thread.
class ArchivePieces {
  public:
    ArchivePieces(MediumBlocks& medium, const FreeClusters& free, const ArchivePlaces& places,
                  const std::atomic<int>& stop)
        : m_medium(medium), m_free(free), m_places(places), m_stop(stop), m_fetched(medium.fetched()) {}

    // The archive that begins in the cluster; nothing unless every member of it is found. Takes what it does
    // off `effort`, and does little more.
    std::optional<PiecedArchive> assemble(std::uint64_t firstCluster, ArchiveEffort& effort);
    // Directories that were not found may have come to light since other archives gave way.
    void forgetMissing() {
        std::erase_if(m_fronts, [](const auto& end) { return !end.second; });
    }

  private:
    struct Look {
        bool whole = false;
        std::uint64_t brokenAt = 0;  // in the file; how far nothing speaks against it
    };

    bool tryEnd(std::uint64_t firstCluster, std::span<const std::uint8_t> head, std::size_t which);
    bool placeDirectory(std::optional<std::uint64_t> firstCluster, std::uint64_t lastCluster);
    bool isShown();
    bool mayGoOn();
    bool placeMembers();
    bool placeHead(const ArchiveMember& member);
    bool fill(const ArchiveMember& member);
    bool lay(std::uint64_t before, std::uint64_t end, std::uint64_t ahead, std::uint64_t step);
    Look look(const ArchiveMember& member);

    MediumBlocks& m_medium;
    const FreeClusters& m_free;
    const ArchivePlaces& m_places;
    const std::atomic<int>& m_stop;
    ArchiveEnd m_end;
    std::vector<ArchiveMember> m_members;
    LaidClusters m_laid;
    // The first member by what the directory before an end tells, or that none was found: so that it is not
    // looked for again with each archive.
    std::unordered_map<std::size_t, std::optional<ArchiveMember>> m_fronts;
    ArchiveEffort m_effort;
    std::uint64_t m_fetched = 0;  // blocks that are paid for
    bool m_proved = true;
};

}  // namespace vantor
