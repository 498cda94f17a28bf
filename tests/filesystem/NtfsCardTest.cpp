// Files of NTFS, from records written down here.
#include <gtest/gtest.h>

#include "filesystem/NtfsRecord.h"
#include "tests/filesystem/NtfsImage.h"

namespace vantor {
namespace {

class NtfsCard : public testing::Test {
  protected:
    // Clusters of 4 KiB; the records begin in cluster 10 and are 40.
    NtfsCard() {
        const Bytes boot = ntfsBoot(8, 10, 7999);
        putBytes(m_card, 0, boot);
        putBytes(m_card, 7999, boot);
        putRecord(
            0, record(kThere, 1, nameAttribute("$MFT", 5, 5) + dataAttribute(40 * kRecord, {0x11, 10, 10})));
        putRecord(24, record(kThereFolder, 3, nameAttribute("Fotos", 5, 5)));
        putRecord(25, record(kGoneFolder, 8, nameAttribute("Alt", 24, 3)));
    }
    void putRecord(std::size_t number, const Bytes& bytes) { putBytes(m_card, 80 + 2 * number, bytes); }

    MemoryCard m_card{8000};
};

TEST_F(NtfsCard, FilesThereAndGone_KeepTheirRuns) {
    // 3 clusters from 100 on, then 2 from 90 on: a step backwards.
    const Bytes runs{0x11, 3, 100, 0x11, 2, 0xF6, 0};
    const Bytes more = timesAttribute() + dataAttribute(5 * 4096 - 7, runs);
    putRecord(26, record(kThere, 1, nameAttribute("IMG_1.JPG", 24, 3) + more));
    putRecord(27, record(kGone, 2, nameAttribute("IMG_2.JPG", 25, 7) + more));
    const CardTable table = tableOf(m_card);
    EXPECT_EQ(pathsOf(table), "Fotos/Alt/IMG_2.JPG\nFotos/IMG_1.JPG");
    const CardFile live = fileNamed(table, "IMG_1.JPG");
    EXPECT_EQ(live.state, FileState::Live);
    EXPECT_EQ(live.bytes, 5 * 4096u - 7);
    EXPECT_EQ(live.runs, (std::vector<SectorRun>{{800, 824}, {720, 736}}));
    EXPECT_EQ(live.runsKnownBy, RunsKnownBy::Record);
    EXPECT_EQ(live.created, 1'700'000'000);
    EXPECT_EQ(live.modified, 1'700'000'100);
    const CardFile gone = fileNamed(table, "IMG_2.JPG");
    EXPECT_EQ(gone.state, FileState::Deleted);
    EXPECT_TRUE(gone.beginningIsInUse);
    EXPECT_TRUE(table.isInUse(735));
    EXPECT_FALSE(table.isInUse(736));
    ASSERT_EQ(table.fileSystems.size(), 1u);
}

// Each of more pieces than any file is likely to lie in: all keep their names, and memory has an end.
TEST(NtfsCards, FilesInMillionsOfPieces_KeepTheirNamesAndNotAllOfTheirPlaces) {
    constexpr std::size_t kFiles = 16'500;
    constexpr std::size_t kPieces = 250;
    constexpr std::size_t kSectors = 80 + 2 * (24 + kFiles) + 8;
    MemoryCard card{kSectors};
    putBytes(card, 0, ntfsBoot(8, 10, kSectors - 1));
    const std::size_t clusters = (24 + kFiles) / 4;
    Bytes place{0x12, 0, 0, 10};
    put(place, 1, clusters, 2);
    putBytes(card, 80,
             record(kThere, 1, nameAttribute("$MFT", 5, 5) + dataAttribute((24 + kFiles) * kRecord, place)));
    Bytes runs{0x11, 1, 100};
    for (std::size_t i = 1; i < kPieces; ++i) {
        runs.insert(runs.end(), {0x11, 1, 2});
    }
    for (std::size_t i = 0; i < kFiles; ++i) {
        putBytes(
            card, 80 + 2 * (24 + i),
            record(kThere, 1,
                   nameAttribute(QStringLiteral("f%1").arg(i), 5, 5) + dataAttribute(kPieces * 4096, runs)));
    }
    const CardTable table = tableOf(card);
    ASSERT_EQ(table.files.size(), kFiles);
    EXPECT_EQ(fileNamed(table, "f0").runs.size(), kPieces);
    EXPECT_TRUE(fileNamed(table, QStringLiteral("f%1").arg(kFiles - 1)).runs.empty());
    std::size_t told = 0;
    for (const CardFile& file : table.files) {
        told += file.runs.size();
    }
    EXPECT_LE(told, 4'000'000u);
}

// Through the end of the record's first sector, where two bytes stand elsewhere.
TEST_F(NtfsCard, FilesInTheirRecords_BringTheirBytesAlong) {
    Bytes text(600);
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<std::uint8_t>('a' + i % 26);
    }
    const Bytes there = record(kThere, 1, nameAttribute("there.txt", 24, 3) + attribute(0x80, text));
    putRecord(26, there);
    putRecord(27, record(kGone, 2, nameAttribute("gone.txt", 25, 7) + attribute(0x80, text)));
    // One whose length does not fit into the record tells no bytes; nor does an encrypted one.
    Bytes longer = attribute(0x80, text);
    put(longer, 16, 700, 4);
    putRecord(28, record(kThere, 1, nameAttribute("longer.txt", 24, 3) + longer));
    Bytes secret = attribute(0x80, text);
    put(secret, 12, 0x4000, 2);
    putRecord(29, record(kThere, 1, nameAttribute("secret.txt", 24, 3) + secret));
    const CardTable table = tableOf(m_card);
    QByteArray expected(reinterpret_cast<const char*>(text.data()), 600);
    expected.append(424, '\0');
    const CardFile live = fileNamed(table, "there.txt");
    EXPECT_EQ(live.contents, expected);
    EXPECT_EQ(live.bytes, 600u);
    EXPECT_EQ(live.runs, (std::vector<SectorRun>{{80 + 52, 80 + 54}}));
    const CardFile gone = fileNamed(table, "gone.txt");
    EXPECT_EQ(gone.state, FileState::Deleted);
    EXPECT_EQ(gone.contents, expected);
    EXPECT_FALSE(gone.beginningIsInUse);
    for (const char* const name : {"longer.txt", "secret.txt"}) {
        EXPECT_TRUE(fileNamed(table, name).contents.isEmpty()) << name;
        EXPECT_TRUE(fileNamed(table, name).runs.empty()) << name;
    }
}

// A file of many names has no room for them in its first record, nor has one of many pieces.
TEST_F(NtfsCard, NameInAFurtherRecord_IsTheFilesOwn) {
    const Bytes contents = timesAttribute() + dataAttribute(9000, {0x11, 3, 100, 0});
    putRecord(26, record(kThere, 1, contents));
    putRecord(30, record(kThere, 4, nameAttribute("IMG_1.JPG", 24, 3), 26));
    // Of another use of the record; and one that has a name already.
    putRecord(27, record(kThere, 3, contents));
    putRecord(31, record(kThere, 4, nameAttribute("OTHER.JPG", 24, 3), 27));
    putRecord(28, record(kThere, 1, nameAttribute("IMG_2.JPG", 24, 3) + contents));
    putRecord(32, record(kThere, 4, nameAttribute("SECOND.JPG", 24, 3), 28));
    // Of a file that is gone the record counts its next use.
    putRecord(29, record(kGone, 2, timesAttribute() + dataAttribute(9000, {0x11, 2, 110, 0})));
    putRecord(33, record(kGone, 5, nameAttribute("GONE.JPG", 24, 3), 29));
    Bytes older = record(kGone, 5, dataAttribute(0, {0x11, 1, 90, 0}, 2), 29);
    put(older, 38, 7, 2);
    putRecord(34, older);
    putRecord(35, record(kGone, 5, dataAttribute(0, {0x11, 1, 120, 0}, 2), 29));
    const CardTable table = tableOf(m_card);
    EXPECT_EQ(pathsOf(table), "Fotos/GONE.JPG\nFotos/IMG_1.JPG\nFotos/IMG_2.JPG");
    EXPECT_EQ(fileNamed(table, "GONE.JPG").runs, (std::vector<SectorRun>{{880, 896}, {960, 968}}));
    EXPECT_EQ(fileNamed(table, "IMG_1.JPG").modified, 1'700'000'100);
}

// Clusters of 8 sectors: two that are there, three that are not, one that is there.
TEST_F(NtfsCard, FilesWithHoles_TellThemBesideTheirRuns) {
    const Bytes runs{0x11, 2, 100, 0x01, 3, 0x11, 1, 10, 0};
    Bytes sparse = dataAttribute(6 * 4096 - 9, runs);
    put(sparse, 12, 0x8000, 2);
    putRecord(26, record(kThere, 1, nameAttribute("sparse.img", 24, 3) + sparse));
    // Units of four clusters: one in two clusters, one whole, one that goes on behind the file's end.
    Bytes packed = dataAttribute(10 * 4096, {0x11, 2, 120, 0x01, 2, 0x11, 5, 10, 0x01, 3, 0});
    put(packed, 12, 1, 2);
    put(packed, 34, 2, 2);
    putRecord(27, record(kGone, 2, nameAttribute("packed.txt", 25, 7) + packed));
    // One that could not be packed is as any other.
    Bytes raw = dataAttribute(3 * 4096, {0x11, 4, 80, 0});
    put(raw, 12, 1, 2);
    put(raw, 34, 2, 2);
    putRecord(28, record(kThere, 1, nameAttribute("raw.jpg", 24, 3) + raw));
    Bytes cut = dataAttribute(10 * 4096, {0x11, 2, 120, 0x01, 2, 0});
    putRecord(29, record(kThere, 1, nameAttribute("cut.txt", 24, 3) + cut));
    Bytes secret = sparse;
    put(secret, 12, 0x4000, 2);
    putRecord(30, record(kThere, 1, nameAttribute("secret.txt", 24, 3) + secret));
    Bytes huge = packed;
    put(huge, 34, 9, 2);
    putRecord(31, record(kThere, 1, nameAttribute("huge.txt", 24, 3) + huge));
    const CardTable table = tableOf(m_card);
    const CardFile holes = fileNamed(table, "sparse.img");
    EXPECT_EQ(holes.runs, (std::vector<SectorRun>{{800, 816}, {880, 888}}));
    EXPECT_EQ(holes.holes, (std::vector<SectorRun>{{16, 40}}));
    EXPECT_EQ(holes.unitSectors, 0u);
    EXPECT_TRUE(table.isInUse(887));
    const CardFile units = fileNamed(table, "packed.txt");
    EXPECT_EQ(units.runs, (std::vector<SectorRun>{{960, 976}, {1040, 1080}}));
    EXPECT_EQ(units.holes, (std::vector<SectorRun>{{16, 32}, {72, 96}}));
    EXPECT_EQ(units.unitSectors, 32u);
    EXPECT_EQ(units.runsKnownBy, RunsKnownBy::Record);
    const CardFile plain = fileNamed(table, "raw.jpg");
    EXPECT_EQ(plain.runs, (std::vector<SectorRun>{{640, 672}}));
    EXPECT_TRUE(plain.holes.empty());
    EXPECT_EQ(plain.unitSectors, 0u);
    for (const char* const name : {"cut.txt", "secret.txt", "huge.txt"}) {
        EXPECT_EQ(fileNamed(table, name).name, name);
        EXPECT_TRUE(fileNamed(table, name).runs.empty()) << name;
        EXPECT_TRUE(fileNamed(table, name).holes.empty()) << name;
    }
}

// The rows of a folder that is there, a further stream of a file, and a part of either in another record.
TEST_F(NtfsCard, WhatFilesAndFoldersHoldBesideTheirContents_IsInUse) {
    const auto held = [](std::uint32_t type, std::uint8_t cluster) {
        Bytes made = dataAttribute(4096, {0x11, 1, cluster, 0});
        put(made, 0, type, 4);
        made[9] = 4;  // it has a name
        return made;
    };
    putRecord(26, record(kThereFolder, 1, nameAttribute("Rows", 24, 3) + held(0xA0, 100)));
    putRecord(
        27, record(kThere, 1,
                   nameAttribute("a.txt", 24, 3) + dataAttribute(4096, {0x11, 1, 101, 0}) + held(0x80, 102)));
    putRecord(28, record(kThere, 1, held(0xA0, 103), 26));
    putRecord(29, record(kGoneFolder, 1, nameAttribute("Gone", 24, 3) + held(0xA0, 104)));
    const CardTable table = tableOf(m_card);
    for (const std::uint64_t cluster : {100, 101, 102, 103}) {
        EXPECT_TRUE(table.isInUse(cluster * 8)) << cluster;
    }
    EXPECT_FALSE(table.isInUse(104 * 8));
    EXPECT_EQ(fileNamed(table, "a.txt").runs, (std::vector<SectorRun>{{808, 816}}));
}

TEST_F(NtfsCard, FolderThatHasBecomeAnother_HasNoName) {
    putRecord(26,
              record(kGone, 2, nameAttribute("IMG_1.JPG", 24, 2) + dataAttribute(4096, {0x11, 1, 100, 0})));
    EXPECT_EQ(pathsOf(tableOf(m_card)), "folder-24/IMG_1.JPG");
}

TEST_F(NtfsCard, RunsBeyondTheCardAndFoldersInALoop_AreCut) {
    putRecord(25, record(kThereFolder, 8, nameAttribute("A", 28, 1)));
    putRecord(28, record(kThereFolder, 1, nameAttribute("B", 25, 8)));
    putRecord(26, record(kThere, 1,
                         nameAttribute("X.JPG", 25, 8) +
                             dataAttribute(9 * 4096, {0x11, 1, 100, 0x13, 8, 0xFF, 0xFF, 0x7F, 0})));
    const CardFile file = fileNamed(tableOf(m_card), "X.JPG");
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{800, 808}}));
    EXPECT_EQ(file.runsKnownBy, RunsKnownBy::Guess);
}

TEST_F(NtfsCard, FoldersInFolders_AreToldAsFarAsAPathGoes) {
    const QString name(250, u'x');
    for (std::size_t i = 0; i < 12; ++i) {
        putRecord(26 + i, record(kThereFolder, 1, nameAttribute(name, i == 11 ? 5 : 27 + i, 1)));
    }
    putRecord(38, record(kThere, 1, nameAttribute("X.JPG", 26, 1) + dataAttribute(1, {0x11, 1, 100, 0})));
    EXPECT_EQ(fileNamed(tableOf(m_card), "X.JPG").folder, QStringList({name, name, name, name}).join(u'/'));
}

TEST_F(NtfsCard, FirstSectorGone_TheCopyAtTheEndTells) {
    putRecord(26,
              record(kThere, 1, nameAttribute("IMG_1.JPG", 24, 3) + dataAttribute(4096, {0x11, 1, 100, 0})));
    std::fill(m_card.bytes.begin(), m_card.bytes.begin() + 512, 0);
    const CardTable table = tableOf(m_card);
    EXPECT_EQ(pathsOf(table), "Fotos/IMG_1.JPG");
    EXPECT_EQ(table.files.front().state, FileState::Lost);
}

// Of a file system before this one, whose table lay elsewhere.
class LostNtfsRecords : public NtfsCard {
  protected:
    // In the table whose record 0 would lie in sector 280, or another.
    void putLost(std::uint64_t number, Bytes bytes, std::size_t table = 280) {
        put(bytes, 44, number, 4);
        putBytes(m_card, table + 2 * number, bytes);
    }
    void putPicture(std::size_t sector) {
        put(m_card.bytes, sector * 512, std::string("\xFF\xD8\xFF\xE1", 4));
        m_found.push_back({sector, "jpg"});
    }

    std::vector<FoundStart> m_found;
};

TEST_F(LostNtfsRecords, OfTheSameClusters_TellFilesInTheirFolders) {
    putLost(60, record(kThereFolder, 2, nameAttribute("Urlaub", 5, 5)));
    putLost(61, record(kThere, 1,
                       nameAttribute("IMG_1.JPG", 60, 2) + timesAttribute() +
                           dataAttribute(2 * 4096 - 7, {0x11, 2, 100, 0})));
    putLost(62,
            record(kThere, 1, nameAttribute("IMG_2.JPG", 60, 1) + dataAttribute(4096, {0x11, 1, 110, 0})));
    putPicture(800);
    const CardTable table = tableOf(m_card, m_found);
    // The second one's folder is another by now.
    EXPECT_EQ(pathsOf(table), "Urlaub/IMG_1.JPG\nfolder-60/IMG_2.JPG");
    const CardFile file = fileNamed(table, "IMG_1.JPG");
    EXPECT_EQ(file.state, FileState::Lost);
    EXPECT_EQ(file.bytes, 2 * 4096u - 7);
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{800, 816}}));
    EXPECT_EQ(file.runsKnownBy, RunsKnownBy::Record);
    EXPECT_EQ(file.modified, 1'700'000'100);
}

TEST_F(LostNtfsRecords, OfFilesThatTheyHold_BringTheirBytesAlong) {
    putLost(61, record(kThere, 1, nameAttribute("IMG_1.JPG", 5, 5) + dataAttribute(4096, {0x11, 1, 100, 0})));
    putLost(62, record(kThere, 1, nameAttribute("note.txt", 5, 5) + attribute(0x80, {'n', 'o', 't', 'e'})));
    putPicture(800);
    const CardFile file = fileNamed(tableOf(m_card, m_found), "note.txt");
    EXPECT_EQ(file.state, FileState::Lost);
    EXPECT_EQ(file.contents, QByteArray("note").leftJustified(512, '\0'));
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{280 + 124, 280 + 125}}));
}

TEST_F(LostNtfsRecords, WithoutAnyFirstSector_AreVotedFor) {
    std::fill(m_card.bytes.begin(), m_card.bytes.begin() + 512, 0);
    std::fill(m_card.bytes.end() - 512, m_card.bytes.end(), 0);
    // Clusters of 8 KiB from sector 64 on.
    for (const int cluster : {50, 57, 66, 90}) {
        putLost(static_cast<std::uint64_t>(cluster),
                record(kThere, 1,
                       nameAttribute(QString("IMG_%1.JPG").arg(cluster), 5, 5) +
                           dataAttribute(8192, {0x11, 1, static_cast<std::uint8_t>(cluster), 0})));
        putPicture(static_cast<std::size_t>(64 + 16 * cluster));
    }
    const CardFile file = fileNamed(tableOf(m_card, m_found), "IMG_66.JPG");
    EXPECT_EQ(file.runs, (std::vector<SectorRun>{{64 + 16 * 66, 64 + 16 * 67}}));
}

// The second file system's files have the numbers of clusters and of folders that the first one's have.
TEST_F(LostNtfsRecords, OfTwoFileSystems_KeepToTheirOwn) {
    std::fill(m_card.bytes.begin(), m_card.bytes.end(), 0);
    struct System {
        QString tag;
        std::size_t table;
        std::size_t first;
        std::vector<std::uint8_t> clusters;
    };
    for (const System& system : {System{"Alpha", 280, 64, {50, 57, 66, 90, 97, 111, 124}},
                                 System{"Beta", 4280, 4064, {50, 61, 79, 104, 120}}}) {
        putLost(60, record(kThereFolder, 2, nameAttribute(system.tag, 5, 5)), system.table);
        std::uint64_t number = 61;
        for (const std::uint8_t cluster : system.clusters) {
            putLost(number++,
                    record(kThere, 1,
                           nameAttribute(QString("%1-%2.JPG").arg(system.tag).arg(cluster), 60, 2) +
                               dataAttribute(4096, {0x11, 1, cluster, 0})),
                    system.table);
            putPicture(system.first + 8 * std::size_t{cluster});
        }
    }
    const CardTable table = tableOf(m_card, m_found);
    EXPECT_EQ(table.files.size(), 12u);
    for (const CardFile& file : table.files) {
        EXPECT_EQ(file.folder, file.name.section(u'-', 0, 0));
    }
    EXPECT_EQ(fileNamed(table, "Alpha-50.JPG").runs, (std::vector<SectorRun>{{64 + 8 * 50, 64 + 8 * 51}}));
    EXPECT_EQ(fileNamed(table, "Beta-50.JPG").runs, (std::vector<SectorRun>{{4064 + 8 * 50, 4064 + 8 * 51}}));
}

TEST_F(LostNtfsRecords, WhoseFilesAreNowhere_NameNothing) {
    putLost(61, record(kThere, 1, nameAttribute("IMG_1.JPG", 5, 5) + dataAttribute(4096, {0x11, 1, 100, 0})));
    EXPECT_EQ(pathsOf(tableOf(m_card, m_found)), "");
}

TEST_F(LostNtfsRecords, ReadWithTheirFileSystem_AreNotLost) {
    Bytes live =
        record(kThere, 1, nameAttribute("IMG_1.JPG", 24, 3) + dataAttribute(4096, {0x11, 1, 100, 0}));
    put(live, 44, 26, 4);
    putRecord(26, live);
    putPicture(800);
    const CardTable table = tableOf(m_card, m_found);
    ASSERT_EQ(table.files.size(), 1u);
    EXPECT_EQ(table.files.front().state, FileState::Live);
}

TEST_F(LostNtfsRecords, BeyondTheCardOrTorn_AreLeft) {
    Bytes torn = record(kThere, 1, nameAttribute("IMG_1.JPG", 5, 5) + dataAttribute(4096, {0x11, 1, 100, 0}));
    torn[510] ^= 1;
    putLost(61, torn);
    // A second sector that is not there any more.
    Bytes half = record(kThere, 1, {});
    half.resize(512);
    putBytes(m_card, 7999, half);
    putPicture(800);
    EXPECT_EQ(pathsOf(tableOf(m_card, m_found)), "");
}

TEST(NtfsRecordBytes, WithATornSector_AreNoRecord) {
    Bytes bytes = record(kThere, 1, nameAttribute("IMG_1.JPG", 5, 5));
    ASSERT_TRUE(readNtfsRecord(bytes));
    bytes[510] ^= 1;
    EXPECT_FALSE(readNtfsRecord(bytes));
}

}  // namespace
}  // namespace vantor
