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

// What is found need not be kept: going on is searching from the beginning, where whatever was read and is
// not worth a look is answered from here and only the rest is read. So names, numbers and order are those of
// a search that nobody disturbed.
struct SearchRecord {
    SearchWishes wishes;
    QString medium;             // as the user named it
    std::uint64_t sectors = 0;  // of the medium
    std::vector<SectorSample> samples;
    std::vector<SectorRun> read;     // ascending
    std::vector<SectorRun> refused;  // ascending
    SectorBits worthALook;           // for any of the passes, of those read
};

// The file's bytes, with a checksum at their end.
QByteArray recordBytes(const SearchRecord& record);

// The record of such bytes; nothing, and a sentence for the user, when they are not whole. Takes memory in
// proportion to the bytes alone, whatever they say.
std::optional<SearchRecord> recordOf(const QByteArray& bytes, QString* why = nullptr);
// The same without a look at the checksum.
std::optional<SearchRecord> uncheckedRecordOf(QByteArrayView body);

}  // namespace vantor
