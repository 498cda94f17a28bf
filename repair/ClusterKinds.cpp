#include "repair/ClusterKinds.h"

#include <algorithm>

namespace vantor {

namespace {

using Kind = ClusterKinds::Kind;

Kind kindOfBytes(const std::vector<std::uint8_t>& bytes) {
    std::size_t stuffed = 0;
    // The last byte's follower lies in another cluster.
    for (std::size_t i = 0; i + 1 < bytes.size(); ++i) {
        if (bytes[i] != 0xFF) {
            continue;
        }
        const std::uint8_t next = bytes[i + 1];
        if (next == 0xD9) {
            return Kind::End;
        }
        const bool isRestart = next >= 0xD0 && next <= 0xD7;
        if (next != 0 && !isRestart) {
            return Kind::Foreign;
        }
        stuffed += isRestart ? 0 : 1;
    }
    if (stuffed != 0) {
        return Kind::Units;
    }
    const auto high =
        std::count_if(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte >= 0x80; });
    return high * 16 < static_cast<std::ptrdiff_t>(bytes.size()) ? Kind::Foreign : Kind::Quiet;
}

}  // namespace

ClusterKinds::ClusterKinds(MediumBlocks& medium, const FreeClusters& grid)
    : m_medium(medium),
      m_grid(grid),
      m_kinds(static_cast<std::size_t>(grid.count()), Kind::NotLookedAt),
      m_bytes(static_cast<std::size_t>(grid.clusterBytes())) {}

ClusterKinds::Kind ClusterKinds::kindOf(std::uint64_t cluster) {
    if (cluster >= m_kinds.size()) {
        return Kind::Foreign;
    }
    Kind& kind = m_kinds[static_cast<std::size_t>(cluster)];
    if (kind == Kind::NotLookedAt) {
        m_medium.read(m_grid.firstSectorOf(cluster) * kSectorBytes, m_bytes);
        kind = kindOfBytes(m_bytes);
    }
    return kind;
}

}  // namespace vantor
