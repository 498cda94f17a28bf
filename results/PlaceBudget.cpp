// One number a place.
#include "results/PlaceBudget.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr std::uint64_t kMostPlaces = std::uint64_t{1} << 20;

std::uint64_t dividedUp(std::uint64_t a, std::uint64_t b) {
    return a / b + (a % b != 0 ? 1 : 0);
}

}  // namespace

PlaceBudget::PlaceBudget(std::uint64_t mediumSectors)
    : m_sectorsPerPlace(std::max(kPlaceSectors, dividedUp(mediumSectors, kMostPlaces))) {
    m_places = std::max<std::uint64_t>(1, dividedUp(mediumSectors, m_sectorsPerPlace));
}

// What lies behind the medium's end counts as its last place.
std::uint64_t PlaceBudget::placeOf(std::uint64_t sector) const {
    return std::min(sector / m_sectorsPerPlace, m_places - 1);
}

std::uint64_t PlaceBudget::spentAt(std::uint64_t place) const {
    return m_spent.empty() ? 0 : m_spent[place];
}

bool PlaceBudget::isSpent(std::uint64_t sector, std::uint64_t times) const {
    return spentAt(placeOf(sector)) >= times * m_sectorsPerPlace;
}

bool PlaceBudget::covers(const SectorRun& stretch, std::uint64_t times) const {
    for (std::uint64_t at = stretch.first; at < stretch.end;) {
        const std::uint64_t place = placeOf(at);
        const std::uint64_t end = std::min(stretch.end, (at / m_sectorsPerPlace + 1) * m_sectorsPerPlace);
        if (spentAt(place) + (end - at) > times * m_sectorsPerPlace) {
            return false;
        }
        at = end;
    }
    return true;
}

void PlaceBudget::spend(const SectorRun& stretch) {
    m_spent.resize(m_places);
    for (std::uint64_t at = stretch.first; at < stretch.end;) {
        const std::uint64_t end = std::min(stretch.end, (at / m_sectorsPerPlace + 1) * m_sectorsPerPlace);
        m_spent[placeOf(at)] += end - at;
        at = end;
    }
}

}  // namespace vantor
