#include "repair/RunsOfClusters.h"

#include "media/SectorReader.h"

namespace vantor {

std::vector<SectorRun> runsOfClusters(const std::vector<std::uint64_t>& clusters, std::uint64_t bytes,
                                      const FreeClusters& grid) {
    std::vector<SectorRun> runs;
    const std::uint64_t sectors = grid.clusterBytes() / kSectorBytes;
    for (const std::uint64_t cluster : clusters) {
        const std::uint64_t first = grid.firstSectorOf(cluster);
        if (!runs.empty() && runs.back().end == first) {
            runs.back().end += sectors;
        } else {
            runs.push_back({first, first + sectors});
        }
    }
    const std::uint64_t spare = clusters.size() * sectors - (bytes + kSectorBytes - 1) / kSectorBytes;
    if (!runs.empty() && spare < sectors) {
        runs.back().end -= spare;
    }
    return runs;
}

}  // namespace vantor
