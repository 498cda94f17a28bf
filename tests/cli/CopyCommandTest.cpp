// A medium that the command copies while it searches.
#include <gtest/gtest.h>
#include <sys/mount.h>

#include <QFile>
#include <QTemporaryDir>

#include "media/CopyMapFile.h"
#include "tests/cli/CommandRun.h"
#include "tests/cli/Saved.h"

namespace vantor {
namespace {

std::uint64_t cardBytes() {
    return static_cast<std::uint64_t>(QFile(VANTOR_SAMPLE_CARD).size());
}

// The sample card, of which some sectors cannot be read.
QString mapOfAFailingCard(const QTemporaryDir& folder) {
    CopyMap map(cardBytes());
    map.set(0, map.bytes(), CopyState::Copied);
    for (const std::uint64_t sector : {330U, 700U, 705U, 2000U, 2001U, 9000U}) {
        map.set(sector * 512, (sector + 1) * 512, CopyState::Bad);
    }
    map.set(std::uint64_t{1500} * 512, std::uint64_t{1540} * 512, CopyState::Bad);
    const QString path = folder.filePath("card.map");
    EXPECT_FALSE(storeCopyMap(path, map));
    return path;
}

}  // namespace

TEST(CopyCommand, WhatIsFoundAndSavedIsTheSameAndTheImageIsTheCard) {
    for (const QString& mode : {QStringLiteral("photo"), QStringLiteral("rawfile")}) {
        const QTemporaryDir folder;
        const QString image = folder.filePath("copy.img");
        const CommandRun plain = runCommand(
            {"--mode", mode, "--list-json", "--save", folder.filePath("plain"), VANTOR_SAMPLE_CARD});
        const CommandRun copied =
            runCommand({"--mode", mode, "--list-json", "--save", folder.filePath("copied"), "--image", image,
                        VANTOR_SAMPLE_CARD});
        EXPECT_EQ(copied.exitCode, 0) << copied.err.constData();
        EXPECT_TRUE(copied.err.contains("Copy: ")) << copied.err.constData();
        EXPECT_EQ(copied.out, plain.out);
        EXPECT_EQ(checksumsUnder(folder.filePath("copied")), checksumsUnder(folder.filePath("plain")));
        EXPECT_EQ(contentsOf(image), contentsOf(QStringLiteral(VANTOR_SAMPLE_CARD)));
        const auto map = loadCopyMap(image + ".map");
        ASSERT_TRUE(map);
        EXPECT_EQ(map->bytesIn(CopyState::Copied), cardBytes());
        // The image is searched as the card was.
        EXPECT_EQ(runCommand({"--mode", mode, "--list-json", image}).out, plain.out);
    }
}

TEST(CopyCommand, OfAFailingCardTheSameIsFoundAndTheMapTellsWhatFailed) {
    const QTemporaryDir folder;
    const QString card = mapOfAFailingCard(folder), image = folder.filePath("copy.img");
    const CommandRun plain =
        runCommand({"--map", card, "--list-json", "--save", folder.filePath("plain"), VANTOR_SAMPLE_CARD});
    const CommandRun copied = runCommand({"--map", card, "--image", image, "--list-json", "--save",
                                          folder.filePath("copied"), VANTOR_SAMPLE_CARD});
    EXPECT_EQ(copied.out, plain.out);
    EXPECT_TRUE(copied.err.contains("46 bad sectors")) << copied.err.constData();
    EXPECT_EQ(checksumsUnder(folder.filePath("copied")), checksumsUnder(folder.filePath("plain")));
    const auto failing = loadCopyMap(card), map = loadCopyMap(image + ".map");
    ASSERT_TRUE(map);
    for (std::uint64_t at = 0; at < cardBytes(); at += 512) {
        ASSERT_EQ(map->at(at).state, failing->at(at).state) << at / 512;
    }
    // Gone on with from the whole card, it becomes whole but for what is known as bad.
    const CommandRun again = runCommand({"--image", image, "--list-json", VANTOR_SAMPLE_CARD});
    EXPECT_EQ(again.out, plain.out);
}

TEST(CopyCommand, TheCopyIsWrittenOverNothing) {
    const QTemporaryDir folder;
    const QString image = folder.filePath("card.img");
    ASSERT_TRUE(QFile::copy(VANTOR_SAMPLE_CARD, image));
    const QByteArray before = contentsOf(image);
    for (const QString& place :
         {image, folder.filePath("./card.img"), folder.path(), folder.filePath("absent/copy.img")}) {
        const CommandRun run = runCommand({"--image", place, image});
        EXPECT_EQ(run.exitCode, 6) << place.toStdString();
        EXPECT_FALSE(run.err.isEmpty());
    }
    EXPECT_TRUE(runCommand({"--image", image, image}).err.contains("lies on the medium"));
    EXPECT_EQ(contentsOf(image), before);
    EXPECT_EQ(runCommand({"--image", "", image}).exitCode, 2);
    EXPECT_EQ(runCommand({"--scrape", image}).exitCode, 2);
}

TEST(CopyCommand, ADiskTooSmallIsToldBeforehandAndDoesNotEndTheSearch) {
    const QTemporaryDir folder;
    const QByteArray small = QFile::encodeName(folder.filePath("small"));
    ASSERT_TRUE(QDir().mkpath(folder.filePath("small")));
    if (::mount("tmpfs", small.constData(), "tmpfs", 0, "size=2m") != 0) {
        GTEST_SKIP() << "nothing can be mounted here";
    }
    const QByteArray plain = runCommand({"--list-json", VANTOR_SAMPLE_CARD}).out;
    const CommandRun run =
        runCommand({"--list-json", "--image", folder.filePath("small/copy.img"), VANTOR_SAMPLE_CARD});
    ::umount(small.constData());
    EXPECT_EQ(run.exitCode, 6);
    EXPECT_EQ(run.out, plain);
    EXPECT_TRUE(run.err.contains("There is not enough room")) << run.err.constData();
    EXPECT_TRUE(run.err.contains("is read from the medium")) << run.err.constData();
}

}  // namespace vantor
