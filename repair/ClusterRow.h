// Fixed clusters of a file, and behind them one after the other as long as nothing speaks against it.
#pragma once

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "repair/CodedBits.h"
#include "repair/FreeClusters.h"
#include "repair/MediumBlocks.h"

namespace vantor {

class ClusterRow final : public ClusterSupply {
  public:
    // Whether the cluster may be the one behind those that there are.
    using MayFollow = std::function<bool(std::uint64_t cluster)>;

    // Borrows both. `clusters` are not empty.
    ClusterRow(MediumBlocks& medium, const FreeClusters& grid, MayFollow mayFollow,
               std::vector<std::uint64_t> clusters)
        : m_medium(medium),
          m_grid(grid),
          m_mayFollow(std::move(mayFollow)),
          m_clusters(std::move(clusters)),
          m_bytes(static_cast<std::size_t>(grid.clusterBytes())) {}

    std::span<const std::uint8_t> cluster(std::uint64_t number) override {
        while (number >= m_clusters.size()) {
            const std::uint64_t next = m_clusters.back() + 1;
            if (!m_grid.isFree(next) || !m_mayFollow(next) || has(next)) {
                return {};
            }
            m_clusters.push_back(next);
        }
        const std::uint64_t cluster = m_clusters[static_cast<std::size_t>(number)];
        m_medium.read(m_grid.firstSectorOf(cluster) * kSectorBytes, m_bytes);
        return m_bytes;
    }

    const std::vector<std::uint64_t>& clusters() const { return m_clusters; }
    bool has(std::uint64_t cluster) const {
        return std::find(m_clusters.begin(), m_clusters.end(), cluster) != m_clusters.end();
    }
    // The clusters before `number`, and this one in its place.
    void restart(std::size_t number, std::uint64_t cluster) {
        m_clusters.resize(number);
        m_clusters.push_back(cluster);
    }

  private:
    MediumBlocks& m_medium;
    const FreeClusters& m_grid;
    const MayFollow m_mayFollow;
    std::vector<std::uint64_t> m_clusters;
    std::vector<std::uint8_t> m_bytes;
};

}  // namespace vantor
