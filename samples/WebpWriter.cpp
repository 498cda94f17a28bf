// WebP, lossless: every pixel a literal, each channel with eight-bit codes.
#include "samples/BitWriter.h"
#include "samples/Bytes.h"
#include "samples/PictureWriters.h"

namespace vantor::samples {

namespace {

// Place of each code length in the order the format lists them (RFC 9649, 3.7.2.1).
constexpr int kLengthOrder[] = {17, 18, 0, 1, 2, 3, 4, 5, 16, 6, 7, 8};

// A prefix code that gives each of the first 256 symbols eight bits and the `others` after them none.
void putPlainCode(LowBitFirst& out, int others) {
    out.put(0, 1);       // not one of the simple codes
    out.put(12 - 4, 4);  // twelve code lengths follow
    for (const int length : kLengthOrder)
        out.put(length == 0 || length == 8 ? 1 : 0, 3);
    out.put(0, 1);  // every symbol is listed
    for (int symbol = 0; symbol < 256; ++symbol)
        out.put(1, 1);  // eight bits: the second of two one-bit codes
    for (int symbol = 0; symbol < others; ++symbol)
        out.put(0, 1);
}

// A code of one symbol, which takes no bits.
void putSingleCode(LowBitFirst& out, std::uint32_t symbol) {
    out.put(1, 1);
    out.put(0, 1);  // one symbol
    out.put(1, 1);  // of eight bits
    out.put(symbol, 8);
}

}  // namespace

QByteArray webpFile(const Picture& picture) {
    constexpr int kLengthCodes = 24;  // stand behind the 256 values of green
    LowBitFirst out;
    out.put(0x2F, 8);
    out.put(static_cast<std::uint32_t>(picture.width - 1), 14);
    out.put(static_cast<std::uint32_t>(picture.height - 1), 14);
    out.put(0, 1 + 3);      // no transparency, version 0
    out.put(0, 1 + 1 + 1);  // no transforms, no colour cache, one set of codes
    putPlainCode(out, kLengthCodes);
    putPlainCode(out, 0);
    putPlainCode(out, 0);
    putSingleCode(out, 255);  // opaque
    putSingleCode(out, 0);    // distances, of which there are none
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* p = picture.pixel(x, y);
            for (const std::uint32_t channel : {p[1], p[0], p[2]})
                out.putReversed(channel, 8);
        }
    }
    out.align();
    const auto size = static_cast<std::uint64_t>(out.bytes().size());
    Bytes file;
    file.text("RIFF").le32(12 + size + (size & 1)).text("WEBPVP8L").le32(size).raw(out.bytes());
    return file.alignTo(2).bytes();
}

}  // namespace vantor::samples
