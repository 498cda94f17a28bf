// One file record of NTFS.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vantor {

// Clusters [first, first + count) of the volume, or as many that the file has and the volume does not.
struct NtfsRun {
    std::uint64_t first = 0;
    std::uint64_t count = 0;
    bool isHole = false;
};

// The number of a record, and which use of it is meant.
struct NtfsReference {
    std::uint64_t record = 0;
    std::uint16_t use = 0;
};

struct NtfsRecord {
    std::uint64_t sector = 0;  // of the medium, where it begins; filled in by who read it
    bool isInUse = false;
    bool isFolder = false;
    std::uint16_t use = 0;                // grows each time that the record is given to another file
    std::optional<std::uint64_t> number;  // its own, where it tells it (since version 3.1)
    NtfsReference base;                   // of a record that goes on another; else record 0
    NtfsReference parent;
    QString name;                          // "" where it has none
    std::optional<std::int64_t> modified;  // seconds since 1970
    std::optional<std::int64_t> created;
    // Its contents: the attribute without a name, or a part of it.
    bool hasData = false;
    bool isResident = false;         // they lie in the record itself
    QByteArray contents;             // of such a one
    bool isPlain = true;             // neither packed nor encrypted nor with holes
    bool isLegible = true;           // not encrypted, and its runs make sense
    std::uint64_t unitClusters = 0;  // of a packed file: that are packed together
    std::uint64_t bytes = 0;         // told by the first part alone
    std::uint64_t validBytes = 0;
    std::uint64_t firstCluster = 0;  // of the contents, with which this part begins
    std::vector<NtfsRun> runs;
    // Of everything else that it holds: a folder's rows, further streams.
    std::vector<NtfsRun> otherRuns;
};

// How many sectors the record beginning in this one takes, by its own head; 0 when none begins here.
std::size_t sectorsOfNtfsRecord(const std::uint8_t* sector);

// A record's bytes (of a size that is a power of two, 512 or more), with the sectors' last bytes put back;
// nothing when they are no whole record. Public description: "NTFS documentation", file records and
// attributes.
std::optional<NtfsRecord> readNtfsRecord(std::span<const std::uint8_t> bytes);

}  // namespace vantor
