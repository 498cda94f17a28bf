// Small cards in memory, written down row by row as the public descriptions of FAT and exFAT have it.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "filesystem/CardCollector.h"
#include "filesystem/CardReader.h"
#include "filesystem/SectorSource.h"

namespace vantor {

using Bytes = std::vector<std::uint8_t>;

inline void put(Bytes& into, std::size_t at, std::uint64_t number, std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i) {
        into.at(at + i) = static_cast<std::uint8_t>(number >> (8 * i));
    }
}

inline void put(Bytes& into, std::size_t at, const std::string& text) {
    std::copy(text.begin(), text.end(), into.begin() + static_cast<std::ptrdiff_t>(at));
}

// A medium of bytes, all of which can be read.
class MemoryCard final : public SectorSource {
  public:
    explicit MemoryCard(std::size_t sectors) : bytes(sectors * 512) {}

    std::uint64_t sectors() const override { return bytes.size() / 512; }
    bool readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        sectorsRead += into.size() / 512;
        std::memcpy(into.data(), bytes.data() + sector * 512, into.size());
        return true;
    }

    Bytes bytes;
    std::uint64_t sectorsRead = 0;
};

// The table of a card as a search that reads all of it would get it.
inline CardTable tableOf(MemoryCard& card, const std::vector<FoundStart>& found = {}) {
    CardCollector collector;
    collector.look(0, card.bytes.data(), card.sectors());
    return readCard(card, collector.traces(), found);
}

// The only file of that name, of whatever folder; one without a name when there is none or several.
inline CardFile fileNamed(const CardTable& table, const QString& name) {
    CardFile found;
    for (const CardFile& file : table.files) {
        if (file.name == name) {
            if (!found.name.isEmpty()) {
                return {};
            }
            found = file;
        }
    }
    return found;
}

inline std::string pathsOf(const CardTable& table) {
    QStringList paths;
    for (const CardFile& file : table.files) {
        paths << (file.folder.isEmpty() ? file.name : file.folder + u'/' + file.name);
    }
    paths.sort();
    return paths.join(u'\n').toStdString();
}

// 2026-03-22, 08:02:18.
inline constexpr std::uint16_t kSomeDay = (2026 - 1980) << 9 | 3 << 5 | 22;
inline constexpr std::uint16_t kSomeTime = 8 << 11 | 2 << 5 | 9;

// --- FAT ---

struct FatPlaces {
    unsigned bits = 16;  // of a number in the table
    std::size_t first = 0;
    std::size_t clusterSectors = 4;
    std::size_t clusters = 5000;

    std::size_t reserved() const { return bits == 32 ? 32 : 1; }
    std::size_t tableSectors() const { return ((clusters + 2) * bits / 8 + 511) / 512; }
    std::size_t table() const { return first + reserved(); }
    std::size_t root() const { return table() + 2 * tableSectors(); }
    std::size_t firstCluster() const { return root() + (bits == 32 ? 0 : 32); }
    std::size_t sectorOf(std::uint32_t cluster) const {
        return firstCluster() + (cluster - 2) * clusterSectors;
    }
    std::size_t end() const { return firstCluster() + clusters * clusterSectors; }
};

// One row of a name of eight and three characters, blanks included.
inline Bytes fatRow(const std::string& name11, std::uint32_t cluster, std::uint32_t size,
                    std::uint8_t attributes = 0x20) {
    Bytes row(32);
    put(row, 0, name11);
    row[11] = attributes;
    put(row, 14, kSomeTime, 2);
    put(row, 16, kSomeDay, 2);
    put(row, 18, kSomeDay, 2);
    put(row, 20, cluster >> 16, 2);
    put(row, 22, kSomeTime, 2);
    put(row, 24, kSomeDay, 2);
    put(row, 26, cluster & 0xFFFF, 2);
    put(row, 28, size, 4);
    return row;
}

// The rows of a long name before the row itself.
inline Bytes longFatRows(const QString& name, const Bytes& row) {
    std::uint8_t sum = 0;
    for (std::size_t i = 0; i < 11; ++i) {
        sum = static_cast<std::uint8_t>((sum << 7 | sum >> 1) + row[i]);
    }
    const std::size_t count = (static_cast<std::size_t>(name.size()) + 12) / 13;
    Bytes rows;
    for (std::size_t part = count; part-- > 0;) {
        Bytes one(32, 0xFF);
        one[0] = static_cast<std::uint8_t>((part + 1) | (part + 1 == count ? 0x40 : 0));
        one[11] = 0x0F;
        one[12] = 0;
        one[13] = sum;
        put(one, 26, 0, 2);
        static constexpr std::size_t kAt[] = {1, 3, 5, 7, 9, 14, 16, 18, 20, 22, 24, 28, 30};
        for (std::size_t i = 0; i < 13; ++i) {
            const qsizetype at = static_cast<qsizetype>(part * 13 + i);
            if (at <= name.size()) {
                put(one, kAt[i], at < name.size() ? name[at].unicode() : 0, 2);
            }
        }
        rows.insert(rows.end(), one.begin(), one.end());
    }
    rows.insert(rows.end(), row.begin(), row.end());
    return rows;
}

inline Bytes dotRows(std::uint32_t self, std::uint32_t parent) {
    Bytes rows = fatRow(".          ", self, 0, 0x10);
    const Bytes up = fatRow("..         ", parent, 0, 0x10);
    rows.insert(rows.end(), up.begin(), up.end());
    return rows;
}

// The rows as a deletion leaves them.
inline Bytes deletedFat(Bytes rows) {
    for (std::size_t at = 0; at < rows.size(); at += 32) {
        rows[at] = 0xE5;
    }
    return rows;
}

inline Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

inline void putBytes(MemoryCard& card, std::size_t sector, const Bytes& bytes) {
    std::copy(bytes.begin(), bytes.end(), card.bytes.begin() + static_cast<std::ptrdiff_t>(sector * 512));
}

inline void linkFat(MemoryCard& card, const FatPlaces& fat, std::uint32_t cluster, std::uint32_t value) {
    for (std::size_t copy = 0; copy < 2; ++copy) {
        const std::size_t at = (fat.table() + copy * fat.tableSectors()) * 512;
        if (fat.bits == 12) {
            const std::size_t byte = at + cluster + cluster / 2;
            std::uint32_t both = card.bytes[byte] | card.bytes[byte + 1] << 8;
            both = cluster % 2 ? (both & 0xF) | (value & 0xFFF) << 4 : (both & 0xF000) | (value & 0xFFF);
            put(card.bytes, byte, both, 2);
        } else {
            put(card.bytes, at + cluster * fat.bits / 8, value, fat.bits / 8);
        }
    }
}

// Links the clusters one after the other and ends behind the last.
inline void chainFat(MemoryCard& card, const FatPlaces& fat, const std::vector<std::uint32_t>& clusters) {
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        linkFat(card, fat, clusters[i], i + 1 < clusters.size() ? clusters[i + 1] : 0x0FFFFFFF);
    }
}

// A quick format: boot sector (and its copy), empty tables, an empty root.
inline void formatFat(MemoryCard& card, const FatPlaces& fat) {
    const auto clear = [&](std::size_t first, std::size_t end) {
        std::fill(card.bytes.begin() + static_cast<std::ptrdiff_t>(first * 512),
                  card.bytes.begin() + static_cast<std::ptrdiff_t>(end * 512), 0);
    };
    clear(fat.first, fat.firstCluster());
    Bytes boot(512);
    put(boot, 0, "\xEB\x3C\x90MSDOS5.0");
    put(boot, 11, 512, 2);
    boot[13] = static_cast<std::uint8_t>(fat.clusterSectors);
    put(boot, 14, fat.reserved(), 2);
    boot[16] = 2;
    put(boot, 17, fat.bits == 32 ? 0 : 512, 2);
    boot[21] = 0xF8;
    put(boot, 32, fat.end() - fat.first, 4);
    if (fat.bits == 32) {
        put(boot, 36, fat.tableSectors(), 4);
        put(boot, 44, 2, 4);
        put(boot, 50, 6, 2);
        putBytes(card, fat.first + 6, boot);
    } else {
        put(boot, 22, fat.tableSectors(), 2);
    }
    put(boot, 510, 0xAA55, 2);
    putBytes(card, fat.first, boot);
    if (fat.bits == 32) {
        putBytes(card, fat.first + 6, boot);
        clear(fat.sectorOf(2), fat.sectorOf(3));
        chainFat(card, fat, {2});
    }
}

// --- exFAT ---

struct ExfatPlaces {
    std::size_t first = 0;
    std::size_t clusterSectors = 8;
    std::size_t clusters = 2000;

    std::size_t table() const { return first + 24; }
    std::size_t tableSectors() const { return ((clusters + 2) * 4 + 511) / 512; }
    std::size_t firstCluster() const { return table() + tableSectors(); }
    std::size_t sectorOf(std::uint32_t cluster) const {
        return firstCluster() + (cluster - 2) * clusterSectors;
    }
    std::size_t end() const { return firstCluster() + clusters * clusterSectors; }
};

struct ExfatFile {
    QString name;
    std::uint32_t cluster = 0;
    std::uint64_t bytes = 0;
    bool onePiece = true;
    bool folder = false;
    bool deleted = false;
    std::uint8_t zone = 0x84;  // an hour east
};

inline Bytes exfatSet(const ExfatFile& file) {
    const std::size_t names = (static_cast<std::size_t>(file.name.size()) + 14) / 15;
    Bytes set((2 + names) * 32);
    set[0] = 0x85;
    set[1] = static_cast<std::uint8_t>(1 + names);
    put(set, 4, file.folder ? 0x10 : 0x20, 2);
    put(set, 8, static_cast<std::uint32_t>(kSomeDay) << 16 | kSomeTime, 4);
    put(set, 12, static_cast<std::uint32_t>(kSomeDay) << 16 | kSomeTime, 4);
    set[22] = set[23] = file.zone;
    set[32] = 0xC0;
    set[33] = file.onePiece ? 3 : 1;
    set[35] = static_cast<std::uint8_t>(file.name.size());
    put(set, 40, file.bytes, 8);
    put(set, 52, file.cluster, 4);
    put(set, 56, file.bytes, 8);
    for (std::size_t row = 0; row < names; ++row) {
        set[(2 + row) * 32] = 0xC1;
        for (std::size_t i = 0; i < 15; ++i) {
            const qsizetype at = static_cast<qsizetype>(row * 15 + i);
            put(set, (2 + row) * 32 + 2 + 2 * i, at < file.name.size() ? file.name[at].unicode() : 0, 2);
        }
    }
    std::uint16_t sum = 0;
    for (std::size_t i = 0; i < set.size(); ++i) {
        if (i != 2 && i != 3) {
            sum = static_cast<std::uint16_t>((sum << 15 | sum >> 1) + set[i]);
        }
    }
    put(set, 2, sum, 2);
    for (std::size_t at = 0; file.deleted && at < set.size(); at += 32) {
        set[at] &= 0x7F;
    }
    return set;
}

inline void linkExfat(MemoryCard& card, const ExfatPlaces& exfat, std::uint32_t cluster,
                      std::uint32_t value) {
    put(card.bytes, exfat.table() * 512 + cluster * 4, value, 4);
}

inline void chainExfat(MemoryCard& card, const ExfatPlaces& exfat,
                       const std::vector<std::uint32_t>& clusters) {
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        linkExfat(card, exfat, clusters[i], i + 1 < clusters.size() ? clusters[i + 1] : 0xFFFFFFFF);
    }
}

// A quick format with the root in cluster 5, behind bitmap and up-case table.
inline void formatExfat(MemoryCard& card, const ExfatPlaces& exfat) {
    const auto clear = [&](std::size_t first, std::size_t end) {
        std::fill(card.bytes.begin() + static_cast<std::ptrdiff_t>(first * 512),
                  card.bytes.begin() + static_cast<std::ptrdiff_t>(end * 512), 0);
    };
    clear(exfat.first, exfat.firstCluster());
    clear(exfat.sectorOf(2), exfat.sectorOf(6));
    Bytes boot(512);
    put(boot, 0,
        "\xEB\x76\x90"
        "EXFAT   ");
    put(boot, 72, exfat.end() - exfat.first, 8);
    put(boot, 80, 24, 4);
    put(boot, 84, exfat.tableSectors(), 4);
    put(boot, 88, exfat.firstCluster() - exfat.first, 4);
    put(boot, 92, exfat.clusters, 4);
    put(boot, 96, 5, 4);
    boot[108] = 9;
    for (std::size_t sectors = exfat.clusterSectors; sectors > 1; sectors /= 2) {
        ++boot[109];
    }
    boot[110] = 1;
    put(boot, 510, 0xAA55, 2);
    putBytes(card, exfat.first, boot);
    putBytes(card, exfat.first + 12, boot);
    chainExfat(card, exfat, {5});
}

}  // namespace vantor
