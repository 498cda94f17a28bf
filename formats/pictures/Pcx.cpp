// PCX pictures. Source: ZSoft PCX manual.
#include "formats/pictures/Pcx.h"

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kPcxMostPixels = 1 << 28;  // beyond all pictures of this kind

}  // namespace

Extent walkPcxAt(ByteView& view, std::uint64_t base) {
    constexpr std::uint64_t kHead = 128;
    Cursor in(view, base, Endian::Little);
    const auto maker = in.u8(), version = in.u8(), encoding = in.u8(), bits = in.u8();
    const auto left = in.u16(), top = in.u16(), right = in.u16(), bottom = in.u16();
    in.skip(53);
    const auto planes = in.u8();
    const auto rowBytes = in.u16();
    const bool sized = right >= left && bottom >= top;
    if (!in.ok() || maker != 10 || version > 5 || encoding > 1 ||
        (bits != 1 && bits != 2 && bits != 4 && bits != 8) || planes == 0 || planes > 4 || !sized ||
        rowBytes == 0 || std::uint64_t{rowBytes} * 8 < (right - left + 1U) * bits)
        return unknownExtent();
    Facts facts;
    facts.width = right - left + 1U;
    facts.height = bottom - top + 1U;
    // Runs must cover the rows; a run may, against the rules, cross into the next row.
    const std::uint64_t wanted = std::uint64_t{rowBytes} * planes * facts.height;
    if (wanted > kPcxMostPixels)
        return unknownExtent();
    std::uint64_t at = base + kHead + (encoding == 0 ? wanted : 0);
    for (std::uint64_t done = encoding == 0 ? wanted : 0; done < wanted;) {
        const auto byte = view.u8(at);
        if (!byte)
            return cutOffAt(view, at, facts);
        const bool run = (*byte & 0xC0) == 0xC0;
        done += run ? *byte & 0x3F : 1;
        at += run ? 2 : 1;
    }
    constexpr std::uint64_t kPalette = 769;  // a mark and 256 colours
    if (bits == 8 && planes == 1) {
        for (std::uint64_t gap = 0; gap < 2; ++gap) {
            if (view.u8(at + gap) == 12)
                return completeAt(view, at + gap + kPalette, facts);
        }
        return inexact(completeAt(view, at, facts));  // grey, or its palette is lost
    }
    // One writer adds a palette, though a black one, to pictures in planes as well.
    if (bits == 8 && view.matches(at, std::string_view("\x0C\0\0\0\0\0\0\0", 8)))
        return completeAt(view, at + kPalette, facts);
    return completeAt(view, at, facts);
}

namespace {

Extent walkPcx(ByteView& view) {
    return walkPcxAt(view, 0);
}

}  // namespace

extern constexpr Format kPcx = {
    .name = "PCX",
    .group = Group::Pictures,
    .walk = walkPcx,
    .extensions = " PCX ",
    .strongMagic = false,
};

}  // namespace vantor
