// Tells whether a folder can be the destination of what is saved.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace vantor {

// True when files written into the folder (or, while it does not exist, into the nearest folder above it)
// would land on the block device behind `mediumPath`, on any partition or unlocked volume of the same disk,
// or in the image file at that path. Device numbers decide, through links, bind mounts, loop devices,
// overlays and volumes; a disk that merely holds the image may be written to.
bool destinationIsOnMedium(const QString& folder, const QString& mediumPath);

// A sentence for the user when the folder is not there or files cannot be written into it, which is tried.
std::optional<QString> refuseDestination(const QString& folder);

// The number of the disk or other file system that the folder lies on; nothing when it is not there.
std::optional<std::uint64_t> fileSystemOf(const QString& folder);

}  // namespace vantor
