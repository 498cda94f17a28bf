// What the rows of a FAT or exFAT directory say.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vantor {

inline constexpr std::size_t kRowBytes = 32;
// Rows that may belong together: a name of 255 characters and what it names.
inline constexpr std::size_t kMostRowsOfEntry = 21;

struct DirectoryEntry {
    QString name;             // as it stands there, not cleaned
    bool nameIsWhole = true;  // false: its first letter was lost with the deletion
    bool isFolder = false;
    bool isDeleted = false;
    bool isBehindEnd = false;    // it stands where the directory has ended already
    bool isOnePiece = false;     // exFAT: no chain is needed to find its clusters
    bool hasOddTimes = false;    // FAT: some of its times are none that there are
    bool isHalfCluster = false;  // FAT32: deleted, and the number's upper half is nought, as if cleared
    std::uint32_t cluster = 0;   // the first; 0: none
    std::uint64_t bytes = 0;     // FAT: 0 for folders
    std::uint64_t validBytes = 0;
    // Seconds since 1970.
    std::optional<std::int64_t> modified;
    std::optional<std::int64_t> created;
};

struct DirectoryRows {
    std::vector<DirectoryEntry> entries;
    // Clusters and bytes of the file system's own files (exFAT: allocation bitmap and up-case table).
    std::vector<DirectoryEntry> ownFiles;
    QString label;
    bool ended = false;  // a row said that none follow
    // FAT, of a subdirectory: the clusters that it and its parent begin with; 0: the root.
    std::optional<std::uint32_t> self;
    std::optional<std::uint32_t> parent;
};

// The rows of a directory, or of one part of it; what is no row is left out. Public description: Microsoft's
// of FAT. `wide`: cluster numbers have 32 bits (FAT32).
//
// Some cameras write times that there are not, such as the 31st of no month. In a directory that is there
// they may be anything (RowTimes::MayBeAnything) in the rows of files that are; elsewhere it is by them too
// that rows are told from other bytes.
enum class RowTimes { AreTimes, MayBeAnything };
DirectoryRows readFatRows(std::span<const std::uint8_t> bytes, bool wide,
                          RowTimes times = RowTimes::AreTimes);

// The same for exFAT. Only sets whose checksum is right, the marks of deletion taken back, are entries.
// Public description: Microsoft's of exFAT.
DirectoryRows readExfatRows(std::span<const std::uint8_t> bytes);

// The cluster that the subdirectory beginning in this sector says it begins with; nothing when it is not the
// first sector of a FAT subdirectory.
std::optional<std::uint32_t> fatDirectoryBeginning(const std::uint8_t* sector,
                                                   RowTimes times = RowTimes::AreTimes);

// Whether a sector holds nothing but rows of a directory of that kind, at least one of them.
bool looksLikeFatRows(const std::uint8_t* sector);
bool looksLikeExfatRows(const std::uint8_t* sector);

}  // namespace vantor
