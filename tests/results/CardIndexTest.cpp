// Which file of the card's directory an item is, and where its pieces may lie.
#include <gtest/gtest.h>

#include "results/CardIndex.h"

namespace vantor {
namespace {

constexpr std::uint64_t kIndexCluster = 8;  // sectors
constexpr std::uint64_t kMediumEnd = 10'000;

CardFile fileAt(std::uint64_t first, std::uint64_t bytes, FileState state, const QString& name = "A.JPG") {
    CardFile file;
    file.folder = "DCIM/100CANON";
    file.name = name;
    file.state = state;
    file.bytes = file.validBytes = bytes;
    file.clusterSectors = kIndexCluster;
    const std::uint64_t clusters = (bytes + kIndexCluster * 512 - 1) / (kIndexCluster * 512);
    file.runs = {{first, first + clusters * kIndexCluster}};
    return file;
}

CardTable tableOf(std::vector<CardFile> files) {
    CardTable table;
    for (const CardFile& file : files) {
        if (file.state == FileState::Live) {
            table.inUse.insert(table.inUse.end(), file.runs.begin(), file.runs.end());
        }
    }
    joinRuns(table.inUse);
    table.files = std::move(files);
    return table;
}

TrueLength length(Verdict verdict, std::uint64_t bytes, bool exactEnd = true) {
    return {bytes, {verdict, bytes, exactEnd, {}, exactEnd, false}};
}

CardFit fitOf(const CardIndex& index, const TrueLength& told, const QString& type = "JPG") {
    return index.match(80, type, &told).fit;
}

}  // namespace

TEST(CardIndex, DeletedFileOfTheSameLengthIsTheItem) {
    const CardIndex index(tableOf({fileAt(80, 5000, FileState::Deleted)}));
    EXPECT_EQ(fitOf(index, length(Verdict::Complete, 5000)), CardFit::Yes);
    EXPECT_EQ(fitOf(index, length(Verdict::Complete, 5001)), CardFit::No) << "the bytes are another's";
    EXPECT_EQ(fitOf(index, length(Verdict::Complete, 4999)), CardFit::Yes) << "padded";
    EXPECT_EQ(fitOf(index, length(Verdict::Complete, 4000)), CardFit::No);
    EXPECT_EQ(fitOf(index, length(Verdict::CutOff, 9000)), CardFit::Maybe);
    EXPECT_EQ(fitOf(index, length(Verdict::CutOff, 9000), "MP4"), CardFit::No);
    EXPECT_EQ(fitOf(index, length(Verdict::Unknown, 9000)), CardFit::Yes);
    EXPECT_EQ(fitOf(index, length(Verdict::Unknown, 9000), "TXT"), CardFit::No);
    const TrueLength told = length(Verdict::Complete, 5000);
    EXPECT_EQ(index.match(88, "JPG", &told).file, nullptr) << "another place";
}

TEST(CardIndex, LengthsWithoutAnExactEndAgreeWithinACluster) {
    const CardIndex index(tableOf({fileAt(80, 5000, FileState::Deleted, "A.TIF")}));
    EXPECT_EQ(fitOf(index, length(Verdict::Complete, 4990, false), "TIF"), CardFit::Yes);
    EXPECT_EQ(fitOf(index, length(Verdict::Complete, 4000, false), "TIF"), CardFit::No);
    EXPECT_EQ(fitOf(index, length(Verdict::Complete, 4990, false), "JPG"), CardFit::No);
}

TEST(CardIndex, FileThatIsThereIsBelievedWhateverItsBytesSay) {
    const CardIndex index(tableOf({fileAt(80, 5000, FileState::Live, "NOTES")}));
    EXPECT_EQ(fitOf(index, length(Verdict::Complete, 700)), CardFit::Yes);
    EXPECT_EQ(fitOf(index, length(Verdict::Damaged, 9000)), CardFit::Yes);
}

TEST(CardIndex, WhatIsWrittenOverGivesNoName) {
    CardTable table = tableOf({fileAt(80, 5000, FileState::Deleted)});
    table.inUse = {{80, 88}};
    EXPECT_EQ(fitOf(CardIndex(table), length(Verdict::Complete, 5000)), CardFit::No);
    // Behind the first cluster the guess of one piece may be wrong; the item's own bytes tell.
    table.inUse = {{88, 96}};
    EXPECT_EQ(fitOf(CardIndex(table), length(Verdict::Complete, 5000)), CardFit::Yes);
    EXPECT_EQ(fitOf(CardIndex(table), length(Verdict::Unknown, 5000)), CardFit::No);
    table.files[0].runsKnownBy = RunsKnownBy::Flag;
    EXPECT_EQ(fitOf(CardIndex(table), length(Verdict::Complete, 5000)), CardFit::No);
}

TEST(CardIndex, OfSeveralFilesAtOnePlaceTheOneThatFitsIsMeant) {
    const CardIndex lengths(tableOf(
        {fileAt(80, 5000, FileState::Deleted, "A.JPG"), fileAt(80, 7000, FileState::Deleted, "B.JPG")}));
    const TrueLength told = length(Verdict::Complete, 7000);
    ASSERT_NE(lengths.match(80, "JPG", &told).file, nullptr);
    EXPECT_EQ(lengths.match(80, "JPG", &told).file->name, "B.JPG");
    const TrueLength unknown = length(Verdict::Unknown, 9000);
    EXPECT_EQ(lengths.match(80, "JPG", &unknown).file, nullptr) << "either may be meant";

    const CardIndex states(tableOf(
        {fileAt(80, 5000, FileState::Lost, "OLD.JPG"), fileAt(80, 5000, FileState::Deleted, "NEW.JPG")}));
    const TrueLength same = length(Verdict::Complete, 5000);
    EXPECT_EQ(states.match(80, "JPG", &same).file->name, "NEW.JPG");
}

TEST(CardIndex, FreeClustersBehindTheFirstAreTriedWithoutAChain) {
    CardTable table = tableOf({fileAt(80, 4 * 4096, FileState::Deleted)});
    table.inUse = {{88, 104}};
    const auto candidates = CardIndex(table).candidates(80, kMediumEnd);
    ASSERT_EQ(candidates.size(), 1U);
    EXPECT_EQ(candidates[0].assembly.runs, (std::vector<SectorRun>{{80, 88}, {104, 128}}));
    EXPECT_EQ(candidates[0].assembly.bytes, 4U * 4096);
}

TEST(CardIndex, ClustersOfOtherDeletedFilesArePassedOverInASecondTry) {
    const CardIndex index(tableOf({fileAt(80, 3 * 4096 - 4000, FileState::Deleted, "A.JPG"),
                                   fileAt(88, 2 * 4096, FileState::Deleted, "B.JPG")}));
    const auto candidates = index.candidates(80, kMediumEnd);
    ASSERT_EQ(candidates.size(), 2U);
    EXPECT_EQ(candidates[0].assembly.runs, (std::vector<SectorRun>{{80, 97}})) << "cut to the length";
    EXPECT_EQ(candidates[1].assembly.runs, (std::vector<SectorRun>{{80, 88}, {104, 113}}));
}

TEST(CardIndex, ChainIsTheOnlyCandidateOfItsFile) {
    CardFile file = fileAt(80, 2 * 4096, FileState::Deleted);
    file.runs = {{80, 88}, {400, 408}};
    file.runsKnownBy = RunsKnownBy::Chain;
    const auto candidates = CardIndex(tableOf({file})).candidates(80, kMediumEnd);
    ASSERT_EQ(candidates.size(), 1U);
    EXPECT_EQ(candidates[0].assembly.runs, file.runs);
}

TEST(CardIndex, FileLongerThanTheRestOfTheMediumHasNoCandidate) {
    const CardIndex index(tableOf({fileAt(80, std::uint64_t{1} << 40, FileState::Deleted)}));
    EXPECT_TRUE(index.candidates(80, kMediumEnd).empty());
}

TEST(CardIndex, PlacesOfFilesThatAreThereAreTheirs) {
    CardFile live = fileAt(80, 8192, FileState::Live);
    live.runs = {{80, 88}, {160, 168}};
    const CardIndex index(tableOf({live, fileAt(200, 5000, FileState::Deleted)}));
    for (const std::uint64_t sector : {80, 87, 160, 167}) {
        EXPECT_TRUE(index.isLiveAt(sector)) << sector;
    }
    for (const std::uint64_t sector : {79, 88, 159, 168, 200}) {
        EXPECT_FALSE(index.isLiveAt(sector)) << sector;
    }
}

// Of a file system with smaller clusters something may stand there yet.
TEST(CardIndex, RestOfTheLastClusterIsNobodys) {
    CardFile older = fileAt(92, 1024, FileState::Lost, "B.JPG");
    older.clusterSectors = 2;
    older.runs = {{92, 94}};
    const CardIndex index(tableOf({fileAt(80, 5000, FileState::Deleted), older}));
    EXPECT_FALSE(index.isDisputed(index.table().files[0]));
    EXPECT_FALSE(index.isDisputed(index.table().files[1]));
    const CardIndex full(tableOf({fileAt(80, 6200, FileState::Deleted), older}));
    EXPECT_TRUE(full.isDisputed(full.table().files[0]));
    const CardIndex live(tableOf({fileAt(80, 5000, FileState::Live)}));
    EXPECT_TRUE(live.isLiveAt(89));
    EXPECT_FALSE(live.isLiveAt(90));
    // A piece of a file begins with a cluster all the same.
    const CardIndex between(
        tableOf({fileAt(80, 9000, FileState::Deleted), fileAt(88, 100, FileState::Deleted, "B.JPG")}));
    const auto candidates = between.candidates(80, kMediumEnd);
    ASSERT_EQ(candidates.size(), 2u);
    EXPECT_EQ(candidates[1].assembly.runs, (std::vector<SectorRun>{{80, 88}, {96, 106}}));
}

// Two are gone that were told to lie there: the later one was written when the earlier had gone.
TEST(CardIndex, WhatWasWrittenLaterIsNotDisputedByWhatItBeganIn) {
    CardFile earlier = fileAt(80, 50000, FileState::Deleted, "EARLIER.TXT");
    CardFile later = fileAt(88, 5000, FileState::Deleted, "LATER.TXT");
    earlier.created = 1000;
    later.created = 1001;
    const CardIndex index(tableOf({earlier, later}));
    EXPECT_TRUE(index.isDisputed(index.table().files[0]));
    EXPECT_FALSE(index.isDisputed(index.table().files[1]));
    // It may have lain in the way of one that began before it, and at the same time nobody was first.
    earlier.runs = {{90, 98}};
    const CardIndex behind(tableOf({earlier, later}));
    EXPECT_TRUE(behind.isDisputed(behind.table().files[1]));
    earlier.runs = {{80, 184}};
    earlier.created = 1001;
    const CardIndex same(tableOf({earlier, later}));
    EXPECT_TRUE(same.isDisputed(same.table().files[1]));
}

TEST(CardIndex, MillionsOfClaimsTakeNoLongerThanTheirNumber) {
    std::vector<CardFile> files;
    for (std::uint64_t i = 0; i < 100'000; ++i) {
        files.push_back(fileAt(80 + 16 * i, 4096, FileState::Deleted, "B.JPG"));
    }
    files.push_back(fileAt(80, std::uint64_t{100'000} * 8 * 512, FileState::Deleted, "A.JPG"));
    const CardIndex index(tableOf(std::move(files)));
    const auto candidates = index.candidates(80, 10'000'000);
    for (const auto& candidate : candidates) {
        EXPECT_LE(candidate.assembly.runs.size(), 4096U);
    }
    EXPECT_TRUE(index.isDisputed(index.table().files.back()));
}

}  // namespace vantor
