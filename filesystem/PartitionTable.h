// Where the partitions of a card begin.
#pragma once

#include <vector>

#include "filesystem/SectorSource.h"
#include "media/SectorRun.h"

namespace vantor {

// The partitions that the card's tables name, in their order, clipped to the card; a few hundred at most.
std::vector<SectorRun> partitionsOf(SectorSource& card);

}  // namespace vantor
