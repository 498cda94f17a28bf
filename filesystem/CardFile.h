// A file as a card's own directory tells of it.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "media/SectorRun.h"

namespace vantor {

// What the directory says has become of the file.
enum class FileState {
    Live,     // still there
    Deleted,  // its entry is marked as deleted
    Lost,     // its folder or the file system it lived on is gone; the entry itself stands
};

// How the file's runs are known, the surest first.
enum class RunsKnownBy {
    Record,     // the file's own record lists its runs (NTFS)
    Chain,      // the allocation table still leads through them
    Flag,       // the entry itself says that the file is in one piece (exFAT)
    Guess,      // one piece from the first cluster on is taken for granted
    StartOnly,  // a candidate for the beginning and no more
};

// One file of the table that the readers of file systems make. Everything has been checked: runs lie on the
// medium and do not repeat, names hold nothing that a path may not hold.
struct CardFile {
    // As on the card, parts joined by '/'; without one at either end; "" for the root. A folder whose own
    // name is gone is "folder-" and the number of the cluster that it began in, on NTFS of its record.
    QString folder;
    QString name;  // with its extension; "" when only the place is known
    // false where the first letter was lost with the deletion: '_' stands for it, or the letter that the
    // names of other files, or a standard of cameras, make certain.
    bool nameIsWhole = true;
    FileState state = FileState::Live;
    std::uint64_t bytes = 0;       // as the directory says
    std::uint64_t validBytes = 0;  // of these were written (exFAT, NTFS); else as `bytes`
    // Seconds since 1970. Directories without a time zone are taken as local time.
    std::optional<std::int64_t> modified;
    std::optional<std::int64_t> created;
    std::vector<SectorRun> runs;  // in the order of the file's bytes; whole clusters
    RunsKnownBy runsKnownBy = RunsKnownBy::Guess;
    // The file's bytes, with zeros up to a whole sector, where its own record holds them (NTFS); in the
    // record some of them stand elsewhere. `runs` are then as many sectors of the record.
    QByteArray contents;
    // Stretches of the file's sectors, counted from its beginning, that have no place among the runs (NTFS);
    // sorted, apart from each other. They are zeros; where the file is packed, those of a unit are what the
    // unit's other sectors unpack to.
    std::vector<SectorRun> holes;
    std::uint32_t unitSectors = 0;  // that are packed together; 0: the file is not packed
    // Where the file began there is something now that a current file system still holds as there.
    bool beginningIsInUse = false;
    std::uint32_t clusterSectors = 0;  // of the file system it lived on
};

}  // namespace vantor
