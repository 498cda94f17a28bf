// The card's file system, read back by rules of its own.
#include <gtest/gtest.h>

#include <QHash>
#include <QSet>

#include "samples/FatCard.h"
#include "samples/FatNames.h"
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
    EXPECT_EQ(std::size_t(sizes.size()), listedFiles().size());
    for (const ListedFile& file : listedFiles())
        EXPECT_EQ(sizes.value(file.firstSector, -1), file.bytes) << qPrintable(file.name);
}

TEST(FatCard, BeforeDeletion_ChainsLeadThroughBothPieces) {
    FatCard card;
    const QByteArray bytes(5 * FatCard::kClusterBytes, 'x');
    const auto runs = card.addFileInTwoPieces(QStringLiteral("A"), QStringLiteral("B.BIN"), bytes, 3);
    ASSERT_TRUE(runs.has_value());
    ASSERT_EQ(runs->size(), 2u);
    EXPECT_EQ((*runs)[1].first - (*runs)[0].end, 3 * FatCard::kSectorsPerCluster);
    const Volume volume(card.image());
    const Entry folder = entriesIn(volume.image.mid(volume.rootAt, 512)).back();
    const Entry file = entriesIn(folderBytes(volume, le16(folder.raw, 26))).back();
    QByteArray chained;
    for (int cluster = le16(file.raw, 26); cluster < 0xFFF8 && chained.size() < 100000;
         cluster = volume.fat(cluster))
        chained += volume.image.mid(volume.at(cluster), FatCard::kClusterBytes);
    EXPECT_TRUE(chained == bytes);
    EXPECT_FALSE(file.isDeleted());
}

TEST(FatCard, FileLargerThanTheCard_IsRefused) {
    FatCard card;
    EXPECT_FALSE(
        card.addFile(QStringLiteral("A"), QStringLiteral("B.BIN"), QByteArray(kCardBytes, 'x')).has_value());
}

TEST(FatCard, FullFolder_TakesNoMore) {
    FatCard card;
    const QString folder = QStringLiteral("A");
    const QByteArray bytes(1, 'x');
    constexpr int kRoom = FatCard::kClusterBytes / 32 - 2;  // without its own entry and its parent's
    for (int i = 0; i < kRoom; ++i)
        ASSERT_TRUE(card.addFile(folder, QStringLiteral("%1.BIN").arg(i), bytes)) << i;
    EXPECT_FALSE(card.addFile(folder, QStringLiteral("ONEMORE.BIN"), bytes));
    EXPECT_FALSE(card.makeFolder(QStringLiteral("A/B")));
    EXPECT_TRUE(card.addFile(QStringLiteral("B"), QStringLiteral("ONEMORE.BIN"), bytes));
}

TEST(FatCard, NameOfManyEntries_FitsWhollyOrNotAtAll) {
    FatCard card;
    const QString folder = QStringLiteral("A");
    const QByteArray bytes(1, 'x');
    for (int i = 0; i < FatCard::kClusterBytes / 32 - 4; ++i)
        ASSERT_TRUE(card.addFile(folder, QStringLiteral("%1.BIN").arg(i), bytes)) << i;
    EXPECT_FALSE(card.addFile(folder, QStringLiteral("A name of three entries"), bytes));
    EXPECT_TRUE(card.addFile(folder, QStringLiteral("Of two"), bytes));
}

TEST(FatCard, FullRootFolder_TakesNoMoreAndSpoilsNothing) {
    FatCard card;
    for (int i = 0; i < FatCard::kRootEntries - 1; ++i)  // the label is the first entry
        ASSERT_TRUE(card.makeFolder(QString::number(i))) << i;
    const QByteArray before = card.image();
    EXPECT_FALSE(card.makeFolder(QStringLiteral("X")));
    EXPECT_FALSE(card.addFile(QString(), QStringLiteral("X.BIN"), "x"));
    EXPECT_TRUE(card.image() == before);
}

TEST(FatCard, FullCard_MakesNoFolder) {
    FatCard card;
    ASSERT_TRUE(card.addFile(QStringLiteral("A"), QStringLiteral("B.BIN"),
                             QByteArray((FatCard::kClusters - 1) * FatCard::kClusterBytes, 'x')));
    EXPECT_FALSE(card.makeFolder(QStringLiteral("C")));
    EXPECT_FALSE(card.addFile(QStringLiteral("C"), QStringLiteral("D.BIN"), "x"));
}

TEST(FatNames, NamesThatDoNotFit_GetAShortAndALongForm) {
    EXPECT_TRUE(isShortName(QStringLiteral("IMG_0001.JPG")));
    EXPECT_FALSE(isShortName(QStringLiteral("NOTES.DOCX")));
    EXPECT_EQ(shortNameOf(QStringLiteral("TUNE.AU"), 5), "TUNE    AU ");
    EXPECT_EQ(shortNameOf(QStringLiteral("NOTES.DOCX"), 12), "NOTES~12DOC");
    const auto entries = longNameEntries(QStringLiteral("PLACES.SQLITE2"), "PLACES~1SQL");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(byteAt(entries[0], 0), 0x42);
    EXPECT_EQ(byteAt(entries[1], 0), 0x01);
    EXPECT_EQ(entries[0].mid(1, 6), QByteArray("2\0\0\0\xFF\xFF", 6));
}

}  // namespace
}  // namespace vantor::samples
