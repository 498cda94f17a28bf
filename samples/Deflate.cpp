// Deflate with fixed Huffman codes and a single-candidate search for repeats (RFC 1951).
#include "samples/Deflate.h"

#include <vector>

#include "samples/BitWriter.h"
#include "samples/Bytes.h"
#include "samples/Checksums.h"

namespace vantor::samples {

namespace {

constexpr int kShortestMatch = 3;
constexpr int kLongestMatch = 258;
constexpr qsizetype kWindow = 32768;
constexpr int kHashBits = 15;
constexpr int kEndOfBlock = 256;

// First value and number of extra bits of each length code 257.. and distance code 0.. (RFC 1951, 3.2.5).
constexpr int kLengthBase[] = {3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                               31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
constexpr int kLengthBits[] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                               2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
constexpr int kDistanceBase[] = {1,    2,    3,    4,    5,    7,    9,    13,    17,    25,
                                 33,   49,   65,   97,   129,  193,  257,  385,   513,   769,
                                 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};

int distanceBits(int code) {
    return code < 4 ? 0 : code / 2 - 1;
}

void putSymbol(LowBitFirst& out, int symbol) {
    if (symbol < 144)
        out.putReversed(static_cast<std::uint32_t>(0x30 + symbol), 8);
    else if (symbol < 256)
        out.putReversed(static_cast<std::uint32_t>(0x190 + symbol - 144), 9);
    else if (symbol < 280)
        out.putReversed(static_cast<std::uint32_t>(symbol - 256), 7);
    else
        out.putReversed(static_cast<std::uint32_t>(0xC0 + symbol - 280), 8);
}

template <std::size_t n>
int codeFor(const int (&bases)[n], int value) {
    int code = static_cast<int>(n) - 1;
    while (bases[code] > value)
        --code;
    return code;
}

void putMatch(LowBitFirst& out, int length, int distance) {
    const int lengthCode = codeFor(kLengthBase, length);
    putSymbol(out, 257 + lengthCode);
    out.put(static_cast<std::uint32_t>(length - kLengthBase[lengthCode]), kLengthBits[lengthCode]);
    const int distanceCode = codeFor(kDistanceBase, distance);
    out.putReversed(static_cast<std::uint32_t>(distanceCode), 5);
    out.put(static_cast<std::uint32_t>(distance - kDistanceBase[distanceCode]), distanceBits(distanceCode));
}

std::uint32_t hashAt(const QByteArray& bytes, qsizetype at) {
    const auto byte = [&](qsizetype i) {
        return static_cast<std::uint32_t>(static_cast<std::uint8_t>(bytes[i]));
    };
    return ((byte(at) | byte(at + 1) << 8 | byte(at + 2) << 16) * 2654435761u) >> (32 - kHashBits);
}

int matchLength(const QByteArray& bytes, qsizetype earlier, qsizetype at) {
    int length = 0;
    while (length < kLongestMatch && at + length < bytes.size() &&
           bytes[earlier + length] == bytes[at + length])
        ++length;
    return length;
}

}  // namespace

QByteArray deflate(const QByteArray& bytes) {
    LowBitFirst out;
    out.put(1, 1);  // the last block
    out.put(1, 2);  // fixed Huffman codes
    std::vector<qsizetype> lastSeen(std::size_t{1} << kHashBits, -1);
    qsizetype at = 0;
    while (at < bytes.size()) {
        int length = 0;
        qsizetype earlier = -1;
        if (at + kShortestMatch <= bytes.size()) {
            qsizetype& slot = lastSeen[hashAt(bytes, at)];
            earlier = slot;
            slot = at;
            if (earlier >= 0 && at - earlier <= kWindow)
                length = matchLength(bytes, earlier, at);
        }
        if (length < kShortestMatch) {
            putSymbol(out, static_cast<std::uint8_t>(bytes[at]));
            ++at;
            continue;
        }
        putMatch(out, length, static_cast<int>(at - earlier));
        for (qsizetype i = at + 1; i < at + length && i + kShortestMatch <= bytes.size(); ++i)
            lastSeen[hashAt(bytes, i)] = i;
        at += length;
    }
    putSymbol(out, kEndOfBlock);
    out.align();
    return out.bytes();
}

QByteArray zlibStream(const QByteArray& bytes) {
    return Bytes().u8(0x78).u8(0x01).raw(deflate(bytes)).be32(adler32(bytes)).bytes();
}

QByteArray gzipFile(const QByteArray& bytes, const QByteArray& name) {
    constexpr int kHasName = 8;
    constexpr int kUnknownSystem = 255;
    Bytes out;
    out.u8(0x1F).u8(0x8B).u8(8).u8(kHasName).le32(0).u8(0).u8(kUnknownSystem).raw(name).u8(0);
    return out.raw(deflate(bytes)).le32(crc32(bytes)).le32(static_cast<std::uint64_t>(bytes.size())).bytes();
}

}  // namespace vantor::samples
