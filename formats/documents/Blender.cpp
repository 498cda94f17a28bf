// Blender scenes. Source: Blender "The .blend file format".
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint32_t kMostRecords = 1 << 24;

Extent walkBlend(ByteView& view) {
    const auto width = view.u8(7).value_or(0), order = view.u8(8).value_or(0);
    if (!view.matches(0, "BLENDER") || (width != '_' && width != '-') || (order != 'v' && order != 'V'))
        return unknownExtent();
    const auto endian = order == 'v' ? Endian::Little : Endian::Big;
    const std::uint64_t head = width == '_' ? 20 : 24;
    std::uint64_t at = 12;
    for (std::uint32_t blocks = 0; blocks < kMostRecords; ++blocks) {
        const auto bytes = view.number(at + 4, 4, endian);
        if (!bytes || !view.holds(at, head))
            return cutOffAt(view, view.size());
        if (view.matches(at, "ENDB"))
            return completeAt(view, at + head);
        const auto letter = view.u8(at).value_or(0);
        if (letter < 'A' || letter > 'Z')
            return damagedAt(view, at);
        at += head + *bytes;
    }
    return damagedAt(view, at);
}

}  // namespace

extern constexpr Format kBlender = {
    .name = "Blender",
    .group = Group::Documents,
    .walk = walkBlend,
    .extensions = " BLEND ",
    .strongMagic = false,
};

}  // namespace vantor
