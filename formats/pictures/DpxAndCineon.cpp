// Scanned film, a frame a file: DPX and Cineon. Both tell their length, but some writers tell that of other
// samples than they write, so it is never less than the pixels take. Sources: SMPTE 268M-2003; Cineon image
// file format 4.5.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint32_t kDpxAndCineonUnset = 0xFFFFFFFF;
constexpr std::uint64_t kMostPixels = 1 << 28;

// Bytes of an uncompressed picture whose samples are filled up to words; 0 where they are packed otherwise.
std::uint64_t pixelBytes(const Facts& facts, std::uint64_t samplesEach, unsigned bits) {
    const std::uint64_t samples = facts.width * samplesEach;
    const std::uint64_t row = bits == 8                  ? (samples + 3) / 4 * 4
                              : bits == 10               ? (samples + 2) / 3 * 4
                              : bits == 12 || bits == 16 ? samples * 2
                                                         : 0;
    return row * facts.height;
}

Extent frameEnd(const ByteView& view, std::uint32_t told, std::uint64_t start, std::uint64_t pixels,
                const Facts& facts) {
    const std::uint64_t least = start + pixels;
    return told == kDpxAndCineonUnset ? inexact(completeAt(view, least, facts))
                                      : completeAt(view, std::max<std::uint64_t>(told, least), facts);
}

bool isPlausible(const Facts& facts) {
    return facts.width != 0 && facts.height != 0 && mulClamped(facts.width, facts.height) <= kMostPixels;
}

Extent walkDpx(ByteView& view) {
    constexpr std::uint8_t kRgb = 50, kRgba = 51, kAbgr = 52, kLastSingle = 9;
    if (!view.matches(0, "SDPX") && !view.matches(0, "XPDS"))
        return unknownExtent();
    const auto endian = view.matches(0, "SDPX") ? Endian::Big : Endian::Little;
    Cursor in(view, 4, endian);
    const std::uint64_t start = in.u32();
    in.skip(8);
    const auto told = in.u32();
    in.skip(750);
    const auto elements = in.u16();
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    in.skip(20);
    const auto kind = in.u8();
    in.skip(2);
    const auto bits = in.u8();
    const auto packing = in.u16(), encoding = in.u16();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (start < 768 || start > 1 << 24 || elements == 0 || elements > 8 || !isPlausible(facts))
        return unknownExtent();
    const std::uint64_t samples = kind == kRgb                       ? 3
                                  : kind == kRgba || kind == kAbgr   ? 4
                                  : kind != 0 && kind <= kLastSingle ? 1
                                                                     : 0;
    const bool plain = encoding == 0 && elements == 1 && (packing != 0 || bits == 8 || bits == 16);
    return frameEnd(view, told, start, plain ? pixelBytes(facts, samples, bits) : 0, facts);
}

Extent walkCineon(ByteView& view) {
    if (!view.matches(0, "\x80\x2A\x5F\xD7"))
        return unknownExtent();
    Cursor in(view, 4);
    const std::uint64_t start = in.u32();
    in.skip(12);
    const auto told = in.u32();
    in.skip(169);
    const auto channels = in.u8();
    in.skip(4);
    const auto bits = in.u8();
    in.skip(1);
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (start < 1024 || start > 1 << 24 || channels == 0 || channels > 8 || !isPlausible(facts))
        return unknownExtent();
    const std::uint64_t pixels = pixelBytes(facts, channels, bits);
    // One writer tells the length that the picture would have as a DPX of ten bits.
    constexpr std::uint64_t kDpxHead = 8192;
    if (start < kDpxHead && pixels != 0 && told == kDpxHead + pixelBytes(facts, channels, 10))
        return completeAt(view, start + pixels, facts);
    return frameEnd(view, told, start, pixels, facts);
}

}  // namespace

extern constexpr Format kDpx = {
    .name = "DPX",
    .group = Group::Pictures,
    .walk = walkDpx,
    .extensions = " DPX ",
};

extern constexpr Format kCineon = {
    .name = "Cineon",
    .group = Group::Pictures,
    .walk = walkCineon,
    .extensions = " CIN ",
};

}  // namespace vantor
