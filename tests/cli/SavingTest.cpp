// Whole files, safe names, and the copy of sectors with its failures.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "results/DestinationCheck.h"
#include "results/ItemSaver.h"
#include "results/PreviewCopy.h"
#include "results/WholeFile.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {
namespace {

QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

// The first byte of every sector copied.
std::string copied(ScriptedMedium& medium, std::uint64_t start, std::uint64_t end) {
    ScriptedReader reader(medium);
    const std::atomic<int> stop{0};
    std::string firsts;
    copyPreviewSectors(reader, start, end, stop, [&](const std::uint8_t* sector) {
        firsts += static_cast<char>(sector[0]);
        return true;
    });
    return firsts;
}

ScriptedMedium letters(std::size_t sectors) {
    ScriptedMedium medium(sectors);
    for (std::size_t i = 0; i < sectors; ++i) {
        medium.fill(i, static_cast<std::uint8_t>('a' + i));
    }
    return medium;
}

}  // namespace

TEST(WholeFile, AppearsUnderItsNameOnlyWhenWhole) {
    const QTemporaryDir folder;
    {
        WholeFile file(folder.path());
        EXPECT_TRUE(file.write("half"));
        EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files).isEmpty());
    }
    EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).isEmpty())
        << "nothing is left behind";
    WholeFile file(folder.path());
    file.write("whole");
    EXPECT_EQ(file.commit("a.txt"), folder.filePath("a.txt"));
    EXPECT_EQ(contentsOf(folder.filePath("a.txt")), "whole");
}

TEST(WholeFile, TakenNamesGetANumberBeforeTheExtension) {
    const QTemporaryDir folder;
    for (const char* expected : {"a.b.txt", "a.b (2).txt", "a.b (3).txt"}) {
        WholeFile file(folder.path());
        EXPECT_EQ(file.commit("a.b.txt"), folder.filePath(expected));
    }
    for (const char* expected : {"plain", "plain (2)"}) {
        WholeFile file(folder.path());
        EXPECT_EQ(file.commit("plain"), folder.filePath(expected));
    }
}

TEST(WholeFile, MissingFolderIsAnError) {
    WholeFile file("/nowhere/at/all");
    EXPECT_FALSE(file.isGood());
    EXPECT_FALSE(file.commit("a").has_value());
    EXPECT_FALSE(file.error().isEmpty());
}

TEST(SafePathComponent, LeadsNowhereElse) {
    EXPECT_EQ(safePathComponent("JPG"), "JPG");
    EXPECT_EQ(safePathComponent("a/b\\c"), "a_b_c");
    EXPECT_EQ(safePathComponent(".."), "_");
    EXPECT_EQ(safePathComponent("."), "_");
    EXPECT_EQ(safePathComponent(""), "_");
    EXPECT_EQ(safePathComponent(QString::fromLatin1("x\0y\n", 4)), "x_y_");
    EXPECT_EQ(safePathComponent("name. "), "name");
    EXPECT_EQ(safePathComponent(QString(500, u'x')).size(), 80);
}

TEST(ItemSaver, SavesTheSectorsReallyRead) {
    const QTemporaryDir folder;
    ScriptedMedium medium = letters(10);
    ScriptedReader reader(medium);
    const ItemSaver saver(folder.path());
    const SaveOutcome outcome = saver.saveRuns("JPG", "x.JPG", {{{2, 4}, {7, 8}}, true}, reader);
    ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
    EXPECT_EQ(outcome.path, folder.filePath("JPG/x.JPG"));
    EXPECT_EQ(contentsOf(outcome.path), QByteArray(512, 'c') + QByteArray(512, 'd') + QByteArray(512, 'h'));
    EXPECT_EQ(outcome.sectorsUnreadable, 0U);
}

TEST(ItemSaver, UnreadableSectorsBecomeZerosAndAreCounted) {
    const QTemporaryDir folder;
    ScriptedMedium medium = letters(6);
    medium.badForEver = {3};
    ScriptedReader reader(medium);
    const SaveOutcome outcome = ItemSaver(folder.path()).saveRuns("T", "x", {{{2, 6}}, false}, reader);
    ASSERT_TRUE(outcome.saved);
    EXPECT_EQ(outcome.sectorsUnreadable, 1U);
    EXPECT_EQ(contentsOf(outcome.path),
              QByteArray(512, 'c') + QByteArray(512, '\0') + QByteArray(512, 'e') + QByteArray(512, 'f'));
}

TEST(ItemSaver, FolderThatCannotBeMadeIsTold) {
    const QTemporaryDir folder;
    QFile inTheWay(folder.filePath("JPG"));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const SaveOutcome outcome = ItemSaver(folder.path()).saveBytes("JPG", "x", "bytes");
    EXPECT_FALSE(outcome.saved);
    EXPECT_TRUE(outcome.error.contains("JPG"));
}

TEST(PreviewCopy, CopiesUpToTheEndSector) {
    ScriptedMedium medium = letters(10);
    EXPECT_EQ(copied(medium, 0, 3), "abc");
    EXPECT_EQ(copied(medium, 4, 7), "efg");
    EXPECT_EQ(copied(medium, 4, 4), "");
    EXPECT_EQ(copied(medium, 7, 4), "");
}

TEST(PreviewCopy, UnreadableSectorRepeatsTheLastGoodBytes) {
    ScriptedMedium medium = letters(10);
    medium.badForEver = {3};
    // The sector fails, and fails again one later; then the stream is past it and one behind.
    EXPECT_EQ(copied(medium, 1, 8), "bcccefg");
}

TEST(PreviewCopy, NothingGoodBeforeAFailureGivesZeros) {
    ScriptedMedium medium = letters(4);
    medium.badTimes[0] = 1;
    EXPECT_EQ(copied(medium, 0, 3), std::string("\0ab", 3));
}

TEST(PreviewCopy, StopsOnRequestAndOnAWriteError) {
    ScriptedMedium medium = letters(10);
    ScriptedReader reader(medium);
    std::atomic<int> stop{0};
    int written = 0;
    const PreviewCopyResult stopped = copyPreviewSectors(reader, 0, 10, stop, [&](const std::uint8_t*) {
        stop = ++written == 4 ? 1 : 0;
        return true;
    });
    EXPECT_EQ(stopped.end, PreviewCopyEnd::Stopped);
    EXPECT_EQ(stopped.sectorsWritten, 4U);
    stop = 0;
    ScriptedReader again(medium);
    const PreviewCopyResult failed =
        copyPreviewSectors(again, 0, 10, stop, [&](const std::uint8_t*) { return ++written < 7; });
    EXPECT_EQ(failed.end, PreviewCopyEnd::WriteFailed);
    EXPECT_EQ(failed.sectorsWritten, 2U);
}

TEST(DestinationCheck, ImageFilesNeverForbidAFolder) {
    const QTemporaryDir folder;
    QFile image(folder.filePath("card.img"));
    ASSERT_TRUE(image.open(QIODevice::WriteOnly));
    EXPECT_FALSE(destinationIsOnMedium(folder.path(), image.fileName()));
    EXPECT_FALSE(destinationIsOnMedium(folder.path(), "/nowhere/at/all"));
}

TEST(DestinationCheck, FolderOnTheReadDiskIsSeen) {
    // The device under the root folder, where the system shows one.
    QFile mounts("/proc/self/mountinfo");
    ASSERT_TRUE(mounts.open(QIODevice::ReadOnly));
    QString device;
    for (const QByteArray& line : mounts.readAll().split('\n')) {
        const auto fields = line.split(' ');
        const auto dash = fields.indexOf("-");
        if (fields.value(4) == "/" && dash > 0) {
            device = QString::fromLocal8Bit(fields.value(dash + 2));
        }
    }
    if (!device.startsWith("/dev/") || !QFile::exists(device)) {
        GTEST_SKIP() << "the root folder lies on no device that is visible here";
    }
    EXPECT_TRUE(destinationIsOnMedium("/", device));
    EXPECT_TRUE(destinationIsOnMedium("/not/yet/there", device));
    EXPECT_FALSE(destinationIsOnMedium("/proc", device));
}

}  // namespace vantor
