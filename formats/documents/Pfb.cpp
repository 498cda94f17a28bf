// Packed PostScript fonts (PFB). Source: Adobe Type 1 font format and Technical Note 5040.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkPackedType1(ByteView& view) {
    constexpr int kMostSegments = 256;
    if (!view.matches(0, "\x80\1") || !view.matches(6, "%!"))
        return unknownExtent();
    std::uint64_t at = 0;
    for (int segments = 0; segments < kMostSegments; ++segments) {
        const auto mark = view.u8(at), kind = view.u8(at + 1);
        if (!mark || !kind)
            return cutOffAt(view, view.size());
        if (*mark != 0x80 || *kind < 1 || *kind > 3)
            return damagedAt(view, at);
        if (*kind == 3)
            return completeAt(view, at + 2);
        const auto bytes = view.le32(at + 2);
        if (!bytes)
            return cutOffAt(view, view.size());
        at += 6 + std::uint64_t{*bytes};
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return damagedAt(view, at);
}

}  // namespace

extern constexpr Format kPfb = {
    .name = "PFB",
    .group = Group::Documents,
    .walk = walkPackedType1,
    .extensions = " PFB ",
};

}  // namespace vantor
