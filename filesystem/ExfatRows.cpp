// Entry sets of exFAT directories. Source: Microsoft's published description of exFAT.
#include <algorithm>

#include "filesystem/DirectoryRows.h"
#include "filesystem/DosTime.h"
#include "filesystem/LittleEndian.h"

namespace vantor {

namespace {

using ExfatRow = std::span<const std::uint8_t>;

// Types of rows; the highest bit says that the row is in use.
constexpr std::uint8_t kInUse = 0x80;
constexpr std::uint8_t kBitmap = 0x81;
constexpr std::uint8_t kUpCase = 0x82;
constexpr std::uint8_t kLabelRow = 0x83;
constexpr std::uint8_t kFile = 0x85;
constexpr std::uint8_t kStream = 0xC0;
constexpr std::uint8_t kNameRow = 0xC1;

constexpr std::uint8_t kOnePiece = 0x02;
constexpr std::size_t kCharactersPerNameRow = 15;

// Over all rows of a set but the checksum itself, with the rows marked as in use.
std::uint16_t checksumOf(ExfatRow set) {
    std::uint16_t sum = 0;
    for (std::size_t i = 0; i < set.size(); ++i) {
        if (i == 2 || i == 3) {
            continue;
        }
        const std::uint8_t byte = i % kRowBytes == 0 ? set[i] | kInUse : set[i];
        sum = static_cast<std::uint16_t>((sum << 15 | sum >> 1) + byte);
    }
    return sum;
}

// Rows of the set that begins in row `at`; nothing when none does, or not all of it is there.
std::optional<ExfatRow> setAt(ExfatRow rows, std::size_t at) {
    const ExfatRow first = rows.subspan(at * kRowBytes, kRowBytes);
    const std::size_t count = std::size_t{first[1]} + 1;
    if ((first[0] | kInUse) != kFile || count < 3 || count > 19 || count > rows.size() / kRowBytes - at) {
        return std::nullopt;
    }
    const ExfatRow set = rows.subspan(at * kRowBytes, count * kRowBytes);
    return checksumOf(set) == le16(set, 2) && (set[kRowBytes] | kInUse) == kStream ? std::optional(set)
                                                                                   : std::nullopt;
}

// A time zone in steps of a quarter of an hour, in seven bits; the eighth says that it is one.
std::optional<int> minutesEast(std::uint8_t zone) {
    if ((zone & 0x80) == 0) {
        return std::nullopt;
    }
    const int steps = zone & 0x7F;
    return (steps >= 64 ? steps - 128 : steps) * 15;
}

std::optional<DirectoryEntry> entryOf(ExfatRow set) {
    const ExfatRow stream = set.subspan(kRowBytes, kRowBytes);
    DirectoryEntry entry;
    for (std::size_t row = 2; row < set.size() / kRowBytes; ++row) {
        const ExfatRow part = set.subspan(row * kRowBytes, kRowBytes);
        for (std::size_t i = 0; i < kCharactersPerNameRow && (part[0] | kInUse) == kNameRow; ++i) {
            entry.name += QChar(le16(part, 2 + 2 * i));
        }
    }
    if (stream[3] == 0 || stream[3] > entry.name.size()) {
        return std::nullopt;
    }
    entry.name.truncate(stream[3]);
    entry.isDeleted = (set[0] & kInUse) == 0;
    entry.isFolder = (le16(set, 4) & 0x10) != 0;
    entry.isOnePiece = (stream[1] & kOnePiece) != 0;
    entry.cluster = le32(stream, 20);
    entry.bytes = le64(stream, 24);
    entry.validBytes = std::min(le64(stream, 8), entry.bytes);
    entry.created = secondsOfDosTime(le16(set, 10), le16(set, 8), set[20], minutesEast(set[22]));
    entry.modified = secondsOfDosTime(le16(set, 14), le16(set, 12), set[21], minutesEast(set[23]));
    return entry;
}

}  // namespace

DirectoryRows readExfatRows(std::span<const std::uint8_t> bytes) {
    DirectoryRows read;
    const std::size_t rows = bytes.size() / kRowBytes;
    for (std::size_t at = 0; at < rows; ++at) {
        const ExfatRow row = bytes.subspan(at * kRowBytes, kRowBytes);
        if (row[0] == 0) {
            read.ended = true;
        } else if (row[0] == kLabelRow && row[1] <= 11 && !read.ended) {
            read.label.clear();
            for (std::size_t i = 0; i < row[1]; ++i) {
                read.label += QChar(le16(row, 2 + 2 * i));
            }
        } else if ((row[0] == kBitmap || row[0] == kUpCase) && !read.ended) {
            DirectoryEntry own;
            own.cluster = le32(row, 20);
            own.bytes = le64(row, 24);
            own.isOnePiece = true;
            read.ownFiles.push_back(own);
        } else if (const auto set = setAt(bytes, at)) {
            if (auto entry = entryOf(*set)) {
                entry->isBehindEnd = read.ended;
                read.entries.push_back(std::move(*entry));
            }
            at += set->size() / kRowBytes - 1;
        }
    }
    return read;
}

bool looksLikeExfatRows(const std::uint8_t* sector) {
    bool hasEntry = false;
    bool ended = false;
    for (std::size_t at = 0; at < 512; at += kRowBytes) {
        const ExfatRow row(sector + at, kRowBytes);
        if (row[0] == 0) {
            ended = true;
            continue;
        }
        switch (row[0] | kInUse) {
            case kFile: {
                const bool followed = at + kRowBytes == 512 || (sector[at + kRowBytes] | kInUse) == kStream;
                if (ended || row[1] < 2 || row[1] > 18 || (le16(row, 4) & 0xFFC8) != 0 || !followed) {
                    return false;
                }
                hasEntry = true;
                break;
            }
            case kStream:
                // No other flags are defined; the name has a length.
                if (ended || (row[1] & 0xFC) != 0 || row[3] == 0 || le32(row, 20) == 1) {
                    return false;
                }
                hasEntry = true;
                break;
            case kNameRow:
                if (ended || row[1] != 0 || le16(row, 2) == 0) {
                    return false;
                }
                break;
            case kBitmap:
            case kUpCase:
            case kLabelRow:
            case 0xA0:
            case 0xE0:
            case 0xE1:
                break;
            default:
                return false;
        }
    }
    return hasEntry;
}

}  // namespace vantor
