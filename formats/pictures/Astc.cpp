// ASTC textures. Source: Arm ASTC file header.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkAstc(ByteView& view) {
    constexpr std::uint64_t kBlock = 16;
    if (!view.matches(0, "\x13\xAB\xA1\x5C"))
        return unknownExtent();
    Cursor in(view, 4, Endian::Little);
    std::uint64_t sides[3] = {}, blocks = 1;
    for (auto& side : sides)
        side = in.u8();
    Facts facts;
    for (int i = 0; i < 3; ++i) {
        const std::uint64_t pixels = in.u24(), side = sides[i];
        if (in.ok() && (side == 0 || side > 12 || pixels == 0))
            return unknownExtent();
        blocks = mulClamped(blocks, side != 0 ? (pixels + side - 1) / side : 0);
        (i == 0 ? facts.width : facts.height) =
            static_cast<std::uint32_t>(i < 2 ? pixels : std::uint64_t{facts.height});
    }
    return in.ok() ? completeAt(view, addClamped(kBlock, mulClamped(blocks, kBlock)), facts)
                   : cutOffAt(view, view.size());
}

}  // namespace

extern constexpr Format kAstc = {
    .name = "ASTC",
    .group = Group::Pictures,
    .walk = walkAstc,
    .extensions = " ASTC ",
};

}  // namespace vantor
