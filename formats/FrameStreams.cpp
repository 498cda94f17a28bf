// Sound that is nothing but frames one after the other: MPEG audio, ADTS, AC-3, DTS, AMR. Nothing marks the
// end; the file goes on while frames of the same kind follow each other. Sources: ISO/IEC 11172-3, 13818-3
// and -7; ETSI TS 102 366 and TS 102 114; RFC 4867.
#include <algorithm>
#include <array>

#include "formats/AudioTags.h"
#include "formats/Crc.h"
#include "formats/Walkers.h"

namespace vantor {

namespace {

// Frames that must follow each other before a stream with a weak sync word is believed.
constexpr std::uint64_t kProof = 3;

// Walks frames from `at`; `frameBytes(position)` is the length of the frame there, 0 = none.
template <typename FrameBytes>
Extent walkFrames(ByteView& view, std::uint64_t at, std::uint64_t proof, FrameBytes frameBytes) {
    std::uint64_t frames = 0;
    for (;; ++frames) {
        const std::uint64_t bytes = frameBytes(at);
        if (bytes == 0)
            break;
        if (bytes > view.size() - at)
            return frames >= proof ? inexact(cutOffAt(view, view.size())) : unknownExtent();
        at += bytes;
    }
    if (frames < proof)
        return unknownExtent();
    const auto end = skipTrailingTags(view, at);
    const bool tornHead = end == at && view.size() - at < 4 && view.size() != at;
    return inexact(tornHead ? cutOffAt(view, at) : completeAt(view, end));
}

std::uint64_t mpegAudioFrameBytes(std::uint32_t head) {
    static constexpr std::uint16_t kKilobits[5][16] = {
        {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448, 0},  // version 1, layer I
        {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 0},     // version 1, layer II
        {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0},      // version 1, layer III
        {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256, 0},     // version 2, layer I
        {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160, 0}};  // version 2, layers II, III
    static constexpr std::array<std::uint32_t, 4> kRates = {44100, 48000, 32000, 0};
    const auto version = head >> 19 & 3, layer = 4 - (head >> 17 & 3);
    const auto rateBits = head >> 10 & 3;
    if (head >> 21 != 0x7FF || version == 1 || layer == 4 || rateBits == 3)
        return 0;
    const bool first = version == 3;
    const auto table = first ? layer - 1 : layer == 1 ? 3 : 4;
    const std::uint32_t bits = kKilobits[table][head >> 12 & 15] * 1000U;
    const auto rate = kRates[rateBits] >> (version == 3 ? 0 : version == 2 ? 1 : 2);
    const auto padding = head >> 9 & 1;
    if (bits == 0)
        return 0;
    if (layer == 1)
        return (12 * bits / rate + padding) * 4;
    return (layer == 3 && !first ? 72 : 144) * bits / rate + padding;
}

}  // namespace

Extent walkMpegAudio(ByteView& view) {
    const auto start = skipLeadingTag(view, 0);
    constexpr std::uint32_t kSameKind = 0xFFFE0C00;  // sync, version, layer, sampling rate
    const auto first = view.be32(start).value_or(0);
    return walkFrames(view, start, start != 0 ? 1 : kProof, [&](std::uint64_t at) -> std::uint64_t {
        const auto head = view.be32(at).value_or(0);
        return ((head ^ first) & kSameKind) == 0 ? mpegAudioFrameBytes(head) : 0;
    });
}

Extent walkAdts(ByteView& view) {
    const auto start = skipLeadingTag(view, 0);
    constexpr std::uint32_t kSameKind = 0xFFFEFDC0;  // sync, version, layer, profile, rate, channels
    const auto first = view.be32(start).value_or(0);
    const auto rate = first >> 10 & 15;
    if (first >> 20 != 0xFFF || (first >> 17 & 3) != 0 || rate > 12)
        return unknownExtent();
    return walkFrames(view, start, start != 0 ? 1 : kProof, [&](std::uint64_t at) -> std::uint64_t {
        const auto head = view.number(at, 6, Endian::Big).value_or(0);
        const auto bytes = head >> 5 & 0x1FFF;
        return ((head >> 16 ^ first) & kSameKind) == 0 && bytes >= 7 ? bytes : 0;
    });
}

Extent walkAc3(ByteView& view) {
    static constexpr std::array<std::uint16_t, 19> kKilobits = {
        32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 448, 512, 576, 640};
    const auto frameBytes = [&](std::uint64_t at) -> std::uint64_t {
        const auto head = view.number(at, 6, Endian::Big).value_or(0);
        if (head >> 32 != 0x0B77)
            return 0;
        const auto version = head >> 3 & 31;
        if (version > 10 && version <= 16)  // enhanced: words less one
            return ((head >> 16 & 0x7FF) + 1) * 2;
        const auto rate = head >> 14 & 3, code = head >> 8 & 63;
        if (version > 10 || rate == 3 || code >= kKilobits.size() * 2)
            return 0;
        const std::uint64_t kilobits = kKilobits[code / 2];
        if (rate == 0)  // 48 kHz
            return kilobits * 4;
        if (rate == 2)  // 32 kHz
            return kilobits * 6;
        return (kilobits * 320 / 147 + code % 2) * 2;  // 44.1 kHz
    };
    const auto start = skipLeadingTag(view, 0);
    // The checksum behind the sync word makes even a single frame trustworthy.
    const auto bytes = frameBytes(start);
    std::uint16_t crc = 0;
    const auto first = view.window(start, static_cast<std::size_t>(bytes));
    for (std::size_t i = 2; i < std::min<std::size_t>(first.size(), bytes); ++i)
        crc = crc16(crc, first[i]);
    const bool proved = bytes != 0 && first.size() >= bytes && crc == 0;
    return walkFrames(view, start, proved ? 1 : kProof, frameBytes);
}

// Frames of the core stream, each with an extension of its own or without.
Extent walkDts(ByteView& view) {
    constexpr std::uint32_t kCore = 0x7FFE8001, kExtension = 0x64582025;
    const auto bitsAt = [&](std::uint64_t at, unsigned first, unsigned count) {
        const auto eight = view.number(at + first / 8, 4, Endian::Big).value_or(0);
        return eight >> (32 - first % 8 - count) & ((std::uint64_t{1} << count) - 1);
    };
    if (view.be32(0) != kCore)
        return unknownExtent();
    return walkFrames(view, 0, kProof, [&](std::uint64_t at) -> std::uint64_t {
        constexpr std::uint64_t kLeast = 96;
        if (view.be32(at) == kCore) {
            const auto bytes = bitsAt(at, 46, 14) + 1;
            return bytes >= kLeast ? bytes : 0;
        }
        if (view.be32(at) != kExtension)
            return 0;
        const bool wide = bitsAt(at, 42, 1) != 0;
        return bitsAt(at, wide ? 55 : 51, wide ? 20 : 16) + 1;
    });
}

Extent walkAmr(ByteView& view) {
    static constexpr std::array<std::uint8_t, 16> kNarrow = {13, 14, 16, 18, 20, 21, 27, 32,
                                                             6,  0,  0,  0,  0,  0,  0,  1};
    static constexpr std::array<std::uint8_t, 16> kWide = {18, 24, 33, 37, 41, 47, 51, 59,
                                                           61, 6,  0,  0,  0,  0,  1,  1};
    const bool wide = view.matches(0, "#!AMR-WB\n");
    if (!wide && !view.matches(0, "#!AMR\n"))
        return unknownExtent();
    return walkFrames(view, wide ? 9 : 6, 1, [&](std::uint64_t at) -> std::uint64_t {
        const auto head = view.u8(at).value_or(0xFF);
        // A bad-quality frame of the lowest rate looks like the zeros of an empty sector: take it for these.
        if ((head & 0x83) != 0 || head == 0)
            return 0;
        return (wide ? kWide : kNarrow)[head >> 3 & 15];
    });
}

}  // namespace vantor
