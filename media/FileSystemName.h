// File-system types under the names that people know.
#pragma once

#include <QString>

namespace vantor {

// The display name of a type and version as blkid reports them ("vfat", "FAT32") or as the mount table does
// ("vfat"); empty when there is none to show.
QString fileSystemName(const QString& type, const QString& version);

}  // namespace vantor
