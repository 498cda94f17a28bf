// ACE archives: headers with a sum of their own, each with the length of what follows it. Source: the
// format's technical description (ACE 1.2 and 2.0 headers).
#include "formats/Crc.h"
#include "formats/Format.h"

namespace vantor {

namespace {

// Bytes of the header at `at` and of what belongs to it; nothing when its sum does not prove it.
std::optional<std::uint64_t> blockBytes(ByteView& view, std::uint64_t at) {
    constexpr std::uint16_t kHasMore = 1;
    const auto sum = view.le16(at), bytes = view.le16(at + 2);
    const auto flags = view.le16(at + 5);
    if (!sum || !bytes || !flags || *bytes < 7)
        return std::nullopt;
    bool complete = false;
    const auto crc = ~crc32(view, at + 4, at + 4 + *bytes, complete);
    if (!complete || (crc & 0xFFFF) != *sum)
        return std::nullopt;
    return 4 + std::uint64_t{*bytes} + ((*flags & kHasMore) != 0 ? view.le32(at + 7).value_or(0) : 0);
}

Extent walkAce(ByteView& view) {
    if (!view.matches(7, "**ACE**"))
        return unknownExtent();
    std::uint64_t at = 0;
    for (auto bytes = blockBytes(view, 0); bytes; bytes = blockBytes(view, at)) {
        at += *bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return at != 0 ? inexact(completeAt(view, at)) : damagedAt(view, 14);
}

}  // namespace

extern constexpr Format kAce = {
    .name = "ACE",
    .group = Group::Archives,
    .walk = walkAce,
    .extensions = " ACE ",
    .large = true,
};

}  // namespace vantor
