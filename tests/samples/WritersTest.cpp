// The bricks that the card's files are made of.
#include <gtest/gtest.h>

#include <QByteArray>
#include <QImage>
#include <QtEndian>
#include <algorithm>

#include "samples/Checksums.h"
#include "samples/Deflate.h"
#include "samples/Fixed.h"
#include "samples/JpegEncoder.h"
#include "samples/PictureWriters.h"
#include "samples/Random.h"
#include "samples/Scenes.h"

namespace vantor::samples {
namespace {

QByteArray unpacked(const QByteArray& zlib, qsizetype size) {
    QByteArray framed(4, '\0');
    qToBigEndian(static_cast<quint32>(size), framed.data());
    return qUncompress(framed + zlib);
}

TEST(SampleRandom, FirstNumbers_AreThoseOfTheReference) {
    Random random(1234567);
    EXPECT_EQ(random.next(), 6457827717110365317u);
    EXPECT_EQ(random.next(), 3203168211198807973u);
    EXPECT_EQ(random.next(), 9817491932198370423u);
}

TEST(SampleChecksums, CheckWord_GivesThePublishedValues) {
    EXPECT_EQ(crc32("123456789"), 0xCBF43926u);
    EXPECT_EQ(adler32("Wikipedia"), 0x11E60398u);
    EXPECT_EQ(plainCrc("123456789", 32, 0x04C11DB7, 0xFFFFFFFF), 0x0376E6E7u);
    EXPECT_EQ(plainCrc("123456789", 16, 0x8005, 0), 0xFEE8u);
    EXPECT_EQ(plainCrc("123456789", 8, 0x07, 0), 0xF4u);
}

TEST(SampleDeflate, AnyBytes_ComeBackUnchanged) {
    Random random(5);
    for (int round = 0; round < 60; ++round) {
        QByteArray bytes;
        const int size = random.between(0, 90000);
        const int alphabet = random.between(1, 256);
        while (bytes.size() < size) {
            if (random.between(0, 3) == 0 && bytes.size() > 10)
                bytes +=
                    bytes.mid(random.between(0, static_cast<int>(bytes.size()) - 1), random.between(1, 600));
            bytes += static_cast<char>(random.between(0, alphabet - 1));
        }
        ASSERT_TRUE(unpacked(zlibStream(bytes), bytes.size()) == bytes) << round;
    }
}

TEST(SampleDeflate, Repetition_IsPacked) {
    EXPECT_LT(deflate(QByteArray("sun, sand and sea; ").repeated(500)).size(), 19 * 500 / 40);
}

TEST(SampleFixed, SquareRoot_IsTheWholePart) {
    EXPECT_EQ(squareRoot(-5), 0);
    for (const std::int64_t root : {0LL, 1LL, 7LL, 255LL, 46341LL, 3037000498LL}) {
        EXPECT_EQ(squareRoot(root * root), root);
        EXPECT_EQ(squareRoot(root * root + 2 * root), root);
    }
}

TEST(SampleFixed, Sine_RunsThroughItsTurningPoints) {
    EXPECT_EQ(sine(0), 0);
    EXPECT_EQ(sine(kHalfTurn / 2), kUnity);
    EXPECT_EQ(sine(kHalfTurn), 0);
    EXPECT_EQ(sine(-kHalfTurn / 2), -kUnity);
    EXPECT_NEAR(sine(kFullTurn / 12), kUnity / 2, kUnity / 400);
}

TEST(SampleJpeg, FinestQuality_ComesBackAlmostExactly) {
    const Picture picture = testCard(203, 151);  // no multiple of a block
    JpegOptions options;
    options.quality = 100;
    options.sampling = ChromaSampling::Full;
    options.restartInterval = 3;
    const QImage image = QImage::fromData(encodeJpeg(picture, options));
    ASSERT_EQ(image.size(), QSize(203, 151));
    int worst = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const QRgb seen = image.pixel(x, y);
            const std::uint8_t* p = picture.pixel(x, y);
            worst = std::max(
                {worst, qAbs(qRed(seen) - p[0]), qAbs(qGreen(seen) - p[1]), qAbs(qBlue(seen) - p[2])});
        }
    }
    EXPECT_LE(worst, 6);
}

TEST(SampleGif, ManyColours_OutgrowTheCodeTableAndStillDecode) {
    const Picture picture = sceneNamed("meadow").paint(500, 375);
    const QImage image = QImage::fromData(gifFile({picture}, 0));
    ASSERT_EQ(image.size(), QSize(500, 375));
    qint64 sum = 0;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            sum += qAbs(qGreen(image.pixel(x, y)) - picture.pixel(x, y)[1]);
    EXPECT_LT(sum / (500 * 375), 26);  // half a step of the palette
}

TEST(SampleScenes, EveryMotif_HasAName_AndIsMoreThanOneColour) {
    EXPECT_GE(scenes().size(), 24u);
    for (const Scene& scene : scenes()) {
        EXPECT_EQ(&sceneNamed(scene.name), &scene);
        const Picture picture = scene.paint(64, 48);
        const auto [low, high] = std::minmax_element(picture.rgb.begin(), picture.rgb.end());
        EXPECT_GT(*high - *low, 100) << scene.name;
    }
}

}  // namespace
}  // namespace vantor::samples
