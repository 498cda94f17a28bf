// TIFF structures with offsets of 32 and 64 bits, and the small pictures that files bring along for where the
// full one cannot be decoded.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "decode/DecodePool.h"
#include "decode/helper/ReducedPicture.h"
#include "tests/decode/Fixtures.h"

namespace vantor {
namespace {

using namespace test;

constexpr QSize kSize(6, 4);

QByteArray number(std::uint64_t value, int bytes) {
    QByteArray text;
    for (int i = 0; i < bytes; ++i) {
        text.append(static_cast<char>(value >> (8 * i)));
    }
    return text;
}

enum class Offsets { Of32Bits, Of64Bits };
enum class Content { Finished, SensorData };

// Grey all over; one tag makes a camera's raw file of it that nobody can develop.
QByteArray greyTiff(Offsets offsets, Content content) {
    constexpr int kPixelsAt = 1024;
    const bool big = offsets == Offsets::Of64Bits;
    QList<QByteArray> entries;
    const auto add = [&](std::uint16_t tag, std::uint16_t type, std::uint64_t count, int value) {
        const int word = big ? 8 : 4;
        entries.append(number(tag, 2) + number(type, 2) + number(count, word) +
                       number(static_cast<std::uint64_t>(value), word));
    };
    add(0x0100, 3, 1, kSize.width());
    add(0x0101, 3, 1, kSize.height());
    add(0x0102, 3, 1, 8);
    add(0x0103, 3, 1, 1);
    add(0x0106, 3, 1, 1);
    add(0x0111, 4, 1, kPixelsAt);
    add(0x0115, 3, 1, 1);
    add(0x0116, 3, 1, kSize.height());
    add(0x0117, 4, 1, kSize.width() * kSize.height());
    if (content == Content::SensorData) {
        add(0xc612, 1, 4, 0x0401);
    }
    QByteArray bytes =
        big ? QByteArray("II+\0\x08\0\0\0\x10\0\0\0\0\0\0\0", 16) : QByteArray("II*\0\x08\0\0\0", 8);
    bytes += number(static_cast<std::uint64_t>(entries.size()), big ? 8 : 2) + entries.join();
    bytes.resize(kPixelsAt, '\0');
    return bytes + QByteArray(kSize.width() * kSize.height(), '\xc8');
}

TEST(ReducedPicture, FinishedTiffs_AreShownInFullWhateverTheirOffsets) {
    DecodePool pool(poolOptions(1));
    for (const Offsets offsets : {Offsets::Of32Bits, Offsets::Of64Bits}) {
        const QByteArray tiff = greyTiff(offsets, Content::Finished);
        const DecodedPicture shown = pool.picture(tiff, {200, 200});
        ASSERT_EQ(shown.image.size(), kSize);
        EXPECT_EQ(shown.fullSize, kSize);
        EXPECT_TRUE(isNear(shown.image.pixel(3, 2), QColor(200, 200, 200)));
        EXPECT_EQ(QImage::fromData(pool.thumbnail(tiff)).size(), kSize);
    }
}

TEST(ReducedPicture, OfSensorData_IsShownAsAPreviewAndIsNoThumbnail) {
    DecodePool pool(poolOptions(1));
    for (const Offsets offsets : {Offsets::Of32Bits, Offsets::Of64Bits}) {
        const QByteArray tiff = greyTiff(offsets, Content::SensorData);
        const DecodedPicture shown = pool.picture(tiff, {200, 200});
        ASSERT_EQ(shown.image.size(), kSize);
        EXPECT_TRUE(shown.fullSize.isEmpty());
        EXPECT_TRUE(isNear(shown.image.pixel(3, 2), QColor(200, 200, 200)));
        EXPECT_TRUE(pool.thumbnail(tiff).isEmpty());
    }
}

// A raw file cut off before its sensor data; its directory leads to a JPEG, and to another in a strip.
QByteArray rawWithJpeg(const QByteArray& jpeg, std::uint16_t orientation, const QByteArray& strip = {}) {
    constexpr std::uint32_t kJpegAt = 100;
    const auto entry = [](std::uint16_t tag, std::uint16_t type, qsizetype value) {
        return number(tag, 2) + number(type, 2) + number(1, 4) + number(static_cast<std::uint64_t>(value), 4);
    };
    QByteArray bytes("II*\0\x08\0\0\0", 8);
    bytes += number(6, 2) + entry(0x0106, 3, 32803) + entry(0x0111, 4, kJpegAt + jpeg.size()) +
             entry(0x0112, 3, orientation) + entry(0x0117, 4, strip.size()) + entry(0x0201, 4, kJpegAt) +
             entry(0x0202, 4, jpeg.size());
    bytes.resize(kJpegAt, '\0');
    return bytes + jpeg + strip;
}

TEST(ReducedPicture, OfARawFileHeldUpright_IsTurnedOnceWhoeverSaysSo) {
    DecodePool pool(poolOptions(1));
    const QImage lying = twoColours({120, 60});
    const auto shownOf = [&](const QByteArray& jpeg, std::uint16_t orientation) {
        const QByteArray raw = rawWithJpeg(jpeg, orientation);
        EXPECT_TRUE(pool.thumbnail(raw).isEmpty());
        return pool.picture(raw, {200, 80}).image;
    };
    EXPECT_EQ(shownOf(encoded(lying, "jpeg"), 1).size(), QSize(120, 60));
    for (const QByteArray& jpeg : {encoded(lying, "jpeg"), jpegHeldBy(lying, 6)}) {
        const QImage shown = shownOf(jpeg, 6);
        ASSERT_EQ(shown.size(), QSize(40, 80));
        EXPECT_TRUE(isNear(shown.pixel(20, 10), Qt::red));
        EXPECT_TRUE(isNear(shown.pixel(20, 70), Qt::blue));
    }
    const QImage leftHanded = shownOf(encoded(lying, "jpeg"), 8);
    ASSERT_EQ(leftHanded.size(), QSize(40, 80));
    EXPECT_TRUE(isNear(leftHanded.pixel(20, 10), Qt::blue));
}

TEST(ReducedPicture, OfARawFile_IsTheLongestThatIsAJpeg) {
    const QByteArray jpeg = encoded(twoColours({120, 60}), "jpeg");
    const QByteArray larger = encoded(twoColours({240, 120}), "jpeg");
    ASSERT_GT(larger.size(), jpeg.size());
    const auto reduced = [](const QByteArray& raw) {
        QList<QByteArray> all;
        for (const auto& picture : decode::reducedPicturesIn(raw)) {
            all.append(picture.handler == "jpeg" ? picture.bytes.toBase64() : picture.handler);
        }
        return all;
    };
    const QList<QByteArray> both{larger.toBase64(), jpeg.toBase64(), "tiff"};
    EXPECT_EQ(reduced(rawWithJpeg(jpeg, 1, larger)), both);
    EXPECT_EQ(reduced(rawWithJpeg(larger, 1, jpeg)), both);
    const QByteArray cut = rawWithJpeg(jpeg, 1).chopped(9);
    EXPECT_EQ(reduced(cut), (QList<QByteArray>{jpeg.chopped(9).toBase64(), "tiff"}));
    EXPECT_EQ(reduced(rawWithJpeg("not a JPEG", 1, jpeg)), (QList<QByteArray>{jpeg.toBase64(), "tiff"}));
    EXPECT_EQ(reduced(rawWithJpeg("not a JPEG", 1)), QList<QByteArray>{"tiff"});
}

// What the summary of a compound file says, as a property set of one property.
QByteArray summaryWith(const QByteArray& bitmap) {
    constexpr int kSectionAt = 48, kValueAt = 16;
    QByteArray summary = QByteArray("\xfe\xff\0\0", 4);
    summary.resize(kSectionAt - 4, '\0');
    summary += number(kSectionAt, 4);
    const auto length = static_cast<std::uint64_t>(bitmap.size());
    summary += number(24 + length, 4) + number(1, 4) + number(17, 4) + number(kValueAt, 4);
    return summary + number(71, 4) + number(8 + length, 4) + number(0xffffffff, 4) + number(8, 4) + bitmap;
}

// Sectors of 512 bytes: the allocation table, the directory, then the summary's, each second one left out so
// that the chain has to be followed.
QByteArray compoundFileWith(const QByteArray& summary) {
    constexpr std::uint32_t kEnd = 0xfffffffe;
    constexpr int kSector = 512;
    const auto sectors = static_cast<std::uint32_t>((summary.size() + kSector - 1) / kSector);
    QByteArray head("\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1", 8);
    head.resize(30, '\0');
    head += number(9, 2) + number(6, 2) + QByteArray(10, '\0') + number(1, 4) + number(1, 4) + number(0, 4) +
            number(4096, 4);
    head.resize(68, '\0');
    head += number(kEnd, 4) + number(0, 4) + number(0, 4);
    head.resize(kSector, '\xff');
    QByteArray table = number(0xfffffffd, 4) + number(kEnd, 4), data;
    for (std::uint32_t i = 0; i < sectors; ++i) {
        table += number(i + 1 < sectors ? 4 + 2 * i : kEnd, 4) + number(0xffffffff, 4);
        data += summary.mid(i * kSector, kSector).leftJustified(kSector, '\0') + QByteArray(kSector, '?');
    }
    table.resize(kSector, '\xff');
    const QString name = QStringLiteral("\u0005SummaryInformation");
    QByteArray entry(reinterpret_cast<const char*>(name.utf16()), name.size() * 2);
    entry.resize(64, '\0');
    entry += number(40, 2) + number(2, 2);
    entry.resize(116, '\0');
    entry += number(2, 4) + number(static_cast<std::uint64_t>(summary.size()), 8);
    // Behind an entry of another name.
    QByteArray directory = QByteArray("R\0", 2).leftJustified(128, '\0') + entry;
    directory.resize(kSector, '\0');
    return head + table + directory + data;
}

// A bitmap without the head that a file of it has.
QByteArray bitmapOf(const QImage& image) {
    return encoded(image, "bmp").mid(14);
}

TEST(ReducedPicture, OfACompoundFilesSummary_IsShownAsAPreviewAndIsNoThumbnail) {
    DecodePool pool(poolOptions(1));
    const QImage image = twoColours({120, 90});
    for (const QImage& bitmap : {image, image.convertToFormat(QImage::Format_Indexed8)}) {
        const QByteArray file = compoundFileWith(summaryWith(bitmapOf(bitmap)));
        const DecodedPicture shown = pool.picture(file, {200, 200});
        ASSERT_EQ(shown.image.size(), image.size());
        EXPECT_TRUE(shown.fullSize.isEmpty());
        EXPECT_TRUE(isNear(shown.image.pixel(10, 20), Qt::red));
        EXPECT_TRUE(isNear(shown.image.pixel(110, 20), Qt::blue));
        EXPECT_TRUE(pool.thumbnail(file).isEmpty());
    }
}

TEST(ReducedPicture, OfABrokenSummary_IsMissing) {
    const auto reducedOf = [](const QByteArray& file) {
        return decode::reducedPicturesIn(file).value(0).bytes;
    };
    const QByteArray summary = summaryWith(bitmapOf(twoColours({60, 40})));
    const QByteArray whole = compoundFileWith(summary);
    ASSERT_FALSE(reducedOf(whole).isEmpty());
    EXPECT_TRUE(reducedOf(QByteArray(whole).replace(0, 1, "?")).isEmpty());
    EXPECT_TRUE(reducedOf(whole.left(1024)).isEmpty()) << "no directory";
    const auto with = [&](qsizetype at, std::uint32_t value) {
        return reducedOf(compoundFileWith(QByteArray(summary).replace(at, 4, number(value, 4))));
    };
    EXPECT_TRUE(with(44, 0xfffffff0).isEmpty()) << "the section beyond the end";
    EXPECT_TRUE(with(56, 16).isEmpty()) << "another property";
    EXPECT_TRUE(with(60, 0xfffffff0).isEmpty()) << "the property beyond the end";
    EXPECT_TRUE(with(76, 3).isEmpty()) << "a drawing in place of a bitmap";
    // Broken off within the bitmap, there is less of it.
    EXPECT_LT(reducedOf(whole.left(whole.size() / 2)).size(), summary.size() / 2);
}

TEST(ReducedPicture, ChainsThatRunInCircles_End) {
    QByteArray file = compoundFileWith(summaryWith(bitmapOf(twoColours({60, 40}))));
    // The directory's sector follows itself, and no entry has the name.
    file.replace(512 + 4, 4, number(1, 4)).replace(2 * 512 + 64 * 2, 1, "?");
    EXPECT_TRUE(decode::reducedPicturesIn(file).value(0).bytes.isEmpty());
    // So does the summary's, which claims the longest length.
    file = compoundFileWith(summaryWith(bitmapOf(twoColours({60, 40}))));
    file.replace(512 + 8, 4, number(2, 4)).replace(1024 + 128 + 120, 4, number(0xffffffff, 4));
    EXPECT_LE(decode::reducedPicturesIn(file).value(0).bytes.size(), (1 << 20) + 14);
}

TEST(ReducedPicture, OfDamagedFiles_BreaksNoHelper) {
    const std::array seeds{compoundFileWith(summaryWith(bitmapOf(twoColours({60, 40})))),
                           rawWithJpeg(encoded(twoColours({120, 60}), "jpeg"), 6)};
    DecodePool pool(poolOptions(1));
    std::mt19937 random(11);
    std::array<int, seeds.size()> shown{};
    for (std::size_t i = 0; i < 2000; ++i) {
        const std::size_t seed = i % seeds.size();
        shown[seed] += !pool.picture(mutated(seeds[seed], random), {200, 200}).image.isNull();
    }
    EXPECT_GT(*std::ranges::min_element(shown), 100);
    // A sanitizer's helper grows until it is replaced in good health.
    const DecodePoolCounts counts = pool.counts();
    EXPECT_EQ(counts.crashed + counts.exited + counts.badAnswers, 0U);
}

}  // namespace
}  // namespace vantor
