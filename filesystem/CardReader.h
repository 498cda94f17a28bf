// From a card's sectors to the table of its files.
#pragma once

#include <vector>

#include "filesystem/CardTable.h"
#include "filesystem/CardTraces.h"
#include "filesystem/SectorSource.h"

namespace vantor {

// Reads what the card's file systems, the present one and those before it, tell of its files. Without traces
// only what the present partition tables and directories lead to; found beginnings tell the clusters of a
// file system whose own first sector is gone. Time and memory are bounded by the size of the card, whatever
// stands on it; a place that cannot be read costs what it told.
CardTable readCard(SectorSource& card, const CardTraces& traces = {},
                   const std::vector<FoundStart>& found = {});

}  // namespace vantor
