// What cameras write: Exif in JPEG, two JPEG in one, a sensor's raw values.
#include <tiffio.h>

#include <QFile>
#include <QTemporaryDir>
#include <exiv2/exif.hpp>

#include "samples/Bytes.h"
#include "samples/Encoding.h"
#include "samples/Pictures.h"

namespace vantor::samples {

namespace {

// A JPEG's start, this segment in place of its JFIF header, and the rest.
QByteArray withSegment(const QByteArray& jpeg, int marker, const QByteArray& content) {
    const auto byteAt = [&](qsizetype at) { return uchar(jpeg[at]); };
    const qsizetype rest = byteAt(3) == 0xE0 ? 4 + (byteAt(4) << 8 | byteAt(5)) : 2;
    return Bytes().raw(jpeg.left(2)).be16(marker).be16(content.size() + 2).raw(content).raw(jpeg.mid(rest));
}

}  // namespace

QByteArray withExif(const QByteArray& jpeg, const QImage& picture, const QByteArray& takenAt, bool isTurned) {
    const QByteArray small =
        writtenByQt("jpg", picture.scaled(160, 160, Qt::KeepAspectRatio, Qt::SmoothTransformation), 70);
    Exiv2::ExifData exif;
    exif["Exif.Image.Make"] = "VANTOR";
    exif["Exif.Image.Model"] = "SAMPLE 100";
    exif["Exif.Image.Orientation"] = std::uint16_t(isTurned ? 6 : 1);
    exif["Exif.Photo.ExposureTime"] = Exiv2::Rational(1, 250);
    exif["Exif.Photo.FNumber"] = Exiv2::Rational(56, 10);
    exif["Exif.Photo.ISOSpeedRatings"] = std::uint16_t(100);
    for (const char* when :
         {"Exif.Image.DateTime", "Exif.Photo.DateTimeOriginal", "Exif.Photo.DateTimeDigitized"})
        exif[when] = takenAt.toStdString();
    exif["Exif.Photo.PixelXDimension"] = std::uint32_t(picture.width());
    exif["Exif.Photo.PixelYDimension"] = std::uint32_t(picture.height());
    Exiv2::ExifThumb(exif).setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(small.constData()),
                                            small.size());
    Exiv2::Blob tiff;
    Exiv2::ExifParser::encode(tiff, Exiv2::bigEndian, exif);
    return withSegment(
        jpeg, 0xFFE1,
        QByteArray("Exif\0\0", 6).append(reinterpret_cast<const char*>(tiff.data()), qsizetype(tiff.size())));
}

QByteArray mpoFile(const QByteArray& left, const QByteArray& right) {
    constexpr int kUndefined = 7;
    constexpr int kLong = 4;
    constexpr qsizetype kOffsetsFrom = 2 + 4 + 4;  // behind the start, the marker and length, and "MPF"
    const auto indexed = [&](qsizetype leftBytes) {
        Bytes out;
        out.raw("MPF").u8(0).raw("MM").be16(42).be32(8).be16(3);
        out.be16(0xB000).be16(kUndefined).be32(4).raw("0100").be16(0xB001).be16(kLong).be32(1).be32(2);
        out.be16(0xB002).be16(kUndefined).be32(32).be32(8 + 2 + 3 * 12 + 4).be32(0);
        out.be32(0x20020002).be32(leftBytes).be32(0).be32(0);
        out.be32(0x00020002).be32(right.size()).be32(leftBytes - kOffsetsFrom).be32(0);
        return withSegment(left, 0xFFE2, out);
    };
    return indexed(indexed(0).size()) + right;
}

QByteArray dngFile(const QImage& picture) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("dng"));
    TIFF* const tiff = TIFFOpen(path.toLocal8Bit().constData(), "wl");
    const float fromObserverToLinear[] = {3.24f, -1.54f, -0.5f, -0.97f, 1.88f, 0.04f, 0.06f, -0.2f, 1.06f};
    const float neutral[] = {1, 1, 1};
    const std::uint16_t twoByTwo[] = {2, 2};
    const std::uint32_t white = 255 * 255;
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, picture.width());
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, picture.height());
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 16);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 1);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, picture.height());
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_CFA);
    TIFFSetField(tiff, TIFFTAG_MAKE, "VANTOR");
    TIFFSetField(tiff, TIFFTAG_MODEL, "SAMPLE 100");
    TIFFSetField(tiff, TIFFTAG_CFAREPEATPATTERNDIM, twoByTwo);
    TIFFSetField(tiff, TIFFTAG_CFAPATTERN, 4, "\0\1\1\2");
    TIFFSetField(tiff, TIFFTAG_DNGVERSION, "\1\1\0\0");
    TIFFSetField(tiff, TIFFTAG_DNGBACKWARDVERSION, "\1\1\0\0");
    TIFFSetField(tiff, TIFFTAG_UNIQUECAMERAMODEL, "VANTOR SAMPLE 100");
    TIFFSetField(tiff, TIFFTAG_WHITELEVEL, 1, &white);
    TIFFSetField(tiff, TIFFTAG_COLORMATRIX1, 9, fromObserverToLinear);
    TIFFSetField(tiff, TIFFTAG_ASSHOTNEUTRAL, 3, neutral);
    TIFFSetField(tiff, TIFFTAG_CALIBRATIONILLUMINANT1, 21);
    // The directory comes first, as cameras write it.
    TIFFDeferStrileArrayWriting(tiff);
    TIFFWriteCheck(tiff, 0, "dng");
    TIFFWriteDirectory(tiff);
    TIFFSetDirectory(tiff, 0);
    // What a sensor with red, green / green, blue filters would have seen, roughly undoing the display's
    // gamma.
    for (int y = 0; y < picture.height(); ++y) {
        std::vector<std::uint16_t> row;
        for (int x = 0; x < picture.width(); ++x) {
            const int value = picture.constScanLine(y)[x * 3 + y % 2 + x % 2];
            row.push_back(std::uint16_t(value * value));
        }
        TIFFWriteScanline(tiff, row.data(), std::uint32_t(y));
    }
    TIFFForceStrileArrayWriting(tiff);
    TIFFClose(tiff);
    QFile written(path);
    return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
}

}  // namespace vantor::samples
