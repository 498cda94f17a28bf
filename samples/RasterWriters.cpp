// The picture formats of workstations, games, film and science that hold plain pixels behind a header.
#include <bit>

#include "samples/Bytes.h"
#include "samples/JpegEncoder.h"
#include "samples/PictureWriters.h"
#include "samples/Pixels.h"

namespace vantor::samples {

namespace {

std::uint64_t wide(const Picture& picture) {
    return static_cast<std::uint64_t>(picture.width);
}
std::uint64_t high(const Picture& picture) {
    return static_cast<std::uint64_t>(picture.height);
}

QByteArray sizeText(const Picture& picture) {
    return QByteArray::number(picture.width) + ' ' + QByteArray::number(picture.height);
}

// Rows from the top, blue first, each filled up to `rowUnit` bytes.
QByteArray blueFirst(const Picture& picture, int rowUnit) {
    Bytes out;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* p = picture.pixel(x, y);
            out.u8(p[2]).u8(p[1]).u8(p[0]);
        }
        out.alignTo(rowUnit);
    }
    return out.bytes();
}

QByteArray fitsCard(const QByteArray& key, const QByteArray& value) {
    return (key.leftJustified(8) + "= " + value.rightJustified(20)).leftJustified(80);
}

// One bit plane of one row of an Amiga picture.
QByteArray amigaPlane(const Picture& picture, int y, int plane) {
    QByteArray row((picture.width + 15) / 16 * 2, '\0');
    for (int x = 0; x < picture.width; ++x)
        if ((picture.pixel(x, y)[plane / 8] >> (plane % 8) & 1) != 0)
            row[x / 8] = static_cast<char>(row[x / 8] | 0x80 >> (x % 8));
    return row;
}

}  // namespace

QByteArray pbmFile(const Picture& picture) {
    Bytes out;
    out.text("P4\n").raw(sizeText(picture)).text("\n");
    for (int y = 0; y < picture.height; ++y) {
        QByteArray row((picture.width + 7) / 8, '\0');
        for (int x = 0; x < picture.width; ++x)
            if (greyOf(picture.pixel(x, y)) < (x + y) % 2 * 64 + 96)
                row[x / 8] = static_cast<char>(row[x / 8] | 0x80 >> (x % 8));
        out.raw(row);
    }
    return out.bytes();
}

QByteArray pamFile(const Picture& picture) {
    return "P7\nWIDTH " + QByteArray::number(picture.width) + "\nHEIGHT " +
           QByteArray::number(picture.height) + "\nDEPTH 3\nMAXVAL 255\nTUPLTYPE RGB\nENDHDR\n" +
           rgbBytes(picture);
}

QByteArray pfmFile(const Picture& picture) {
    Bytes out;
    out.text("PF\n").raw(sizeText(picture)).text("\n-1.0\n");
    for (int y = picture.height - 1; y >= 0; --y)
        for (int x = 0; x < picture.width; ++x)
            for (int channel = 0; channel < 3; ++channel)  // a share of 256 is exact in a float
                out.le32(
                    std::bit_cast<std::uint32_t>(static_cast<float>(picture.pixel(x, y)[channel]) / 256));
    return out.bytes();
}

QByteArray radianceFile(const Picture& picture) {
    constexpr int kShareOf256 = 128;  // the exponent that makes a byte its share of 256
    Bytes out;
    out.text("#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y ").raw(QByteArray::number(picture.height));
    out.text(" +X ").raw(QByteArray::number(picture.width)).text("\n");
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* p = picture.pixel(x, y);
            out.u8(p[0]).u8(p[1]).u8(p[2]).u8(kShareOf256);
        }
    }
    return out.bytes();
}

QByteArray fitsFile(const Picture& picture) {
    constexpr qsizetype kBlock = 2880;
    QByteArray header = fitsCard("SIMPLE", "T") + fitsCard("BITPIX", "8") + fitsCard("NAXIS", "2") +
                        fitsCard("NAXIS1", QByteArray::number(picture.width)) +
                        fitsCard("NAXIS2", QByteArray::number(picture.height));
    header = (header + "END").leftJustified(kBlock);
    Bytes pixels;
    for (int y = picture.height - 1; y >= 0; --y)
        for (int x = 0; x < picture.width; ++x)
            pixels.u8(static_cast<std::uint64_t>(greyOf(picture.pixel(x, y))));
    return header + pixels.alignTo(kBlock).bytes();
}

QByteArray sunRasterFile(const Picture& picture) {
    const QByteArray pixels = blueFirst(picture, 2);
    Bytes out;
    out.be32(0x59A66A95).be32(wide(picture)).be32(high(picture)).be32(24);
    out.be32(static_cast<std::uint64_t>(pixels.size())).be32(1).be32(0).be32(0);
    return out.raw(pixels).bytes();
}

QByteArray ddsFile(const Picture& picture) {
    constexpr int kHasSizeAndPitch = 0x100F;
    constexpr int kIsRgb = 0x40;
    constexpr int kIsTexture = 0x1000;
    Bytes out;
    out.text("DDS ").le32(124).le32(kHasSizeAndPitch).le32(high(picture)).le32(wide(picture));
    out.le32(wide(picture) * 3).zeros(8 + 44);
    out.le32(32).le32(kIsRgb).le32(0).le32(24).le32(0xFF0000).le32(0xFF00).le32(0xFF).le32(0);
    return out.le32(kIsTexture).zeros(16).raw(blueFirst(picture, 1)).bytes();
}

QByteArray ktxFile(const Picture& picture) {
    constexpr int kUnsignedByte = 0x1401;
    constexpr int kRgb = 0x1907;
    constexpr int kRgb8 = 0x8051;
    Bytes out;
    out.text("\xABKTX 11\xBB\r\n\x1A\n").le32(0x04030201).le32(kUnsignedByte).le32(1).le32(kRgb);
    out.le32(kRgb8).le32(kRgb).le32(wide(picture)).le32(high(picture)).le32(0).le32(0).le32(1).le32(1);
    return out.le32(0).le32(wide(picture) * high(picture) * 3).raw(rgbBytes(picture)).bytes();
}

QByteArray lbmFile(const Picture& picture) {
    constexpr int kPlanes = 24;
    Bytes body;
    for (int y = 0; y < picture.height; ++y)
        for (int plane = 0; plane < kPlanes; ++plane)
            body.raw(amigaPlane(picture, y, plane));
    Bytes out;
    out.text("FORM").be32(static_cast<std::uint64_t>(body.size()) + 40).text("ILBMBMHD").be32(20);
    out.be16(wide(picture)).be16(high(picture)).be32(0).u8(kPlanes).zeros(3).be16(0).u8(1).u8(1);
    out.be16(wide(picture)).be16(high(picture)).text("BODY");
    return out.be32(static_cast<std::uint64_t>(body.size())).raw(body.bytes()).bytes();
}

QByteArray dpxFile(const Picture& picture) {
    constexpr std::uint64_t kHeaderBytes = 2048;
    constexpr int kRgbElement = 50;
    constexpr int kLinear = 2;
    const std::uint64_t rowBytes = (wide(picture) * 3 + 3) / 4 * 4;
    Bytes out;
    out.text("SDPX").be32(kHeaderBytes).field("V1.0", 8).be32(kHeaderBytes + rowBytes * high(picture));
    out.be32(1).be32(1664).be32(384).be32(0).field("cosmos.dpx", 100).field("2024:06:01:10:00:00", 24);
    out.field("sample card", 100).zeros(400).be32(0xFFFFFFFF).zeros(768 - out.size());
    out.be16(0).be16(1).be32(wide(picture)).be32(high(picture));
    out.be32(0).be32(0).be32(0).be32(255).be32(0).u8(kRgbElement).u8(kLinear).u8(kLinear).u8(8);
    out.be16(0).be16(0).be32(kHeaderBytes).zeros(static_cast<qsizetype>(kHeaderBytes) - out.size());
    const QByteArray pixels = rgbBytes(picture);
    for (int y = 0; y < picture.height; ++y)
        out.raw(pixels.mid(qsizetype{y} * picture.width * 3, picture.width * 3)).alignTo(4);
    return out.bytes();
}

QByteArray miffFile(const Picture& picture) {
    return "id=ImageMagick  version=1.0\nclass=DirectClass  matte=False\ncolumns=" +
           QByteArray::number(picture.width) + "  rows=" + QByteArray::number(picture.height) +
           "  depth=8\ncolorspace=sRGB\ncompression=None\n\f\n:\x1A" + rgbBytes(picture);
}

QByteArray jngFile(const Picture& picture) {
    constexpr int kColour = 10;
    const QByteArray header =
        Bytes().be32(wide(picture)).be32(high(picture)).u8(kColour).u8(8).u8(8).zeros(5).bytes();
    return "\x8BJNG\r\n\x1A\n" + pngChunk("JHDR", header) + pngChunk("JDAT", encodeJpeg(picture, {})) +
           pngChunk("IEND", {});
}

QByteArray dcxFile(const std::vector<Picture>& pages) {
    constexpr std::uint64_t kFirstPage = 4 + 1024 * 4;
    Bytes out;
    Bytes bodies;
    out.le32(0x3ADE68B1);
    for (const Picture& page : pages) {
        out.le32(kFirstPage + static_cast<std::uint64_t>(bodies.size()));
        bodies.raw(pcxFile(page));
    }
    return out.zeros(static_cast<qsizetype>(kFirstPage) - out.size()).raw(bodies.bytes()).bytes();
}

}  // namespace vantor::samples
