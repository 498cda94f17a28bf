// DDS textures. Source: Microsoft DDS documentation.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

// How pixels are stored: in blocks of four by four, or one by one.
struct Coding {
    std::uint64_t blockBytes = 0;
    std::uint64_t bits = 0;       // of a pixel outside blocks
    std::uint64_t headBytes = 0;  // of a second header
};

Coding ofDxgi(std::uint32_t format) {
    const auto within = [&](std::uint32_t first, std::uint32_t last) {
        return format >= first && format <= last;
    };
    if (within(70, 72) || within(79, 81))  // BC1, BC4
        return {8, 0, 20};
    if (within(73, 78) || within(82, 84) || within(94, 99))  // BC2, BC3, BC5, BC6H, BC7
        return {16, 0, 20};
    if (within(1, 4))
        return {0, 128, 20};
    if (within(5, 8))
        return {0, 96, 20};
    if (within(9, 22))
        return {0, 64, 20};
    if (within(23, 47) || within(67, 67) || within(87, 93))
        return {0, 32, 20};
    if (within(48, 59) || within(85, 86) || format == 115)
        return {0, 16, 20};
    if (within(60, 65))
        return {0, 8, 20};
    return {};
}

Coding codingOf(std::uint32_t code, ByteView& view) {
    for (const auto half : {"DXT1", "ATI1", "BC4U", "BC4S"}) {
        if (view.matches(84, half))
            return {8, 0};
    }
    for (const auto whole : {"DXT2", "DXT3", "DXT4", "DXT5", "ATI2", "BC5U", "BC5S", "RXGB"}) {
        if (view.matches(84, whole))
            return {16, 0};
    }
    if (view.matches(84, "DX10"))
        return ofDxgi(view.le32(128).value_or(0));
    // Numbers of older pixel formats of floating point.
    switch (code) {
        case 36:
        case 110:
        case 113:
        case 115:
            return {0, 64};
        case 111:
            return {0, 16};
        case 112:
        case 114:
            return {0, 32};
        case 116:
            return {0, 128};
        default:
            return {};
    }
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
    const Coding coding = packed ? codingOf(code, view) : Coding{0, bits};
    if ((coding.blockBytes == 0 && (coding.bits == 0 || coding.bits > 128)))
        return unknownExtent();
    constexpr std::uint32_t kCube = 0x200, kVolume = 0x200000;
    const std::uint64_t faces = (more & kCube) != 0 ? 6 : 1;
    const std::uint32_t slices = faces == 1 && (more & kVolume) != 0 ? depth : 1;
    std::uint64_t pixels = 0;
    for (std::uint32_t level = 0; level < levels; ++level) {
        const std::uint64_t width = std::max(1U, facts.width >> level),
                            height = std::max(1U, facts.height >> level);
        const auto slice = coding.blockBytes != 0 ? (width + 3) / 4 * ((height + 3) / 4) * coding.blockBytes
                                                  : (width * coding.bits + 7) / 8 * height;
        pixels = addClamped(pixels, mulClamped(slice, std::max(1U, slices >> level)));
    }
    return inexact(completeAt(view, addClamped(kHead + coding.headBytes, mulClamped(pixels, faces)), facts));
}

}  // namespace

extern constexpr Format kDds = {
    .name = "DDS",
    .group = Group::Pictures,
    .walk = walkDds,
    .extensions = " DDS ",
};

}  // namespace vantor
