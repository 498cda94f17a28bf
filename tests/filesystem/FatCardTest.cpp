// Files of FAT12, FAT16 and FAT32: there, deleted, and left by a format.
#include <gtest/gtest.h>

#include <QDateTime>

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

    FatPlaces m_fat;
    MemoryCard m_card{22000};
};

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

TEST_P(FatCard, DeletedFile_LosesItsFirstLetterAndIsGuessedInOnePiece) {
    putPhotos(deletedFat(fatRow("IMG_0412JPG", 10, 3 * 2048)));
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/_MG_0412.JPG");
    const CardFile& file = table.files.front();
    EXPECT_EQ(file.state, FileState::Deleted);
    EXPECT_FALSE(file.nameIsWhole);
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{m_fat.sectorOf(10), m_fat.sectorOf(13)}}));
    EXPECT_EQ(file.runsKnownBy, RunsKnownBy::Guess);
    EXPECT_FALSE(file.beginningIsInUse);
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
    EXPECT_EQ(pathsOf(tableOf(m_card)), "DCIM/100CANON/IMG_0001.JPG\nDCIM/100CANON/_MG_0002.JPG");
}

TEST_P(FatCard, DeletedFolder_StillHoldsItsFiles) {
    putPhotos(fatRow("IMG_0412JPG", 10, 100));
    putBytes(m_card, m_fat.sectorOf(3), dotRows(3, 0) + deletedFat(fatRow("100CANON   ", 4, 0, 0x10)));
    linkFat(m_card, m_fat, 4, 0);
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/_00CANON/IMG_0412.JPG");
    EXPECT_EQ(table.files.front().state, FileState::Deleted);
}

TEST_P(FatCard, QuickFormat_FoldersAreFoundByTheirDotRows) {
    putPhotos(fatRow("IMG_0412JPG", 10, 3 * 2048));
    formatFat(m_card, m_fat);
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG");
    EXPECT_EQ(table.files.front().state, FileState::Lost);
    EXPECT_EQ(table.files.front().runs, (std::vector<SectorRun>{{m_fat.sectorOf(10), m_fat.sectorOf(13)}}));
}

TEST_P(FatCard, FormatWithOtherClusters_OldOnesAreVotedFor) {
    putPhotos(fatRow("IMG_0412JPG", 10, 3 * 2048));
    FatPlaces other = m_fat;
    other.clusterSectors = 8;
    other.clusters = m_fat.clusters / 2;
    formatFat(m_card, other);
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG");
    EXPECT_EQ(table.files.front().runs, (std::vector<SectorRun>{{m_fat.sectorOf(10), m_fat.sectorOf(13)}}));
    ASSERT_EQ(table.fileSystems.size(), 2u);
    EXPECT_FALSE(table.fileSystems.back().isCurrent);
    EXPECT_EQ(table.fileSystems.back().clusterSectors, 4u);
}

TEST_P(FatCard, LoopsOfFoldersAndClusters_End) {
    putPhotos(fatRow("IMG_0412JPG", 10, 100 * 2048) + fatRow("AGAIN      ", 4, 0, 0x10) +
              fatRow("UP         ", 3, 0, 0x10));
    chainFat(m_card, m_fat, {10, 11, 10});
    linkFat(m_card, m_fat, 11, 10);
    linkFat(m_card, m_fat, 4, 4);
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG");
    for (const SectorRun& run : table.files.front().runs) {
        EXPECT_LE(run.end, m_card.sectors());
    }
}

TEST_P(FatCard, SizesAndClustersBeyondTheCard_HaveNoRuns) {
    putPhotos(fatRow("HUGE    JPG", 10, 0xFFFFFFF0) + fatRow("FAR     JPG", 0xFFF0, 5000));
    const CardTable table = tableOf(m_card);
    EXPECT_EQ(pathsOf(table), "DCIM/100CANON/FAR.JPG");
    EXPECT_TRUE(table.files.front().runs.empty());
}

INSTANTIATE_TEST_SUITE_P(EveryWidth, FatCard, testing::Values(12u, 16u, 32u),
                         [](const auto& width) { return "Fat" + std::to_string(width.param); });

TEST(Fat32Card, ClearedUpperHalf_IsFoundByWhereSuchAFileBegins) {
    FatPlaces fat;
    fat.bits = 32;
    fat.clusterSectors = 1;
    fat.clusters = 140000;
    MemoryCard card(fat.end());
    formatFat(card, fat);
    putBytes(card, fat.sectorOf(2), deletedFat(fatRow("IMG_0001JPG", 70000 & 0xFFFF, 3000)));
    EXPECT_EQ(fileNamed(tableOf(card), "_MG_0001.JPG").runsKnownBy, RunsKnownBy::StartOnly);
    const CardFile file =
        fileNamed(tableOf(card, {{fat.sectorOf(70000), "JPG"}, {fat.sectorOf(9), "JPG"}}), "_MG_0001.JPG");
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{fat.sectorOf(70000), fat.sectorOf(70006)}}));
}

}  // namespace
}  // namespace vantor
