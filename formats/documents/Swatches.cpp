// Colour swatches (ASE): a counted row of blocks. Models as text share the ending. Sources: public
// descriptions of Adobe Swatch Exchange and of the ASCII scene export.
#include "formats/Format.h"
#include "formats/documents/Text.h"

namespace vantor {

namespace {

Extent walkSwatches(ByteView& view) {
    if (view.matches(0, "*3DSMAX_ASCIIEXPORT"))
        return walkText(view);
    constexpr std::uint64_t kHead = 12, kBlockHead = 6;
    constexpr std::uint32_t kMostBlocks = 1 << 20;
    if (!view.matches(0, "ASEF"))
        return unknownExtent();
    const auto blocks = view.be32(8);
    if (!blocks)
        return cutOffAt(view, view.size());
    if (*blocks > kMostBlocks)
        return damagedAt(view, kHead);
    std::uint64_t at = kHead;
    for (std::uint32_t i = 0; i < *blocks; ++i) {
        const auto kind = view.be16(at);
        const auto bytes = view.be32(at + 2);
        if (!kind || !bytes)
            return cutOffAt(view, view.size());
        if (*kind != 1 && *kind != 0xC001 && *kind != 0xC002)
            return damagedAt(view, at);
        at += kBlockHead + *bytes;
    }
    return completeAt(view, at);
}

}  // namespace

extern constexpr Format kSwatches = {
    .name = "Swatches",
    .group = Group::Documents,
    .walk = walkSwatches,
    .extensions = " ASE ",
    .strongMagic = false,
};

}  // namespace vantor
