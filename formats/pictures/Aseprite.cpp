// Pixel art with layers (ASEPRITE): frames that tell their lengths fill the length told for all. Source: the
// format's description by its authors.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkAseprite(ByteView& view) {
    constexpr std::uint64_t kHead = 128, kFrameHead = 16;
    if (view.le16(4) != 0xA5E0)
        return unknownExtent();
    const std::uint64_t end = view.le32(0).value_or(0);
    const auto frames = view.le16(6).value_or(0);
    Facts facts;
    facts.width = view.le16(8).value_or(0);
    facts.height = view.le16(10).value_or(0);
    if (end < kHead || frames == 0)
        return unknownExtent();
    std::uint64_t at = kHead;
    for (std::uint32_t i = 0; i < frames; ++i) {
        const auto bytes = view.le32(at);
        if (!bytes)
            return cutOffAt(view, view.size(), facts);
        if (*bytes < kFrameHead || view.le16(at + 4) != 0xF1FA)
            return damagedAt(view, at, facts);
        at += *bytes;
    }
    return at == end ? completeAt(view, end, facts) : damagedAt(view, at, facts);
}

}  // namespace

extern constexpr Format kAseprite = {
    .name = "Aseprite",
    .group = Group::Pictures,
    .walk = walkAseprite,
    .extensions = " ASEPRITE ",
    .strongMagic = false,
};

}  // namespace vantor
