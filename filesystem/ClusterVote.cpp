#include "filesystem/ClusterVote.h"

#include <algorithm>
#include <bit>
#include <tuple>
#include <unordered_set>
#include <utility>

namespace vantor {

namespace {

constexpr unsigned kLargestCluster = 16;  // as a power of two, in sectors: 32 MiB
// So few clusters may agree on another place by chance.
constexpr std::size_t kMostByChance = 2;

// Where the second cluster begins, and the cluster that says so.
using Beginnings = std::vector<std::pair<std::uint64_t, std::uint32_t>>;

// Sorted, for clusters of so many sectors, as a power of two.
void beginningsOf(const std::vector<ClusterSighting>& sightings, unsigned shift, Beginnings& into) {
    into.clear();
    for (const ClusterSighting& one : sightings) {
        const std::uint64_t before = one.cluster < 2 ? 0 : std::uint64_t{one.cluster - 2} << shift;
        if (one.cluster >= 2 && before < one.sector) {
            into.emplace_back(one.sector - before, one.cluster);
        }
    }
    std::sort(into.begin(), into.end());
    into.erase(std::unique(into.begin(), into.end()), into.end());
}

bool isBefore(const ClusterSighting& a, const ClusterSighting& b) {
    return std::tie(a.cluster, a.sector) < std::tie(b.cluster, b.sector);
}

Beginnings::const_iterator endOf(const Beginnings& all, Beginnings::const_iterator group) {
    return std::find_if(group, all.end(), [&](const auto& one) { return one.first != group->first; });
}

std::uint64_t sectorOf(std::uint32_t cluster, unsigned shift, std::uint64_t firstCluster) {
    return firstCluster + (std::uint64_t{cluster - 2} << shift);
}

// Clusters that the place explains and the other one does not, not even as the end of a row: files of one
// length in a row agree on a place one file further as well, but for the last of them.
std::size_t onlyHere(const std::vector<ClusterSighting>& sorted,
                     const std::unordered_set<std::uint32_t>& agreed, const ClusterPlaces& place,
                     unsigned otherShift, std::uint64_t otherFirst) {
    const auto shift = static_cast<unsigned>(std::countr_zero(place.clusterSectors));
    const auto isSighted = [&](std::uint32_t cluster, std::uint64_t sector) {
        return std::binary_search(sorted.begin(), sorted.end(), ClusterSighting{cluster, sector}, isBefore);
    };
    return static_cast<std::size_t>(std::count_if(agreed.begin(), agreed.end(), [&](std::uint32_t cluster) {
        const std::uint64_t here = sectorOf(cluster, shift, place.firstCluster);
        const std::uint64_t there = sectorOf(cluster, otherShift, otherFirst);
        // The sector as far on the other side; it may be none of the card's.
        return !isSighted(cluster, there) && !isSighted(cluster, 2 * here - there);
    }));
}

// Whether most of the clusters that agree on the place also agree on another, and hardly any speak against
// it.
bool mayLieElsewhere(std::vector<ClusterSighting> sightings, const ClusterPlaces& place) {
    Beginnings all;
    std::unordered_set<std::uint32_t> agreed;
    beginningsOf(sightings, static_cast<unsigned>(std::countr_zero(place.clusterSectors)), all);
    for (const auto& [first, cluster] : all) {
        if (first == place.firstCluster) {
            agreed.insert(cluster);
        }
    }
    std::sort(sightings.begin(), sightings.end(), isBefore);
    for (unsigned shift = 0; shift <= kLargestCluster; ++shift) {
        beginningsOf(sightings, shift, all);
        for (auto group = all.cbegin(); group != all.cend();) {
            const auto end = endOf(all, group);
            const bool isOther =
                std::uint32_t{1} << shift != place.clusterSectors || group->first != place.firstCluster;
            const auto shared = static_cast<std::size_t>(
                std::count_if(group, end, [&](const auto& one) { return agreed.contains(one.second); }));
            if (isOther && shared > kMostByChance && 2 * shared > place.votes &&
                onlyHere(sightings, agreed, place, shift, group->first) <= kMostByChance) {
                return true;
            }
            group = end;
        }
    }
    return false;
}

}  // namespace

std::optional<ClusterPlaces> voteForClusters(const std::vector<ClusterSighting>& sightings, std::size_t least,
                                             Sightings kind) {
    ClusterPlaces best;
    bool tie = false;
    Beginnings all;
    for (unsigned shift = 0; shift <= kLargestCluster; ++shift) {
        beginningsOf(sightings, shift, all);
        for (auto group = all.cbegin(); group != all.cend();) {
            const auto end = endOf(all, group);
            const auto votes = static_cast<std::size_t>(end - group);
            if (votes > best.votes) {
                best = {std::uint32_t{1} << shift, group->first, votes};
                tie = false;
            } else if (votes == best.votes) {
                tie = true;
            }
            group = end;
        }
    }
    const bool decided = best.votes >= std::max<std::size_t>(least, 2) && !tie;
    const bool undecided = !decided || (kind == Sightings::Possible && mayLieElsewhere(sightings, best));
    return undecided ? std::nullopt : std::optional(best);
}

}  // namespace vantor
