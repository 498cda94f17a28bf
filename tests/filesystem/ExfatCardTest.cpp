// Files of exFAT: there, deleted, and left by a format.
#include <gtest/gtest.h>

#include <QDateTime>
#include <algorithm>

#include "tests/filesystem/CardImage.h"

namespace vantor {
namespace {

class ExfatCard : public testing::Test {
  protected:
    ExfatCard() {
        formatExfat(m_card, m_exfat);
        putRoot(exfatSet({"DCIM", 10, 4096, true, true}));
        putBytes(m_card, m_exfat.sectorOf(10), exfatSet({"100CANON", 11, 8192, true, true}));
    }

    void putRoot(const Bytes& rows) { putBytes(m_card, m_exfat.sectorOf(5), rows); }
    void beginPhoto(std::uint32_t cluster) {
        put(m_card.bytes, m_exfat.sectorOf(cluster) * 512, std::string("\xFF\xD8\xFF\xE1", 4));
    }
    void putPhotos(const Bytes& rows) { putBytes(m_card, m_exfat.sectorOf(11), rows); }
    std::vector<SectorRun> piece(std::uint32_t first, std::uint32_t end) const {
        return {{m_exfat.sectorOf(first), m_exfat.sectorOf(end)}};
    }

    ExfatPlaces m_exfat;
    MemoryCard m_card{18000};
};

TEST_F(ExfatCard, LiveFileInOnePiece_IsProvedByItsFlag) {
    putPhotos(exfatSet({"IMG_0412.JPG", 20, 9000}));
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG");
    const CardFile& file = table.files.front();
    EXPECT_EQ(file.state, FileState::Live);
    EXPECT_EQ(file.bytes, 9000u);
    EXPECT_EQ(file.runs, piece(20, 23));
    EXPECT_EQ(file.runsKnownBy, RunsKnownBy::Flag);
    // The row says that its time is an hour ahead.
    EXPECT_EQ(file.modified, QDateTime(QDate(2026, 3, 22), QTime(7, 2, 18), Qt::UTC).toSecsSinceEpoch());
    EXPECT_TRUE(table.isInUse(m_exfat.sectorOf(22)));
    EXPECT_FALSE(table.isInUse(m_exfat.sectorOf(23)));
}

TEST_F(ExfatCard, TimesWestOfGreenwich_AreLaterThere) {
    ExfatFile file{"IMG_0412.JPG", 20, 9000};
    const QDateTime atGreenwich(QDate(2026, 3, 22), QTime(8, 2, 18), Qt::UTC);
    for (const int quarters : {-1, -14, -38, -48, 23, 56, 0}) {
        file.zone = static_cast<std::uint8_t>(0x80 | (quarters & 0x7F));
        putPhotos(exfatSet(file));
        EXPECT_EQ(fileNamed(tableOf(m_card), file.name).modified,
                  atGreenwich.addSecs(std::int64_t{-900} * quarters).toSecsSinceEpoch())
            << quarters;
    }
    // Without the mark it is no zone, and the time is the place's own.
    file.zone = 0x7C;
    putPhotos(exfatSet(file));
    EXPECT_EQ(fileNamed(tableOf(m_card), file.name).modified,
              QDateTime(QDate(2026, 3, 22), QTime(8, 2, 18)).toSecsSinceEpoch());
}

TEST_F(ExfatCard, DeletedFileInPieces_ComesFromTheChainThatIsLeft) {
    putPhotos(exfatSet({"IMG_0412.JPG", 20, 4 * 4096, false, false, true}));
    chainExfat(m_card, m_exfat, {20, 21, 30, 29});
    beginPhoto(20);
    const CardTable table = tableOf(m_card);
    ASSERT_EQ(pathsOf(table), "DCIM/100CANON/IMG_0412.JPG");
    EXPECT_EQ(table.files.front().state, FileState::Deleted);
    EXPECT_EQ(table.files.front().runsKnownBy, RunsKnownBy::Chain);
    const std::vector<SectorRun> runs{piece(20, 22)[0], piece(30, 31)[0], piece(29, 30)[0]};
    EXPECT_EQ(table.files.front().runs, runs);
}

TEST_F(ExfatCard, DeletedFilesOfOneChain_BothComeFromIt) {
    putPhotos(exfatSet({"A.JPG", 20, 3 * 4096, false, false, true}) +
              exfatSet({"B.JPG", 20, 3 * 4096, false, false, true}));
    chainExfat(m_card, m_exfat, {20, 21, 30});
    beginPhoto(20);
    const CardTable table = tableOf(m_card);
    for (const char* const name : {"A.JPG", "B.JPG"}) {
        EXPECT_EQ(fileNamed(table, name).runsKnownBy, RunsKnownBy::Chain) << name;
    }
}

TEST_F(ExfatCard, ChainThatLeadsIntoALiveFile_IsNoChain) {
    putPhotos(exfatSet({"NEW.JPG", 21, 2 * 4096, false}) +
              exfatSet({"OLD.JPG", 20, 3 * 4096, false, false, true}));
    chainExfat(m_card, m_exfat, {20, 21, 30});
    beginPhoto(20);
    EXPECT_EQ(fileNamed(tableOf(m_card), "OLD.JPG").runsKnownBy, RunsKnownBy::Guess);
}

// Neither a chain nor the flag of one piece says whose the bytes are by now.
TEST_F(ExfatCard, DeletedFile_IsNotWhereSomethingElseBegins) {
    putPhotos(exfatSet({"CHAIN.JPG", 20, 2 * 4096, false, false, true}) +
              exfatSet({"PIECE.JPG", 30, 9000, true, false, true}) +
              exfatSet({"PIECE.CTG", 40, 9000, true, false, true}));
    chainExfat(m_card, m_exfat, {20, 21});
    for (const std::uint32_t cluster : {20u, 30u, 40u}) {
        put(m_card.bytes, m_exfat.sectorOf(cluster) * 512, std::string("no photo"));
    }
    const CardTable table = tableOf(m_card);
    for (const auto& [name, cluster] : {std::pair("CHAIN.JPG", 20u), std::pair("PIECE.JPG", 30u)}) {
        EXPECT_EQ(fileNamed(table, name).runsKnownBy, RunsKnownBy::StartOnly);
        EXPECT_EQ(fileNamed(table, name).runs, piece(cluster, cluster + 1));
    }
    EXPECT_EQ(fileNamed(table, "PIECE.CTG").runsKnownBy, RunsKnownBy::Flag);
    // What was found there may bear a wrong ending.
    const CardTable found = tableOf(m_card, {{m_exfat.sectorOf(30), "PNG"}});
    EXPECT_EQ(fileNamed(found, "PIECE.JPG").runsKnownBy, RunsKnownBy::Flag);
}

// Each look at a place is a wait of its own: where too many would be needed, a search that finds such files
// has looked already.
TEST(ExfatCardOfManyRows, PlacesAreLookedAtWithinReason) {
    constexpr std::size_t kFiles = 70'000;
    ExfatPlaces exfat;
    exfat.clusterSectors = 1;
    exfat.clusters = 2 * kFiles;
    MemoryCard card(exfat.end());
    formatExfat(card, exfat);
    Bytes rows;
    for (std::uint32_t i = 0; i < kFiles; ++i) {
        const Bytes set = exfatSet({QStringLiteral("%1.JPG").arg(i), 20'000 + i, 400, true, false, true});
        rows.insert(rows.end(), set.begin(), set.end());
    }
    const std::uint32_t folderClusters = static_cast<std::uint32_t>(rows.size() / 512 + 1);
    putBytes(card, exfat.sectorOf(5), exfatSet({"DCIM", 10, folderClusters * 512, true, true}));
    putBytes(card, exfat.sectorOf(10), rows);
    const auto placed = [&](const std::vector<FoundStart>& found) {
        const CardTable table = tableOf(card, found);
        EXPECT_EQ(table.files.size(), kFiles);
        return std::count_if(table.files.begin(), table.files.end(),
                             [](const CardFile& file) { return file.runsKnownBy == RunsKnownBy::Flag; });
    };
    const auto unseen = placed({});
    EXPECT_GT(unseen, 0);
    EXPECT_LT(unseen, static_cast<std::ptrdiff_t>(kFiles) / 2) << "what is looked at is no photo";
    EXPECT_EQ(placed({{exfat.sectorOf(9), "JPG"}}), 0);
}

TEST_F(ExfatCard, SetWithAWrongChecksum_IsNoFile) {
    Bytes rows =
        exfatSet({"IMG_0412.JPG", 20, 9000, true, false, true}) + exfatSet({"IMG_0413.JPG", 30, 9000});
    rows[52] ^= 1;
    putPhotos(rows);
    EXPECT_EQ(pathsOf(tableOf(m_card)), "DCIM/100CANON/IMG_0413.JPG");
}

TEST_F(ExfatCard, QuickFormat_FoldersAreFoundAndNamedByEachOther) {
    putPhotos(exfatSet({"IMG_0412.JPG", 20, 9000}) + exfatSet({"IMG_0413.JPG", 25, 9000, true, false, true}));
    formatExfat(m_card, m_exfat);
    put(m_card.bytes, m_exfat.sectorOf(20) * 512, "\xFF\xD8\xFF");
    const CardTable table = tableOf(m_card);
    EXPECT_EQ(pathsOf(table), "folder-10/100CANON/IMG_0412.JPG\nfolder-10/100CANON/IMG_0413.JPG");
    EXPECT_EQ(fileNamed(table, "IMG_0412.JPG").state, FileState::Lost);
    EXPECT_EQ(fileNamed(table, "IMG_0413.JPG").state, FileState::Deleted);
    EXPECT_EQ(fileNamed(table, "IMG_0412.JPG").runs, piece(20, 23));
}

TEST_F(ExfatCard, FormatWithOtherClusters_FoundPhotosTellWhereTheOldOnesLay) {
    Bytes rows;
    std::vector<FoundStart> found;
    for (std::uint32_t i = 0; i < 12; ++i) {
        const std::uint32_t cluster = 20 + i * i + i;
        rows = rows + exfatSet({QString("IMG_%1.JPG").arg(i), cluster, 9000});
        found.push_back({m_exfat.sectorOf(cluster), "jpg"});
    }
    putPhotos(rows);
    ExfatPlaces other = m_exfat;
    other.clusterSectors = 32;
    other.clusters = 400;
    formatExfat(m_card, other);
    // The new root lies elsewhere than it would by the other clusters' size alone.
    putPhotos(rows);
    const CardTable table = tableOf(m_card, found);
    EXPECT_EQ(fileNamed(table, "IMG_7.JPG").runs, piece(76, 79));
    EXPECT_EQ(fileNamed(table, "IMG_7.JPG").state, FileState::Lost);
}

TEST_F(ExfatCard, DirectoryInTwoPieces_IsPutTogetherByTheSetAcrossTheSeam) {
    Bytes rows;
    for (int i = 0; rows.size() <= 4096; ++i) {
        rows = rows + exfatSet({QString("A name of some length %1.JPG").arg(i, 4), 100u + 2 * i, 5000});
    }
    // Deleted rows in front shift the sets, so that one lies across.
    Bytes shift(32, 'x');
    shift[0] = 0x41;
    shift[1] = 0;
    const Bytes all = shift + rows;
    putPhotos(Bytes(all.begin(), all.begin() + 4096));
    putBytes(m_card, m_exfat.sectorOf(40), Bytes(all.begin() + 4096, all.end()));
    putBytes(m_card, m_exfat.sectorOf(10), exfatSet({"100CANON", 11, 8192, false, true}));
    formatExfat(m_card, m_exfat);
    put(m_card.bytes, m_exfat.sectorOf(100) * 512, "\xFF\xD8\xFF");
    const CardTable table = tableOf(m_card);
    ASSERT_FALSE(table.files.empty());
    for (const CardFile& file : table.files) {
        EXPECT_EQ(file.folder, "folder-10/100CANON") << file.name.toStdString();
    }
}

// Its own row is gone; the table still leads through its clusters.
TEST_F(ExfatCard, DeletedFolderInPieces_IsOneByItsChain) {
    Bytes rows;
    for (int i = 0; rows.size() < 3 * 4096; ++i) {
        rows = rows + exfatSet({QString("IMG_%1.JPG").arg(i, 4, 10, QChar(u'0')), 100u + 2 * i, 5000, true,
                                false, true});
    }
    rows.resize(3 * 4096);
    for (int part = 0; part < 3; ++part) {
        const auto begin = rows.begin() + part * 4096;
        putBytes(m_card, m_exfat.sectorOf(60 - 10 * part), Bytes(begin, begin + 4096));
    }
    chainExfat(m_card, m_exfat, {60, 50, 40});
    beginPhoto(100);
    const CardTable table = tableOf(m_card);
    // Also those across the seams.
    ASSERT_EQ(table.files.size(), 3 * 128u / 3);
    for (const CardFile& file : table.files) {
        EXPECT_EQ(file.folder, "folder-60");
    }
}

// Another file system lies there now, which left the old root alone.
TEST_F(ExfatCard, RootOfAFormerFileSystem_IsKnownByItsOwnFiles) {
    Bytes bitmap(32);
    bitmap[0] = 0x81;
    put(bitmap, 20, 2, 4);
    put(bitmap, 24, 250, 8);
    putRoot(bitmap + exfatSet({"DCIM", 10, 4096, true, true}));
    Bytes rows;
    std::vector<FoundStart> found;
    for (std::uint32_t i = 0; i < 8; ++i) {
        rows = rows + exfatSet({QString("IMG_%1.JPG").arg(i), 20 + i * i + 3 * i, 9000});
        found.push_back({m_exfat.sectorOf(20 + i * i + 3 * i), "jpg"});
    }
    putPhotos(rows);
    std::fill(m_card.bytes.begin(),
              m_card.bytes.begin() + static_cast<std::ptrdiff_t>(m_exfat.firstCluster() * 512), 0);
    const CardTable table = tableOf(m_card, found);
    ASSERT_EQ(table.files.size(), 8u);
    for (const CardFile& file : table.files) {
        EXPECT_EQ(file.folder, "DCIM/100CANON");
    }
}

// Nothing lies where the present clusters would put it.
TEST_F(ExfatCard, RowsOfAFileSystemThatNobodyKnows_TellNamesAndNoPlaces) {
    putBytes(m_card, m_exfat.sectorOf(200),
             exfatSet({"OLD.JPG", 700, 9000}) + exfatSet({"NOTES.TXT", 710, 900}) +
                 exfatSet({"DCIM", 11, 4096, true, true}));
    const CardTable table = tableOf(m_card);
    for (const char* const name : {"OLD.JPG", "NOTES.TXT"}) {
        EXPECT_EQ(fileNamed(table, name).state, FileState::Lost);
        EXPECT_TRUE(fileNamed(table, name).runs.empty());
    }
}

TEST_F(ExfatCard, FirstSectorGone_TheCopyServes) {
    putPhotos(exfatSet({"IMG_0412.JPG", 20, 9000}));
    std::fill(m_card.bytes.begin(), m_card.bytes.begin() + 512, 0);
    EXPECT_EQ(pathsOf(tableOf(m_card)), "DCIM/100CANON/IMG_0412.JPG");
}

}  // namespace
}  // namespace vantor
