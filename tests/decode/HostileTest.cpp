// Bytes that break decoders: nothing of it may reach the program, and sound pictures must still come
// afterwards.
#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <random>
#include <thread>

#include "decode/DecodePool.h"
#include "decode/ThumbnailQueue.h"
#include "decode/helper/CrowdedJpeg.h"
#include "formats/Crc.h"
#include "tests/decode/Fixtures.h"

namespace vantor {
namespace {

using namespace test;
using std::chrono::milliseconds;
using std::chrono::seconds;

void expectSoundPool(DecodePool& pool) {
    EXPECT_FALSE(pool.picture(encoded(twoColours({640, 480}), "jpeg"), {200, 200}).image.isNull());
    // A helper never leaves by itself: under a sanitizer that would be a finding in our own code.
    EXPECT_EQ(pool.counts().exited, 0U);
    EXPECT_EQ(pool.counts().badAnswers, 0U);
}

TEST(Hostile, CorpusOfBrokenFiles_LeavesThePoolSound) {
    if (corpusFolder().isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    DecodePoolOptions options = poolOptions(2);
    options.thumbnailDeadline = seconds(2);
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

QByteArray bigEndian(std::uint32_t value) {
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes.append(static_cast<char>(value >> shift));
    }
    return bytes;
}

// The size fields of a JPEG's frame header, wherever it stands.
QByteArray jpegClaiming(int side) {
    QByteArray bytes = encoded(twoColours({64, 64}), "jpeg");
    const qsizetype frame = bytes.indexOf("\xff\xc0");
    const QByteArray both = bigEndian(static_cast<std::uint32_t>(side)).last(2);
    return bytes.replace(frame + 5, 4, both + both);
}

// With bytes enough for the first rows of what they claim to be.
QByteArray claimant(const char* format) {
    return encoded(twoColours({600, 600}), format);
}

// The header with a sum of its own that is right, since a reader looks at that first.
QByteArray pngClaiming(int side) {
    constexpr qsizetype kHeader = 12, kHeaderBytes = 17;
    QByteArray bytes = claimant("png");
    const QByteArray claim = bigEndian(static_cast<std::uint32_t>(side));
    bytes.replace(kHeader + 4, 8, claim + claim);
    const auto* header = reinterpret_cast<const std::uint8_t*>(bytes.constData()) + kHeader;
    return bytes.replace(kHeader + kHeaderBytes, 4, bigEndian(crc32(0, {header, kHeaderBytes})));
}

QByteArray bmpClaiming(int side) {
    QByteArray bytes = claimant("bmp");
    QByteArray claim = bigEndian(static_cast<std::uint32_t>(side));
    std::ranges::reverse(claim);
    return bytes.replace(18, 8, claim + claim);
}

// Within the limit, so that it is by their claims alone that the others fail.
constexpr int kLargeSide = 14200;
// Of these the first would still fit the memory that a helper may have.
constexpr std::array kTooLargeSides{15000, 65000};

TEST(Hostile, HugeClaims_AreRefusedForTheirSize) {
    // With time to fill all that is claimed, so that it is not the deadline that refuses.
    DecodePool pool(poolOptions(1));
    for (const auto& claiming : {pngClaiming, bmpClaiming}) {
        SCOPED_TRACE(claiming == pngClaiming ? "PNG" : "BMP");
        EXPECT_FALSE(pool.thumbnail(claiming(kLargeSide)).isEmpty());
        for (const int side : kTooLargeSides) {
            EXPECT_TRUE(pool.thumbnail(claiming(side)).isEmpty()) << side;
        }
    }
    EXPECT_EQ(pool.counts().started, 1U) << "the helper refused by itself";
    expectSoundPool(pool);
}

// A JPEG is read at an eighth of its size, which any claim fits.
TEST(Hostile, HugeClaimOfAJpeg_ShowsWhatIsThere) {
    DecodePool pool(poolOptions(1));
    const QImage shown = QImage::fromData(pool.thumbnail(jpegClaiming(65500)));
    EXPECT_EQ(shown.size(), QSize(kThumbnailSide, kThumbnailSide));
    EXPECT_EQ(pool.counts().started, 1U);
    expectSoundPool(pool);
}

// As many as fit some megabytes; the JPEG library takes minutes over them.
QByteArray jpegWithSegments(int count, std::uint8_t marker, QByteArrayView where) {
    QByteArray segments;
    for (int i = 0; i < count; ++i) {
        segments.append('\xff').append(static_cast<char>(marker)).append(QByteArray("\0\x04hi", 4));
    }
    QByteArray bytes = encoded(twoColours({64, 48}), "jpeg");
    return bytes.insert(bytes.indexOf(where), segments);
}

TEST(Hostile, JpegOfMoreSegmentsThanAreOfUse_IsShownAllTheSame) {
    constexpr int kCrowd = 700'000;
    DecodePool pool(poolOptions(1));
    for (const int marker : {0xFE, 0xE1, 0xE2}) {
        const QByteArray crowded =
            jpegWithSegments(kCrowd, static_cast<std::uint8_t>(marker), QByteArrayView("\xff\xdb", 2));
        EXPECT_EQ(QImage::fromData(pool.thumbnail(crowded)).size(), QSize(64, 48)) << marker;
    }
    EXPECT_EQ(pool.counts().late, 0U);
    expectSoundPool(pool);
}

int keptSegments(const QByteArray& jpeg) {
    return static_cast<int>(jpeg.count("\xff\xfe") + jpeg.count("\xff\xe1") + jpeg.count("\xff\xe2"));
}

TEST(Hostile, SegmentsOfAJpeg_AreKeptUpToANumber) {
    using decode::kMostKeptSegments;
    const QByteArrayView tables("\xff\xdb", 2);
    const QByteArray few = jpegWithSegments(kMostKeptSegments, 0xFE, tables);
    EXPECT_EQ(decode::withoutCrowd(few).constData(), few.constData()) << "nothing is copied";
    for (const QByteArrayView where : {tables, QByteArrayView("\xff\xd9", 2)}) {
        const QByteArray many = jpegWithSegments(kMostKeptSegments + 5, 0xE1, where);
        const QByteArray thinned = decode::withoutCrowd(many);
        EXPECT_EQ(keptSegments(thinned), kMostKeptSegments);
        EXPECT_EQ(thinned.size(), many.size());
    }
    // Every beginning of one, down to nothing.
    const QByteArray whole = jpegWithSegments(3, 0xFE, tables);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(decode::withoutCrowd(whole.first(length)), whole.first(length));
    }
}

}  // namespace
}  // namespace vantor
