// Rows of FAT directories. Source: Microsoft's published description of FAT.
#include <algorithm>
#include <array>
#include <cstring>

#include "filesystem/DirectoryRows.h"
#include "filesystem/DosTime.h"
#include "filesystem/LittleEndian.h"
#include "filesystem/ShortNames.h"

namespace vantor {

namespace {

using Row = std::span<const std::uint8_t>;

constexpr std::uint8_t kDeleted = 0xE5;
constexpr std::uint8_t kLongNameAttributes = 0x0F;
constexpr std::uint8_t kLabel = 0x08;
constexpr std::uint8_t kFolder = 0x10;
constexpr std::size_t kCharactersPerRow = 13;

bool isLongNameRow(Row row) {
    return (row[11] & 0x3F) == kLongNameAttributes;
}

bool isShortNameByte(std::uint8_t byte) {
    return byte >= 0x20 && byte != 0x7F && std::memchr("\"*+,/:;<=>?[\\]|", byte, 15) == nullptr;
}

bool isDate(std::uint16_t date) {
    return date == 0 || ((date & 31) != 0 && (date >> 5 & 15) >= 1 && (date >> 5 & 15) <= 12);
}

bool isTime(std::uint16_t time) {
    return time >> 11 < 24 && (time >> 5 & 63) < 60 && (time & 31) < 30;
}

bool isSequence(std::uint8_t byte) {
    return byte == kDeleted || ((byte & 0xBF) >= 1 && (byte & 0xBF) <= 20);
}

bool hasTimes(Row row) {
    return row[13] <= 199 && isDate(le16(row, 16)) && isDate(le16(row, 18)) && isDate(le16(row, 24)) &&
           isTime(le16(row, 14)) && isTime(le16(row, 22));
}

bool isNamedRow(Row row) {
    if ((row[11] & 0xC0) != 0 || (row[12] & ~0x18) != 0) {
        return false;
    }
    if ((row[11] & kFolder) != 0 && ((row[11] & kLabel) != 0 || le32(row, 28) != 0)) {
        return false;
    }
    const bool isDots = row[0] == '.' &&
                        std::all_of(row.begin() + 2, row.begin() + 11, [](auto byte) { return byte == ' '; });
    if (isDots) {
        return (row[11] & kFolder) != 0 && (row[1] == ' ' || row[1] == '.');
    }
    // 05 stands for a first letter E5.
    return (row[0] == 0x05 || (row[0] != ' ' && row[0] != '.' && isShortNameByte(row[0]))) &&
           std::all_of(row.begin() + 1, row.begin() + 11, isShortNameByte);
}

bool isPlainRow(Row row) {
    return isNamedRow(row) && hasTimes(row);
}

bool isRow(Row row) {
    return isLongNameRow(row) ? isSequence(row[0]) && row[12] == 0 && le16(row, 26) == 0 : isPlainRow(row);
}

// The characters of the usual code page 437 from 80 on.
constexpr char16_t kCodePage[] =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
static_assert(sizeof kCodePage / sizeof *kCodePage == 129);

QString shortPart(Row bytes, bool lower) {
    QString part;
    for (const std::uint8_t byte : bytes) {
        part += byte < 0x80 ? QChar(byte) : QChar(kCodePage[byte - 0x80]);
    }
    while (part.endsWith(u' ')) {
        part.chop(1);
    }
    return lower ? part.toLower() : part;
}

QString shortName(Row row, std::uint8_t first) {
    std::array<std::uint8_t, 8> base{};
    std::copy_n(row.begin(), 8, base.begin());
    base[0] = first == 0x05 ? kDeleted : first;
    // Two bits by which newer systems keep names of small letters without a long name.
    const QString stem = shortPart(base, (row[12] & 0x08) != 0);
    const QString extension = shortPart(row.subspan(8, 3), (row[12] & 0x10) != 0);
    return extension.isEmpty() ? stem : stem + u'.' + extension;
}

std::uint8_t shortNameSum(Row row, std::uint8_t first) {
    std::uint8_t sum = first;
    for (std::size_t i = 1; i < 11; ++i) {
        sum = static_cast<std::uint8_t>((sum << 7 | sum >> 1) + row[i]);
    }
    return sum;
}

// The thirteen characters of a row of a long name; fewer where the name ends in it. Nothing when behind its
// end there is anything but filling.
std::optional<QString> longNamePart(Row row, bool& ends) {
    constexpr std::array<std::size_t, kCharactersPerRow> kAt{1, 3, 5, 7, 9, 14, 16, 18, 20, 22, 24, 28, 30};
    QString part;
    ends = false;
    for (const std::size_t at : kAt) {
        const std::uint16_t character = le16(row, at);
        if (ends) {
            if (character != 0xFFFF) {
                return std::nullopt;
            }
        } else if (character == 0) {
            ends = true;
        } else if (character == 0xFFFF) {
            return std::nullopt;
        } else {
            part += QChar(character);
        }
    }
    return part;
}

struct LongName {
    QString name;
    std::uint8_t sum = 0;
    bool ended = false;  // a row says that the name ends there
};

// The long name in the rows directly before row `at`, nothing when there is none. The rows of a deleted one
// have lost their numbers: its last row, which comes first, is the one with the name's end, or the last that
// belongs to the same short name.
std::optional<LongName> longNameBefore(Row rows, std::size_t at, bool deleted) {
    LongName found;
    std::size_t count = 0;
    while (!found.ended && at > 0 && count < 20) {
        const Row row = rows.subspan((at - 1) * kRowBytes, kRowBytes);
        const bool fits = isRow(row) && isLongNameRow(row) && (row[0] == kDeleted) == deleted &&
                          (count == 0 || row[13] == found.sum) &&
                          (deleted || (row[0] & 0x3F) == static_cast<int>(count) + 1);
        if (!fits) {
            break;
        }
        bool endsHere = false;
        const auto part = longNamePart(row, endsHere);
        if (!part || (endsHere && part->isEmpty())) {
            break;
        }
        found.sum = row[13];
        found.name += *part;
        found.ended = endsHere || (!deleted && (row[0] & 0x40) != 0);
        ++count;
        --at;
    }
    const bool whole = count > 0 && (found.ended || deleted);
    return whole && found.name.size() <= 255 ? std::optional(found) : std::nullopt;
}

// Whether the long name is the one of a deleted row: with the first letter that the name's checksum asks for,
// the row's short name is one that is made of it. Newer rows may have taken the place of the rows with the
// name's end; then its extension, if it has one, is not there either.
bool belongsToDeleted(Row row, const LongName& name) {
    std::array<std::uint8_t, 11> shortName{};
    std::copy_n(row.begin(), shortName.size(), shortName.begin());
    for (unsigned letter = 0; letter < 0x100; ++letter) {
        shortName[0] = static_cast<std::uint8_t>(letter);
        if (shortNameSum(row, shortName[0]) == name.sum) {
            const bool mayBegin = letter == 0x05 || (letter > 0x20 && isShortNameByte(shortName[0]));
            return mayBegin && (name.ended || row[8] != ' ') && isShortNameOf(shortName, name.name);
        }
    }
    return false;
}

void nameEntry(DirectoryEntry& entry, Row rows, std::size_t at) {
    const Row row = rows.subspan(at * kRowBytes, kRowBytes);
    auto longName = longNameBefore(rows, at, entry.isDeleted);
    if (entry.isDeleted && !longName) {
        // Cameras that know of no long names leave their rows as they are.
        longName = longNameBefore(rows, at, false);
    }
    if (!entry.isDeleted) {
        const bool belongs = longName && longName->sum == shortNameSum(row, row[0]);
        entry.name = belongs ? longName->name : shortName(row, row[0]);
    } else if (longName && belongsToDeleted(row, *longName)) {
        entry.name = longName->name;
    } else {
        entry.name = shortName(row, '_');
        entry.nameIsWhole = false;
    }
}

DirectoryEntry entryOf(Row row, bool wide) {
    DirectoryEntry entry;
    entry.isDeleted = row[0] == kDeleted;
    entry.isFolder = (row[11] & kFolder) != 0;
    entry.cluster = le16(row, 26) | (wide ? static_cast<std::uint32_t>(le16(row, 20)) << 16 : 0);
    entry.isHalfCluster = wide && entry.isDeleted && le16(row, 20) == 0;
    entry.bytes = entry.validBytes = le32(row, 28);
    entry.modified = secondsOfDosTime(le16(row, 24), le16(row, 22), 0);
    entry.created = secondsOfDosTime(le16(row, 16), le16(row, 14), row[13]);
    return entry;
}

std::uint32_t clusterOfDots(Row row) {
    return le16(row, 26) | static_cast<std::uint32_t>(le16(row, 20)) << 16;
}

}  // namespace

DirectoryRows readFatRows(std::span<const std::uint8_t> bytes, bool wide, RowTimes times) {
    DirectoryRows read;
    for (std::size_t at = 0; at < bytes.size() / kRowBytes; ++at) {
        const Row row = bytes.subspan(at * kRowBytes, kRowBytes);
        if (row[0] == 0) {
            read.ended = true;
            break;
        }
        const bool timesMatter = times == RowTimes::AreTimes || row[0] == kDeleted;
        if (isLongNameRow(row) || !(timesMatter ? isPlainRow(row) : isNamedRow(row))) {
            continue;
        }
        if (row[0] == '.') {
            if (at == 0 && row[1] == ' ') {
                read.self = clusterOfDots(row);
            } else if (at == 1 && row[1] == '.') {
                read.parent = clusterOfDots(row);
            }
        } else if ((row[11] & kLabel) != 0) {
            if (row[0] != kDeleted) {
                read.label = shortPart(row.first(11), false);
            }
        } else {
            DirectoryEntry entry = entryOf(row, wide);
            entry.hasOddTimes = !hasTimes(row);
            nameEntry(entry, bytes, at);
            read.entries.push_back(std::move(entry));
        }
    }
    return read;
}

std::optional<std::uint32_t> fatDirectoryBeginning(const std::uint8_t* sector, RowTimes times) {
    const Row self(sector, kRowBytes);
    const Row parent(sector + kRowBytes, kRowBytes);
    const bool isOne = sector[0] == '.' && sector[1] == ' ' && sector[kRowBytes] == '.' &&
                       sector[kRowBytes + 1] == '.' && isNamedRow(self) && isNamedRow(parent) &&
                       (times == RowTimes::MayBeAnything || (hasTimes(self) && hasTimes(parent)));
    return isOne && clusterOfDots(self) >= 2 ? std::optional(clusterOfDots(self)) : std::nullopt;
}

bool looksLikeFatRows(const std::uint8_t* sector) {
    bool hasEntry = false;
    for (std::size_t at = 0; at < 512; at += kRowBytes) {
        const Row row(sector + at, kRowBytes);
        if (row[0] == 0) {
            // Behind the last row nothing has been written.
            return at > 0 && std::all_of(sector + at, sector + 512, [](auto byte) { return byte == 0; });
        }
        if (!isRow(row)) {
            return false;
        }
        hasEntry = hasEntry || le16(row, 24) != 0 || isLongNameRow(row);
    }
    return hasEntry;
}

}  // namespace vantor
