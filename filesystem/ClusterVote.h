// Where clusters lie when no boot sector tells.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace vantor {

// A cluster's number, and a sector where it may begin.
struct ClusterSighting {
    std::uint32_t cluster = 0;
    std::uint64_t sector = 0;
};

struct ClusterPlaces {
    std::uint32_t clusterSectors = 0;
    std::uint64_t firstCluster = 0;  // the sector where cluster 2 begins
    std::size_t votes = 0;           // different clusters that say so
};

enum class Sightings { True, Possible };

// The size and beginning of clusters that more sightings agree on than on any other; nothing when fewer than
// `least` clusters do, or as many agree on another. Wrong sightings among those that are only possible do no
// harm as long as they do not agree: nothing either when most of the clusters could lie elsewhere as well, as
// files in a row, each as long as the next, can, unless others rule that out.
std::optional<ClusterPlaces> voteForClusters(const std::vector<ClusterSighting>& sightings, std::size_t least,
                                             Sightings kind);

}  // namespace vantor
