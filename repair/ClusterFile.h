// A file as it would be if its bytes lay in these clusters.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "formats/ByteSource.h"
#include "repair/FreeClusters.h"
#include "repair/MediumBlocks.h"

namespace vantor {

class ClusterFile final : public ByteSource {
  public:
    // Borrows all three. Reading ends at a cluster that the medium does not have.
    ClusterFile(MediumBlocks& medium, const FreeClusters& grid, const std::vector<std::uint64_t>& clusters,
                std::uint64_t bytes)
        : m_medium(medium), m_grid(grid), m_clusters(clusters), m_bytes(bytes) {}

    std::uint64_t size() const override {
        return std::min(m_bytes, m_clusters.size() * m_grid.clusterBytes());
    }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override {
        const std::uint64_t cluster = m_grid.clusterBytes();
        std::size_t done = 0;
        while (done < into.size() && offset + done < size()) {
            const std::uint64_t at = offset + done;
            const auto count = static_cast<std::size_t>(
                std::min<std::uint64_t>({into.size() - done, cluster - at % cluster, size() - at}));
            const std::uint64_t number = m_clusters[static_cast<std::size_t>(at / cluster)];
            if (number >= m_grid.count()) {
                break;
            }
            const std::uint64_t place = m_grid.firstSectorOf(number) * kSectorBytes + at % cluster;
            m_medium.read(place, into.subspan(done, count));
            done += count;
        }
        return done;
    }

  private:
    MediumBlocks& m_medium;
    const FreeClusters& m_grid;
    const std::vector<std::uint64_t>& m_clusters;
    const std::uint64_t m_bytes;
};

}  // namespace vantor
