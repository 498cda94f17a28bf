#include "repair/ClusterKinds.h"

#include <algorithm>

namespace vantor {

namespace {

using Kind = ClusterKinds::Kind;

// On a large card nearly all clusters hold something else, or nothing, and are asked for at each cut.
constexpr std::uint64_t kStretch = 512;

Kind kindOfBytes(const std::vector<std::uint8_t>& bytes) {
    std::size_t stuffed = 0;
    bool hasScans = false;
    // The last byte's follower lies in another cluster.
    for (std::size_t i = 0; i + 1 < bytes.size(); ++i) {
        if (bytes[i] != 0xFF) {
            continue;
        }
        const std::uint8_t next = bytes[i + 1];
        if (next == 0xD9) {
            return hasScans ? Kind::Scans : Kind::End;
        }
        const bool isBetweenScans = next == 0xC4 || next == 0xDA || next == 0xDD;
        const bool isRestart = next >= 0xD0 && next <= 0xD7;
        if (next != 0 && !isRestart && !isBetweenScans) {
            return Kind::Foreign;
        }
        hasScans = hasScans || isBetweenScans;
        stuffed += next == 0 ? 1 : 0;
    }
    if (hasScans) {
        return Kind::Scans;
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
      m_passedOver(static_cast<std::size_t>(grid.count() / kStretch + 1), false),
      m_bytes(static_cast<std::size_t>(grid.clusterBytes())) {}

ClusterKinds::Kind ClusterKinds::kindOf(std::uint64_t cluster) {
    if (cluster >= m_kinds.size()) {
        return Kind::Foreign;
    }
    Kind& kind = m_kinds[static_cast<std::size_t>(cluster)];
    if (kind == Kind::NotLookedAt) {
        const std::uint64_t at = m_grid.firstSectorOf(cluster) * kSectorBytes;
        if (m_medium.isKnownEmpty(at, m_bytes.size())) {
            return kind = Kind::Foreign;
        }
        m_medium.read(at, m_bytes);
        kind = kindOfBytes(m_bytes);
    }
    return kind;
}

bool ClusterKinds::isCoded(std::uint64_t cluster) {
    if (!m_grid.isFree(cluster)) {
        return false;
    }
    const Kind kind = kindOf(cluster);
    return kind == Kind::Scans || kind == Kind::Units || kind == Kind::End;
}

// What is free may be taken later, and what was taken or foreign stays so.
bool ClusterKinds::takeCoded(std::uint64_t cluster, std::uint64_t end,
                             const std::function<bool(std::uint64_t cluster)>& take) {
    while (cluster < end) {
        const std::uint64_t stretch = cluster / kStretch;
        const std::uint64_t stretchEnd = std::min((stretch + 1) * kStretch, m_grid.count());
        const bool isWhole = cluster % kStretch == 0 && stretchEnd <= end;
        if (m_passedOver[static_cast<std::size_t>(stretch)]) {
            cluster = stretchEnd;
            continue;
        }
        bool some = false;
        for (; cluster < std::min(stretchEnd, end); ++cluster) {
            if (!isCoded(cluster)) {
                continue;
            }
            some = true;
            if (!take(cluster)) {
                return false;
            }
        }
        m_passedOver[static_cast<std::size_t>(stretch)] = isWhole && !some;
    }
    return true;
}

void ClusterKinds::eachCoded(std::uint64_t from, const std::function<bool(std::uint64_t cluster)>& take) {
    if (takeCoded(from + 1, m_grid.count(), take)) {
        takeCoded(0, std::min(from, m_grid.count()), take);
    }
}

}  // namespace vantor
