// A file system's first sector: where its parts lie.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "filesystem/VolumeShape.h"

namespace vantor {

// Whether the 512 bytes may be the first sector of a FAT, exFAT or NTFS file system, or a copy of one.
bool looksLikeBootSector(const std::uint8_t* bytes);

// The file system whose first sector these bytes are, if it stood at `first` on a medium of so many sectors;
// nothing when it cannot be.
std::optional<VolumeShape> shapeFromBootSector(std::span<const std::uint8_t, 512> bytes, std::uint64_t first,
                                               std::uint64_t cardSectors);

// Where the file system may begin whose first sector, or a copy of it, stands at `at`.
std::vector<std::uint64_t> possibleBeginnings(std::span<const std::uint8_t, 512> bytes, std::uint64_t at);

}  // namespace vantor
