// Windows icons and cursors (ICO, CUR). Source: Microsoft's "Icons in Win32".
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

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

}  // namespace

extern constexpr Format kIco = {
    .name = "Icon",
    .group = Group::Pictures,
    .walk = walkIcon,
    .extensions = " ICO CUR ",
    .strongMagic = false,
};

}  // namespace vantor
