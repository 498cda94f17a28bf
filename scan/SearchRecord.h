// What a search leaves in a file, so that another run of the program can go on with it.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

#include "media/SectorRun.h"
#include "scan/SectorBits.h"

namespace vantor {

// What was asked for. Another search has another wish; one goes on only with its own.
struct SearchWishes {
    int mode = 0;       // RecoveryMode
    QStringList types;  // ticked; empty in photo mode
    bool thorough = true;
    bool entire = true;
    QString start, end;       // as typed, of a range
    QByteArray catalogueSum;  // of all records searched for

    bool operator==(const SearchWishes&) const = default;
};

// A sector by which the medium is known again.
struct SectorSample {
    std::uint64_t sector = 0;
    QByteArray sum;  // SHA-256 of its bytes

    bool operator==(const SectorSample&) const = default;
};

// What a search came to, for whoever offers to go on with it.
struct SearchNotes {
    QString name;             // of the medium, for people
    std::uint64_t found = 0;  // items
    bool ended = false;       // nothing of it is left to search
    // The numbers that items had got before the search began, by its two passes.
    std::uint64_t generalNumber = 0, thoroughNumber = 0;
    QString copy;  // image that the medium is copied to; empty where it is not
    // Places in the list of found items, ascending.
    std::vector<std::uint64_t> saved;
    std::vector<std::uint64_t> ticked = {};    // for saving
    std::vector<std::uint64_t> selected = {};  // when it was last written
    QByteArray id = {};                        // of the search, for what is kept beside its file

    bool operator==(const SearchNotes&) const = default;
};

// What is found need not be kept: going on is searching from the beginning, where whatever was read and is
// not worth a look is answered from here and only the rest is read. So names, numbers and order are those of
// a search that nobody disturbed.
struct SearchRecord {
    SearchWishes wishes;
    QString medium;             // as the user named it
    std::uint64_t sectors = 0;  // of the medium
    std::vector<SectorSample> samples;
    std::uint64_t reached = 0;       // the first pass has been to all sectors of its range before this one
    std::vector<SectorRun> read;     // ascending
    std::vector<SectorRun> refused;  // ascending
    SectorBits worthALook;           // for any of the passes, of those read
    SearchNotes notes;
};

// The record in a file; nothing, and a sentence for the user, when it holds none.
std::optional<SearchRecord> readSearchRecord(const QString& path, QString* why = nullptr);

// The file's bytes, with a checksum at their end.
QByteArray recordBytes(const SearchRecord& record);

// The record of such bytes; nothing, and a sentence for the user, when they are not whole. Takes memory in
// proportion to the bytes alone, whatever they say.
std::optional<SearchRecord> recordOf(const QByteArray& bytes, QString* why = nullptr);
// The same without a look at the checksum.
std::optional<SearchRecord> uncheckedRecordOf(QByteArrayView body);

}  // namespace vantor
