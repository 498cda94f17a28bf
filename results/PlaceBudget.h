// How much was spent on each place of the medium, so that what one place costs is not missing at another.
#pragma once

#include <cstdint>
#include <vector>

#include "media/SectorRun.h"

namespace vantor {

// Counts sectors by places of a mebibyte, on enormous media by larger ones. Memory only once something was
// spent, some megabytes at most. One thread.
class PlaceBudget {
  public:
    static constexpr std::uint64_t kPlaceSectors = 2048;

    explicit PlaceBudget(std::uint64_t mediumSectors);

    // Whether the sector's place was paid for so many times over.
    bool isSpent(std::uint64_t sector, std::uint64_t times) const;
    // Whether no place of the stretch would then be paid for more than so many times over.
    bool covers(const SectorRun& stretch, std::uint64_t times) const;
    void spend(const SectorRun& stretch);

  private:
    std::uint64_t placeOf(std::uint64_t sector) const;
    std::uint64_t spentAt(std::uint64_t place) const;

    std::uint64_t m_places;
    std::uint64_t m_sectorsPerPlace;
    std::vector<std::uint64_t> m_spent;  // sectors
};

}  // namespace vantor
