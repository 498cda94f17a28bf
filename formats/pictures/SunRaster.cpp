// Sun raster pictures. Source: Sun rasterfile(5).
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkSunRaster(ByteView& view) {
    if (view.be32(0) != 0x59A66A95)
        return unknownExtent();
    Cursor in(view, 4);
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    const std::uint64_t depth = in.u32(), told = in.u32();
    const auto type = in.u32();
    in.skip(4);
    const std::uint64_t colours = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (facts.width == 0 || facts.height == 0 || (depth != 1 && depth != 8 && depth != 24 && depth != 32) ||
        type > 5 || colours > 1 << 20)
        return unknownExtent();
    // Old files leave the length out; their rows are padded to sixteen bits.
    constexpr std::uint32_t kPacked = 2;
    if (told == 0 && type == kPacked)
        return unknownExtent();
    const std::uint64_t rows = mulClamped((facts.width * depth + 15) / 16 * 2, facts.height);
    return completeAt(view, addClamped(32 + colours, told != 0 ? told : rows), facts);
}

}  // namespace

extern constexpr Format kSunRaster = {
    .name = "Sun raster",
    .group = Group::Pictures,
    .walk = walkSunRaster,
    .extensions = " RAS SUN ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
