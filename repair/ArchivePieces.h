// An archive in pieces, put together by the directory at its end and the sums of its members. Office
// documents are archives.
#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <vector>

#include "repair/ArchiveDirectory.h"
#include "repair/FreeClusters.h"
#include "repair/MediumBlocks.h"

namespace vantor {

// Where the heads of members and the records behind directories begin on a medium, in bytes.
struct ArchivePlaces {
    std::vector<std::uint64_t> members;
    std::vector<std::uint64_t> ends;
};
ArchivePlaces archivePlaces(MediumBlocks& medium, const std::atomic<int>& stop);

struct PiecedArchive {
    std::vector<std::uint64_t> clusters;  // in the order of the file
    std::uint64_t bytes = 0;
    bool proved = false;  // by the sums of all members
};

// An object an archive. Any one thread.
class ArchivePieces {
  public:
    // Of one archive: bytes that are unpacked in all trials.
    static constexpr std::uint64_t kMostUnpacked = std::uint64_t{1} << 30;

    ArchivePieces(MediumBlocks& medium, const FreeClusters& free, const ArchivePlaces& places,
                  const std::atomic<int>& stop)
        : m_medium(medium), m_free(free), m_places(places), m_stop(stop) {}

    // The archive that begins in the cluster; nothing unless every member of it is found.
    std::optional<PiecedArchive> assemble(std::uint64_t firstCluster);

  private:
    static constexpr std::uint64_t kUnplaced = ~std::uint64_t{0};
    struct Look {
        bool whole = false;
        std::uint64_t brokenAt = 0;  // in the file; how far nothing speaks against it
    };

    bool tryEnd(std::uint64_t firstCluster, std::uint64_t endPlace);
    bool placeDirectory(std::uint64_t firstCluster, std::uint64_t lastCluster);
    bool placeMembers();
    bool placeHead(const ArchiveMember& member);
    bool fill(const ArchiveMember& member);
    bool lay(std::uint64_t before, std::uint64_t end, std::uint64_t ahead, std::uint64_t step);
    void lift(std::uint64_t before, std::uint64_t end);
    Look look(const ArchiveMember& member);
    void place(std::uint64_t number, std::uint64_t cluster);

    MediumBlocks& m_medium;
    const FreeClusters& m_free;
    const ArchivePlaces& m_places;
    const std::atomic<int>& m_stop;
    ArchiveEnd m_end;
    std::vector<ArchiveMember> m_members;
    std::vector<std::uint64_t> m_clusters;  // of the medium for each of the file
    std::vector<bool> m_used;
    std::uint64_t m_unpackedLeft = kMostUnpacked;
    bool m_proved = true;
};

}  // namespace vantor
