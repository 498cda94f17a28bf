// Sun raster pictures. Source: Sun rasterfile(5).
#include <algorithm>

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
    // Old files leave the length out; rows are padded to sixteen bits, which some writers do not count in it.
    constexpr std::uint32_t kPacked = 2, kColoursInOrder = 3;
    if (told == 0 && type == kPacked)
        return unknownExtent();
    const std::uint64_t rows = mulClamped((facts.width * depth + 15) / 16 * 2, facts.height);
    const bool plain = type != kPacked && type <= kColoursInOrder;
    const auto bytes = plain ? std::max(told, rows) : told != 0 ? told : rows;
    return completeAt(view, addClamped(32 + colours, bytes), facts);
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
