#include "repair/FreeClusters.h"

#include <algorithm>
#include <map>

#include "media/SectorReader.h"

namespace vantor {

namespace {

constexpr std::uint64_t kWidest = 1024;  // sectors
constexpr std::uint64_t kNarrowest = 8;

}  // namespace

std::vector<ClusterGrid> gridsOf(std::span<const std::uint64_t> firstSectors, std::size_t strays) {
    std::vector<ClusterGrid> grids;
    for (std::uint64_t sectors = kWidest; sectors >= kNarrowest; sectors /= 2) {
        std::map<std::uint64_t, std::size_t> origins;
        for (const std::uint64_t first : firstSectors) {
            ++origins[first % sectors];
        }
        const auto most = std::max_element(origins.begin(), origins.end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
        if (most != origins.end() && most->second >= firstSectors.size() - firstSectors.size() / strays) {
            grids.push_back({most->first, sectors});
        }
    }
    return grids;
}

FreeClusters::FreeClusters(const ClusterGrid& grid, std::uint64_t mediumSectors)
    : m_grid(grid),
      m_taken(mediumSectors < grid.origin ? 0 : (mediumSectors - grid.origin) / grid.sectors, false) {}

void FreeClusters::take(const SectorRun& run) {
    if (run.end <= m_grid.origin) {
        return;
    }
    const std::uint64_t first = (std::max(run.first, m_grid.origin) - m_grid.origin) / m_grid.sectors;
    const std::uint64_t end = (run.end - m_grid.origin + m_grid.sectors - 1) / m_grid.sectors;
    if (first < count()) {
        std::fill(m_taken.begin() + static_cast<std::ptrdiff_t>(first),
                  m_taken.begin() + static_cast<std::ptrdiff_t>(std::min(end, count())), true);
    }
}

std::optional<std::uint64_t> FreeClusters::beginningAt(std::uint64_t sector) const {
    const bool begins = sector >= m_grid.origin && (sector - m_grid.origin) % m_grid.sectors == 0;
    return begins ? std::optional((sector - m_grid.origin) / m_grid.sectors) : std::nullopt;
}

std::uint64_t FreeClusters::clusterBytes() const {
    return m_grid.sectors * kSectorBytes;
}

std::optional<std::uint64_t> FreeClusters::ahead(std::uint64_t cluster, std::uint64_t steps) const {
    for (; steps != 0; --steps) {
        do {
            if (++cluster >= count()) {
                return std::nullopt;
            }
        } while (m_taken[cluster]);
    }
    return cluster;
}

std::optional<std::uint64_t> FreeClusters::back(std::uint64_t cluster, std::uint64_t steps) const {
    for (; steps != 0; --steps) {
        do {
            if (cluster-- == 0) {
                return std::nullopt;
            }
        } while (m_taken[cluster]);
    }
    return cluster;
}

std::uint64_t FreeClusters::stepsBetween(std::uint64_t from, std::uint64_t to) const {
    std::uint64_t steps = 0;
    for (std::uint64_t cluster = from + 1; cluster <= to && cluster < count(); ++cluster) {
        steps += m_taken[cluster] ? 0 : 1;
    }
    return to > from && isFree(to) ? steps : 0;
}

}  // namespace vantor
