// Movies and photos in pieces, put together by the command.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>

#include "tests/cli/CommandRun.h"
#include "tests/cli/Saved.h"
#include "tests/repair/Movies.h"
#include "tests/repair/Photos.h"

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

// The first half of each, then their second halves; the first begins at kFirstAt.
QByteArray cardOfHalves(const QByteArray& one, const QByteArray& other) {
    QByteArray card(kFirstAt, '\0');
    for (const bool second : {false, true}) {
        for (const QByteArray& photo : {one, other}) {
            const qsizetype half = photo.size() / 2 / kClusterBytes * kClusterBytes;
            const QByteArray piece = second ? photo.mid(half) : photo.left(half);
            card +=
                piece.leftJustified((piece.size() + kClusterBytes - 1) / kClusterBytes * kClusterBytes, '\0');
        }
    }
    return card + QByteArray(64 * kClusterBytes, '\0');
}

class CompleteCommand : public ::testing::Test {
  protected:
    CommandRun complete(const QByteArray& card, const QString& mode = QStringLiteral("video")) {
        QFile file(m_folder.filePath("card.img"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(card) == card.size());
        file.close();
        return runCommand({"--mode", mode, "--save", saved(), "--complete", file.fileName()});
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

TEST_F(CompleteCommand, PhotosCrossed_ComeBackToTheByte) {
    const QByteArray one = test::makePhoto(1);
    const QByteArray other = test::makePhoto(2);
    const CommandRun run = complete(cardOfHalves(one, other), QStringLiteral("photo"));
    ASSERT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_TRUE(run.out.contains("2 of 2 broken photos completed, 0 more put together"))
        << run.out.constData();
    EXPECT_TRUE(run.out.contains("complete, from 2 pieces")) << run.out.constData();
    EXPECT_TRUE(QFile::exists(saved() + "/JPG/GND00001.JPG")) << "the photo as it is";
    EXPECT_EQ(contentsOf(saved() + "/JPG/GND00001 complete.JPG"), one);
    EXPECT_EQ(contentsOf(saved() + "/JPG/GND00002 complete.JPG"), other);
}

TEST_F(CompleteCommand, PhotoWithItsContinuationGone_IsNotCalledComplete) {
    const QByteArray one = test::makePhoto(1);
    const QByteArray other = test::makePhoto(2);
    QByteArray card = cardOfHalves(one, other);
    const qsizetype gone =
        kFirstAt + (one.size() / 2 / kClusterBytes + other.size() / 2 / kClusterBytes + 2) * kClusterBytes;
    card.replace(gone, 2 * kClusterBytes, QByteArray(2 * kClusterBytes, '\0'));
    const CommandRun run = complete(card, QStringLiteral("photo"));
    ASSERT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_TRUE(run.out.contains("1 of 2 broken photos completed, 0 more put together"))
        << run.out.constData();
    EXPECT_FALSE(QFile::exists(saved() + "/JPG/GND00001 complete.JPG"));
    EXPECT_EQ(contentsOf(saved() + "/JPG/GND00002 complete.JPG"), other);
}

TEST_F(CompleteCommand, PhotoMode_SaysThatItFindsNoMovies) {
    const CommandRun run = complete(cardInTurns(m_one.bytes, m_other.bytes), QStringLiteral("photo"));
    ASSERT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_TRUE(run.out.contains("Movies are not searched for in photo mode, so none is completed"))
        << run.out.constData();
    EXPECT_FALSE(run.out.contains("broken movies")) << run.out.constData();
}

}  // namespace vantor
