// Opening a medium for reading: a block device's node or an image file.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>

#include "media/SectorReader.h"

namespace vantor {

// What a path turned out to be, as far as it can be told without reading it.
struct MediumFacts {
    bool isImage = false;       // a regular file rather than a device
    std::uint64_t sectors = 0;  // whole 512-byte sectors; a trailing partial one is dropped
};

// The facts of the device or image at `path`; nothing, and a sentence for the user, when it is neither or
// cannot be opened for reading.
std::optional<MediumFacts> probeMedium(const QString& path, QString* why = nullptr);

// A reader at sector 0, or null when the medium cannot be opened. Opens read-only, whatever the permissions.
std::unique_ptr<SectorReader> openMedium(const QString& path);

}  // namespace vantor
