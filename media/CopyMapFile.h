// The map of an image as a file of its own.
#pragma once

#include <QString>
#include <optional>

#include "media/CopyMap.h"

namespace vantor {

// The map that lies beside an image: of card.img the first there is of card.img.map, card.map,
// card.img.mapfile, card.mapfile, card.img.log and card.log. A log counts only when it says that it is a map.
// Empty when there is none.
QString mapBeside(const QString& imagePath);

// Where the map of a new image is written.
QString newMapBeside(const QString& imagePath);

// Nothing, and a sentence for the user without its full stop, when the file cannot be read or is no map.
std::optional<CopyMap> loadCopyMap(const QString& path, QString* why = nullptr);

// Replaces the file at once or not at all, and returns when it is on the disk; a sentence for the user, with
// no full stop, when that fails.
std::optional<QString> storeCopyMap(const QString& path, const CopyMap& map);

}  // namespace vantor
