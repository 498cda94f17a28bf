// MPEG audio (MP3, MP2, MP1): nothing but frames, the first of which may tell how many. Sources: ISO/IEC
// 11172-3, 13818-3; the public description of the Xing and Info headers.
#include <array>

#include "formats/AudioTags.h"
#include "formats/PlayingTime.h"
#include "formats/Registry.h"
#include "formats/sounds/FrameStream.h"

namespace vantor {

namespace {

// Samples a second; 0 = none of the rates there are.
std::uint32_t sampleRate(std::uint32_t head) {
    static constexpr std::array<std::uint32_t, 4> kRates = {44100, 48000, 32000, 0};
    const auto version = head >> 19 & 3;
    return kRates[head >> 10 & 3] >> (version == 3 ? 0 : version == 2 ? 1 : 2);
}

std::uint32_t samplesOfFrame(std::uint32_t head) {
    const auto layer = 4 - (head >> 17 & 3);
    return layer == 1 ? 384 : layer == 3 && (head >> 19 & 3) != 3 ? 576 : 1152;
}

std::uint64_t mpegAudioFrameBytes(std::uint32_t head) {
    static constexpr std::uint16_t kKilobits[5][16] = {
        {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448, 0},  // version 1, layer I
        {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 0},     // version 1, layer II
        {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0},      // version 1, layer III
        {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256, 0},     // version 2, layer I
        {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160, 0}};  // version 2, layers II, III
    const auto version = head >> 19 & 3, layer = 4 - (head >> 17 & 3);
    const auto rate = sampleRate(head);
    if (head >> 21 != 0x7FF || version == 1 || layer == 4 || rate == 0)
        return 0;
    const bool first = version == 3;
    const auto table = first ? layer - 1 : layer == 1 ? 3 : 4;
    const std::uint32_t bits = kKilobits[table][head >> 12 & 15] * 1000U;
    const auto padding = head >> 9 & 1;
    if (bits == 0)
        return 0;
    if (layer == 1)
        return (12 * bits / rate + padding) * 4;
    return (layer == 3 && !first ? 72 : 144) * bits / rate + padding;
}

// Bytes of a frame in the free format, without padding, whose head tells no bit rate: found by the head of
// the next; 0 = it is none. All frames have the same rate then.
std::uint64_t freeFrameBytes(ByteView& view, std::uint64_t at) {
    constexpr std::uint32_t kAllButPadding = 0xFFFFFDC0;  // and what joins the channels
    constexpr std::uint64_t kLeast = 32, kMost = 4096;
    const auto head = view.be32(at).value_or(0);
    // A bit rate in its place makes a head of one that is valid otherwise.
    if ((head >> 12 & 15) != 0 || (head >> 17 & 3) == 3 || mpegAudioFrameBytes(head | 1 << 12) == 0)
        return 0;
    for (auto bytes = kLeast; bytes < kMost; ++bytes) {
        if (((view.be32(at + bytes).value_or(0) ^ head) & kAllButPadding) == 0)
            return bytes - (head >> 9 & 1);
    }
    return 0;
}

// How many frames of sound the first frame says that follow it; 0 = it does not.
std::uint64_t toldFrames(ByteView& view, std::uint64_t at, std::uint32_t head) {
    const bool first = (head >> 19 & 3) == 3, mono = (head >> 6 & 3) == 3;
    at += 4 + (first ? (mono ? 17 : 32) : (mono ? 9 : 17));  // behind the side information
    const bool tells = view.matches(at, "Xing") || view.matches(at, "Info");
    return tells && (view.be32(at + 4).value_or(0) & 1) != 0 ? view.be32(at + 8).value_or(0) : 0;
}

Extent walkMpegAudio(ByteView& view) {
    const auto start = skipLeadingTag(view, 0);
    constexpr std::uint32_t kSameKind = 0xFFFE0C00;  // sync, version, layer, sampling rate
    const auto first = view.be32(start).value_or(0);
    const auto freeBytes = freeFrameBytes(view, start);
    // The same tag stands before other sound, whose frames tell themselves apart.
    if (start != 0 && freeBytes == 0 && mpegAudioFrameBytes(first) == 0) {
        for (const Format* other : {&kAdts, &kAc3}) {
            const Extent extent = other->walk(view);
            if (extent.verdict != Verdict::Unknown)
                return extent;
        }
    }
    const auto frameBytes = [&](std::uint64_t at) -> std::uint64_t {
        const auto head = view.be32(at).value_or(0);
        if (((head ^ first) & kSameKind) != 0)
            return 0;
        return freeBytes != 0 && (head >> 12 & 15) == 0 ? freeBytes + (head >> 9 & 1)
                                                        : mpegAudioFrameBytes(head);
    };
    FrameRow row;
    Extent extent = walkFrames(view, start, start != 0 ? 1 : kProofFrames, frameBytes, &row);
    extent.facts.durationMs = playingTimeMs(row.frames * samplesOfFrame(first), sampleRate(first));
    const auto told = toldFrames(view, start, first);
    const bool all = told != 0 && told + 1 == row.frames && !row.tornTag;
    // Where they end with a sector, a tag may have stood in the next.
    if (extent.verdict == Verdict::Complete && all && !isSectorStart(extent.end)) {
        extent.exactEnd = true;
        extent.checked = row.headInEachSector;
    }
    return extent;
}

}  // namespace

extern constexpr Format kMpegAudio = {
    .name = "MPEG audio",
    .group = Group::Sounds,
    .walk = walkMpegAudio,
    .extensions = " MP3 MP2 MP1 MPA M2A ",
    .strongMagic = false,
    .frameStream = true,
};

}  // namespace vantor
