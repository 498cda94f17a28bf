// Tells whether a destination folder lies on the medium that is being read.
#pragma once

#include <QString>

namespace vantor {

// True when files written into the folder (or, while it does not exist, into the nearest folder above it)
// would land on the block device behind `mediumPath` or on any partition or unlocked volume of the same
// disk. Device numbers decide, so symbolic links and bind mounts are seen through. Always false for an image
// file.
bool destinationIsOnMedium(const QString& folder, const QString& mediumPath);

}  // namespace vantor
