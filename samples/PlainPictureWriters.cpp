// The picture formats that are little more than a header and pixels.
#include "samples/Bytes.h"
#include "samples/PictureWriters.h"
#include "samples/Pixels.h"

namespace vantor::samples {

namespace {

std::uint64_t size(int value) {
    return static_cast<std::uint64_t>(value);
}

QByteArray plane(const Picture& picture, int channel) {
    QByteArray bytes;
    bytes.reserve(qsizetype{picture.width} * picture.height);
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            bytes.append(static_cast<char>(picture.pixel(x, y)[channel]));
    return bytes;
}

// Blue first, bottom row first, each row filled up to `rowUnit` bytes.
QByteArray bottomUp(const Picture& picture, int rowUnit) {
    Bytes out;
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* p = picture.pixel(x, y);
            out.u8(p[2]).u8(p[1]).u8(p[0]);
        }
        out.alignTo(rowUnit);
    }
    return out.bytes();
}

QByteArray netpbmHeader(const char* magic, const Picture& picture) {
    return QByteArray(magic) + '\n' + QByteArray::number(picture.width) + ' ' +
           QByteArray::number(picture.height) + "\n255\n";
}

QByteArray planes(const Picture& picture) {
    return plane(picture, 0) + plane(picture, 1) + plane(picture, 2);
}

QByteArray photoshopHeader(int version, const Picture& picture) {
    Bytes out;
    out.text("8BPS").be16(size(version)).zeros(6).be16(3);
    return out.be32(size(picture.height)).be32(size(picture.width)).be16(8).be16(3).bytes();
}

QByteArray pcxRow(const QByteArray& row) {
    Bytes out;
    for (qsizetype i = 0; i < row.size();) {
        qsizetype run = 1;
        while (run < 63 && i + run < row.size() && row[i + run] == row[i])
            ++run;
        const auto value = static_cast<std::uint8_t>(row[i]);
        if (run > 1 || value >= 0xC0)
            out.u8(0xC0 | static_cast<std::uint64_t>(run));
        out.u8(value);
        i += run;
    }
    return out.bytes();
}

// One size of an icon: a bitmap of twice the height, whose second half is the mask.
QByteArray iconBitmap(const Picture& picture) {
    Bytes out;
    out.le32(40).le32(size(picture.width)).le32(size(picture.height) * 2).le16(1).le16(32).zeros(24);
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* p = picture.pixel(x, y);
            out.u8(p[2]).u8(p[1]).u8(p[0]).u8(255);
        }
    }
    const int maskRow = (picture.width + 31) / 32 * 4;
    return out.zeros(qsizetype{maskRow} * picture.height).bytes();
}

}  // namespace

QByteArray bmpFile(const Picture& picture) {
    const QByteArray pixels = bottomUp(picture, 4);
    constexpr int kHeaders = 54;
    Bytes out;
    out.text("BM").le32(kHeaders + static_cast<std::uint64_t>(pixels.size())).le32(0).le32(kHeaders);
    out.le32(40).le32(size(picture.width)).le32(size(picture.height)).le16(1).le16(24).le32(0);
    return out.le32(static_cast<std::uint64_t>(pixels.size()))
        .le32(2835)
        .le32(2835)
        .le32(0)
        .le32(0)
        .raw(pixels)
        .bytes();
}

QByteArray ppmFile(const Picture& picture) {
    return netpbmHeader("P6", picture) + rgbBytes(picture);
}

QByteArray pgmFile(const Picture& picture) {
    QByteArray grey;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            grey.append(static_cast<char>(greyOf(picture.pixel(x, y))));
        }
    }
    return netpbmHeader("P5", picture) + grey;
}

QByteArray tgaFile(const Picture& picture) {
    Bytes out;
    out.u8(0).u8(0).u8(2).zeros(9).le16(size(picture.width)).le16(size(picture.height)).u8(24).u8(0);
    out.raw(bottomUp(picture, 1));
    return out.le32(0).le32(0).text("TRUEVISION-XFILE.").u8(0).bytes();
}

QByteArray pcxFile(const Picture& picture) {
    const int rowBytes = (picture.width + 1) & ~1;
    Bytes out;
    out.u8(10).u8(5).u8(1).u8(8).le16(0).le16(0).le16(size(picture.width - 1)).le16(size(picture.height - 1));
    out.le16(72).le16(72).zeros(48).u8(0).u8(3).le16(size(rowBytes)).le16(1).zeros(58);
    for (int y = 0; y < picture.height; ++y) {
        for (int channel = 0; channel < 3; ++channel) {
            QByteArray row;
            for (int x = 0; x < picture.width; ++x)
                row.append(static_cast<char>(picture.pixel(x, y)[channel]));
            out.raw(pcxRow(row.leftJustified(rowBytes, '\0')));
        }
    }
    return out.bytes();
}

QByteArray sgiFile(const Picture& picture) {
    Bytes out;
    out.be16(474)
        .u8(0)
        .u8(1)
        .be16(3)
        .be16(size(picture.width))
        .be16(size(picture.height))
        .be16(3)
        .be32(0)
        .be32(255);
    out.zeros(4).field("sunrise", 80).be32(0).zeros(404);
    for (int channel = 0; channel < 3; ++channel) {
        const QByteArray pixels = plane(picture, channel);
        for (int y = picture.height - 1; y >= 0; --y)
            out.raw(pixels.mid(qsizetype{y} * picture.width, picture.width));
    }
    return out.bytes();
}

QByteArray psdFile(const Picture& picture) {
    // No colour table, resources or layers; uncompressed.
    return photoshopHeader(1, picture) + QByteArray(4 + 4 + 4 + 2, '\0') + planes(picture);
}

QByteArray psbFile(const Picture& picture) {
    // The same, but the length of the layers has eight bytes.
    return photoshopHeader(2, picture) + QByteArray(4 + 4 + 8 + 2, '\0') + planes(picture);
}

QByteArray curFile(const Picture& picture) {
    const QByteArray bitmap = iconBitmap(picture);
    Bytes out;
    out.le16(0).le16(2).le16(1).u8(size(picture.width)).u8(size(picture.height)).u8(0).u8(0);
    out.le16(0).le16(0);  // the point that points
    return out.le32(static_cast<std::uint64_t>(bitmap.size())).le32(6 + 16).raw(bitmap).bytes();
}

QByteArray icoFile(const std::vector<Picture>& sizes) {
    Bytes out;
    Bytes bitmaps;
    out.le16(0).le16(1).le16(sizes.size());
    const std::uint64_t firstAt = 6 + 16 * sizes.size();
    for (const Picture& picture : sizes) {
        const QByteArray bitmap = iconBitmap(picture);
        out.u8(size(picture.width & 255)).u8(size(picture.height & 255)).u8(0).u8(0).le16(1).le16(32);
        out.le32(static_cast<std::uint64_t>(bitmap.size()))
            .le32(firstAt + static_cast<std::uint64_t>(bitmaps.size()));
        bitmaps.raw(bitmap);
    }
    return out.raw(bitmaps.bytes()).bytes();
}

QByteArray xpmFile(const Picture& picture) {
    constexpr int kLevels = 4;  // of each channel
    constexpr char kFirstSymbol = '0';
    QByteArray out = "/* XPM */\nstatic char * sample[] = {\n\"";
    out += QByteArray::number(picture.width) + ' ' + QByteArray::number(picture.height) + " 64 1\",\n";
    const auto symbol = [](int index) {
        return static_cast<char>(kFirstSymbol + (index < 44 ? index : index + 1));
    };
    for (int index = 0; index < kLevels * kLevels * kLevels; ++index) {
        const QByteArray rgb =
            Bytes().u8(size(index / 16 * 85)).u8(size(index / 4 % 4 * 85)).u8(size(index % 4 * 85)).bytes();
        out += QByteArray("\"") + symbol(index) + " c #" + rgb.toHex().toUpper() + "\",\n";
    }
    for (int y = 0; y < picture.height; ++y) {
        out += '"';
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* p = picture.pixel(x, y);
            out += symbol(p[0] / 64 * 16 + p[1] / 64 * 4 + p[2] / 64);
        }
        out += y + 1 < picture.height ? "\",\n" : "\"\n";
    }
    return out + "};\n";
}

}  // namespace vantor::samples
