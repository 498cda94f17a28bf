#include "filesystem/ClusterVote.h"

#include <algorithm>
#include <bit>
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

Beginnings::const_iterator endOf(const Beginnings& all, Beginnings::const_iterator group) {
    return std::find_if(group, all.end(), [&](const auto& one) { return one.first != group->first; });
}

// Whether most of the clusters that agree on the place also agree on another.
bool mayLieElsewhere(const std::vector<ClusterSighting>& sightings, const ClusterPlaces& place) {
    Beginnings all;
    std::unordered_set<std::uint32_t> agreed;
    beginningsOf(sightings, static_cast<unsigned>(std::countr_zero(place.clusterSectors)), all);
    for (const auto& [first, cluster] : all) {
        if (first == place.firstCluster) {
            agreed.insert(cluster);
        }
    }
    for (unsigned shift = 0; shift <= kLargestCluster; ++shift) {
        beginningsOf(sightings, shift, all);
        for (auto group = all.cbegin(); group != all.cend();) {
            const auto end = endOf(all, group);
            const bool isOther =
                std::uint32_t{1} << shift != place.clusterSectors || group->first != place.firstCluster;
            const auto shared = static_cast<std::size_t>(
                std::count_if(group, end, [&](const auto& one) { return agreed.contains(one.second); }));
            if (isOther && shared > kMostByChance && 2 * shared > place.votes) {
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
