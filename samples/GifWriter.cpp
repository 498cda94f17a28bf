// GIF89a with a fixed palette, ordered dithering and our own LZW.
#include <algorithm>
#include <vector>

#include "samples/BitWriter.h"
#include "samples/Bytes.h"
#include "samples/PictureWriters.h"
#include "samples/Pixels.h"

namespace vantor::samples {

namespace {

constexpr int kLevels = 6;  // of each channel: 216 of the palette's 256 colours
constexpr int kCodeBits = 8;
constexpr int kClear = 1 << kCodeBits;
constexpr int kEnd = kClear + 1;
constexpr int kLargestCode = 4095;

QByteArray indexed(const Picture& picture) {
    QByteArray indices;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            int index = 0;
            for (int c = 0; c < 3; ++c) {
                const int scaled = picture.pixel(x, y)[c] * (kLevels - 1) * 16 + ditherAt(x, y) * 255;
                index = index * kLevels + scaled / (255 * 16);
            }
            indices.append(static_cast<char>(index));
        }
    }
    return indices;
}

QByteArray lzw(const QByteArray& indices) {
    LowBitFirst out;
    // children[code * 256 + next] is the code of the string of `code` followed by `next`.
    std::vector<std::uint16_t> children(static_cast<std::size_t>(kLargestCode + 1) * 256, 0);
    int bits = kCodeBits + 1;
    int nextCode = kEnd + 1;
    out.put(kClear, bits);
    int code = static_cast<std::uint8_t>(indices[0]);
    for (qsizetype i = 1; i < indices.size(); ++i) {
        const int symbol = static_cast<std::uint8_t>(indices[i]);
        std::uint16_t& child = children[static_cast<std::size_t>(code * 256 + symbol)];
        if (child != 0) {
            code = child;
            continue;
        }
        out.put(static_cast<std::uint32_t>(code), bits);
        if (nextCode <= kLargestCode) {
            if (nextCode == 1 << bits)
                ++bits;
            child = static_cast<std::uint16_t>(nextCode++);
        } else {
            out.put(kClear, bits);
            std::fill(children.begin(), children.end(), std::uint16_t{0});
            bits = kCodeBits + 1;
            nextCode = kEnd + 1;
        }
        code = symbol;
    }
    out.put(static_cast<std::uint32_t>(code), bits);
    if (nextCode == 1 << bits && bits < 12)
        ++bits;  // the reader has met one more code meanwhile
    out.put(kEnd, bits);
    out.align();
    return out.bytes();
}

QByteArray blocks(const QByteArray& data) {
    Bytes out;
    for (qsizetype at = 0; at < data.size(); at += 255) {
        const QByteArray part = data.mid(at, 255);
        out.u8(static_cast<std::uint64_t>(part.size())).raw(part);
    }
    return out.u8(0).bytes();
}

}  // namespace

QByteArray gifFile(const std::vector<Picture>& frames, int hundredthsPerFrame) {
    const auto width = static_cast<std::uint64_t>(frames.front().width);
    const auto height = static_cast<std::uint64_t>(frames.front().height);
    Bytes out;
    out.text("GIF89a").le16(width).le16(height).u8(0xF7).u8(0).u8(0);
    for (int i = 0; i < 256; ++i) {
        const int inside = i < kLevels * kLevels * kLevels ? i : 0;
        out.u8(static_cast<std::uint64_t>(inside / (kLevels * kLevels) * 51));
        out.u8(static_cast<std::uint64_t>(inside / kLevels % kLevels * 51))
            .u8(static_cast<std::uint64_t>(inside % kLevels * 51));
    }
    if (frames.size() > 1)
        out.u8(0x21).u8(0xFF).u8(11).text("NETSCAPE2.0").u8(3).u8(1).le16(0).u8(0);
    for (const Picture& frame : frames) {
        out.u8(0x21).u8(0xF9).u8(4).u8(4).le16(static_cast<std::uint64_t>(hundredthsPerFrame)).u8(0).u8(0);
        out.u8(0x2C).le16(0).le16(0).le16(width).le16(height).u8(0);
        out.u8(kCodeBits).raw(blocks(lzw(indexed(frame))));
    }
    return out.u8(0x3B).bytes();
}

}  // namespace vantor::samples
