// Kinds of pictures that few programs write, made up here: light as it falls, tables of numbers, and
// PostScript that brings a picture for the screen.
#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include "decode/DecodePool.h"
#include "tests/decode/Fixtures.h"

namespace vantor {
namespace {

using namespace test;

constexpr int kWidth = 64;
constexpr int kHeight = 32;

class PlainFormats : public testing::Test {
  protected:
    // Of the size that the test writes; red at the top left, and another colour at the bottom right.
    void expectColours(const QByteArray& bytes, QColor first, QColor last) {
        const DecodedPicture shown = pool.picture(bytes, {200, 200});
        ASSERT_EQ(shown.image.size(), QSize(kWidth, kHeight));
        EXPECT_TRUE(isNear(shown.image.pixel(4, 4), first)) << std::hex << shown.image.pixel(4, 4);
        EXPECT_TRUE(isNear(shown.image.pixel(kWidth - 4, kHeight - 4), last))
            << std::hex << shown.image.pixel(kWidth - 4, kHeight - 4);
    }
    bool isShown(const QByteArray& bytes) { return !pool.picture(bytes, {200, 200}).image.isNull(); }

    DecodePool pool{poolOptions(1)};
};

constexpr char kRadianceHead[] = "#?RADIANCE\nFORMAT=32-bit_rle_rgbe\nEXPOSURE=1\n\n-Y 32 +X 64\n";

QByteArray times(int count, int byte) {
    return QByteArray(count, static_cast<char>(byte));
}

// Runs and bytes as they are, in one row: the left half red, the right half blue, at full light.
QByteArray radianceRow() {
    const auto run = [](int count, int byte) { return times(1, 128 + count) + times(1, byte); };
    return QByteArray("\2\2\0\x40", 4) + run(32, 128) + times(1, 32) + times(32, 0) + run(64, 0) +
           run(32, 0) + run(32, 128) + run(64, 129);
}

TEST_F(PlainFormats, RadiancePictures_AreShownAsBrightAsTheyAre) {
    const QByteArray head = kRadianceHead;
    expectColours(head + radianceRow().repeated(kHeight), Qt::red, Qt::blue);
    // Without packing.
    const QByteArray red("\x80\0\0\x81", 4), blue("\0\0\x80\x81", 4);
    const QByteArray row = red.repeated(kWidth / 2) + blue.repeated(kWidth / 2);
    expectColours(head + row.repeated(kHeight), Qt::red, Qt::blue);
    expectColours(QByteArray(head).replace("#?RADIANCE", "#?RGBE") + row.repeated(kHeight), Qt::red,
                  Qt::blue);
    // A fifth of the light is half as bright on a screen.
    const QByteArray grey = QByteArray("\x6e\x6e\x6e\x7f", 4).repeated(kWidth * kHeight);
    expectColours(head + grey, QColor(128, 128, 128), QColor(128, 128, 128));
}

TEST_F(PlainFormats, RadiancePicturesCutShort_ShowWhatTheyHave) {
    const QByteArray whole = kRadianceHead + radianceRow().repeated(kHeight);
    expectColours(whole.left(whole.size() / 2), Qt::red, Qt::black);
    EXPECT_FALSE(isShown(kRadianceHead));
    EXPECT_FALSE(isShown("#?RADIANCE\n\n-Y 70000 +X 70000\n" + radianceRow()));
    EXPECT_FALSE(isShown("#?RADIANCE\n\n+X 64 -Y 32\n" + radianceRow()));
    EXPECT_FALSE(isShown("#?RADIANCE\n" + QByteArray(200'000, '\n').replace('\n', 'x')));
}

QByteArray floats(std::initializer_list<float> values) {
    QByteArray bytes;
    for (const float value : values) {
        std::array<char, sizeof value> raw;
        std::memcpy(raw.data(), &value, sizeof value);
        bytes.append(raw.data(), raw.size());
    }
    return bytes;
}

TEST_F(PlainFormats, FloatMaps_BeginAtTheBottom) {
    const QByteArray blue = floats({0, 0, 1}).repeated(kWidth), red = floats({1, 0, 0}).repeated(kWidth);
    const QByteArray rows = blue.repeated(kHeight / 2) + red.repeated(kHeight / 2);
    expectColours("PF\n64 32\n-1.0\n" + rows, Qt::red, Qt::blue);
    QByteArray swapped = rows;
    for (qsizetype i = 0; i < swapped.size(); i += 4) {
        std::reverse(swapped.begin() + i, swapped.begin() + i + 4);
    }
    expectColours("PF\n64 32\n1.0\n" + swapped, Qt::red, Qt::blue);
    expectColours("Pf\n64 32\n-1.0\n" + floats({7}).repeated(kWidth * kHeight), Qt::white, Qt::white);
    // What the bytes end before is black.
    expectColours("PF\n64 32\n-1.0\n" + blue.repeated(kHeight / 2), Qt::black, Qt::blue);
    EXPECT_FALSE(isShown("PF\n64 32\n-1.0\n"));
    EXPECT_FALSE(isShown("PF\n0 32\n-1.0\n" + rows));
    EXPECT_FALSE(isShown("PF\n64 32\n0\n" + rows));
    EXPECT_FALSE(isShown("PF\n64000 32000\n-1\n" + rows));
}

TEST_F(PlainFormats, Fits_ShowsItsFirstTable) {
    QByteArray head;
    for (const char* card : {"SIMPLE  =                    T", "BITPIX  =                    8",
                             "NAXIS   =                    2", "NAXIS1  =                   64",
                             "NAXIS2  =                   32", "END"}) {
        head += QByteArray(card).leftJustified(80);
    }
    // The first row is the lowest.
    const QByteArray rows = times(kWidth * kHeight / 2, 0) + times(kWidth * kHeight / 2, 255);
    expectColours(head.leftJustified(2880) + rows.leftJustified(2880, '\0'), Qt::white, Qt::black);
    EXPECT_FALSE(isShown(head.leftJustified(2880)));
    EXPECT_FALSE(isShown(head.left(160)));
}

TEST_F(PlainFormats, PostScriptWithAPictureForTheScreen_ShowsThat) {
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    image.fill(Qt::green);
    const QByteArray tiff = encoded(image, "tiff");
    ASSERT_FALSE(tiff.isEmpty());
    const auto number = [](qsizetype value) {
        return QByteArray(1, static_cast<char>(value)) + QByteArray(1, static_cast<char>(value >> 8)) +
               QByteArray(2, '\0');
    };
    const QByteArray script = "%!PS-Adobe-3.0 EPSF-3.0\n";
    const auto epsWith = [&](qsizetype at, qsizetype length) {
        return "\xc5\xd0\xd3\xc6" + number(32) + number(script.size()) + number(0) + number(0) + number(at) +
               number(length) + "\xff\xff" + QByteArray(2, '\0') + script + tiff;
    };
    const qsizetype at = 32 + script.size();
    expectColours(epsWith(at, tiff.size()), Qt::green, Qt::green);
    expectColours(epsWith(at, tiff.size() + 9999), Qt::green, Qt::green);
    EXPECT_FALSE(isShown(epsWith(0, 0)));
    EXPECT_FALSE(isShown(epsWith(60'000, tiff.size())));
    EXPECT_FALSE(isShown("\xc5\xd0\xd3\xc6"));
}

TEST_F(PlainFormats, Damaged_LeaveTheHelperAlive) {
    const QByteArray radiance = kRadianceHead + radianceRow().repeated(kHeight);
    const QByteArray floatMap = "PF\n64 32\n-1.0\n" + floats({1, 0, 0}).repeated(kWidth * kHeight);
    std::mt19937 random(3);
    for (int i = 0; i < 600; ++i) {
        pool.picture(mutated(i % 2 == 0 ? radiance : floatMap, random), {200, 200});
    }
    EXPECT_EQ(pool.counts().started, 1U) << "none of them broke our own decoders";
}

}  // namespace
}  // namespace vantor
