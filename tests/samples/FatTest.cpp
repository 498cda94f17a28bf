// The card's file system, read back by rules of its own.
#include <gtest/gtest.h>

#include <QHash>
#include <QSet>

#include "tests/samples/CardFixture.h"

namespace vantor::samples {
namespace {

int byteAt(const QByteArray& bytes, qsizetype at) {
    return static_cast<std::uint8_t>(bytes[at]);
}

struct Volume {
    explicit Volume(const QByteArray& card) : image(card) {
        sectorsPerCluster = byteAt(image, 13);
        fatAt = le16(image, 14) * 512;
        fats = byteAt(image, 16);
        rootEntries = le16(image, 17);
        fatBytes = le16(image, 22) * 512;
        rootAt = fatAt + fats * fatBytes;
        dataAt = rootAt + rootEntries * 32;
    }
    int fat(int cluster) const { return le16(image, fatAt + cluster * 2); }
    qsizetype at(int cluster) const { return dataAt + qsizetype{cluster - 2} * sectorsPerCluster * 512; }

    const QByteArray& image;
    int sectorsPerCluster, fats, rootEntries;
    qsizetype fatAt, fatBytes, rootAt, dataAt;
};

struct Entry {
    QByteArray raw;
    bool isDeleted() const { return raw[0] == '\xE5'; }
    bool isLongPart() const { return raw[11] == 0x0F; }
    bool isLabel() const { return raw[11] == 0x08; }
    bool isFolder() const { return raw[11] == 0x10; }
};

// Entries of one folder's bytes, up to the first never used.
std::vector<Entry> entriesIn(const QByteArray& folder) {
    std::vector<Entry> entries;
    for (qsizetype at = 0; at + 32 <= folder.size() && folder[at] != 0; at += 32)
        entries.push_back({folder.mid(at, 32)});
    return entries;
}

QByteArray folderBytes(const Volume& volume, int cluster) {
    QByteArray bytes;
    for (int guard = 0; cluster >= 2 && cluster < 0xFFF8 && guard < 100;
         cluster = volume.fat(cluster), ++guard)
        bytes += volume.image.mid(volume.at(cluster), volume.sectorsPerCluster * 512);
    return bytes;
}

// Every entry of the volume but the dot entries.
std::vector<Entry> allEntries(const Volume& volume) {
    std::vector<Entry> found;
    std::vector<QByteArray> folders = {volume.image.mid(volume.rootAt, qsizetype{volume.rootEntries} * 32)};
    for (std::size_t i = 0; i < folders.size() && i < 50; ++i) {
        for (const Entry& entry : entriesIn(folders[i])) {
            if (entry.raw[0] == '.')
                continue;
            found.push_back(entry);
            if (entry.isFolder() && !entry.isDeleted())
                folders.push_back(folderBytes(volume, le16(entry.raw, 26)));
        }
    }
    return found;
}

TEST(FatCard, BootSector_DescribesAFat16Volume) {
    const QByteArray& image = cardImage();
    EXPECT_EQ(byteAt(image, 0), 0xEB);
    EXPECT_EQ(le16(image, 510), 0xAA55);
    EXPECT_EQ(le16(image, 11), 512);
    EXPECT_EQ(byteAt(image, 21), 0xF8);
    EXPECT_EQ(le16(image, 19), 0);
    EXPECT_EQ(le32(image, 32), 131072);
    EXPECT_EQ(image.mid(54, 8), "FAT16   ");
    const Volume volume(image);
    EXPECT_EQ(volume.fats, 2);
    const qsizetype clusters = (image.size() - volume.dataAt) / (volume.sectorsPerCluster * 512);
    EXPECT_GE(clusters, 4085);  // fewer would be read as FAT12, 65,525 or more as FAT32
    EXPECT_LT(clusters, 65525);
    EXPECT_GE(volume.fatBytes, (clusters + 2) * 2);
    EXPECT_EQ(volume.dataAt, 256 * 512);
}

TEST(FatCard, Tables_AgreeAndKeepOnlyTheFolders) {
    const Volume volume(cardImage());
    EXPECT_TRUE(volume.image.mid(volume.fatAt, volume.fatBytes) ==
                volume.image.mid(volume.fatAt + volume.fatBytes, volume.fatBytes));
    EXPECT_EQ(volume.fat(0), 0xFFF8);
    EXPECT_EQ(volume.fat(1), 0xFFFF);
    int used = 0;
    for (int cluster = 2; cluster < volume.fatBytes / 2; ++cluster)
        used += volume.fat(cluster) != 0;
    int folders = 0;
    for (const Entry& entry : allEntries(volume))
        folders += entry.isFolder();
    EXPECT_EQ(used, folders);
    EXPECT_EQ(folders, 7);
}

TEST(FatCard, EveryFileEntry_IsDeletedAndKeepsItsPlaceAndSize) {
    const Volume volume(cardImage());
    QHash<qint64, qint64> sizes;  // by first sector
    for (const Entry& entry : allEntries(volume)) {
        if (entry.isFolder() || entry.isLabel())
            continue;
        EXPECT_TRUE(entry.isDeleted()) << entry.raw.left(11).constData();
        if (!entry.isLongPart())
            sizes[volume.at(le16(entry.raw, 26)) / 512] = le32(entry.raw, 28);
    }
    for (const ListedFile& file : listedFiles())
        EXPECT_EQ(sizes.value(file.firstSector, -1), file.bytes) << qPrintable(file.name);
}

}  // namespace
}  // namespace vantor::samples
