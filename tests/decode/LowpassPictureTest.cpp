// Streams in the VC-5 compression, made up here: what their coarsest bands show, and what broken ones do not.
#include <gtest/gtest.h>

#include "decode/helper/ByteSpan.h"
#include "decode/helper/LowpassPicture.h"
#include "tests/decode/Fixtures.h"
#include "tests/decode/SensorPicture.h"

namespace vantor {
namespace {

using namespace test;

constexpr int kMiddle = 2048;

QByteArray pair(int tag, int value) {
    const auto word = [](int number) {
        return QByteArray(1, static_cast<char>(number >> 8)) + static_cast<char>(number);
    };
    return word(tag) + word(value);
}

// A plane of two samples: the left and the right one, which three halvings have made four times as large.
QByteArray plane(int number, int left, int right) {
    const QByteArray samples = pair(4 * left, 4 * right);
    return pair(62, number) + pair(48, 0) + pair(35, 16) + pair(-0x6000, 1) + samples +
           // The next band, which nobody reads.
           pair(48, 1) + pair(-0x6000, 2) + QByteArray(8, '\x3e');
}

QByteArray streamWith(const QByteArray& planes) {
    return "VC-5" + pair(20, 32) + pair(21, 16) + pair(84, 4) + pair(102, 12) + pair(-109, 0x2800) + planes;
}

// Red to the left, grey to the right.
QByteArray redAndGrey() {
    return plane(0, 1000, 3000) + plane(1, kMiddle + 1000, kMiddle) + plane(2, kMiddle - 500, kMiddle) +
           plane(3, kMiddle, kMiddle);
}

QByteArray dngAround(const QByteArray& stream) {
    TiffWriter tiff;
    tiff.longTag(0x0100, 32);
    tiff.longTag(0x0101, 16);
    tiff.shortTag(0x0103, 9);
    tiff.shortTag(0x0106, 32803);
    tiff.longTag(0x0144, TiffWriter::kPixelsAt);
    tiff.longTag(0x0145, static_cast<std::uint32_t>(stream.size()));
    return tiff.finish(stream);
}

QImage lowpassOf(const QByteArray& file) {
    SpanSource source(decode::spanOf(file));
    ByteView view(source);
    return QImage::fromData(decode::lowpassPicture(view), "ppm");
}

TEST(LowpassPicture, CoarsestBand_IsShownInItsColours) {
    const QImage shown = lowpassOf(dngAround(streamWith(redAndGrey())));
    ASSERT_EQ(shown.size(), QSize(2, 1));
    EXPECT_GT(qRed(shown.pixel(0, 0)), qGreen(shown.pixel(0, 0)) + 50);
    EXPECT_GT(qGreen(shown.pixel(0, 0)), qBlue(shown.pixel(0, 0)) + 20);
    const QRgb grey = shown.pixel(1, 0);
    EXPECT_EQ(qRed(grey), qGreen(grey));
    EXPECT_EQ(qBlue(grey), qGreen(grey));
    EXPECT_GT(qGreen(grey), 100);
}

TEST(LowpassPicture, BrokenStreams_ShowNothing) {
    const QByteArray good = streamWith(redAndGrey());
    ASSERT_FALSE(lowpassOf(dngAround(good)).isNull());
    const auto isShown = [](const QByteArray& stream) { return !lowpassOf(dngAround(stream)).isNull(); };
    const auto without = [&](const QByteArray& what) { return QByteArray(good).replace(what, pair(12, 0)); };
    EXPECT_FALSE(isShown(without("VC-5")));
    EXPECT_FALSE(isShown(without(pair(20, 32)))) << "no width";
    EXPECT_FALSE(isShown(without(pair(102, 12)))) << "samples of no size";
    EXPECT_FALSE(isShown(without(pair(35, 16)))) << "samples of another width";
    EXPECT_FALSE(isShown(QByteArray(good).replace(pair(20, 32), pair(20, 65535)))) << "wider than its block";
    EXPECT_FALSE(isShown(QByteArray(good).replace(pair(62, 3), pair(62, 9)))) << "no fourth plane";
    EXPECT_FALSE(isShown(QByteArray(good).insert(good.indexOf(pair(62, 3)), pair(20, 16))))
        << "narrower later";
    EXPECT_FALSE(isShown(QByteArray(good).replace(pair(62, 3), pair(21, 0) + pair(62, 3))))
        << "no rows later";
    EXPECT_FALSE(isShown(good.left(good.indexOf(pair(62, 2)) + 14))) << "cut within the third plane";
    EXPECT_TRUE(isShown(good.left(good.indexOf(pair(62, 3)) + 20))) << "cut behind the last";
}

TEST(LowpassPicture, DamagedStreams_EndInAPictureOrInNone) {
    const QByteArray good = dngAround(streamWith(redAndGrey()));
    std::mt19937 random(5);
    int shown = 0;
    for (int i = 0; i < 3000; ++i) {
        shown += !lowpassOf(mutated(good, random)).isNull();
    }
    EXPECT_GT(shown, 300);
    EXPECT_LT(shown, 3000);
}

}  // namespace
}  // namespace vantor
