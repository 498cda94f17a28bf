// Notes in passing what those want to see who read a card's directories afterwards.
#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>

#include "filesystem/CardTraces.h"

namespace vantor {

// Fed with the windows that a search reads anyway, in any order and from any thread. Looks at a few bytes of
// a sector, and further only where they are those of a directory's row or of a file system's first sector.
class CardCollector {
  public:
    // Notes what there is in `sectors` sectors at `bytes`, the first of which is `firstSector` of the medium.
    void look(std::uint64_t firstSector, const std::uint8_t* bytes, std::size_t sectors);

    // Whether look() would note the sector; any thread.
    static bool isTrace(const std::uint8_t* sector);

    // All that was noted, in the order of the medium.
    CardTraces traces() const;

  private:
    // Beyond this no card has directories; what follows is not noted.
    static constexpr std::size_t kMostRuns = 1'000'000;
    static constexpr std::size_t kMostBootSectors = 4096;

    void note(const SectorRun& directory);

    mutable std::mutex m_mutex;
    CardTraces m_noted;  // each list in the order of noting
};

}  // namespace vantor
