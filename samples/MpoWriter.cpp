// MPO: two JPEG files in a row, the first with an index of both (CIPA DC-007).
#include "samples/Bytes.h"
#include "samples/JpegEncoder.h"
#include "samples/PictureWriters.h"

namespace vantor::samples {

namespace {

constexpr qsizetype kIndexAt =
    4;  // the segment follows the start marker, its identifier the marker and length

// Offsets count from the byte order mark inside the segment; the first picture's is always 0.
QByteArray indexSegment(std::uint64_t firstSize, std::uint64_t secondOffset, std::uint64_t secondSize) {
    constexpr int kUndefined = 7;
    constexpr int kLong = 4;
    constexpr std::uint64_t kEntriesAt = 8 + 2 + 3 * 12 + 4;
    Bytes out;
    out.text("MPF").u8(0).text("MM").be16(42).be32(8).be16(3);
    out.be16(0xB000).be16(kUndefined).be32(4).text("0100");
    out.be16(0xB001).be16(kLong).be32(1).be32(2);
    out.be16(0xB002).be16(kUndefined).be32(32).be32(kEntriesAt).be32(0);
    out.be32(0x20020002).be32(firstSize).be32(0).be32(0);
    out.be32(0x00020002).be32(secondSize).be32(secondOffset).be32(0);
    return jpegSegment(0xE2, out.bytes());
}

}  // namespace

QByteArray mpoFile(const Picture& left, const Picture& right) {
    JpegOptions options;
    const QByteArray second = encodeJpeg(right, options);
    options.jfif = JfifHeader::Omitted;
    options.segments = indexSegment(0, 0, 0);
    const auto firstSize = static_cast<std::uint64_t>(encodeJpeg(left, options).size());
    constexpr std::uint64_t kOrderMarkAt = 2 + kIndexAt + 4;
    options.segments =
        indexSegment(firstSize, firstSize - kOrderMarkAt, static_cast<std::uint64_t>(second.size()));
    return encodeJpeg(left, options) + second;
}

}  // namespace vantor::samples
