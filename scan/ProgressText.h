// The progress text of a scan.
#pragma once

#include <QString>
#include <cstdint>

namespace vantor {

// Whole per cent of `total` sectors done, truncated, in unsigned 64-bit arithmetic; 0 for a range of no
// sectors.
std::uint64_t percentDone(std::uint64_t index, std::uint64_t start, std::uint64_t total);

// "Sectors 12 of 400   ( Completed 3% )".
QString progressText(std::uint64_t index, std::uint64_t start, std::uint64_t end, std::uint64_t total);

}  // namespace vantor
