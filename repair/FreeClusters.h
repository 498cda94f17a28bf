// What of a medium no whole file explains: where the pieces of broken ones may lie.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "media/SectorRun.h"

namespace vantor {

// Clusters of `sectors` sectors, the first of which begins with sector `origin`, less than a cluster.
struct ClusterGrid {
    std::uint64_t origin = 0;
    std::uint64_t sectors = 0;

    bool operator==(const ClusterGrid&) const = default;
};

// The grids that nearly all of these first sectors of files lie on, the widest first: from clusters of
// 512 KiB to 4 KiB. One in `strays` may lie elsewhere.
std::vector<ClusterGrid> gridsOf(std::span<const std::uint64_t> firstSectors, std::size_t strays = 10);

// Clusters are numbered from 0.
class FreeClusters {
  public:
    FreeClusters(const ClusterGrid& grid, std::uint64_t mediumSectors);

    // Explained by a whole file.
    void take(const SectorRun& run);
    void takeCluster(std::uint64_t cluster) {
        if (cluster < count()) {
            m_taken[static_cast<std::size_t>(cluster)] = true;
        }
    }

    std::uint64_t count() const { return m_taken.size(); }
    bool isFree(std::uint64_t cluster) const { return cluster < count() && !m_taken[cluster]; }
    std::uint64_t firstSectorOf(std::uint64_t cluster) const {
        return m_grid.origin + cluster * m_grid.sectors;
    }
    // Nothing for a sector that begins none.
    std::optional<std::uint64_t> beginningAt(std::uint64_t sector) const;
    std::uint64_t clusterBytes() const;

    // The free cluster that is `steps` free ones further, at least one; nothing behind the last.
    std::optional<std::uint64_t> ahead(std::uint64_t cluster, std::uint64_t steps) const;
    std::optional<std::uint64_t> back(std::uint64_t cluster, std::uint64_t steps) const;
    // How many steps ahead() takes from one to the other; 0 when it does not get there.
    std::uint64_t stepsBetween(std::uint64_t from, std::uint64_t to) const;

  private:
    ClusterGrid m_grid;
    std::vector<bool> m_taken;
};

}  // namespace vantor
