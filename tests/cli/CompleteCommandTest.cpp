// Movies in pieces, put together by the command.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>

#include "tests/cli/CommandRun.h"
#include "tests/cli/Saved.h"
#include "tests/repair/Movies.h"

namespace vantor {
namespace {

constexpr qsizetype kClusterBytes = 4096;
constexpr qsizetype kFirstAt = 16 * kClusterBytes;

// The movies in turns of a cluster; the first begins at kFirstAt.
QByteArray cardInTurns(const QByteArray& one, const QByteArray& other) {
    QByteArray card(kFirstAt, '\0');
    for (qsizetype at = 0; at < std::max(one.size(), other.size()); at += kClusterBytes) {
        for (const QByteArray& movie : {one, other}) {
            card += movie.mid(at, kClusterBytes).leftJustified(kClusterBytes, '\0');
        }
    }
    return card + QByteArray(64 * kClusterBytes, '\0');
}

class CompleteCommand : public ::testing::Test {
  protected:
    CommandRun complete(const QByteArray& card) {
        QFile file(m_folder.filePath("card.img"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(card) == card.size());
        file.close();
        return runCommand({"--mode", "video", "--save", saved(), "--complete", file.fileName()});
    }
    QString saved() const { return m_folder.filePath("saved"); }

    const test::MadeMovie m_one = test::makeMovie(test::picturesOfManySizes(200, 1), false, 1);
    const test::MadeMovie m_other = test::makeMovie(test::picturesOfManySizes(180, 2), false, 2);

  private:
    const QTemporaryDir m_folder;
};

}  // namespace

TEST_F(CompleteCommand, MoviesInTurns_ComeBackToTheByte) {
    const CommandRun run = complete(cardInTurns(m_one.bytes, m_other.bytes));
    ASSERT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_TRUE(run.out.contains("2 of 2 broken movies completed, 0 more put together"))
        << run.out.constData();
    EXPECT_TRUE(QFile::exists(saved() + "/MP4/MP400001.MP4")) << "the movie as it is";
    EXPECT_EQ(contentsOf(saved() + "/MP4/MP400001 complete.MP4"), m_one.bytes);
    EXPECT_EQ(contentsOf(saved() + "/MP4/MP400002 complete.MP4"), m_other.bytes);
}

TEST_F(CompleteCommand, MovieWithAPieceGone_IsNotCalledComplete) {
    QByteArray card = cardInTurns(m_one.bytes, m_other.bytes);
    card.replace(kFirstAt + 20 * kClusterBytes, kClusterBytes, QByteArray(kClusterBytes, '\0'));
    const CommandRun run = complete(card);
    ASSERT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_TRUE(run.out.contains("1 of 2 broken movies completed")) << run.out.constData();
    EXPECT_FALSE(QFile::exists(saved() + "/MP4/MP400001 complete.MP4"));
    EXPECT_EQ(contentsOf(saved() + "/MP4/MP400002 complete.MP4"), m_other.bytes);
}

}  // namespace vantor
