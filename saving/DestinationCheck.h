// Tells whether a folder can be the destination of what is saved.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace vantor {

// True when files written into the folder (or, while it does not exist, into the nearest folder above it)
// would land on the block device behind `mediumPath` or on any partition or unlocked volume of the same
// disk. Device numbers decide, so symbolic links and bind mounts are seen through. Always false for an image
// file.
bool destinationIsOnMedium(const QString& folder, const QString& mediumPath);

// A sentence for the user when the folder is not there or files cannot be written into it, which is tried.
std::optional<QString> refuseDestination(const QString& folder);

// The number of the disk or other file system that the folder lies on; nothing when it is not there.
std::optional<std::uint64_t> fileSystemOf(const QString& folder);

}  // namespace vantor
