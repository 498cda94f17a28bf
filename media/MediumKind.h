// What kind of thing a storage medium is, from its facts.
#pragma once

#include "media/MediaSource.h"

namespace vantor {

enum class MediumKind { Disk, Card, UsbStick, OpticalDisc, ImageFile };

// "MediaCompatibility" (QStringList) in the facts holds the names that the disk service and the device
// manager give to what a drive takes: "flash_sd", "flash_cf", "thumb", "optical_cd" and the like
// (https://storaged.org/doc/udisks2-api/latest/gdbus-org.freedesktop.UDisks2.Drive.html).
MediumKind mediumKindOf(const MediaFacts& facts);

}  // namespace vantor
