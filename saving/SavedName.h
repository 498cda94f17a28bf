// How a saved file is called, and when it was made.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "formats/Extent.h"

namespace vantor {

// The text as one component of a path that every common file system takes; "_" for a text that would be
// empty, "." or "..".
QString safePathComponent(const QString& text);

// Seconds since 1970 UTC. A date without a zone is taken for local time, as cameras write it; nothing for a
// date that no calendar has.
std::optional<std::int64_t> secondsOf(const CivilTime& date);

// A place below the destination; both are safe.
struct SavedName {
    QString folder;  // "JPG", or "JPG/2026-05-17" by date
    QString file;    // "GND00012.JPG", or "2026-05-17 14.03.22 GND00012.JPG" by date, in local time
};
SavedName savedNameOf(const QString& type, const QString& name, const std::optional<CivilTime>& byDate);

}  // namespace vantor
