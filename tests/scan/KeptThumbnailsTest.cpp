// Thumbnails kept beside a search: whatever became of the file, what comes out was put in.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <random>

#include "scan/KeptThumbnails.h"
#include "tests/support/Files.h"

namespace vantor {
namespace {

class KeptThumbnailsTest : public testing::Test {
  protected:
    static QByteArray thumbnail(int i) { return QByteArray(500 + i, static_cast<char>('a' + i % 26)); }
    static ThumbnailPlace place(int i) { return {static_cast<std::uint64_t>(1000 * i), 512}; }

    // How many of the first hundred it has, each as it was put in.
    static int countRight(const KeptThumbnails& kept) {
        int right = 0;
        for (int i = 0; i < 100; ++i) {
            const QByteArray found = kept.find(place(i));
            EXPECT_EQ(kept.contains(place(i)), !found.isEmpty());
            EXPECT_TRUE(found.isEmpty() || found == thumbnail(i));
            right += found.isEmpty() ? 0 : 1;
        }
        return right;
    }

    void keepHundred() {
        KeptThumbnails kept(path, "one");
        for (int i = 0; i < 100; ++i) {
            kept.add(place(i), thumbnail(i));
        }
        EXPECT_EQ(countRight(kept), 100);
    }

    void write(const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath("thumbnails");
};

TEST_F(KeptThumbnailsTest, WhateverIsNoFile_IsNeitherWaitedForNorWrittenThrough) {
    const QString other = folder.filePath("other");
    ASSERT_TRUE(QFile::link(other, path));
    keepHundred();
    EXPECT_FALSE(QFileInfo::exists(other));
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    keepHundred();
    EXPECT_EQ(countRight(KeptThumbnails(path, "one")), 100);
}

TEST_F(KeptThumbnailsTest, SameSearch_HasThemAgainAndGoesOn) {
    keepHundred();
    {
        KeptThumbnails kept(path, "one");
        EXPECT_EQ(countRight(kept), 100);
        kept.add({7, 7}, "more");
        kept.add({7, 7}, "another");
    }
    EXPECT_EQ(KeptThumbnails(path, "one").find({7, 7}), "more");
    EXPECT_TRUE(KeptThumbnails(path, "one").find({7, 8}).isEmpty());
    EXPECT_EQ(QFile(path).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

TEST_F(KeptThumbnailsTest, AnotherSearch_BeginsEmpty) {
    keepHundred();
    EXPECT_EQ(countRight(KeptThumbnails(path, "two")), 0);
    EXPECT_EQ(countRight(KeptThumbnails(path, "one")), 0);
}

TEST_F(KeptThumbnailsTest, FileCutAnywhere_KeepsWhatIsWholeInFront) {
    keepHundred();
    const QByteArray whole = contentsOf(path);
    std::mt19937 random(3);
    for (int round = 0; round < 50; ++round) {
        const auto length = static_cast<qsizetype>(random() % static_cast<unsigned>(whole.size()));
        write(whole.first(length));
        KeptThumbnails kept(path, "one");
        const int right = countRight(kept);
        EXPECT_GE(right + 1, length / 620);
        // What is added then is found behind them.
        kept.add(place(200), thumbnail(200));
        EXPECT_EQ(KeptThumbnails(path, "one").find(place(200)), thumbnail(200)) << length;
        EXPECT_EQ(countRight(KeptThumbnails(path, "one")), right);
    }
}

TEST_F(KeptThumbnailsTest, Garbage_GivesNothingThatWasNotPutIn) {
    keepHundred();
    const QByteArray whole = contentsOf(path);
    std::mt19937 random(4);
    int lost = 0;
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes = whole;
        bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] ^=
            static_cast<char>(1 + random() % 255);
        write(bytes);
        lost += 100 - countRight(KeptThumbnails(path, "one"));
    }
    EXPECT_GT(lost, 200);
}

TEST_F(KeptThumbnailsTest, FileIsBounded) {
    KeptThumbnails kept(path, "one");
    const QByteArray large(KeptThumbnails::kMostThumbnailBytes, 'x');
    for (int i = 0; i < 1100; ++i) {
        kept.add(place(i), large);
    }
    EXPECT_LE(QFile(path).size(), KeptThumbnails::kMostFileBytes);
    EXPECT_GT(QFile(path).size(), KeptThumbnails::kMostFileBytes - 2 * large.size());
    kept.add({5, 5}, large + 'x');
    EXPECT_FALSE(kept.contains({5, 5}));
}

TEST_F(KeptThumbnailsTest, PlaceThatCannotBeWritten_KeepsNothing) {
    KeptThumbnails kept(folder.filePath("no/such/folder"), "one");
    kept.add(place(1), thumbnail(1));
    EXPECT_TRUE(kept.find(place(1)).isEmpty());
}

}  // namespace
}  // namespace vantor
