#include "filesystem/ClusterVote.h"

#include <algorithm>
#include <utility>

namespace vantor {

namespace {

constexpr unsigned kLargestCluster = 16;  // as a power of two, in sectors: 32 MiB

}  // namespace

std::optional<ClusterPlaces> voteForClusters(const std::vector<ClusterSighting>& sightings,
                                             std::size_t least) {
    ClusterPlaces best;
    bool tie = false;
    std::vector<std::pair<std::uint64_t, std::uint32_t>> beginnings;  // and the cluster that says so
    for (unsigned shift = 0; shift <= kLargestCluster; ++shift) {
        beginnings.clear();
        for (const ClusterSighting& one : sightings) {
            const std::uint64_t before = one.cluster < 2 ? 0 : std::uint64_t{one.cluster - 2} << shift;
            if (one.cluster >= 2 && before < one.sector) {
                beginnings.emplace_back(one.sector - before, one.cluster);
            }
        }
        std::sort(beginnings.begin(), beginnings.end());
        beginnings.erase(std::unique(beginnings.begin(), beginnings.end()), beginnings.end());
        for (std::size_t i = 0; i < beginnings.size();) {
            std::size_t end = i;
            while (end < beginnings.size() && beginnings[end].first == beginnings[i].first) {
                ++end;
            }
            const std::size_t votes = end - i;
            if (votes > best.votes) {
                best = {std::uint32_t{1} << shift, beginnings[i].first, votes};
                tie = false;
            } else if (votes == best.votes) {
                tie = true;
            }
            i = end;
        }
    }
    return best.votes >= std::max<std::size_t>(least, 2) && !tie ? std::optional(best) : std::nullopt;
}

}  // namespace vantor
