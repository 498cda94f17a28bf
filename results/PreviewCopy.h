// The copy of an item's sectors from its medium, as the preview shows it.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>

#include "media/SectorReader.h"

namespace vantor {

// Hands the sectors [start, end) of a medium that was just opened to `write`, 512 bytes each, in order. A
// sector that cannot be read becomes the bytes of the last good one (zeros before the first), and the reads
// after it lag one sector behind, as the scans do. Stops when `stop_now` is 1 before a sector or when `write`
// returns false. True when all sectors were copied and every read succeeded.
bool copyPreviewSectors(SectorReader& medium, std::uint64_t start, std::uint64_t end,
                        const std::atomic<int>& stop_now,
                        const std::function<bool(const std::uint8_t* sector)>& write);

}  // namespace vantor
