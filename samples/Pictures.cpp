// Formats that are little more than a header and pixels. Pictures come as 24-bit RGB.
#include "samples/Pictures.h"

#include <zlib.h>

#include "samples/Bytes.h"
#include "samples/Encoding.h"

namespace vantor::samples {

namespace {

// All pixels as they stand, or one channel of them, rows from the top without padding.
QByteArray pixels(const QImage& picture) {
    QByteArray out;
    for (int y = 0; y < picture.height(); ++y)
        out.append(reinterpret_cast<const char*>(picture.constScanLine(y)), picture.width() * 3);
    return out;
}

QByteArray plane(const QImage& picture, int channel) {
    const QByteArray all = pixels(picture);
    QByteArray out;
    for (qsizetype i = channel; i < all.size(); i += 3)
        out.append(all[i]);
    return out;
}

QByteArray chunk(const QByteArray& type, const QByteArray& content) {
    const QByteArray summed = type + content;
    const auto sum = crc32(0, reinterpret_cast<const Bytef*>(summed.constData()), uInt(summed.size()));
    return Bytes().be32(content.size()).raw(summed).be32(qint64(sum));
}

}  // namespace

QByteArray photoshopFile(const QImage& picture, bool isLarge) {
    Bytes out;
    out.raw("8BPS").be16(isLarge ? 2 : 1).zeros(6).be16(3).be32(picture.height()).be32(picture.width());
    out.be16(8).be16(3).zeros(4 + 4 + (isLarge ? 8 : 4) + 2);  // no colours, resources, layers; uncompressed
    return out.raw(plane(picture, 0)).raw(plane(picture, 1)).raw(plane(picture, 2));
}

QByteArray iconFile(const std::vector<QImage>& sizes, bool isCursor) {
    Bytes out;
    QByteArray pictures;
    out.le16(0).le16(isCursor ? 2 : 1).le16(qint64(sizes.size()));
    for (const QImage& picture : sizes) {
        const QByteArray png = writtenByQt("png", picture.convertToFormat(QImage::Format_ARGB32));
        // The two words are planes and bits of an icon, the point that points of a cursor.
        out.u8(picture.width()).u8(picture.height()).le16(0).le16(isCursor ? 0 : 1).le16(isCursor ? 0 : 32);
        out.le32(png.size()).le32(6 + 16 * qint64(sizes.size()) + pictures.size());
        pictures += png;
    }
    return out.raw(pictures);
}

QByteArray radianceFile(const QImage& picture) {
    const QByteArray all = pixels(picture);
    QByteArray out = "#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y " + QByteArray::number(picture.height()) +
                     " +X " + QByteArray::number(picture.width()) + '\n';
    for (qsizetype i = 0; i < all.size(); i += 3)
        out += all.mid(i, 3) + '\x80';  // the exponent that makes a byte its share of 256
    return out;
}

QByteArray ddsFile(const QImage& picture) {
    constexpr int kHasSizeAndPitch = 0x100F;
    constexpr int kIsRgb = 0x40;
    constexpr int kIsTexture = 0x1000;
    Bytes out;
    out.raw("DDS ").le32(124).le32(kHasSizeAndPitch).le32(picture.height()).le32(picture.width());
    out.le32(picture.width() * 3).zeros(8 + 44).le32(32).le32(kIsRgb).le32(0).le32(24);
    out.le32(0xFF0000).le32(0xFF00).le32(0xFF).le32(0).le32(kIsTexture).zeros(16);
    return out.raw(pixels(picture.rgbSwapped()));
}

QByteArray ktxFile(const QImage& picture) {
    constexpr int kUnsignedByte = 0x1401;
    constexpr int kRgb = 0x1907;
    constexpr int kRgb8 = 0x8051;
    Bytes out;
    out.raw("\xABKTX 11\xBB\r\n\x1A\n").le32(0x04030201).le32(kUnsignedByte).le32(1).le32(kRgb).le32(kRgb8);
    out.le32(kRgb).le32(picture.width()).le32(picture.height()).le32(0).le32(0).le32(1).le32(1).le32(0);
    return out.le32(picture.width() * picture.height() * 3).raw(pixels(picture));
}

QByteArray lbmFile(const QImage& picture) {
    constexpr int kPlanes = 24;
    QByteArray body;
    for (int y = 0; y < picture.height(); ++y) {
        for (int plane = 0; plane < kPlanes; ++plane) {
            QByteArray row((picture.width() + 15) / 16 * 2, '\0');
            for (int x = 0; x < picture.width(); ++x)
                if ((picture.constScanLine(y)[x * 3 + plane / 8] >> plane % 8 & 1) != 0)
                    row[x / 8] = char(row[x / 8] | 0x80 >> x % 8);
            body += row;
        }
    }
    Bytes out;
    out.raw("FORM").be32(body.size() + 40).raw("ILBMBMHD").be32(20).be16(picture.width());
    out.be16(picture.height()).be32(0).u8(kPlanes).zeros(3).be16(0).u8(1).u8(1).be16(picture.width());
    return out.be16(picture.height()).raw("BODY").be32(body.size()).raw(body);
}

QByteArray miffFile(const QImage& picture) {
    return "id=ImageMagick  version=1.0\nclass=DirectClass  matte=False\ncolumns=" +
           QByteArray::number(picture.width()) + "  rows=" + QByteArray::number(picture.height()) +
           "  depth=8\ncolorspace=sRGB\ncompression=None\n\f\n:\x1A" + pixels(picture);
}

QByteArray jngFile(const QImage& picture) {
    constexpr int kColour = 10;
    const Bytes header =
        Bytes().be32(picture.width()).be32(picture.height()).u8(kColour).u8(8).u8(8).zeros(5);
    return "\x8BJNG\r\n\x1A\n" + chunk("JHDR", header) + chunk("JDAT", writtenByQt("jpg", picture, 85)) +
           chunk("IEND", {});
}

QByteArray dcxFile(const std::vector<QByteArray>& pages) {
    constexpr qsizetype kFirstPage = 4 + 1024 * 4;
    Bytes out;
    QByteArray bodies;
    out.le32(0x3ADE68B1);
    for (const QByteArray& page : pages) {
        out.le32(kFirstPage + bodies.size());
        bodies += page;
    }
    return out.zeros(kFirstPage - out.size()).raw(bodies);
}

}  // namespace vantor::samples
