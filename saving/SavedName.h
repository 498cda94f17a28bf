// How a saved file is called, and when it was made.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "filesystem/CardFile.h"
#include "formats/Extent.h"
#include "saving/SavePolicy.h"

namespace vantor {

// The text as one component of a path that every common file system takes; "_" for a text that would be
// empty, "." or "..".
QString safePathComponent(const QString& text);

// A file's name as the card tells it, as one component that no file system and no desktop takes for anything
// else: no hidden file, no device of an older system, no mark that turns the text around; with its extension,
// however long.
QString safeCardName(const QString& name);
// The folders of such a path, "DCIM/100CANON"; "" for the root, and nothing for a way too long to be a
// folder's.
std::optional<QString> safeCardFolder(const QString& folder);

// Seconds since 1970 UTC. A date without a zone is taken for local time, as cameras write it; nothing for a
// date that no calendar has.
std::optional<std::int64_t> secondsOf(const CivilTime& date);

// A place below the destination; both are safe.
struct SavedName {
    QString folder;  // "JPG", "JPG/2026-05-17" by date, "DCIM/100CANON" as on the card
    QString file;  // "GND00012.JPG" or "IMG_0412.JPG"; by date "2026-05-17 14.03.22 GND00012.JPG", local time
    bool asOnCard = false;  // the folder is the card's own
};
// `taken` is the date that the file itself tells, `original` what the card tells of it; both may be absent.
SavedName savedNameOf(const QString& type, const QString& name, const SavePolicy& policy,
                      const std::optional<CivilTime>& taken, const CardFile* original);

}  // namespace vantor
