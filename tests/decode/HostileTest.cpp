// Bytes that break decoders: nothing of it may reach the program, and sound pictures must still come
// afterwards.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <random>
#include <thread>

#include "decode/DecodePool.h"
#include "decode/ThumbnailQueue.h"
#include "tests/decode/Fixtures.h"

namespace vantor {
namespace {

using namespace test;
using std::chrono::milliseconds;
using std::chrono::seconds;

void expectSoundPool(DecodePool& pool) {
    EXPECT_FALSE(pool.thumbnail(encoded(twoColours({640, 480}), "jpeg")).isEmpty());
    // A helper never leaves by itself: under a sanitizer that would be a finding in our own code.
    EXPECT_EQ(pool.counts().exited, 0U);
    EXPECT_EQ(pool.counts().badAnswers, 0U);
}

TEST(Hostile, CorpusOfBrokenFiles_LeavesThePoolSound) {
    if (corpusFolder().isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    DecodePoolOptions options = poolOptions(2);
    options.thumbnailDeadline = options.pictureDeadline = seconds(2);
    DecodePool pool(options);
    const QStringList files = filesBelow(corpusFolder() + QStringLiteral("/files/hostile"));
    ASSERT_FALSE(files.isEmpty());
    for (const QString& path : files) {
        const QByteArray thumbnail = pool.thumbnail(bytesOfFile(path));
        const DecodedPicture picture = pool.picture(path, {200, 200});
        const QImage decoded = QImage::fromData(thumbnail);
        EXPECT_LE(std::max(decoded.width(), decoded.height()), kThumbnailSide) << path.toStdString();
        EXPECT_LE(std::max(picture.image.width(), picture.image.height()), 200) << path.toStdString();
    }
    expectSoundPool(pool);
}

TEST(Hostile, MutatedPictures_ComeInOrderAndLeaveThePoolSound) {
    if (corpusFolder().isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    constexpr qint64 kLargestSeed = 64 * 1024;
    constexpr int kMutations = 6000;
    std::vector<QByteArray> seeds;
    for (const QString& path : filesBelow(corpusFolder() + QStringLiteral("/photos"))) {
        if (QFileInfo(path).size() <= kLargestSeed && QFileInfo(path).size() > 0) {
            seeds.push_back(bytesOfFile(path));
        }
    }
    ASSERT_GT(seeds.size(), 20U);
    DecodePoolOptions options = poolOptions(2);
    options.thumbnailDeadline = milliseconds(1000);
    DecodePool pool(options);
    std::vector<int> order;
    int shown = 0;
    {
        ThumbnailQueue queue([&](const QByteArray& bytes,
                                 const QString& extension) { return pool.thumbnail(bytes, extension); },
                             {.workers = 2});
        std::mt19937 random(20240607);
        for (int i = 0; i < kMutations; ++i) {
            queue.submit(mutated(seeds[static_cast<std::size_t>(i) % seeds.size()], random),
                         [&, i](const QByteArray& thumbnail) {
                             order.push_back(i);
                             shown += !thumbnail.isEmpty();
                         });
        }
        queue.flush();
    }
    ASSERT_EQ(order.size(), static_cast<std::size_t>(kMutations));
    EXPECT_TRUE(std::ranges::is_sorted(order));
    EXPECT_GT(shown, kMutations / 10);
    const DecodePoolCounts counts = pool.counts();
    RecordProperty("crashed", static_cast<int>(counts.crashed));
    RecordProperty("late", static_cast<int>(counts.late));
    expectSoundPool(pool);
}

// Somebody who has taken a helper over can say what he likes.
TEST(Hostile, AnswersThatNoHelperGives_AreNotBelieved) {
    const QTemporaryDir folder;
    const auto picture = [&](const char* lie) {
        DecodePoolOptions options = poolOptions(1);
        options.helper = folder.filePath(QLatin1String(lie));
        QFile::link(QStringLiteral(VANTOR_LYING_HELPER), options.helper);
        DecodePool pool(options);
        const QImage shown = pool.picture(QByteArray("any bytes"), {200, 200}).image;
        EXPECT_EQ(pool.counts().badAnswers, shown.isNull() ? 1U : 0U) << lie;
        return shown;
    };
    EXPECT_EQ(picture("truth").size(), QSize(1, 1)) << "but for the lie it would be believed";
    for (const char* lie :
         {"width", "height", "nowidth", "noheight", "serial", "magic", "status", "length"}) {
        EXPECT_TRUE(picture(lie).isNull()) << lie;
    }
}

// The size fields of a JPEG's frame header, wherever it stands.
QByteArray jpegClaiming(std::uint16_t width, std::uint16_t height) {
    QByteArray bytes = encoded(twoColours({64, 64}), "jpeg");
    const qsizetype frame = bytes.indexOf("\xff\xc0");
    bytes[frame + 5] = static_cast<char>(height >> 8);
    bytes[frame + 6] = static_cast<char>(height);
    bytes[frame + 7] = static_cast<char>(width >> 8);
    bytes[frame + 8] = static_cast<char>(width);
    return bytes;
}

TEST(Hostile, HugeClaims_NeitherHangNorFillTheMemory) {
    DecodePoolOptions options = poolOptions(1);
    options.thumbnailDeadline = seconds(3);
    DecodePool pool(options);
    pool.thumbnail(jpegClaiming(65535, 65535));

    QByteArray png = encoded(twoColours({64, 64}), "png");
    png.replace(16, 8, QByteArray("\0\1\0\0\0\1\0\0", 8));
    EXPECT_TRUE(pool.thumbnail(png).isEmpty());

    QByteArray bmp = encoded(twoColours({64, 64}), "bmp");
    bmp.replace(18, 8, QByteArray("\0\0\1\0\0\0\1\0", 8));
    EXPECT_TRUE(pool.thumbnail(bmp).isEmpty());
    expectSoundPool(pool);
}

}  // namespace
}  // namespace vantor
