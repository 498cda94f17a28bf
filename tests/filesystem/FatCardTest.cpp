// Files of FAT12, FAT16 and FAT32: there, deleted, and left by a format.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QTemporaryFile>
#include <algorithm>
#include <tuple>

#include "filesystem/DirectoryRows.h"
#include "filesystem/PresentVolumes.h"
#include "media/RawDevice.h"
#include "tests/filesystem/CardImage.h"

namespace vantor {
namespace {

std::int64_t someMoment() {
    return QDateTime(QDate(2026, 3, 22), QTime(8, 2, 18)).toSecsSinceEpoch();
}

class FatCard : public testing::TestWithParam<unsigned> {
  protected:
    FatCard() {
        m_fat.bits = GetParam();
        m_fat.clusters = m_fat.bits == 12 ? 2000 : 5000;
        formatFat(m_card, m_fat);
        const Bytes dcim = fatRow("DCIM       ", 3, 0, 0x10);
        if (m_fat.bits == 32) {
            putBytes(m_card, m_fat.sectorOf(2), dcim);
        } else {
            putBytes(m_card, m_fat.root(), dcim);
        }
        chainFat(m_card, m_fat, {3});
        putBytes(m_card, m_fat.sectorOf(3), dotRows(3, 0) + fatRow("100CANON   ", 4, 0, 0x10));
        chainFat(m_card, m_fat, {4});
    }

    void putPhotos(const Bytes& rows) { putBytes(m_card, m_fat.sectorOf(4), dotRows(4, 3) + rows); }
    void beginPhoto(std::uint32_t cluster) {
        put(m_card.bytes, m_fat.sectorOf(cluster) * 512, std::string("\xFF\xD8\xFF\xE1", 4));
    }

    FatPlaces m_fat;
    MemoryCard m_card{22000};
};

TEST_P(FatCard, NameOfTheFileSystem_IsToldFromAnImage) {
    QTemporaryFile image;
    ASSERT_TRUE(image.open());
    const auto told = [&] {
        image.resize(0);
        image.write(reinterpret_cast<const char*>(m_card.bytes.data()),
                    static_cast<qint64>(m_card.bytes.size()));
        image.flush();
        return presentFileSystems(*openMedium(image.fileName()), m_card.sectors());
    };
    EXPECT_EQ(told(), QStringLiteral("MS-DOS (FAT%1)").arg(m_fat.bits));
    std::fill(m_card.bytes.begin(), m_card.bytes.end(), std::uint8_t{0});
    EXPECT_EQ(told(), QString());
}

TEST_P(FatCard, LiveFileInPieces_HasItsFolderTimesAndRuns) {
    putPhotos(fatRow("IMG_0412JPG", 10, 5 * 2048 - 1));
    chainFat(m_card, m_fat, {10, 11, 20, 21, 15});
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG");
    const CardFile& file = table.files.front();
    EXPECT_EQ(file.state, FileState::Live);
    EXPECT_EQ(file.bytes, 5 * 2048u - 1);
    EXPECT_EQ(file.modified, someMoment());
    EXPECT_EQ(file.created, someMoment());
    const std::vector<SectorRun> runs{{m_fat.sectorOf(10), m_fat.sectorOf(12)},
                                      {m_fat.sectorOf(20), m_fat.sectorOf(22)},
                                      {m_fat.sectorOf(15), m_fat.sectorOf(16)}};
    EXPECT_EQ(file.runs, runs);
    EXPECT_EQ(file.runsKnownBy, RunsKnownBy::Chain);
    EXPECT_TRUE(table.isInUse(m_fat.sectorOf(20)));
    EXPECT_TRUE(table.isInUse(m_fat.sectorOf(4)));
    EXPECT_TRUE(table.isInUse(m_fat.first));
    EXPECT_FALSE(table.isInUse(m_fat.sectorOf(22)));
    EXPECT_EQ(table.freeRunFrom(m_fat.sectorOf(20), m_fat.sectorOf(30)),
              (SectorRun{m_fat.sectorOf(22), m_fat.sectorOf(30)}));
}

// The 31st of the 15th month, at 31:63:62, as from a clock that nobody set.
TEST_P(FatCard, TimesThatThereAreNot_TakeNoNameFromWhatIsThere) {
    const auto odd = [](Bytes rows) {
        for (std::size_t at = 0; at < rows.size(); at += kRowBytes) {
            std::fill_n(rows.begin() + static_cast<std::ptrdiff_t>(at + 13), 7, std::uint8_t{0xFF});
            std::fill_n(rows.begin() + static_cast<std::ptrdiff_t>(at + 22), 4, std::uint8_t{0xFF});
        }
        return rows;
    };
    putBytes(m_card, m_fat.sectorOf(3), odd(dotRows(3, 0) + fatRow("100CANON   ", 4, 0, 0x10)));
    putBytes(m_card, m_fat.sectorOf(4),
             odd(dotRows(4, 3) + fatRow("IMG_0412JPG", 10, 2048) + fatRow("NOWHERE JPG", 12, 2048) +
                 deletedFat(fatRow("HOLIDAY JPG", 14, 2048)) + fatRow("BEYOND  JPG", 0xFFF0, 2048)));
    chainFat(m_card, m_fat, {10});
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG") << "and no row that the table does not speak for";
    EXPECT_EQ(table.files.front().state, FileState::Live);
    EXPECT_FALSE(table.files.front().modified.has_value());
    EXPECT_EQ(table.files.front().runs, (std::vector<SectorRun>{{m_fat.sectorOf(10), m_fat.sectorOf(11)}}));
}

TEST_P(FatCard, DeletedFile_LosesItsFirstLetterAndIsGuessedInOnePiece) {
    putPhotos(deletedFat(fatRow("HOLIDAY JPG", 10, 3 * 2048)));
    beginPhoto(10);
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/_OLIDAY.JPG");
    const CardFile& file = table.files.front();
    EXPECT_EQ(file.state, FileState::Deleted);
    EXPECT_FALSE(file.nameIsWhole);
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{m_fat.sectorOf(10), m_fat.sectorOf(13)}}));
    EXPECT_EQ(file.runsKnownBy, RunsKnownBy::Guess);
    EXPECT_FALSE(file.beginningIsInUse);
}

// Another file's piece lies there since, which was deleted in its turn: nothing holds the place.
TEST_P(FatCard, DeletedFile_IsNotWhereSomethingElseBegins) {
    putPhotos(deletedFat(fatRow("IMG_0412JPG", 10, 3 * 2048) + fatRow("NOTES   CTG", 20, 3 * 2048)));
    put(m_card.bytes, m_fat.sectorOf(10) * 512, std::string("\xFD\x30\xB1\xBD", 4));
    const CardTable table = tableOf(m_card);
    const CardFile photo = fileNamed(table, "IMG_0412.JPG");
    EXPECT_EQ(photo.runsKnownBy, RunsKnownBy::StartOnly);
    EXPECT_EQ(photo.runs, (std::vector<SectorRun>{{m_fat.sectorOf(10), m_fat.sectorOf(11)}}));
    // What begins in no way of its own may be there.
    EXPECT_EQ(fileNamed(table, "_OTES.CTG").runsKnownBy, RunsKnownBy::Guess);
}

TEST_P(FatCard, DeletedLongName_IsWhole) {
    const Bytes row = fatRow("GRE~1   JPE", 10, 100);
    putPhotos(longFatRows("Größe am Strand 12.jpeg", row) +
              deletedFat(longFatRows("Gruß vom Strand.jpeg", row)));
    chainFat(m_card, m_fat, {10});
    const CardTable table = tableOf(m_card);
    EXPECT_EQ(fileNamed(table, "Größe am Strand 12.jpeg").state, FileState::Live);
    const CardFile deleted = fileNamed(table, "Gruß vom Strand.jpeg");
    EXPECT_EQ(deleted.state, FileState::Deleted);
    EXPECT_TRUE(deleted.nameIsWhole);
    EXPECT_TRUE(deleted.beginningIsInUse);
}

// The checksum in a long name's rows is that of the short name they belong to.
TEST_P(FatCard, LongNameOfAnotherFile_NamesNothing) {
    const Bytes stray = longFatRows("Somebody else's.jpeg", fatRow("OTHER   JPG", 9, 1));
    const Bytes rows(stray.begin(), stray.end() - 32);
    putPhotos(rows + fatRow("IMG_0001JPG", 10, 100) + deletedFat(rows + fatRow("IMG_0002JPG", 11, 100)));
    chainFat(m_card, m_fat, {10});
    EXPECT_EQ(pathsOf(tableOf(m_card)), "DCIM/100CANON/IMG_0001.JPG\nDCIM/100CANON/IMG_0002.JPG");
}

// The sum alone is right for nearly any first letter, and one letter in most sums is not enough.
TEST_P(FatCard, DeletedRowBehindALongNameItWasNotMadeOf_IsNotCalledSo) {
    Bytes rows;
    for (const QString& name : {QString("_private [1].jpg"), QString("日本の写真のアルバム.jpg")}) {
        for (int i = 0; i < 8; ++i) {
            const Bytes stray = longFatRows(name, fatRow("OTHER~" + std::to_string(i) + " JPG", 9, 1));
            rows = rows + deletedFat(Bytes(stray.begin(), stray.end() - 32) +
                                     fatRow("IMG_000" + std::to_string(i) + "JPG", 10, 100));
        }
    }
    putPhotos(rows);
    for (const CardFile& file : tableOf(m_card).files) {
        EXPECT_TRUE(file.name.startsWith("IMG_000")) << file.name.toStdString();
    }
}

// Newer files took the rows with the end of the name.
TEST_P(FatCard, DeletedLongNameWithoutItsEnd_IsNoName) {
    const Bytes file =
        deletedFat(longFatRows("Holiday in the mountains 2024.jpg", fatRow("HOLIDA~1JPG", 10, 9)));
    const Bytes folder =
        deletedFat(longFatRows("Holiday in the mountains", fatRow("HOLIDA~1   ", 5, 0, 0x10)));
    putPhotos(fatRow("IMG_0001JPG", 11, 100) + Bytes(file.begin() + 32, file.end()) +
              fatRow("IMG_0002JPG", 12, 100) + Bytes(folder.begin() + 32, folder.end()));
    putBytes(m_card, m_fat.sectorOf(5), dotRows(5, 4) + fatRow("IMG_0003JPG", 13, 100));
    EXPECT_EQ(pathsOf(tableOf(m_card)),
              "DCIM/100CANON/IMG_0001.JPG\nDCIM/100CANON/IMG_0002.JPG\n"
              "DCIM/100CANON/_OLIDA~1.JPG\nDCIM/100CANON/_OLIDA~1/IMG_0003.JPG");
}

TEST_P(FatCard, DeletedLongName_FirstLetterMayBeE5) {
    putPhotos(deletedFat(longFatRows("σchöne Tage.jpg", fatRow("\x05"
                                                               "CHNET~1JPG",
                                                               10, 100))));
    EXPECT_EQ(pathsOf(tableOf(m_card)), "DCIM/100CANON/σchöne Tage.jpg");
}

TEST_P(FatCard, DeletedByACameraThatKnowsNoLongNames_KeepsItsLongName) {
    Bytes rows = longFatRows("Holiday in the mountains 2024.jpg", fatRow("HOLIDA~1JPG", 10, 100));
    rows[rows.size() - 32] = 0xE5;
    putPhotos(rows);
    EXPECT_EQ(pathsOf(tableOf(m_card)), "DCIM/100CANON/Holiday in the mountains 2024.jpg");
}

TEST_P(FatCard, DeletedFolder_StillHoldsItsFiles) {
    putPhotos(fatRow("IMG_0412JPG", 10, 100));
    putBytes(m_card, m_fat.sectorOf(3), dotRows(3, 0) + deletedFat(fatRow("100CANON   ", 4, 0, 0x10)));
    linkFat(m_card, m_fat, 4, 0);
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG");
    EXPECT_EQ(table.files.front().state, FileState::Deleted);
}

// Of texts, which nothing tells by how they begin: where the files lie tells whose the rows are, and where
// the rows lie, behind the file that was the last before them, which folder's.
TEST_P(FatCard, DeletedFolderThatGoesOnElsewhere_StillHoldsItsFiles) {
    const auto texts = [](const char* name, int count, std::uint32_t cluster) {
        Bytes rows;
        for (int i = 0; i < count; ++i) {
            const QString number = QString("%1").arg(i, 2, 10, QChar(u'0'));
            rows = rows + fatRow(name + number.toStdString() + "  TXT",
                                 cluster + static_cast<std::uint32_t>(i), 1000);
        }
        return deletedFat(rows);
    };
    putPhotos(texts("NOTE", 62, 10));
    putBytes(m_card, m_fat.sectorOf(3), dotRows(3, 0) + deletedFat(fatRow("100CANON   ", 4, 0, 0x10)));
    linkFat(m_card, m_fat, 4, 0);
    putBytes(m_card, m_fat.sectorOf(72), texts("TEXT", 3, 73));
    const CardFile file = fileNamed(tableOf(m_card), "_EXT01.TXT");
    EXPECT_EQ(file.folder, "DCIM/100CANON");
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{m_fat.sectorOf(74), m_fat.sectorOf(75)}}));
    // Whose files do not lie one behind the other there may be of another file system.
    putBytes(m_card, m_fat.sectorOf(72), texts("TEXT", 1, 73) + texts("MORE", 2, 90));
    EXPECT_EQ(fileNamed(tableOf(m_card), "_EXT00.TXT").name, "");
    // Behind another file they are of no known folder.
    putBytes(m_card, m_fat.sectorOf(72), Bytes(512));
    putBytes(m_card, m_fat.sectorOf(80), texts("TEXT", 3, 81));
    EXPECT_EQ(fileNamed(tableOf(m_card), "_EXT01.TXT").folder, "");
    EXPECT_EQ(fileNamed(tableOf(m_card), "_EXT01.TXT").bytes, 1000u);
}

TEST_P(FatCard, QuickFormat_FoldersAreFoundByTheirDotRows) {
    putPhotos(fatRow("IMG_0412JPG", 10, 3 * 2048));
    beginPhoto(10);
    formatFat(m_card, m_fat);
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG");
    EXPECT_EQ(table.files.front().state, FileState::Lost);
    EXPECT_EQ(table.files.front().runs, (std::vector<SectorRun>{{m_fat.sectorOf(10), m_fat.sectorOf(13)}}));
}

// The root is gone, and with it the name of the folder that the standard puts a camcorder's into.
TEST_P(FatCard, QuickFormat_FolderOfACamcorderIsNamedByItsStandard) {
    putBytes(m_card, m_fat.sectorOf(4), dotRows(4, 3) + fatRow("00000   MTS", 10, 3 * 2048));
    for (const auto& [inner, parent, folder] :
         {std::tuple("AVCHD      ", 0u, "PRIVATE/AVCHD"), std::tuple("M4ROOT     ", 0u, "PRIVATE/M4ROOT"),
          std::tuple("BACKUP     ", 0u, "folder-3/BACKUP"),
          std::tuple("AVCHD      ", 9u, "folder-3/AVCHD")}) {
        putBytes(m_card, m_fat.sectorOf(3), dotRows(3, parent) + fatRow(inner, 4, 0, 0x10));
        formatFat(m_card, m_fat);
        EXPECT_EQ(fileNamed(tableOf(m_card), "00000.MTS").folder, folder);
    }
}

// Two file systems stood side by side; of the table that named them nothing is left.
TEST_P(FatCard, TablesOfPartitionsGone_EachRootNamesItsOwnFolders) {
    MemoryCard card(2 * 22000);
    for (const auto& [first, tag] : {std::pair(std::size_t{2048}, "A"), std::pair(std::size_t{22400}, "B")}) {
        FatPlaces fat = m_fat;
        fat.first = first;
        formatFat(card, fat);
        putBytes(card, fat.bits == 32 ? fat.sectorOf(2) : fat.root(),
                 fatRow(tag + std::string("FOLDER    "), 5, 0, 0x10) +
                     fatRow(tag + std::string("ROOT   JPG"), 20, 100));
        putBytes(card, fat.sectorOf(5), dotRows(5, 0) + fatRow(tag + std::string("DEEP   JPG"), 30, 100));
        for (const std::uint32_t cluster : {20, 30}) {
            put(card.bytes, fat.sectorOf(cluster) * 512, std::string("\xFF\xD8\xFF\xE1", 4));
        }
    }
    const CardTable table = tableOf(card);
    EXPECT_EQ(pathsOf(table), "AFOLDER/ADEEP.JPG\nAROOT.JPG\nBFOLDER/BDEEP.JPG\nBROOT.JPG");
    FatPlaces second = m_fat;
    second.first = 22400;
    const CardFile file = fileNamed(table, "BROOT.JPG");
    EXPECT_EQ(file.state, FileState::Lost);
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{second.sectorOf(20), second.sectorOf(21)}}));
}

TEST_P(FatCard, FormatWithOtherClusters_OldOnesAreVotedFor) {
    putPhotos(fatRow("IMG_0412JPG", 10, 3 * 2048));
    beginPhoto(10);
    FatPlaces other = m_fat;
    other.clusterSectors = 8;
    other.clusters = m_fat.clusters / 2;
    formatFat(m_card, other);
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG");
    EXPECT_EQ(table.files.front().runs, (std::vector<SectorRun>{{m_fat.sectorOf(10), m_fat.sectorOf(13)}}));
    ASSERT_EQ(table.fileSystems.size(), 2u);
    EXPECT_EQ(table.fileSystems.front().tables, (SectorRun{other.table(), other.root()})) << "both copies";
    EXPECT_FALSE(table.fileSystems.back().isCurrent);
    EXPECT_EQ(table.fileSystems.back().clusterSectors, 4u);
}

// Of clusters of 1 KiB, where the present ones have 2.
TEST_P(FatCard, FormatWithOtherClusters_OneFolderOfTextsTellsThem) {
    const auto rows = [](std::uint32_t third) {
        return dotRows(500, 0) + fatRow("ONE     TXT", 501, 9000) + fatRow("TWO     TXT", 510, 700) +
               fatRow("THREE   TXT", third, 5000) + fatRow("FOUR    TXT", 516, 300);
    };
    putBytes(m_card, 5000, rows(511));
    const CardFile file = fileNamed(tableOf(m_card), "THREE.TXT");
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{5022, 5032}}));
    EXPECT_EQ(file.folder, "folder-500");
    // They do not lie one behind the other.
    putBytes(m_card, 5000, rows(612));
    EXPECT_EQ(fileNamed(tableOf(m_card), "THREE.TXT").name, "");
    // Of one cluster each, whatever its size.
    putBytes(m_card, 5000,
             dotRows(500, 0) + fatRow("A       TXT", 501, 90) + fatRow("B       TXT", 502, 90) +
                 fatRow("C       TXT", 503, 90) + fatRow("D       TXT", 504, 90));
    EXPECT_EQ(fileNamed(tableOf(m_card), "B.TXT").name, "");
}

// Each says another place of the clusters.
TEST(FatCardReading, ManyFoldersThatAgreeInNothing_AreReadInPart) {
    constexpr std::size_t kFolders = 200;
    constexpr std::size_t kApart = 600;
    MemoryCard card((kFolders + 1) * kApart);
    for (std::size_t i = 0; i < kFolders; ++i) {
        const auto cluster = static_cast<std::uint32_t>(50'000 + i * i * 7);
        putBytes(card, (i + 1) * kApart, dotRows(cluster, 0) + fatRow("ONE     TXT", cluster + 1, 90));
    }
    tableOf(card);
    // Of 64 KiB each, were they all looked into.
    EXPECT_LT(card.sectorsRead, kFolders * 64);
}

TEST_P(FatCard, LoopsOfFoldersAndClusters_End) {
    putPhotos(fatRow("IMG_0412JPG", 10, 100 * 2048) + fatRow("AGAIN      ", 4, 0, 0x10) +
              fatRow("UP         ", 3, 0, 0x10));
    chainFat(m_card, m_fat, {10, 11});
    linkFat(m_card, m_fat, 11, 10);
    linkFat(m_card, m_fat, 4, 4);
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG");
    EXPECT_EQ(table.files.front().runs, (std::vector<SectorRun>{{m_fat.sectorOf(10), m_fat.sectorOf(12)}}));
}

TEST_P(FatCard, SizesThatLie_LetNoClusterBeTwoFiles) {
    Bytes rows;
    for (const char letter : std::string("ABCDEFGHIJ")) {
        rows = rows + fatRow(std::string(1, letter) + "       JPG",
                             letter < 'F' ? 10 + static_cast<std::uint32_t>(letter - 'A') : 20, 2048 * 2000);
    }
    putPhotos(rows);
    for (std::uint32_t cluster = 10; cluster < 15; ++cluster) {
        chainFat(m_card, m_fat, {cluster});
    }
    chainFat(m_card, m_fat, {20, 22, 24});
    linkFat(m_card, m_fat, 24, 22);
    std::size_t runs = 0;
    for (const CardFile& file : tableOf(m_card).files) {
        runs += file.runs.size();
    }
    EXPECT_EQ(runs, 5 + 3);
}

TEST_P(FatCard, SizesAndClustersBeyondTheCard_HaveNoRuns) {
    putPhotos(fatRow("HUGE    JPG", 10, 0xFFFFFFF0) + fatRow("FAR     JPG", 0xFFF0, 5000));
    const CardTable table = tableOf(m_card);
    EXPECT_EQ(pathsOf(table), "DCIM/100CANON/FAR.JPG");
    EXPECT_TRUE(table.files.front().runs.empty());
}

INSTANTIATE_TEST_SUITE_P(EveryWidth, FatCard, testing::Values(12u, 16u, 32u),
                         [](const auto& width) { return "Fat" + std::to_string(width.param); });

}  // namespace
}  // namespace vantor
