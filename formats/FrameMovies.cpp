// Movies of frames with little around them: IVF, YUV4MPEG2, DV, AMV, GXF, Smacker.
// Sources: IVF header notes; yuv4mpeg(5); IEC 61834 and SMPTE 314M (DV); SMPTE 360M (GXF); AMV and Smacker
// notes.
#include <algorithm>

#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostFrames = std::uint64_t{1} << 32;

}  // namespace

Extent walkIvf(ByteView& view) {
    constexpr std::uint64_t kHead = 32, kFrame = 12, kMostApart = 1 << 24;
    constexpr std::uint32_t kMostBytes = 64 * 1024 * 1024;
    if (!view.matches(0, std::string_view("DKIF\0\0\x20\0", 8)))
        return unknownExtent();
    Facts facts;
    facts.width = view.le16(12).value_or(0);
    facts.height = view.le16(14).value_or(0);
    std::uint64_t at = kHead, last = 0;
    for (std::uint64_t frames = 0; frames < kMostFrames; ++frames) {
        Cursor in(view, at, Endian::Little);
        const auto bytes = in.u32();
        const auto time = in.u64();
        const bool next = frames == 0 || (time > last && time - last < kMostApart);
        if (!in.ok() || bytes == 0 || bytes > kMostBytes || !next)
            break;
        if (at + kFrame + bytes > view.size())
            return cutOffAt(view, view.size(), facts);
        at += kFrame + bytes;
        last = time;
    }
    return at > kHead ? inexact(completeAt(view, at, facts)) : cutOffAt(view, view.size(), facts);
}

namespace {

struct Yuv {
    Facts facts;
    std::uint64_t frames = 0;  // where the first begins
    std::uint64_t bytes = 0;   // of each
};

// What the line at the beginning says.
std::optional<Yuv> readYuvHead(ByteView& view) {
    constexpr std::uint64_t kLongestHead = 512, kMostSide = 1 << 16;
    const auto line = view.find('\n', 0, kLongestHead);
    if (!line.found())
        return std::nullopt;
    const auto end = line.at;
    std::uint64_t width = 0, height = 0, sample = 1, numerator = 3;
    bool alpha = false;
    for (auto at = view.find(' ', 0, end); at < end; at = view.find(' ', at + 1, end)) {
        const auto name = view.u8(at + 1).value_or(0);
        std::uint64_t value = 0;
        for (auto digit = at + 2; digit < end && view.u8(digit).value_or(0) >= '0' &&
                                  view.u8(digit).value_or(0) <= '9' && value < kMostSide;
             ++digit)
            value = value * 10 + (*view.u8(digit) - '0');
        if (name == 'W')
            width = value;
        else if (name == 'H')
            height = value;
        else if (name == 'C') {
            numerator = view.matches(at + 2, "mono")  ? 0
                        : view.matches(at + 2, "444") ? 8
                        : view.matches(at + 2, "422") ? 4
                        : view.matches(at + 2, "411") ? 2
                                                      : 3;
            alpha = view.matches(at + 2, "444alpha");
            // Depths of more than eight bits follow a "p", or "mono" itself.
            const auto depth = at + (numerator == 0 ? 6 : 5);
            const bool deep = view.matches(depth, "p1") || view.matches(depth, "p9") ||
                              (numerator == 0 && (view.u8(depth) == '1' || view.u8(depth) == '9'));
            sample = deep ? 2 : 1;
        }
    }
    if (width == 0 || height == 0 || width > kMostSide || height > kMostSide)
        return std::nullopt;
    const auto half = [](std::uint64_t side) { return (side + 1) / 2; };
    const std::uint64_t chroma = numerator == 0   ? 0
                                 : numerator == 8 ? width * height * 2
                                 : numerator == 4 ? half(width) * height * 2
                                 : numerator == 2 ? (width + 3) / 4 * height * 2
                                                  : half(width) * half(height) * 2;
    Yuv yuv;
    yuv.facts.width = static_cast<std::uint32_t>(width);
    yuv.facts.height = static_cast<std::uint32_t>(height);
    yuv.frames = end + 1;
    yuv.bytes = (width * height * (alpha ? 2 : 1) + chroma) * sample;
    return yuv;
}

}  // namespace

Extent walkYuv4Mpeg(ByteView& view) {
    constexpr std::uint64_t kLongestFrameHead = 256;
    if (!view.matches(0, "YUV4MPEG2 "))
        return unknownExtent();
    const auto head = readYuvHead(view);
    if (!head)
        return view.holds(0, kLongestFrameHead) ? unknownExtent() : cutOffAt(view, view.size());
    std::uint64_t at = head->frames;
    while (view.matches(at, "FRAME")) {
        const auto line = view.find('\n', at, at + kLongestFrameHead);
        if (line.stopped() || (line.found() && line.at + 1 + head->bytes > view.size()))
            return cutOffAt(view, view.size(), head->facts);
        if (!line.found())
            return damagedAt(view, at, head->facts);
        at = line.at + 1 + head->bytes;
    }
    return at > head->frames ? inexact(completeAt(view, at, head->facts))
                             : cutOffAt(view, view.size(), head->facts);
}

// Frames of ten or twelve sequences, each of 150 blocks and numbered in its first.
Extent walkDv(ByteView& view) {
    constexpr std::uint64_t kSequence = 150 * 80;
    const auto system = view.u8(3);
    const auto startsAt = [&](std::uint64_t at, unsigned sequence) {
        return view.u8(at).value_or(0) >> 5 == 0 && view.u8(at).value_or(0) == 0x1F &&
               view.u8(at + 1).value_or(0) >> 4 == sequence && view.u8(at + 2) == 0 &&
               view.u8(at + 3) == system;
    };
    if (!system || (*system & 0x7F) != 0x3F || !startsAt(0, 0))
        return unknownExtent();
    const unsigned sequences = (*system & 0x80) != 0 ? 12 : 10;
    std::uint64_t at = 0;
    while (startsAt(at, 0)) {
        for (unsigned sequence = 1; sequence < sequences; ++sequence) {
            const auto start = at + sequence * kSequence;
            if (start + kSequence > view.size())
                return cutOffAt(view, view.size());
            if (!startsAt(start, sequence))
                return at == 0 ? unknownExtent() : damagedAt(view, at);
        }
        at += sequences * kSequence;
    }
    return inexact(completeAt(view, at));
}

// RIFF whose lengths were never filled in; its frames tell theirs, and a word ends it.
Extent walkAmv(ByteView& view) {
    constexpr std::uint64_t kMostHead = 4096, kHead = 8;
    if (!view.matches(0, "RIFF") || !view.matches(8, "AMV LIST"))
        return unknownExtent();
    auto frames = view.find('m', 12, kMostHead);
    while (frames.found() && !view.matches(frames.at, "movi"))
        frames = view.find('m', frames.at + 1, kMostHead);
    if (!frames.found())
        return frames.stopped() ? cutOffAt(view, view.size()) : unknownExtent();
    auto at = frames.at;
    at += 4;
    for (;;) {
        if (view.matches(at, "AMV_END_"))
            return completeAt(view, at + kHead);
        const auto bytes = view.le32(at + 4);
        if (!bytes)
            return cutOffAt(view, view.size());
        if (!view.matches(at, "00dc") && !view.matches(at, "01wb"))
            return damagedAt(view, at);
        at += kHead + *bytes;
        // Some writers pad frames of odd length.
        if (*bytes % 2 != 0 && view.u8(at) == 0)
            ++at;
    }
}

// Packets with marks at both ends of their heads, to the one that ends the stream.
Extent walkGxf(ByteView& view) {
    constexpr std::uint8_t kMap = 0xBC, kEndOfStream = 0xFB, kLast = 0xFD;
    constexpr std::uint64_t kHead = 16;
    std::uint64_t at = 0;
    for (std::uint64_t packets = 0; packets < kMostFrames; ++packets) {
        const bool marked = view.matches(at, std::string_view("\0\0\0\0\1", 5)) &&
                            view.matches(at + 10, std::string_view("\0\0\0\0\xE1\xE2", 6));
        const auto kind = view.u8(at + 4 + 1).value_or(0);
        const auto bytes = view.be32(at + 6).value_or(0);
        if (!marked || (packets == 0 && kind != kMap))
            return packets == 0            ? unknownExtent()
                   : view.holds(at, kHead) ? damagedAt(view, at)
                                           : cutOffAt(view, view.size());
        if (bytes < kHead || kind > kLast)
            return damagedAt(view, at);
        at += bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
        if (kind == kEndOfStream)
            return completeAt(view, at);
    }
    return damagedAt(view, at);
}

Extent walkSmacker(ByteView& view) {
    constexpr std::uint64_t kHead = 104;
    constexpr std::uint32_t kRing = 1, kMostCount = 1 << 22;
    if (!view.matches(0, "SMK2") && !view.matches(0, "SMK4"))
        return unknownExtent();
    Cursor in(view, 4, Endian::Little);
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    const auto told = in.u32();
    in.skip(4);
    const auto flags = in.u32();
    in.skip(28);
    const std::uint64_t trees = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (told == 0 || told > kMostCount)
        return unknownExtent();
    const std::uint64_t frames = told + ((flags & kRing) != 0 ? 1U : 0U);
    auto end = kHead + frames * 5 + trees;
    for (std::uint64_t i = 0; i < frames; ++i) {
        const auto bytes = view.le32(kHead + i * 4);
        if (!bytes)
            return cutOffAt(view, view.size(), facts);
        end += *bytes & ~std::uint32_t{3};  // two flags stand in the length
    }
    return completeAt(view, end, facts);
}

}  // namespace vantor
