// DDS textures. Source: Microsoft DDS documentation.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

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

}  // namespace

extern constexpr Format kDds = {
    .name = "DDS",
    .group = Group::Pictures,
    .walk = walkDds,
    .extensions = " DDS ",
};

}  // namespace vantor
