// Every kind of picture we claim to read, from real files, and pictures that are cut short or run on.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QColorSpace>
#include <QFileInfo>
#include <QTemporaryDir>

#include "decode/DecodePool.h"
#include "decode/Sanitized.h"
#include "tests/decode/Fixtures.h"
#include "tests/decode/SensorPicture.h"

namespace vantor {
namespace {

using namespace test;

struct Expected {
    QString path;   // below the corpus's photos
    QSize size;     // upright; empty for a file that cannot be shown
    QSize reduced;  // of the small picture that serves as a preview then; empty where there is none
};

std::vector<Expected> expectedFormats() {
    std::vector<Expected> rows;
    for (const QList<QByteArray>& fields : tableRows("decode/expected_formats.tsv")) {
        const auto sizeAt = [&](qsizetype field) {
            return QSize(fields.value(field).toInt(), fields.value(field + 1).toInt());
        };
        rows.push_back({QString::fromUtf8(fields.value(0)), sizeAt(1), sizeAt(3)});
    }
    return rows;
}

TEST(Formats, RealFiles_AreShownUprightInTheirSizeOrNotAtAll) {
    if (corpusFolder().isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    const std::vector<Expected> grid = expectedFormats();
    ASSERT_GT(grid.size(), 90U);
    // Slow formats on a busy machine are not what is looked at here.
    DecodePoolOptions patient = poolOptions(2);
    patient.thumbnailDeadline = patient.pictureDeadline = std::chrono::minutes(1);
    DecodePool pool(patient);
    for (const auto& [name, size, reduced] : grid) {
        SCOPED_TRACE(name.toStdString());
        const QString path = corpusFolder() + QStringLiteral("/photos/") + name;
        const DecodedPicture picture = pool.picture(path, {200, 200});
        const QImage thumbnail =
            QImage::fromData(pool.thumbnail(bytesOfFile(path), QFileInfo(path).suffix()));
        EXPECT_EQ(thumbnail.isNull(), size.isEmpty());
        if (size.isEmpty()) {
            EXPECT_EQ(picture.image.size(), reduced);
            EXPECT_TRUE(picture.fullSize.isEmpty());
            continue;
        }
        ASSERT_FALSE(picture.image.isNull());
        EXPECT_EQ(picture.fullSize, size);
        const int longer = std::max(size.width(), size.height());
        EXPECT_EQ(std::max(picture.image.width(), picture.image.height()), std::min(longer, 200));
        EXPECT_EQ(std::max(thumbnail.width(), thumbnail.height()), std::min(longer, kThumbnailSide));
        // Within a pixel of the picture's own shape.
        EXPECT_NEAR(thumbnail.width() * size.height(), thumbnail.height() * size.width(), longer);
    }
    EXPECT_EQ(pool.counts().crashed, 0U);
    EXPECT_EQ(pool.counts().late, 0U);
}

TEST(Formats, SensorData_IsDevelopedAtHalfSizeAndUpright) {
    DecodePool pool(poolOptions(1));
    // Left half red, right half blue.
    const QImage lying = pool.picture(sensorPicture(240, 120, 1), {500, 500}).image;
    ASSERT_EQ(lying.size(), QSize(120, 60));
    EXPECT_GT(qRed(lying.pixel(20, 30)), qBlue(lying.pixel(20, 30)) + 50);
    EXPECT_GT(qBlue(lying.pixel(100, 30)), qRed(lying.pixel(100, 30)) + 50);
    // To be turned right by 90 degrees.
    const QImage standing = pool.picture(sensorPicture(240, 120, 6), {500, 500}).image;
    ASSERT_EQ(standing.size(), QSize(60, 120));
    EXPECT_GT(qRed(standing.pixel(30, 20)), qBlue(standing.pixel(30, 20)) + 50);
    EXPECT_GT(qBlue(standing.pixel(30, 100)), qRed(standing.pixel(30, 100)) + 50);
}

TEST(Formats, SensorDataCutShort_StillShowsWhatItHas) {
    DecodePool pool(poolOptions(1));
    const QByteArray whole = sensorPicture(240, 120, 1);
    const QImage image = pool.picture(whole.left(whole.size() / 2), {500, 500}).image;
    ASSERT_EQ(image.size(), QSize(120, 60));
    EXPECT_GT(qRed(image.pixel(20, 10)), qBlue(image.pixel(20, 10)) + 50);
    EXPECT_EQ(image.pixel(20, 50) & RGB_MASK, 0U);
}

TEST(Formats, ForeignBytesBehindThePicture_DoNotMatter) {
    DecodePool pool(poolOptions(2));
    QByteArray foreign(5 << 20, '\0');
    for (qsizetype i = 0; i < foreign.size(); ++i) {
        foreign[i] = static_cast<char>(i * 2654435761U >> 13);
    }
    for (const char* format : {"jpeg", "png", "bmp", "webp", "tiff", "gif"}) {
        const QByteArray bytes = encoded(twoColours({300, 150}), format);
        if (bytes.isEmpty()) {
            EXPECT_STREQ(format, "gif") << "only GIF cannot be written here";
            continue;
        }
        const QImage image = pool.picture(bytes + foreign, {150, 150}).image;
        ASSERT_EQ(image.size(), QSize(150, 75)) << format;
        EXPECT_TRUE(isNear(image.pixel(30, 40), Qt::red)) << format;
        EXPECT_TRUE(isNear(image.pixel(120, 40), Qt::blue)) << format;
    }
    EXPECT_EQ(pool.picture(sensorPicture(240, 120, 1) + foreign, {500, 500}).image.size(), QSize(120, 60));
}

TEST(Formats, RealFilesWithForeignBytesBehind_AreStillShown) {
    if (corpusFolder().isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    DecodePool pool(poolOptions(2));
    for (const char* name :
         {"heic/exifr__test__fixtures__heic-collection.heic",
          "avif/exifr__test__fixtures__avif__Irvine_CA.avif",
          "jxl/serenity__Tests__LibGfx__test-inputs__jxl__xyb.jxl", "jp2/file-type__fixture__fixture.jp2",
          "psd/file-type__fixture__fixture.psd", "kdc/digicam_corpus__Kodak__DC120__DC120IMG__P003911.KDC"}) {
        const QByteArray bytes =
            bytesOfFile(corpusFolder() + QStringLiteral("/photos/") + QLatin1String(name));
        ASSERT_FALSE(bytes.isEmpty()) << name;
        const QImage alone = pool.picture(bytes, {100, 100}).image;
        ASSERT_FALSE(alone.isNull()) << name;
        EXPECT_EQ(pool.picture(bytes + QByteArray(3 << 20, '\x5a'), {100, 100}).image, alone) << name;
    }
}

// The rest is nothing that was in the memory before.
TEST(Formats, CutShort_ShowThePartThatIsThereAndAnEmptyRest) {
    QImage image(400, 400, QImage::Format_RGB32);
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 400; ++x) {
            image.setPixel(x, y, qRgb(200 + (x * 7 + y * 13) % 40, (x * y) % 60, 20));
        }
    }
    DecodePool pool(poolOptions(1));
    for (const char* format : {"jpeg", "png", "bmp"}) {
        const QByteArray bytes = encoded(image, format);
        const DecodedPicture cut = pool.picture(bytes.left(bytes.size() / 2), {400, 400});
        ASSERT_EQ(cut.image.size(), QSize(400, 400)) << format;
        // A BMP is stored from the bottom up.
        const bool bottomUp = QByteArray(format) == "bmp";
        EXPECT_GT(qRed(cut.image.pixel(100, bottomUp ? 360 : 40)), 150) << format;
        if (QByteArray(format) == "jpeg") {
            continue;  // its reader fills the rest with grey
        }
        for (int x = 0; x < 400; x += 10) {
            EXPECT_EQ(cut.image.pixel(x, bottomUp ? 5 : 395) & RGB_MASK, 0U) << format;
        }
    }
    EXPECT_TRUE(pool.picture(encoded(image, "png").left(20000), {400, 400}).partial);
    // Nothing decoded at all is no picture.
    EXPECT_TRUE(pool.picture(encoded(image, "png").left(60), {400, 400}).image.isNull());
}

TEST(Formats, CutShortAndTurned_IsStillUpright) {
    const QByteArray bytes = jpegHeldBy(twoColours({800, 400}), 6);
    DecodePool pool(poolOptions(1));
    EXPECT_EQ(pool.picture(bytes.left(bytes.size() * 9 / 10), {100, 100}).image.size(), QSize(50, 100));
}

// Forty pixels by twenty in strips of two rows, left half red, right half blue, to be turned right by 90
// degrees.
QByteArray tiffInStrips() {
    constexpr int kStrips = 10, kStripBytes = 2 * 40 * 3;
    QByteArray offsets, lengths;
    for (int strip = 0; strip < kStrips; ++strip) {
        offsets += TiffWriter::littleEndian(
            TiffWriter::kPixelsAt + static_cast<std::uint32_t>(strip) * kStripBytes, 2);
        lengths += TiffWriter::littleEndian(kStripBytes, 2);
    }
    TiffWriter tiff;
    tiff.longTag(0x0100, 40);
    tiff.longTag(0x0101, 20);
    tiff.bytesTag(0x0102, 3, QByteArray("\x08\0\x08\0\x08\0", 6));
    tiff.shortTag(0x0103, 1);
    tiff.shortTag(0x0106, 2);
    tiff.bytesTag(0x0111, 3, offsets);
    tiff.shortTag(0x0112, 6);
    tiff.shortTag(0x0115, 3);
    tiff.longTag(0x0116, 2);
    tiff.bytesTag(0x0117, 3, lengths);
    const QByteArray row = QByteArray("\xff\0\0", 3).repeated(20) + QByteArray("\0\0\xff", 3).repeated(20);
    return tiff.finish(row.repeated(20));
}

TEST(Formats, TiffCutShortAndTurned_ShowsItsFirstStripsUpright) {
    DecodePool pool(poolOptions(1));
    const QByteArray whole = tiffInStrips();
    ASSERT_EQ(pool.picture(whole, {100, 100}).image.size(), QSize(20, 40));
    const DecodedPicture cut = pool.picture(whole.left(whole.size() - 6 * 240), {100, 100});
    ASSERT_EQ(cut.image.size(), QSize(20, 40));
    EXPECT_TRUE(cut.partial);
    // What is stored first comes to the right.
    EXPECT_TRUE(isNear(cut.image.pixel(17, 5), Qt::red));
    EXPECT_TRUE(isNear(cut.image.pixel(17, 35), Qt::blue));
    EXPECT_EQ(cut.image.pixel(3, 5) & RGB_MASK, 0U);
}

// An uncompressed 24-bit Targa of one colour: nothing in it says what it is.
QByteArray targa(int side) {
    QByteArray bytes("\0\0\2\0\0\0\0\0\0\0\0\0", 12);
    const auto low = static_cast<char>(side);
    bytes.append(low).append('\0').append(low).append('\0').append('\x18').append('\x20');
    return bytes + QByteArray("\x10\x20\xf0", 3).repeated(side * side);
}

TEST(Formats, WithoutAMarkOfTheirOwn_AreShownByTheItemsType) {
    DecodePool pool(poolOptions(1));
    EXPECT_TRUE(pool.thumbnail(targa(60)).isEmpty());
    EXPECT_TRUE(pool.thumbnail(targa(60), QStringLiteral("JPG")).isEmpty());
    const QImage shown = QImage::fromData(pool.thumbnail(targa(60), QStringLiteral("TGA")));
    ASSERT_EQ(shown.size(), QSize(60, 60));
    EXPECT_TRUE(isNear(shown.pixel(30, 30), QColor(0xf0, 0x20, 0x10)));
    EXPECT_EQ(
        QImage::fromData(pool.thumbnail(encoded(twoColours({50, 20}), "ppm"), QStringLiteral("PNM"))).size(),
        QSize(50, 20));
}

TEST(Formats, Drawings_AreDrawnWithoutFilesOrFonts) {
    QTemporaryDir folder;
    const QString inside = folder.filePath(QStringLiteral("inside.png"));
    ASSERT_TRUE(twoColours({40, 40}).save(inside));
    const QByteArray drawing =
        "<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg' "
        "xmlns:xlink='http://www.w3.org/1999/xlink' width='300' height='150'>"
        "<rect width='300' height='150' fill='#00ff00'/><text x='10' y='50' font-size='60'>words"
        "<tspan>more</tspan></text><image xlink:href='" +
        inside.toUtf8() + "' x='100' y='0' width='150' height='150'/></svg>";
    DecodePool pool(poolOptions(1));
    const DecodedPicture shown = pool.picture(drawing + QByteArray(3000, '\0'), {200, 200});
    ASSERT_EQ(shown.image.size(), QSize(200, 100));
    EXPECT_EQ(shown.fullSize, QSize(300, 150));
    EXPECT_TRUE(isNear(shown.image.pixel(20, 20), Qt::green));
    if (!decode::kSanitized) {
        EXPECT_TRUE(isNear(shown.image.pixel(120, 50), Qt::green)) << "no other file is opened";
    }
    EXPECT_EQ(pool.counts().started, 1U) << "the helper lives";
    EXPECT_TRUE(pool.picture(QByteArray("<svg><rect"), {200, 200}).image.isNull());
}

TEST(Formats, AnotherColourSpace_IsBroughtToTheUsualOne) {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(qRgb(0, 200, 0));
    image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    DecodePool pool(poolOptions(1));
    const QRgb shown = pool.picture(encoded(image, "png"), {64, 64}).image.pixel(32, 32);
    EXPECT_EQ(shown, QColor(image.convertedToColorSpace(QColorSpace(QColorSpace::SRgb)).pixel(32, 32)).rgb());
    EXPECT_NE(shown, qRgb(0, 200, 0));
}

}  // namespace
}  // namespace vantor
