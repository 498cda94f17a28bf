// Windows shell links (LNK). Source: [MS-SHLLINK].
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkShellLink(ByteView& view) {
    if (!view.matches(0, std::string_view("L\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 20)))
        return unknownExtent();
    const auto flags = view.le32(20).value_or(0);
    const std::uint64_t letter = (flags & 0x80) != 0 ? 2 : 1;
    std::uint64_t at = 76;
    if ((flags & 1) != 0)
        at += std::uint64_t{2} + view.le16(at).value_or(0);
    if ((flags & 2) != 0)
        at += view.le32(at).value_or(0);
    for (std::uint32_t text = 4; text <= 64; text <<= 1) {
        if ((flags & text) != 0)
            at += 2 + letter * view.le16(at).value_or(0);
    }
    constexpr int kMostBlocks = 64;
    for (int blocks = 0; blocks < kMostBlocks; ++blocks) {
        const auto bytes = view.le32(at);
        if (!bytes)
            return cutOffAt(view, view.size());
        if (*bytes < 4)
            return completeAt(view, at + 4);
        at += *bytes;
    }
    return damagedAt(view, at);
}

}  // namespace

extern constexpr Format kShellLink = {
    .name = "Shell link",
    .group = Group::Systems,
    .walk = walkShellLink,
    .extensions = " LNK ",
};

}  // namespace vantor
