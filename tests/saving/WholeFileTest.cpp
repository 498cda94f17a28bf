// A file is there whole or not at all, and replaces none.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "saving/WholeFile.h"
#include "tests/support/Files.h"

namespace vantor {
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

TEST(WholeFile, KeepsItsDate) {
    const QTemporaryDir folder;
    WholeFile file(folder.path());
    file.write("x");
    EXPECT_TRUE(file.setModificationTime(1'000'000'000));
    const auto path = file.commit("a");
    ASSERT_TRUE(path);
    EXPECT_EQ(QFileInfo(*path).lastModified().toSecsSinceEpoch(), 1'000'000'000);
}

TEST(LinkAs, SecondNameTakesNoOthersPlace) {
    const QTemporaryDir folder;
    WholeFile file(folder.path());
    file.write("x");
    const auto path = file.commit("a.txt");
    EXPECT_EQ(linkAs(*path, folder.path(), "b.txt"), folder.filePath("b.txt"));
    EXPECT_EQ(linkAs(*path, folder.path(), "b.txt"), folder.filePath("b (2).txt"));
    EXPECT_EQ(contentsOf(folder.filePath("b (2).txt")), "x");
    EXPECT_FALSE(linkAs(folder.filePath("absent"), folder.path(), "c"));
}

}  // namespace vantor
