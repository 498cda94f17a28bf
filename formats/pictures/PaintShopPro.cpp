// Paint Shop Pro pictures. Source: Paint Shop Pro file format 8.
#include "formats/Format.h"

namespace vantor {

namespace {

// Blocks, each with its kind and length.
Extent walkPaintShopPro(ByteView& view) {
    constexpr std::string_view kMagic("Paint Shop Pro Image File\n\x1A\0\0\0\0\0", 32);
    constexpr std::uint32_t kMostBlocks = 1 << 16;
    if (!view.matches(0, kMagic))
        return unknownExtent();
    const std::uint64_t head = view.le16(32).value_or(0) < 4 ? 14 : 10;
    std::uint64_t at = kMagic.size() + 4;
    for (std::uint32_t blocks = 0; blocks < kMostBlocks; ++blocks) {
        if (!view.matches(at, std::string_view("~BK\0", 4)))
            return blocks != 0 ? inexact(completeAt(view, at)) : cutOffAt(view, view.size());
        const auto bytes = view.le32(at + head - 4);
        if (!bytes)
            return cutOffAt(view, view.size());
        at += head + *bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return damagedAt(view, at);
}

}  // namespace

extern constexpr Format kPaintShopPro = {
    .name = "Paint Shop Pro",
    .group = Group::Pictures,
    .walk = walkPaintShopPro,
    .extensions = " PSP PSPIMAGE ",
};

}  // namespace vantor
