// Tells whether a destination folder lies on the medium that is being read.
#pragma once

#include <QString>

namespace vantor {

// True when files written into the folder (or, while it does not exist, into the nearest folder above it)
// would land on the block device behind `mediumPath`, on any partition or unlocked volume of the same disk,
// or in the image file at that path. Device numbers decide, through links, bind mounts, loop devices,
// overlays and volumes; a disk that merely holds the image may be written to.
bool destinationIsOnMedium(const QString& folder, const QString& mediumPath);

}  // namespace vantor
