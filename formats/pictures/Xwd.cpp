// Screen dumps of X11 (XWD): header, colours, rows. Source: XWDFile.h's public description (xwd(1)).
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkXwd(ByteView& view) {
    constexpr std::uint32_t kMostSide = 1 << 16, kMostHead = 4096, kMostColours = 1 << 16;
    const std::uint64_t head = view.be32(0).value_or(0);
    if (head < 100 || head > kMostHead || view.be32(4) != 7U || view.be32(8).value_or(3) > 2)
        return unknownExtent();
    Cursor in(view, 16);
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    in.skip(24);
    const std::uint64_t row = in.u32();
    in.skip(24);
    const std::uint64_t colours = in.u32();
    if (!in.ok() || facts.width == 0 || facts.width > kMostSide || facts.height == 0 ||
        facts.height > kMostSide || row == 0 || row > std::uint64_t{facts.width} * 8 + 64 ||
        colours > kMostColours)
        return unknownExtent();
    return completeAt(view, head + colours * 12 + row * facts.height, facts);
}

}  // namespace

extern constexpr Format kXwd = {
    .name = "XWD",
    .group = Group::Pictures,
    .walk = walkXwd,
    .extensions = " XWD ",
    .strongMagic = false,
};

}  // namespace vantor
