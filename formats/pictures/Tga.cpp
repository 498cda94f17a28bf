// Truevision TGA pictures. Source: Truevision TGA 2.0.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kTgaMostPixels = 1 << 28;  // beyond all pictures of this kind

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
        facts.width == 0 || facts.height == 0 || std::uint64_t{facts.width} * facts.height > kTgaMostPixels ||
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
    // Version 2 closes with a footer, behind areas for a developer, a small picture and an extension. Beyond
    // a few bytes it has to name a place of such an area behind this picture, else it is another's.
    constexpr std::uint64_t kFooter = 26, kFew = 4096, kMostExtras = 65536;
    constexpr std::string_view kMark("TRUEVISION-XFILE.\0", 18);
    for (auto mark = view.find('T', at, at + kMostExtras); mark.found();
         mark = view.find('T', mark.at + 1, at + kMostExtras)) {
        if (mark.at < at + kFooter - kMark.size() || !view.matches(mark.at, kMark))
            continue;
        const std::uint64_t extension = view.le32(mark.at - 8).value_or(0);
        if (mark.at <= at + kFew || (extension >= at && extension < mark.at))
            return completeAt(view, mark.at + kMark.size(), facts);
    }
    return inexact(completeAt(view, at, facts));
}

}  // namespace

extern constexpr Format kTga = {
    .name = "TGA",
    .group = Group::Pictures,
    .walk = walkTga,
    .extensions = " TGA ICB VDA VST ",
    .strongMagic = false,
};

}  // namespace vantor
