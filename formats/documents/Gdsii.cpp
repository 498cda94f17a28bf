// Chip layouts (GDSII). Source: GDSII Stream Format.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkChipLayout(ByteView& view) {
    constexpr std::uint8_t kEndOfLibrary = 4, kLastKind = 0x3B;
    if (!view.matches(0, std::string_view("\0\6\0\2", 4)))
        return unknownExtent();
    std::uint64_t at = 0;
    for (;;) {
        const auto bytes = view.be16(at);
        const auto kind = view.u8(at + 2);
        if (!bytes || !kind)
            return cutOffAt(view, view.size());
        if (*bytes < 4 || *bytes % 2 != 0 || *kind > kLastKind)
            return damagedAt(view, at);
        at += *bytes;
        if (*kind == kEndOfLibrary)
            return completeAt(view, at);
    }
}

}  // namespace

extern constexpr Format kGdsii = {
    .name = "GDSII",
    .group = Group::Documents,
    .walk = walkChipLayout,
    .extensions = " GDS ",
    .strongMagic = false,
};

}  // namespace vantor
