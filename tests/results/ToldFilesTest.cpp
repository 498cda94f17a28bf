// Which of the files that only a card's directory tells of are there to be saved.
#include <gtest/gtest.h>

#include "results/ToldFiles.h"

namespace vantor {
namespace {

CardFile liveFile(const QString& name, const SectorRun& run) {
    CardFile file;
    file.name = name;
    file.state = FileState::Live;
    file.bytes = (run.end - run.first) * 512;
    file.runs = {run};
    return file;
}

std::vector<std::shared_ptr<const CardFile>> filesTold(std::vector<CardFile> files,
                                                       const std::vector<std::uint64_t>& starts,
                                                       std::uint64_t* beyondRoom) {
    CardTable table;
    table.files = std::move(files);
    const auto card = std::make_shared<const CardIndex>(std::move(table));
    return toldOnly(card, starts, {{0, 1000}, [](const QString&) { return true; }}, beyondRoom);
}

std::size_t toldOf(std::vector<CardFile> files, const std::vector<std::uint64_t>& starts = {}) {
    return filesTold(std::move(files), starts, nullptr).size();
}

TEST(ToldFiles, BesideEachOther_AreAllTold) {
    std::vector<CardFile> files;
    for (std::uint64_t i = 0; i < 100; ++i) {
        files.push_back(liveFile(QStringLiteral("f%1.txt").arg(i), {10 * i, 10 * (i + 1)}));
    }
    EXPECT_EQ(toldOf(files), 100u);
}

// A damaged table may give a place to two; a made one to thousands, which would fill the disk.
TEST(ToldFiles, ManyInOnePlace_TakeNoMoreThanTwiceTheRoom) {
    EXPECT_EQ(toldOf({liveFile("a.txt", {0, 100}), liveFile("b.txt", {0, 100})}), 2u);
    std::vector<CardFile> files{liveFile("furthest.txt", {990, 1000})};
    for (int i = 0; i < 1000; ++i) {
        files.push_back(liveFile(QStringLiteral("f%1.txt").arg(i), {100, 300}));
    }
    EXPECT_EQ(toldOf(files), 1u + 9);
}

TEST(ToldFiles, RowsThatClaimTheMedium_DoNotTakeTheRoomOfTheOthers) {
    std::vector<CardFile> files;
    for (int i = 0; i < 5; ++i) {
        files.push_back(liveFile(QStringLiteral("bogus%1.txt").arg(i), {0, 1000}));
    }
    for (std::uint64_t i = 0; i < 100; ++i) {
        files.push_back(liveFile(QStringLiteral("f%1.txt").arg(i), {10 * i, 10 * (i + 1)}));
    }
    std::uint64_t beyond = 0;
    const auto told = filesTold(files, {}, &beyond);
    ASSERT_EQ(told.size(), 101u);
    EXPECT_EQ(beyond, 4u);
    EXPECT_EQ(told[0]->name, "bogus0.txt") << "in the order of the table";
    for (std::size_t i = 0; i < 100; ++i) {
        EXPECT_EQ(told[1 + i]->name, QStringLiteral("f%1.txt").arg(i));
    }
}

// What is found there is not all of it.
TEST(ToldFiles, OneWithHoles_IsToldThoughItsBeginningIsFound) {
    CardFile sparse = liveFile("a.mp4", {10, 16});
    EXPECT_EQ(toldOf({sparse}, {10}), 0u);
    sparse.holes = {{2, 4}};
    EXPECT_EQ(toldOf({sparse}, {10}), 1u);
    sparse.state = FileState::Deleted;
    sparse.runsKnownBy = RunsKnownBy::Record;
    EXPECT_EQ(toldOf({sparse}, {10}), 1u);
    EXPECT_EQ(toldOf({sparse}, {11}), 0u);
    // Its holes take room where it is saved.
    sparse.state = FileState::Live;
    sparse.holes = {{2, 100}};
    EXPECT_EQ(toldOf({sparse}), 0u);
}

TEST(ToldFiles, WhatBeginsBehindTheirBytes_IsNotTheirs) {
    CardFile gone = liveFile("a.txt", {0, 16});
    gone.state = FileState::Deleted;
    gone.bytes = 5000;
    EXPECT_EQ(toldOf({gone}, {10}), 1u);
    EXPECT_EQ(toldOf({gone}, {9}), 0u);
}

}  // namespace
}  // namespace vantor
