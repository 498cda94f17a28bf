// A card whose directories cannot be read, because what reads them is not there.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "tests/cli/CommandRun.h"

namespace vantor {
namespace {

constexpr const char* kWords = "The medium's directories could not be read.";

// The command with its resources, and without helpers.
QString commandAlone(const QTemporaryDir& folder) {
    const QFileInfo program(QStringLiteral(VANTOR_CLI));
    const QString copy = folder.filePath("bin/") + program.fileName();
    EXPECT_TRUE(QDir(folder.path()).mkpath("bin"));
    EXPECT_TRUE(QFile::copy(program.filePath(), copy));
    EXPECT_TRUE(QFile::link(QDir::cleanPath(program.path() + "/../share"), folder.filePath("share")));
    return copy;
}

}  // namespace

TEST(UnreadCard, IsTold) {
    const QTemporaryDir folder;
    const CommandRun whole = runCommand({"--save", folder.filePath("whole"), VANTOR_SAMPLE_CARD});
    EXPECT_EQ(whole.exitCode, 0);
    EXPECT_FALSE(whole.err.contains(kWords));
    const CommandRun without =
        runCommand({"--save", folder.filePath("without"), VANTOR_SAMPLE_CARD}, commandAlone(folder));
    EXPECT_EQ(without.exitCode, 4);
    EXPECT_TRUE(without.err.contains(kWords)) << without.err.toStdString();
}

}  // namespace vantor
