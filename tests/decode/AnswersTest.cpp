// Answers of helpers that are somebody else's: nothing in them is calculated with before it is in its range.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <cstring>
#include <random>

#include "decode/AnswerCheck.h"
#include "decode/DecodePool.h"
#include "decode/MovieReader.h"
#include "decode/Sanitized.h"
#include "decode/SharedPixels.h"
#include "decode/SoundReader.h"
#include "tests/decode/MovieFixtures.h"

namespace vantor {
namespace {

using namespace test;
using decode::Answer;
using decode::AnswerStatus;
using decode::Request;
using decode::RequestKind;

Request requestOf(RequestKind kind) {
    Request request;
    request.kind = kind;
    request.serial = 7;
    request.maxWidth = 200;
    request.maxHeight = 150;
    return request;
}

Answer honest() {
    Answer answer;
    answer.status = AnswerStatus::Ok;
    answer.serial = 7;
    answer.width = 200;
    answer.height = 1;
    answer.fullWidth = 65535;
    answer.fullHeight = 300;
    answer.flags = decode::kPartial | decode::kHasAlpha | decode::kHasSound;
    answer.timeMs = -20;
    answer.durationMs = 5000;
    return answer;
}

TEST(Answers, OfHonestHelpers_ArriveAsTheyAre) {
    for (const auto kind : {RequestKind::Picture, RequestKind::NextFrame, RequestKind::NextSound}) {
        const Answer sent = honest();
        const auto clean = decode::believed(requestOf(kind), sent);
        ASSERT_TRUE(clean);
        EXPECT_EQ(std::memcmp(&*clean, &sent, sizeof sent), 0);
    }
}

bool isInRange(const Request& request, const Answer& answer) {
    const bool sound = request.kind == RequestKind::OpenSound || request.kind == RequestKind::NextSound;
    const std::uint32_t least = answer.status == AnswerStatus::Ok ? 1 : 0;
    const auto year = std::int64_t{366} * 24 * 3600 * 1000;
    return answer.width >= least && answer.width <= request.maxWidth && answer.height >= least &&
           answer.height <= (sound ? 1 : request.maxHeight) && answer.fullWidth <= (1U << 24) &&
           answer.fullHeight <= (1U << 24) && (answer.flags & ~11U) == 0 && answer.reserved == 0 &&
           answer.timeMs >= -year && answer.timeMs <= year && answer.durationMs >= 0 &&
           answer.durationMs <= year;
}

// Any bits for an answer, its first fields now and then the right ones.
TEST(Answers, OfAnyBits_AreRefusedOrBroughtIntoRange) {
    std::mt19937_64 random(20261122);
    int accepted = 0;
    for (int i = 0; i < 300'000; ++i) {
        const Request request = requestOf(static_cast<RequestKind>(1 + random() % 6));
        Answer answer;
        for (std::size_t at = 0; at < sizeof answer; at += sizeof(std::uint64_t)) {
            const std::uint64_t bits = random() >> (random() % 64);
            std::memcpy(reinterpret_cast<char*>(&answer) + at, &bits, sizeof bits);
        }
        if (random() % 8 != 0) {
            answer.magic = decode::kMessageMagic;
            answer.serial = request.serial;
            answer.status = static_cast<AnswerStatus>(1 + random() % 5);
            answer.width = static_cast<std::uint32_t>(random() % 203);
            answer.height = static_cast<std::uint32_t>(random() % 153);
        }
        if (const auto clean = decode::believed(request, answer)) {
            ++accepted;
            ASSERT_TRUE(isInRange(request, *clean)) << i;
        }
    }
    EXPECT_GT(accepted, 50'000);
}

TEST(Answers, ColoursAboveTheirAlpha_AreHeldDown) {
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    reinterpret_cast<QRgb*>(image.scanLine(0))[0] = qRgba(255, 10, 200, 100);
    reinterpret_cast<QRgb*>(image.scanLine(0))[1] = qRgba(1, 2, 3, 0);
    decode::holdColoursBelowAlpha(image);
    EXPECT_EQ(reinterpret_cast<const QRgb*>(image.constScanLine(0))[0], qRgba(100, 10, 100, 100));
    EXPECT_EQ(reinterpret_cast<const QRgb*>(image.constScanLine(0))[1], qRgba(0, 0, 0, 0));
}

// The same through the sockets and everybody who reads answers.
class Liars : public testing::Test {
  protected:
    QString liar(int seed) {
        const QString path = m_folder.filePath(QStringLiteral("random-%1").arg(seed));
        QFile::link(QStringLiteral(VANTOR_LYING_HELPER), path);
        return path;
    }
    QString movie() {
        QFile file(m_folder.filePath(QStringLiteral("dprv.MOV")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("any bytes") > 0);
        return file.fileName();
    }
    MovieReaderOptions options(int seed) {
        MovieReaderOptions options = movieOptions();
        options.helper = liar(seed);
        return options;
    }

    static constexpr int kLiars = 150;
    QTemporaryDir m_folder;
};

void expectInTime(std::int64_t timeMs, std::int64_t least) {
    EXPECT_GE(timeMs, least);
    EXPECT_LE(timeMs, decode::kMostMs);
}

void expectReasonable(QSize full) {
    EXPECT_TRUE(full == QSize() || std::min(full.width(), full.height()) >= 0);
    EXPECT_LE(std::max(full.width(), full.height()), static_cast<int>(decode::kMostFullSide));
}

TEST_F(Liars, AboutPictures_GetNothingAbsurdThrough) {
    int shown = 0;
    for (int seed = 0; seed < kLiars; ++seed) {
        DecodePoolOptions options = poolOptions(1);
        options.helper = liar(seed);
        DecodePool pool(options);
        for (int i = 0; i < 3; ++i) {
            const DecodedPicture picture = pool.picture(QByteArray("any bytes"), {200, 150});
            EXPECT_LE(picture.image.width(), 200);
            EXPECT_LE(picture.image.height(), 150);
            expectReasonable(picture.fullSize);
            shown += !picture.image.isNull();
        }
    }
    EXPECT_GT(shown, kLiars / 2);
}

TEST_F(Liars, AboutMovies_GetNothingAbsurdThrough) {
    int frames = 0;
    for (int seed = 0; seed < kLiars; ++seed) {
        const auto reader = MovieReader::open(movie(), {200, 150}, options(seed));
        if (!reader) {
            continue;
        }
        expectInTime(reader->durationMs(), 0);
        expectReasonable(reader->fullSize());
        for (auto frame = std::optional(reader->poster()); frame && frames < 10'000; frame = reader->next()) {
            ++frames;
            expectInTime(frame->timeMs, 0);
            EXPECT_LE(frame->image.width(), 200);
            EXPECT_LE(frame->image.height(), 150);
        }
    }
    EXPECT_GT(frames, kLiars / 2);
}

TEST_F(Liars, AboutSound_GetNothingAbsurdThrough) {
    int pieces = 0;
    for (int seed = 0; seed < kLiars; ++seed) {
        const auto reader = SoundReader::open(movie(), options(seed));
        if (!reader) {
            continue;
        }
        expectInTime(reader->durationMs(), 0);
        for (auto piece = reader->next(); piece && pieces < 10'000; piece = reader->next()) {
            ++pieces;
            expectInTime(piece->timeMs, -decode::kMostMs);
            EXPECT_GE(piece->frames(), 1);
            EXPECT_LE(piece->frames(), kSoundFramesPerSecond / 10);
        }
    }
    EXPECT_GT(pieces, kLiars / 2);
}

TEST_F(Liars, WithoutACage_AreAskedForNothing) {
    if (decode::kSanitized) {
        GTEST_SKIP() << "the cage and the sanitizers exclude each other";
    }
    DecodePoolOptions options = poolOptions(1);
    options.helper = m_folder.filePath(QStringLiteral("uncaged"));
    QFile::link(QStringLiteral(VANTOR_LYING_HELPER), options.helper);
    DecodePool pool(options);
    EXPECT_TRUE(pool.picture(QByteArray("any bytes"), {200, 150}).image.isNull());
    EXPECT_EQ(pool.obstacle(), DecodeObstacle::NoCage);
    EXPECT_EQ(pool.counts().started, 0U);
    MovieReaderOptions movies = movieOptions();
    movies.helper = options.helper;
    EXPECT_FALSE(MovieReader::open(movie(), {200, 150}, movies));
}

}  // namespace
}  // namespace vantor
