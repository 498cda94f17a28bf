// Models of 3D Studio (3DS): one chunk that holds all others and tells its length. Images of cartridges share
// the ending and tell theirs in units. Sources: public descriptions of the 3DS file format and of NCSD
// headers.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkStudioMesh(ByteView& view) {
    constexpr std::uint64_t kHead = 6;
    if (view.matches(256, "NCSD")) {
        const auto units = view.le32(260);
        return units && *units != 0 ? completeAt(view, mulClamped(*units, 512)) : unknownExtent();
    }
    if (!view.matches(0, "MM"))
        return unknownExtent();
    const std::uint64_t end = view.le32(2).value_or(0);
    if (end < 2 * kHead)
        return unknownExtent();
    // The chunks inside fill it: their lengths are followed as far as they go.
    std::uint64_t at = kHead;
    while (at < end) {
        const auto bytes = view.le32(at + 2);
        if (!bytes)
            return cutOffAt(view, view.size());
        if (*bytes < kHead || *bytes > end - at)
            return at == kHead ? unknownExtent() : damagedAt(view, at);
        at += *bytes;
    }
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kStudioMesh = {
    .name = "3D Studio",
    .group = Group::Documents,
    .walk = walkStudioMesh,
    .extensions = " 3DS ",
    .strongMagic = false,
    .large = true,
};

}  // namespace vantor
