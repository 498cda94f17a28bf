// Small picture formats: ICO and CUR, ICNS, PCX, TGA, DDS. Sources: Microsoft's "Icons in Win32"; Apple icon
// services header; ZSoft PCX manual; Truevision TGA 2.0; Microsoft DDS documentation.
#include <algorithm>

#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostPixels = 1 << 28;  // beyond all pictures in these formats

}  // namespace

Extent walkIcon(ByteView& view) {
    constexpr std::uint64_t kEntry = 16;
    const auto kind = view.le16(2).value_or(0), count = view.le16(4).value_or(0);
    if (view.le16(0) != 0 || (kind != 1 && kind != 2) || count == 0 || count > 256)
        return unknownExtent();
    const std::uint64_t table = 6 + count * kEntry;
    std::uint64_t end = table;
    for (std::uint64_t i = 0; i < count; ++i) {
        Cursor in(view, 6 + i * kEntry + 3, Endian::Little);
        const auto reserved = in.u8();
        in.skip(4);
        const std::uint64_t bytes = in.u32(), at = in.u32();
        if (!in.ok() || (reserved != 0 && reserved != 255) || bytes < 16 || at < table || bytes > (1U << 26))
            return unknownExtent();
        end = std::max(end, at + bytes);
    }
    Facts facts;
    facts.width = view.u8(6).value_or(0) == 0 ? 256 : *view.u8(6);
    facts.height = view.u8(7).value_or(0) == 0 ? 256 : *view.u8(7);
    return completeAt(view, end, facts);
}

Extent walkIcns(ByteView& view) {
    const auto told = view.be32(4).value_or(0);
    if (!view.matches(0, "icns") || told < 16)
        return unknownExtent();
    std::uint64_t at = 8;
    while (at < told) {
        const auto bytes = view.be32(at + 4);
        if (!bytes || at + *bytes > view.size())
            return cutOffAt(view, view.size());
        if (*bytes < 8 || at + *bytes > told)
            return damagedAt(view, at);
        at += *bytes;
    }
    return completeAt(view, told);
}

Extent walkPcx(ByteView& view) {
    constexpr std::uint64_t kHead = 128;
    Cursor in(view, 0, Endian::Little);
    const auto maker = in.u8(), version = in.u8(), encoding = in.u8(), bits = in.u8();
    const auto left = in.u16(), top = in.u16(), right = in.u16(), bottom = in.u16();
    in.skip(53);
    const auto planes = in.u8();
    const auto rowBytes = in.u16();
    const bool sized = right >= left && bottom >= top;
    if (!in.ok() || maker != 10 || version > 5 || encoding != 1 ||
        (bits != 1 && bits != 2 && bits != 4 && bits != 8) || planes == 0 || planes > 4 || !sized ||
        rowBytes == 0 || std::uint64_t{rowBytes} * 8 < (right - left + 1U) * bits)
        return unknownExtent();
    Facts facts;
    facts.width = right - left + 1U;
    facts.height = bottom - top + 1U;
    // Runs must cover the rows; a run may, against the rules, cross into the next row.
    const std::uint64_t wanted = std::uint64_t{rowBytes} * planes * facts.height;
    if (wanted > kMostPixels)
        return unknownExtent();
    std::uint64_t at = kHead;
    for (std::uint64_t done = 0; done < wanted;) {
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

Extent walkTga(ByteView& view) {
    Cursor in(view, 0, Endian::Little);
    const std::uint64_t idBytes = in.u8();
    const auto mapped = in.u8(), type = in.u8();
    in.skip(2);
    const std::uint64_t mapLength = in.u16(), mapBits = in.u8();
    in.skip(4);
    Facts facts;
    facts.width = in.u16();
    facts.height = in.u16();
    const auto bits = in.u8(), descriptor = in.u8();
    const auto plain = type & 7;
    const bool depth = bits == 8 || bits == 15 || bits == 16 || bits == 24 || bits == 32;
    const bool map = mapBits == 0 || mapBits == 15 || mapBits == 16 || mapBits == 24 || mapBits == 32;
    if (!in.ok() || mapped > 1 || plain < 1 || plain > 3 || (type & ~11) != 0 || !depth || !map ||
        facts.width == 0 || facts.height == 0 || std::uint64_t{facts.width} * facts.height > kMostPixels ||
        (descriptor & 0xC0) != 0 || (plain == 1) != (mapped == 1))
        return unknownExtent();
    const std::uint64_t pixelBytes = (bits + 7U) / 8;
    const std::uint64_t pixels = std::uint64_t{facts.width} * facts.height;
    std::uint64_t at = 18 + idBytes + mapLength * ((mapBits + 7) / 8);
    if ((type & 8) == 0) {
        at += pixels * pixelBytes;
    } else {
        for (std::uint64_t done = 0; done < pixels;) {
            const auto head = view.u8(at);
            if (!head)
                return cutOffAt(view, at, facts);
            const std::uint64_t count = (*head & 0x7F) + 1U;
            at += 1 + ((*head & 0x80) != 0 ? 1 : count) * pixelBytes;
            done += count;
        }
    }
    // Version 2 closes with a footer, behind an extension area at most.
    constexpr std::uint64_t kFooter = 26, kMostExtras = 4096;
    constexpr std::string_view kMark("TRUEVISION-XFILE.\0", 18);
    for (auto mark = view.find('T', at, at + kMostExtras); mark.found();
         mark = view.find('T', mark.at + 1, at + kMostExtras)) {
        if (mark.at >= at + kFooter - kMark.size() && view.matches(mark.at, kMark))
            return completeAt(view, mark.at + kMark.size(), facts);
    }
    return inexact(completeAt(view, at, facts));
}

Extent walkDds(ByteView& view) {
    constexpr std::uint64_t kHead = 128;
    if (!view.matches(0, std::string_view("DDS \x7C\0\0\0", 8)))
        return unknownExtent();
    Cursor in(view, 12, Endian::Little);
    Facts facts;
    facts.height = in.u32();
    facts.width = in.u32();
    in.skip(4);
    const auto depth = in.u32();
    const auto levels = std::clamp<std::uint32_t>(in.u32(), 1, 17);
    in.skip(48);
    const auto flags = in.u32(), code = in.u32(), bits = in.u32();
    in.skip(20);
    const auto more = in.u32();
    constexpr std::uint32_t kMostSide = 1 << 16;
    if (!in.ok() || facts.width == 0 || facts.width > kMostSide || facts.height == 0 ||
        facts.height > kMostSide)
        return unknownExtent();
    const bool packed = (flags & 4) != 0;
    const std::uint64_t block = code == 0x31545844 || code == 0x31495441 ? 8 : 16;  // "DXT1", "ATI1"
    const bool known =
        code >> 24 >= '1' && code >> 24 <= '5' && (code & 0xFFFFFF) == 0x545844;  // "DXT1" to "DXT5"
    if ((packed && !known && block == 16) || (!packed && (bits == 0 || bits > 128)))
        return unknownExtent();
    constexpr std::uint32_t kCube = 0x200, kVolume = 0x200000;
    const std::uint64_t faces = (more & kCube) != 0 ? 6 : 1;
    const std::uint32_t slices = faces == 1 && (more & kVolume) != 0 ? depth : 1;
    std::uint64_t pixels = 0;
    for (std::uint32_t level = 0; level < levels; ++level) {
        const std::uint64_t width = std::max(1U, facts.width >> level),
                            height = std::max(1U, facts.height >> level);
        const auto slice =
            packed ? (width + 3) / 4 * ((height + 3) / 4) * block : (width * bits + 7) / 8 * height;
        pixels = addClamped(pixels, mulClamped(slice, std::max(1U, slices >> level)));
    }
    return inexact(completeAt(view, addClamped(kHead, mulClamped(pixels, faces)), facts));
}

}  // namespace vantor
