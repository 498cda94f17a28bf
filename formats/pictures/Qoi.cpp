// QOI pictures. Source: qoiformat.org specification 1.0.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kQoiMostSide = 1 << 20;  // pixels
constexpr std::uint64_t kQoiMostPixels = 1ULL << 30;

Extent walkQoi(ByteView& view) {
    constexpr std::uint64_t kHead = 14;
    Cursor in(view, 4);
    const std::uint64_t width = in.u32(), height = in.u32();
    const auto channels = in.u8(), space = in.u8();
    if (!view.matches(0, "qoif") || !in.ok() || width == 0 || height == 0 || width > kQoiMostSide ||
        height > kQoiMostSide || width * height > kQoiMostPixels || (channels != 3 && channels != 4) ||
        space > 1)
        return unknownExtent();
    Facts facts;
    facts.width = static_cast<std::uint32_t>(width);
    facts.height = static_cast<std::uint32_t>(height);
    std::uint64_t at = kHead;
    for (std::uint64_t pixels = width * height; pixels > 0;) {
        const auto tag = view.u8(at);
        if (!tag)
            return cutOffAt(view, view.size(), facts);
        const bool run = *tag >= 0xC0 && *tag < 0xFE;
        const std::uint64_t covered = run ? (*tag & 0x3FU) + 1 : 1;
        if (covered > pixels)
            return damagedAt(view, at, facts);
        pixels -= covered;
        at += *tag == 0xFF ? 5 : *tag == 0xFE ? 4 : (*tag & 0xC0) == 0x80 ? 2 : 1;
    }
    constexpr std::string_view kEnd("\0\0\0\0\0\0\0\1", 8);
    if (at + kEnd.size() > view.size())
        return cutOffAt(view, view.size(), facts);
    return view.matches(at, kEnd) ? completeAt(view, at + kEnd.size(), facts) : damagedAt(view, at, facts);
}

}  // namespace

extern constexpr Format kQoi = {
    .name = "QOI",
    .group = Group::Pictures,
    .walk = walkQoi,
    .extensions = " QOI ",
};

}  // namespace vantor
