// Lotus sheets (WK1 to 123). Source: Lotus WK1 file format.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkLotus(ByteView& view) {
    constexpr std::uint16_t kEnd = 1, kLastKind = 0x400;
    const auto first = view.le16(2).value_or(0);
    if (view.le16(0) != 0U || (first != 2 && first != 0x1A))
        return unknownExtent();
    for (std::uint64_t at = 0;;) {
        const auto kind = view.le16(at), bytes = view.le16(at + 2);
        if (!kind || !bytes)
            return cutOffAt(view, view.size());
        if (*kind == kEnd && *bytes == 0)
            return completeAt(view, at + 4);
        if (*kind > kLastKind || (at != 0 && *kind == 0))
            return at == 0 ? unknownExtent() : damagedAt(view, at);
        at += 4 + std::uint64_t{*bytes};
    }
}

}  // namespace

extern constexpr Format kLotus = {
    .name = "Lotus",
    .group = Group::Documents,
    .walk = walkLotus,
    .extensions = " WK1 WK3 WK4 123 ",
    .strongMagic = false,
};

}  // namespace vantor
