// Matroska (RFC 9559): nested elements, one track, a cluster every ten frames.
#include <algorithm>

#include "samples/Bytes.h"
#include "samples/MovieWriters.h"

namespace vantor::samples {

namespace {

QByteArray identifier(std::uint32_t id) {
    Bytes out;
    for (int shift = 24; shift >= 0; shift -= 8) {
        if ((id >> shift) != 0)
            out.u8(id >> shift & 0xFF);
    }
    return out.bytes();
}

// Sizes are always written in eight bytes: simple, and allowed.
QByteArray element(std::uint32_t id, const QByteArray& content) {
    return Bytes()
        .raw(identifier(id))
        .be64((std::uint64_t{1} << 56) | static_cast<std::uint64_t>(content.size()))
        .raw(content)
        .bytes();
}

QByteArray number(std::uint32_t id, std::uint64_t value) {
    return element(id, Bytes().be32(value).bytes());
}

}  // namespace

QByteArray mkvFile(const H264Video& video, int framesPerSecond) {
    constexpr std::size_t kFramesPerCluster = 10;
    const int frameTime = 1000 / framesPerSecond;
    const QByteArray head =
        element(0x1A45DFA3, number(0x4286, 1) + number(0x42F7, 1) + number(0x42F2, 4) + number(0x42F3, 8) +
                                element(0x4282, "matroska") + number(0x4287, 4) + number(0x4285, 2));
    const std::uint64_t milliseconds = video.frames.size() * static_cast<std::uint64_t>(frameTime);
    // The duration is a floating point number; below 2^24 a single-precision one is exact.
    int exponent = 23;
    std::uint64_t mantissa = milliseconds;
    while ((mantissa >> 23) == 0) {
        mantissa <<= 1;
        --exponent;
    }
    const std::uint64_t duration = (static_cast<std::uint64_t>(127 + exponent) << 23) | (mantissa & 0x7FFFFF);
    const QByteArray information =
        element(0x1549A966, number(0x2AD7B1, 1000000) + number(0x4489, duration) + element(0x4D80, "vantor") +
                                element(0x5741, "vantor"));
    const QByteArray picture = element(0xE0, number(0xB0, static_cast<std::uint64_t>(video.width)) +
                                                 number(0xBA, static_cast<std::uint64_t>(video.height)));
    const QByteArray track = element(
        0xAE, number(0xD7, 1) + number(0x73C5, 1) + number(0x83, 1) + number(0x9C, 0) +
                  number(0x23E383, static_cast<std::uint64_t>(frameTime) * 1000000) +
                  element(0x86, "V_MPEG4/ISO/AVC") + element(0x63A2, avcConfiguration(video)) + picture);
    QByteArray segment = information + element(0x1654AE6B, track);
    for (std::size_t first = 0; first < video.frames.size(); first += kFramesPerCluster) {
        QByteArray cluster = number(0xE7, first * static_cast<std::uint64_t>(frameTime));
        for (std::size_t i = first; i < std::min(first + kFramesPerCluster, video.frames.size()); ++i) {
            Bytes block;
            block.u8(0x81).be16((i - first) * static_cast<std::uint64_t>(frameTime)).u8(i == 0 ? 0x80 : 0);
            cluster += element(0xA3, block.raw(lengthPrefixed(video.frames[i])).bytes());
        }
        segment += element(0x1F43B675, cluster);
    }
    return head + element(0x18538067, segment);
}

}  // namespace vantor::samples
