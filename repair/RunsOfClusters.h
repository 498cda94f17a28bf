// Clusters one behind the other as runs of sectors.
#pragma once

#include <cstdint>
#include <vector>

#include "media/SectorRun.h"
#include "repair/FreeClusters.h"

namespace vantor {

// The runs end with the last sector of the file's `bytes`, where the clusters are just enough for it.
std::vector<SectorRun> runsOfClusters(const std::vector<std::uint64_t>& clusters, std::uint64_t bytes,
                                      const FreeClusters& grid);

}  // namespace vantor
