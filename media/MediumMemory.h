// What is remembered of a listed medium, so that the same card is known again when it is put back.
#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <span>

#include "media/BlockSource.h"
#include "media/SectorReader.h"

namespace vantor {

// Where a medium is found now: its node, and the kernel's number for its stay there.
struct MediumPlace {
    QString node;
    std::uint64_t diskSequence = 0;
};

// Keeps a few of the sectors that were read, spread evenly over all that was read, the first one (the boot
// sector) always among them. Any thread.
class MediumMemory {
  public:
    static constexpr std::size_t kMostSectors = 64;

    // Good sectors as they come from the medium.
    void note(std::uint64_t firstSector, std::span<const std::uint8_t> bytes);
    bool isEmpty() const;

    // Whether the medium holds what is remembered: three of four sectors that can be read, since a computer
    // that mounts a card changes a few, and at least one. Reads at most kMostSectors.
    bool agreesWith(BlockSource& medium) const;

    // Set when the card was found elsewhere than it was listed.
    std::optional<MediumPlace> place() const;
    void setPlace(MediumPlace place);

  private:
    using Sector = std::array<std::uint8_t, kSectorBytes>;

    mutable std::mutex m_mutex;
    std::map<std::uint64_t, Sector> m_sectors;
    std::uint64_t m_stride = 1;  // only multiples of it are kept
    std::optional<MediumPlace> m_place;
};

}  // namespace vantor
