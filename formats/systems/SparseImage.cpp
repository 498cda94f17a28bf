// Sparse images of Android. Source: Android sparse image header.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkSparseImage(ByteView& view) {
    if (!view.matches(0, std::string_view("\x3A\xFF\x26\xED\1\0", 6)))
        return unknownExtent();
    Cursor in(view, 8, Endian::Little);
    const std::uint64_t head = in.u16(), chunkHead = in.u16();
    in.skip(8);
    const auto chunks = in.u32();
    if (!in.ok() || head < 28 || chunkHead < 12 || chunks == 0)
        return in.ok() ? unknownExtent() : cutOffAt(view, view.size());
    std::uint64_t at = head;
    for (std::uint32_t i = 0; i < chunks; ++i) {
        const auto kind = view.le16(at);
        const auto bytes = view.le32(at + 8);
        if (!kind || !bytes)
            return cutOffAt(view, view.size());
        if (*kind < 0xCAC1 || *kind > 0xCAC4 || *bytes < chunkHead)
            return damagedAt(view, at);
        at += *bytes;
    }
    return completeAt(view, at);
}

}  // namespace

extern constexpr Format kSparseImage = {
    .name = "Sparse image",
    .group = Group::Systems,
    .walk = walkSparseImage,
    .extensions = " SIMG ",
    .large = true,
};

}  // namespace vantor
