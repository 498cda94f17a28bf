#include "filesystem/CardCollector.h"

#include <algorithm>
#include <array>

#include "filesystem/BootSector.h"
#include "filesystem/CardTable.h"
#include "filesystem/DirectoryRows.h"
#include "filesystem/NtfsRecord.h"

namespace vantor {

namespace {

enum Hint : std::uint8_t { kNothing = 0, kFatRow = 1, kExfatRow = 2 };

// What a sector may be by its first byte.
constexpr std::array<std::uint8_t, 256> makeHints() {
    std::array<std::uint8_t, 256> hints{};
    for (std::size_t byte = 1; byte < 256; ++byte) {
        const bool isSequence = byte <= 20;
        const bool isLetter = byte > 0x20 && byte != 0x7F;
        hints[byte] = isSequence || isLetter ? kFatRow : kNothing;
    }
    // Rows of exFAT, in use or not: bitmap, up-case table, label, file, stream, name, GUID, and vendors' own.
    for (const std::size_t type : {0x81, 0x82, 0x83, 0x85, 0xC0, 0xC1, 0xA0, 0xE0, 0xE1}) {
        hints[type] |= kExfatRow;
        hints[type & 0x7F] |= kExfatRow;
    }
    return hints;
}

constexpr std::array<std::uint8_t, 256> kHints = makeHints();

// How many sectors from this one on tell of files: rows, or a file record of NTFS; 0 when none does.
std::size_t directorySectors(const std::uint8_t* sector) {
    const std::uint8_t hint = kHints[sector[0]];
    // A row's attributes, and a byte of which only two bits have a meaning.
    if ((hint & kFatRow) != 0 && (sector[11] & 0xC0) == 0 && (sector[12] & ~0x18) == 0 &&
        (fatDirectoryBeginning(sector) || looksLikeFatRows(sector))) {
        return 1;
    }
    if ((hint & kExfatRow) != 0) {
        return looksLikeExfatRows(sector) ? 1 : 0;
    }
    return sector[0] == 'F' ? sectorsOfNtfsRecord(sector) : 0;
}

}  // namespace

bool CardCollector::isTrace(const std::uint8_t* sector) {
    return sector[0] != 0 && (directorySectors(sector) != 0 ||
                              ((sector[0] == 0xEB || sector[0] == 0xE9) && looksLikeBootSector(sector)));
}

void CardCollector::look(std::uint64_t firstSector, const std::uint8_t* bytes, std::size_t sectors) {
    SectorRun run;
    for (std::size_t i = 0; i < sectors; ++i) {
        const std::uint8_t* sector = bytes + i * 512;
        if (sector[0] == 0) {
            continue;
        }
        if (const std::size_t count = directorySectors(sector)) {
            const std::uint64_t at = firstSector + i;
            if (run.end < at || run.first == run.end) {
                note(run);
                run = {at, at};
            }
            run.end = std::max(run.end, at + count);
        } else if ((sector[0] == 0xEB || sector[0] == 0xE9) && looksLikeBootSector(sector)) {
            const std::lock_guard lock(m_mutex);
            if (m_noted.bootSectors.size() < kMostBootSectors) {
                m_noted.bootSectors.push_back(firstSector + i);
            }
        }
    }
    note(run);
}

void CardCollector::note(const SectorRun& directory) {
    if (directory.first == directory.end) {
        return;
    }
    const std::lock_guard lock(m_mutex);
    if (m_noted.directories.size() < kMostRuns) {
        m_noted.directories.push_back(directory);
    }
}

CardTraces CardCollector::traces() const {
    CardTraces noted;
    {
        const std::lock_guard lock(m_mutex);
        noted = m_noted;
    }
    joinRuns(noted.directories);
    std::sort(noted.bootSectors.begin(), noted.bootSectors.end());
    const auto last = std::unique(noted.bootSectors.begin(), noted.bootSectors.end());
    noted.bootSectors.erase(last, noted.bootSectors.end());
    return noted;
}

}  // namespace vantor
