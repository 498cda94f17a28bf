// The small parts: names, votes, tables of partitions, what the collector notes.
#include <gtest/gtest.h>

#include <random>

#include "filesystem/CachedSource.h"
#include "filesystem/CleanName.h"
#include "filesystem/ClusterVote.h"
#include "filesystem/FirstLetters.h"
#include "filesystem/PartitionTable.h"
#include "tests/filesystem/CardImage.h"

namespace vantor {
namespace {

TEST(CleanName, HoldsNothingThatAPathMayNot) {
    EXPECT_EQ(cleanName(QStringLiteral("IMG_0412.JPG")), QStringLiteral("IMG_0412.JPG"));
    EXPECT_EQ(cleanName(QStringLiteral("照片 – Größe 😀.jpg")), QStringLiteral("照片 – Größe 😀.jpg"));
    EXPECT_EQ(cleanName(QStringLiteral("../a\\b\nc")), QStringLiteral(".._a_b_c"));
    EXPECT_EQ(cleanName(QStringLiteral("photo\u202Egpj.exe")), QStringLiteral("photo_gpj.exe"));
    EXPECT_EQ(cleanName(QString(QChar(0xD83D)) + u'x'), QStringLiteral("_x"));
    EXPECT_EQ(cleanName(QString(QChar(u'\0'))), QStringLiteral("_"));
    EXPECT_EQ(cleanName(QStringLiteral("..")), QStringLiteral("__"));
    EXPECT_EQ(cleanName(QString()), QStringLiteral("_"));
}

TEST(ClusterVote, TruthAmongStraySightings_Wins) {
    std::mt19937 random(7);
    std::vector<ClusterSighting> sightings;
    for (std::uint32_t i = 0; i < 20; ++i) {
        const std::uint32_t cluster = 100 + i * i;
        sightings.push_back({cluster, 8192 + std::uint64_t{cluster - 2} * 64});
        for (int stray = 0; stray < 50; ++stray) {
            sightings.push_back({cluster, random() % 5'000'000});
        }
    }
    // One that says the same wrong thing again and again, and half of them that agree on another place.
    for (int again = 0; again < 100; ++again) {
        sightings.push_back({100, 8193});
    }
    for (std::uint32_t i = 0; i < 10; ++i) {
        sightings.push_back({100 + i * i, 9000 + std::uint64_t{98 + i * i} * 64});
    }
    const auto places = voteForClusters(sightings, 3, Sightings::Possible);
    ASSERT_TRUE(places);
    EXPECT_EQ(places->clusterSectors, 64u);
    EXPECT_EQ(places->firstCluster, 8192u);
    EXPECT_EQ(places->votes, 20u);
}

TEST(ClusterVote, NoAgreement_NoAnswer) {
    EXPECT_FALSE(voteForClusters({}, 2, Sightings::True));
    EXPECT_FALSE(voteForClusters({{10, 1000}}, 2, Sightings::True));
    EXPECT_FALSE(voteForClusters({{10, 1000}, {10, 2000}, {11, 1007}}, 2, Sightings::True));
    // Two pairs, each with an answer of its own.
    EXPECT_FALSE(voteForClusters({{10, 1000}, {11, 1008}, {20, 9000}, {21, 9016}}, 2, Sightings::True));
}

// Twelve files of one length in a row, of which the first one's beginning is gone, and one more behind them:
// each could as well be the next one.
TEST(ClusterVote, FilesOfOneLengthInARow_AreNotTakenForTheNextOnes) {
    std::vector<ClusterSighting> sightings;
    for (std::uint32_t entry = 0; entry < 12; ++entry) {
        for (std::uint64_t file = 1; file < 13; ++file) {
            sightings.push_back({100 + 160 * entry, 8192 + 64 * (98 + 160 * file)});
        }
    }
    EXPECT_FALSE(voteForClusters(sightings, 3, Sightings::Possible));
}

// Behind such a row lie three of another length: they are in no row that goes on, and tell where both lie.
TEST(ClusterVote, FilesOfOneLengthInARow_LieWhereOthersSay) {
    std::vector<ClusterSighting> sightings;
    for (std::uint32_t entry = 0; entry < 12; ++entry) {
        for (std::uint64_t file = 0; file < 12; ++file) {
            sightings.push_back({100 + 160 * entry, 8192 + 64 * (98 + 160 * file)});
        }
    }
    for (const std::uint32_t entry : {0u, 70u, 190u}) {
        for (const std::uint64_t file : {0u, 70u, 190u}) {
            sightings.push_back({3000 + entry, 8192 + 64 * (2998 + file)});
        }
    }
    const auto places = voteForClusters(sightings, 3, Sightings::Possible);
    ASSERT_TRUE(places);
    EXPECT_EQ(places->firstCluster, 8192u);
    EXPECT_EQ(places->clusterSectors, 64u);
    // Two of them may be there by chance.
    std::erase_if(sightings, [](const ClusterSighting& one) { return one.cluster == 3190; });
    EXPECT_FALSE(voteForClusters(sightings, 3, Sightings::Possible));
}

TEST(FirstLetters, NamesOfTheSameSeriesTellIt) {
    FirstLetters letters;
    letters.learn("MVC-012F.JPG", {1, 0});
    letters.learn("B0000001.BMP", {1, 0});
    letters.learn("C0000001.BMP", {2, 0});
    letters.learn("README1", {3, 0});
    EXPECT_EQ(letters.of("_VC-013F.JPG", {1, 0}), QChar(u'M'));
    EXPECT_EQ(letters.of("_VC-013F.JPG", {9, 0}), QChar(u'M'));
    EXPECT_EQ(letters.of("_vc-013f.jpg", {1, 0}), QChar(u'm'));
    EXPECT_EQ(letters.of("_0000007.BMP", {1, 0}), QChar(u'B'));
    EXPECT_EQ(letters.of("_0000007.BMP", {2, 0}), QChar(u'C'));
    EXPECT_EQ(letters.of("_0000007.BMP", {9, 0}), std::nullopt);
    EXPECT_EQ(letters.of("_0000007.JPG", {1, 0}), std::nullopt);
    EXPECT_EQ(letters.of("_EADME2", {3, 0}), QChar(u'R'));
    EXPECT_EQ(letters.of("_EADME", {3, 0}), std::nullopt);
    EXPECT_EQ(letters.of("_OTE1.TXT", {3, 0}), std::nullopt);
    // A number says little in other folders, and nothing where the name is another's.
    EXPECT_EQ(letters.of("_0000001.BMP", {1, 0}), std::nullopt);
    letters.learn("P1010001.ORF", {1, 0});
    EXPECT_EQ(letters.of("_1010002.ORF", {1, 0}), QChar(u'P'));
    EXPECT_EQ(letters.of("_1010002.ORF", {2, 0}), std::nullopt);
}

TEST(FirstLetters, StandardsTellItWhereNoOtherNameDoes) {
    FirstLetters letters;
    EXPECT_EQ(letters.of("_MG_0412.JPG", {1, 0}), QChar(u'I'));
    EXPECT_EQ(letters.of("_SC01234.ARW", {1, 0}), QChar(u'D'));
    EXPECT_EQ(letters.of("_VI_0001.MOV", {1, 0}), QChar(u'M'));
    EXPECT_EQ(letters.of("_12CANON", {1, 0}), QChar(u'1'));
    EXPECT_EQ(letters.of("_CIM", {1, 0}), QChar(u'D'));
    EXPECT_EQ(letters.of("_0001.MTS", {1, 0}), QChar(u'0'));
    EXPECT_EQ(letters.of("_OTES.TXT", {1, 0}), std::nullopt);
    // Photos with more colours begin with the very sign.
    letters.learn("_MG_0411.JPG", {1, 0});
    EXPECT_EQ(letters.of("_MG_0412.JPG", {1, 0}), QChar(u'_'));
    letters.learn("IMG_0410.JPG", {1, 0});
    EXPECT_EQ(letters.of("_MG_0412.JPG", {1, 0}), std::nullopt);
    letters.learn("200CANON", {2, 0});
    EXPECT_EQ(letters.of("_00CANON", {1, 0}), QChar(u'2'));
}

// Two cameras wrote into one folder, the second into the places of what had been deleted by then.
TEST(FirstLetters, NeighboursTellItWhereTwoSeriesShareAFolder) {
    FirstLetters letters;
    const char* const entries[] = {"J00001.JPG", "N00001.JPG", "J00003.JPG", "",           "J00005.JPG",
                                   "N00002.JPG", "",           "J00008.JPG", "N00005.JPG", "NOTES"};
    for (std::size_t at = 0; at < std::size(entries); ++at) {
        if (*entries[at] != 0) {
            letters.learn(entries[at], {1, at});
        }
    }
    EXPECT_EQ(letters.of("_00004.JPG", {1, 3}), QChar(u'J'));
    EXPECT_EQ(letters.of("_00007.JPG", {1, 6}), QChar(u'J'));
    EXPECT_EQ(letters.of("_00003.JPG", {1, 6}), QChar(u'N'));
    EXPECT_EQ(letters.of("_00009.JPG", {1, 6}), std::nullopt) << "in nobody's row";
    EXPECT_EQ(letters.of("_00009.JPG", {1, 10}), std::nullopt) << "nothing stands behind it";
    EXPECT_EQ(letters.of("_00007.JPG", {2, 6}), std::nullopt) << "of another folder";
    letters.learn("N00003.JPG", {2, 0});
    letters.learn("J00003.JPG", {2, 1});
    letters.learn("N00009.JPG", {2, 9});
    letters.learn("J00009.JPG", {2, 10});
    EXPECT_EQ(letters.of("_00005.JPG", {2, 5}), std::nullopt) << "fits both";
}

TEST(FirstLetters, NeighboursTellAShortNameOnlyWithoutAGap) {
    FirstLetters letters;
    letters.learn("X9.XMP", {1, 4});
    letters.learn("X11.XMP", {1, 6});
    letters.learn("X14.XMP", {1, 10});
    letters.learn("19.TXT", {1, 20});
    letters.learn("111.TXT", {1, 22});
    EXPECT_EQ(letters.of("_10.XMP", {1, 5}), QChar(u'X'));
    EXPECT_EQ(letters.of("_12.XMP", {1, 7}), std::nullopt) << "there is room for another";
    EXPECT_EQ(letters.of("_8.XMP", {1, 3}), std::nullopt);
    EXPECT_EQ(letters.of("_10.TXT", {1, 21}), std::nullopt) << "what is lost is part of the number";
}

// The second camera's files stand where those of the first did that had been deleted.
TEST(FirstLetters, TimesTellItWhereTwoSeriesShareAFolder) {
    FirstLetters letters;
    for (const std::size_t number : {2, 3, 9, 12, 13, 14}) {
        letters.learn(QString("J%1.JPG").arg(number, 5, 10, QChar(u'0')),
                      {1, 20 - number, static_cast<std::int64_t>(100 + number)});
    }
    for (const std::size_t number : {4, 6, 8}) {
        letters.learn(QString("N%1.JPG").arg(number, 5, 10, QChar(u'0')),
                      {1, 20 + number % 3, static_cast<std::int64_t>(200 + number)});
    }
    EXPECT_EQ(letters.of("_00001.JPG", {1, 30, 201}), QChar(u'N'));
    EXPECT_EQ(letters.of("_00005.JPG", {1, 30, 205}), QChar(u'N'));
    EXPECT_EQ(letters.of("_00005.JPG", {1, 30, 105}), QChar(u'J'));
    EXPECT_EQ(letters.of("_00015.JPG", {1, 30, 115}), QChar(u'J'));
    EXPECT_EQ(letters.of("_00015.JPG", {1, 30, 215}), std::nullopt) << "behind both";
    EXPECT_EQ(letters.of("_00001.JPG", {1, 30, 300}), std::nullopt) << "in neither";
    EXPECT_EQ(letters.of("_00005.JPG", {1, 30, 0}), std::nullopt);
    letters.learn("N00002.JPG", {2, 0, 1});
    letters.learn("J00001.JPG", {2, 1, 9});
    EXPECT_EQ(letters.of("_00003.JPG", {2, 2, 5}), std::nullopt) << "one alone is no series";
}

// A front and a rear camera count together, and all that the rear one wrote was deleted.
TEST(FirstLetters, NumbersAStepApart_TellNothingBetweenThem) {
    FirstLetters letters;
    for (const std::size_t number : {1, 3, 7}) {
        letters.learn(QString("F%1.MOV").arg(number), {1, number});
        letters.learn(QString("F%1.MP4").arg(number, 7, 10, QChar(u'0')), {1, 20 + number});
        letters.learn(QString("MOVI000%1.AVI").arg(number), {1, 40 + number});
    }
    EXPECT_EQ(letters.of("_2.MOV", {1, 2}), std::nullopt);
    EXPECT_EQ(letters.of("_0000002.MP4", {1, 22}), std::nullopt);
    EXPECT_EQ(letters.of("_0000005.MP4", {1, 25}), QChar(u'F')) << "in step";
    EXPECT_EQ(letters.of("_OVI0002.AVI", {1, 42}), QChar(u'M')) << "a word says more than a number";
    letters.learn("F0000004.MP4", {1, 24});
    EXPECT_EQ(letters.of("_0000002.MP4", {1, 22}), QChar(u'F')) << "no step any more";
}

TEST(FirstLetters, NumbersThatRiseWithEachEntryTellIt) {
    FirstLetters letters;
    for (const std::size_t number : {4, 5, 8, 9, 12, 14, 17}) {
        letters.learn(QString("X%1.XMP").arg(number), {1, number + 2});
    }
    EXPECT_EQ(letters.of("_18.XMP", {1, 20}), QChar(u'X')) << "those beside each other are further off";
    EXPECT_EQ(letters.of("_1.XMP", {1, 3}), QChar(u'X'));
    EXPECT_EQ(letters.of("_10.XMP", {1, 12}), QChar(u'X'));
    EXPECT_EQ(letters.of("_1.XMP", {1, 2}), std::nullopt) << "another stands between";
    EXPECT_EQ(letters.of("_1.XMP", {2, 3}), std::nullopt);
    // Two that take turns.
    for (const std::size_t number : {1, 3, 5, 7}) {
        letters.learn(QString("F%1.MOV").arg(number), {1, 20 + number});
    }
    EXPECT_EQ(letters.of("_9.MOV", {1, 29}), std::nullopt);
    // The letter may be the number's first digit.
    for (const std::size_t number : {7, 8, 9}) {
        letters.learn(QString("1%1.TXT").arg(number), {1, 40 + number});
    }
    EXPECT_EQ(letters.of("_6.TXT", {1, 46}), QChar(u'1'));
    EXPECT_EQ(letters.of("_10.TXT", {1, 50}), std::nullopt);
    for (const std::size_t number : {7, 8, 9}) {
        letters.learn(QString("00%1NOTE.DOC").arg(number), {1, 60 + number});
    }
    EXPECT_EQ(letters.of("_06NOTE.DOC", {1, 66}), QChar(u'0'));
    EXPECT_EQ(letters.of("_06NOTE.DOC", {1, 67}), std::nullopt);
    EXPECT_EQ(letters.of("_06NOTE.TXT", {1, 66}), std::nullopt);
}

class CountedCard final : public SectorSource {
  public:
    std::uint64_t sectors() const override { return 100'000; }
    bool readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        read += into.size() / 512;
        std::fill(into.begin(), into.end(), static_cast<std::uint8_t>(sector));
        return sector != 77'777;
    }
    std::uint64_t read = 0;
};

TEST(CachedSource, LookAtOneSector_ReadsNoMore) {
    CountedCard card;
    CachedSource cached(card);
    std::array<std::uint8_t, 512> sector{};
    for (std::uint64_t at = 1000; at < 100'000; at += 1000) {
        EXPECT_TRUE(cached.readAt(at, sector));
        EXPECT_EQ(sector[511], static_cast<std::uint8_t>(at));
    }
    EXPECT_EQ(card.read, 99u);
    EXPECT_FALSE(cached.readAt(77'777, sector));
    EXPECT_FALSE(cached.readAt(200'000, sector));
    card.read = 0;
    // Looks beside each other are of one piece.
    for (std::uint64_t at = 50'000; at < 50'040; ++at) {
        EXPECT_TRUE(cached.readAt(at, sector));
    }
    EXPECT_EQ(card.read, CachedSource::kPieceSectors);
}

Bytes partitionRow(std::uint8_t type, std::uint32_t first, std::uint32_t sectors) {
    Bytes row(16);
    row[4] = type;
    put(row, 8, first, 4);
    put(row, 12, sectors, 4);
    return row;
}

TEST(PartitionTable, RecordWithAnExtendedPartition_NamesAll) {
    MemoryCard card(10000);
    put(card.bytes, 510, 0xAA55, 2);
    const Bytes rows = partitionRow(0x0C, 100, 900) + partitionRow(0x05, 1000, 9000);
    std::copy(rows.begin(), rows.end(), card.bytes.begin() + 446);
    const Bytes inner = partitionRow(0x07, 10, 500) + partitionRow(0x05, 2000, 3000);
    std::copy(inner.begin(), inner.end(), card.bytes.begin() + 1000 * 512 + 446);
    put(card.bytes, 1000 * 512 + 510, 0xAA55, 2);
    // This one leads back to the first.
    const Bytes last = partitionRow(0x07, 20, 20000) + partitionRow(0x05, 0, 0);
    std::copy(last.begin(), last.end(), card.bytes.begin() + 3000 * 512 + 446);
    put(card.bytes, 3000 * 512 + 510, 0xAA55, 2);
    std::vector<SectorRun> partitions = partitionsOf(card);
    joinRuns(partitions);
    EXPECT_EQ(partitions, (std::vector<SectorRun>{{100, 1000}, {1010, 1510}, {3020, 10000}}));
}

TEST(PartitionTable, GuidTable_AlsoItsCopyAtTheEnd) {
    for (const std::uint64_t header : {1, 9999}) {
        MemoryCard card(10000);
        put(card.bytes, header * 512, "EFI PART");
        put(card.bytes, header * 512 + 72, header == 1 ? 2 : 9967, 8);
        put(card.bytes, header * 512 + 80, 128, 4);
        put(card.bytes, header * 512 + 84, 128, 4);
        const std::size_t row = (header == 1 ? 2 : 9967) * 512 + 128 * 5;
        put(card.bytes, row, 1, 8);
        put(card.bytes, row + 32, 2048, 8);
        put(card.bytes, row + 40, 4095, 8);
        EXPECT_EQ(partitionsOf(card), (std::vector<SectorRun>{{2048, 4096}})) << header;
    }
}

TEST(CardCollector, RandomSectors_LookLikeNoDirectory) {
    std::mt19937_64 random(11);
    MemoryCard card(200'000);
    for (std::size_t at = 0; at < card.bytes.size(); at += 8) {
        put(card.bytes, at, random(), 8);
    }
    CardCollector collector;
    collector.look(0, card.bytes.data(), card.sectors());
    EXPECT_TRUE(collector.traces().directories.empty());
    EXPECT_TRUE(collector.traces().bootSectors.empty());
}

TEST(CardCollector, WindowsInAnyOrder_GiveTheSameTraces) {
    MemoryCard card(64);
    for (std::size_t sector = 10; sector < 20; ++sector) {
        putBytes(card, sector, fatRow("IMG_0001JPG", 5, 100));
    }
    CardCollector once;
    once.look(0, card.bytes.data(), 64);
    CardCollector twice;
    twice.look(16, card.bytes.data() + 16 * 512, 48);
    twice.look(0, card.bytes.data(), 16);
    EXPECT_EQ(once.traces().directories, (std::vector<SectorRun>{{10, 20}}));
    EXPECT_EQ(twice.traces().directories, once.traces().directories);
}

}  // namespace
}  // namespace vantor
