// A card's directories read in a helper, and what is believed of one that is somebody else's.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <random>

#include "decode/CardExchange.h"
#include "decode/CardHelper.h"
#include "tests/filesystem/NtfsImage.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {
namespace {

using decode::TableReader;
using decode::TableWriter;

CardTable someTable() {
    CardTable table;
    table.fileSystems = {{FileSystemKind::Exfat, true, 8, 2000, 100, 8, QStringLiteral("CARD"), {10, 40}}};
    table.inUse = {{8, 100}, {300, 400}};
    for (int i = 0; i < 20'000; ++i) {
        CardFile file;
        file.folder = QStringLiteral("DCIM/100CANON");
        file.name = QStringLiteral("IMG_%1.JPG").arg(i);
        file.state = static_cast<FileState>(i % 3);
        file.bytes = 1000;
        file.validBytes = 900;
        file.modified = 1'700'000'000 + i;
        file.runs = {{200, 216}, {100, 108}};
        file.runsKnownBy = static_cast<RunsKnownBy>(i % 5);
        file.clusterSectors = 8;
        table.files.push_back(file);
    }
    table.files[9].runs = {{300, 302}};
    table.files[9].contents = QByteArray(1024, 'c');
    table.files[11].holes = {{4, 8}, {8, 30}};
    table.files[11].unitSectors = 128;
    return table;
}

TEST(CardExchange, TableOfManyBlocks_ArrivesWhole) {
    const CardTable table = someTable();
    TableWriter writer(table);
    TableReader reader(2000);
    int blocks = 0;
    for (auto block = writer.next(); !block.empty(); block = writer.next(), ++blocks) {
        ASSERT_LE(block.size(), decode::kBlockBytes);
        ASSERT_TRUE(reader.take(block));
    }
    EXPECT_GT(blocks, 3);
    ASSERT_TRUE(reader.isWhole());
    const CardTable got = reader.table();
    EXPECT_EQ(pathsOf(got), pathsOf(table));
    EXPECT_EQ(got.inUse, table.inUse);
    EXPECT_EQ(got.fileSystems.front().label, QStringLiteral("CARD"));
    EXPECT_EQ(got.fileSystems.front().tables, (SectorRun{10, 40}));
    const CardFile& one = got.files[7];
    EXPECT_EQ(one.runs, table.files[7].runs);
    EXPECT_EQ(one.modified, table.files[7].modified);
    EXPECT_FALSE(one.created);
    EXPECT_EQ(one.runsKnownBy, table.files[7].runsKnownBy);
    EXPECT_TRUE(one.contents.isEmpty());
    EXPECT_EQ(got.files[9].contents, table.files[9].contents);
    EXPECT_EQ(got.files[10].bytes, 1000u);
    EXPECT_EQ(got.files[11].holes, table.files[11].holes);
    EXPECT_EQ(got.files[11].unitSectors, 128u);
}

// A folder of a million files would take a thousand times as much as they do.
TEST(CardExchange, FilesOfOneFolder_ShareItsText) {
    CardTable table;
    table.files = {someTable().files.front(), someTable().files.front()};
    table.files[0].folder = table.files[1].folder = QStringLiteral("DCIM/100CANON");
    TableWriter writer(table);
    TableReader reader(2000);
    while (!reader.isWhole()) {
        ASSERT_TRUE(reader.take(writer.next()));
    }
    const CardTable got = reader.table();
    ASSERT_EQ(got.files.size(), 2u);
    EXPECT_EQ(got.files[0].folder.constData(), got.files[1].folder.constData());
}

bool isTaken(const CardFile& file) {
    CardTable table;
    table.files = {file};
    TableWriter writer(table);
    return TableReader(2000).take(writer.next());
}

TEST(CardExchange, WhatCannotBe_IsNotTaken) {
    const CardFile good = someTable().files.front();
    ASSERT_TRUE(isTaken(good));
    CardFile bad = good;
    bad.name = QStringLiteral("../x");
    EXPECT_FALSE(isTaken(bad));
    bad = good;
    bad.folder = QStringLiteral("a/../b");
    EXPECT_FALSE(isTaken(bad));
    bad = good;
    bad.folder = QStringLiteral("/etc");
    EXPECT_FALSE(isTaken(bad));
    bad = good;
    bad.runs = {{5, 5}};
    EXPECT_FALSE(isTaken(bad));
    bad.runs = {{2000, 2001}};
    EXPECT_FALSE(isTaken(bad));
    bad.runs = {{0, 1500}, {0, 1500}};
    EXPECT_FALSE(isTaken(bad));
    bad = good;
    bad.contents = QByteArray(512, 'c');  // of three times as many sectors
    EXPECT_FALSE(isTaken(bad));
    bad.runs = {{5, 6}};
    EXPECT_FALSE(isTaken(bad));  // and of more bytes
    bad.bytes = bad.validBytes = 512;
    EXPECT_TRUE(isTaken(bad));
    bad.holes = {{1, 2}};
    EXPECT_FALSE(isTaken(bad));  // nor has it holes
    bad = good;
    bad.holes = {{6, 8}, {7, 9}};
    EXPECT_FALSE(isTaken(bad));
    bad.holes = {{6, 6}};
    EXPECT_FALSE(isTaken(bad));
    bad.holes = {{6, 5000}};
    EXPECT_FALSE(isTaken(bad));
    bad = good;
    bad.unitSectors = 4096;
    EXPECT_FALSE(isTaken(bad));
    bad = good;
    bad.bytes = 2001 * 512;
    EXPECT_FALSE(isTaken(bad));
    bad = good;
    bad.state = static_cast<FileState>(3);
    EXPECT_FALSE(isTaken(bad));
    bad = good;
    bad.clusterSectors = 0;
    EXPECT_FALSE(isTaken(bad));
}

TEST(CardExchange, DamagedBlocks_BringNothingThatIsOutOfItsRange) {
    std::mt19937 random(3);
    const CardTable table = someTable();
    TableWriter writer(table);
    std::vector<std::vector<std::uint8_t>> blocks;
    for (auto block = writer.next(); !block.empty(); block = writer.next()) {
        block.resize(std::min<std::size_t>(block.size(), 4000));
        blocks.push_back(std::move(block));
    }
    int taken = 0;
    for (int i = 0; i < 20'000; ++i) {
        std::vector<std::uint8_t> block = blocks[random() % blocks.size()];
        put(block, 4, 10, 4);
        block[random() % block.size()] = static_cast<std::uint8_t>(random());
        TableReader reader(2000);
        taken += reader.take(block) ? 1 : 0;
        for (const CardFile& file : reader.table().files) {
            ASSERT_FALSE(file.name.contains(u'/'));
            for (const SectorRun& run : file.runs) {
                ASSERT_LT(run.first, run.end);
                ASSERT_LE(run.end, 2000u);
            }
        }
    }
    EXPECT_GT(taken, 0);
}

TEST(CardExchange, QuestionsForWhatIsNotThere_AreNone) {
    using decode::CardQuestion;
    EXPECT_TRUE(decode::questionOf(decode::bytesOf(CardQuestion{1990, 10}), 2000));
    EXPECT_FALSE(decode::questionOf(decode::bytesOf(CardQuestion{1991, 10}), 2000));
    EXPECT_FALSE(decode::questionOf(decode::bytesOf(CardQuestion{~std::uint64_t{0}, 2}), 2000));
    EXPECT_FALSE(decode::questionOf(decode::bytesOf(CardQuestion{0, 0}), 2000));
    EXPECT_FALSE(decode::questionOf(decode::bytesOf(CardQuestion{0, 513}), 2000));
}

class CardHelper : public testing::Test {
  protected:
    CardHelper() {
        MemoryCard card(m_exfat.end());
        formatExfat(card, m_exfat);
        putBytes(card, m_exfat.sectorOf(5), exfatSet({"IMG_0412.JPG", 20, 9000}));
        fillMedium(card);
    }

    void fillMedium(const MemoryCard& card) {
        m_medium = ScriptedMedium(card.sectors());
        for (std::size_t sector = 0; sector < card.sectors(); ++sector) {
            std::memcpy(m_medium.bytes[sector].data(), card.bytes.data() + sector * 512, 512);
        }
    }

    std::optional<CardTable> read(const QString& helper = VANTOR_CARD_HELPER,
                                  CardHelperOptions options = {}) {
        ScriptedReader reader(m_medium);
        options.helper = helper;
        return readCardInHelper(reader, m_medium.bytes.size(), {}, {}, options);
    }

    ExfatPlaces m_exfat;
    ScriptedMedium m_medium{0};
};

TEST_F(CardHelper, TellsTheTable) {
    const auto table = read();
    ASSERT_TRUE(table);
    EXPECT_EQ(pathsOf(*table), "IMG_0412.JPG");
    EXPECT_EQ(table->files.front().runs.front().first, m_exfat.sectorOf(20));
    EXPECT_EQ(table->fileSystems.size(), 1u);
}

TEST_F(CardHelper, BadSectorBesideADirectory_CostsThatAlone) {
    m_medium.badForEver = {m_exfat.sectorOf(5) + 1, m_exfat.first + 3};
    const auto table = read();
    ASSERT_TRUE(table);
    EXPECT_EQ(pathsOf(*table), "IMG_0412.JPG");
}

// Read as often as they are named, the records would take as many readings of the card as it has partitions,
// and nothing of it fits into what is kept.
TEST_F(CardHelper, PartitionsThatShareTheirRecords_CostTheLastOfThemTheirNames) {
    constexpr std::size_t kPartitions = 128;
    constexpr std::size_t kFirst = 100;
    constexpr std::size_t kTable = 1000;
    constexpr std::size_t kRecords = 24'000;
    MemoryCard card(kTable + 2 * kRecords + 100);
    put(card.bytes, 512, "EFI PART");
    put(card.bytes, 512 + 72, 2, 8);
    put(card.bytes, 512 + 80, kPartitions, 4);
    put(card.bytes, 512 + 84, 128, 4);
    for (std::size_t i = 0; i < kPartitions; ++i) {
        put(card.bytes, 1024 + 128 * i, 1, 8);
        put(card.bytes, 1024 + 128 * i + 32, kFirst + i, 8);
        put(card.bytes, 1024 + 128 * i + 40, card.sectors() - 1, 8);
        putBytes(card, kFirst + i, ntfsBoot(1, kTable - kFirst - i, card.sectors()));
    }
    Bytes place{0x23, 0, 0, 0, 0, 0, 0};
    put(place, 1, 2 * kRecords, 3);
    put(place, 4, kTable - kFirst, 2);
    putBytes(card, kTable,
             record(kThere, 1, nameAttribute("$MFT", 5, 5) + dataAttribute(kRecords * kRecord, place)));
    putBytes(card, kTable + 2 * 30,
             record(kThere, 1, nameAttribute("IMG.JPG", 5, 5) + dataAttribute(4096, {0x11, 8, 30, 0})));
    fillMedium(card);
    const auto table = read();
    ASSERT_TRUE(table);
    EXPECT_EQ(table->files.front().name, "IMG.JPG");
    // Of the first partition: the others count their clusters from elsewhere.
    EXPECT_EQ(table->files.front().runs.front().first, kFirst + 30);
}

TEST_F(CardHelper, Stop_EndsOneThatNeverAnswers) {
    const QTemporaryDir folder;
    const QString silent = folder.filePath("silent");
    ASSERT_TRUE(QFile::link(VANTOR_LYING_HELPER, silent));
    CardHelperOptions patient;
    patient.stepDeadline = std::chrono::hours(10);
    patient.afterStop = std::chrono::milliseconds(0);
    std::atomic<int> asked{0};
    patient.stop = [&asked] { return ++asked > 3; };
    EXPECT_FALSE(read(silent, patient));
    EXPECT_EQ(asked, 4);
}

TEST_F(CardHelper, Stop_LeavesTimeForASmallTable) {
    CardHelperOptions options;
    options.afterStop = std::chrono::hours(10);
    options.stop = [] { return true; };
    EXPECT_TRUE(read(VANTOR_CARD_HELPER, options));
}

TEST_F(CardHelper, LyingOrMissing_GivesNoTable) {
    EXPECT_FALSE(read(QStringLiteral("/nowhere/helper")));
    EXPECT_FALSE(read(VANTOR_LYING_HELPER));
}

}  // namespace
}  // namespace vantor
