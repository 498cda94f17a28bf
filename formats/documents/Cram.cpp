// CRAM: aligned reads of a sequencer, in containers that tell their length. Source: "CRAM format specification
// (version 2.1 and 3.1)" of the GA4GH.
#include "formats/Format.h"

namespace vantor {

namespace {

// A number whose first byte's leading ones tell how many bytes follow (ITF-8 of at most five bytes, LTF-8 of at
// most nine); its value does not matter here. Moves `at` behind it.
bool skipNumber(ByteView& view, std::uint64_t& at, unsigned mostFollowing) {
    const auto first = view.u8(at);
    if (!first)
        return false;
    unsigned following = 0;
    while (following < mostFollowing && (*first << following & 0x80) != 0)
        ++following;
    at += 1 + following;
    return view.holds(0, at);
}

Extent walkCram(ByteView& view) {
    constexpr std::uint64_t kDefinition = 26;
    constexpr unsigned kShort = 4, kLong = 8;
    constexpr std::uint32_t kMostContainers = 1U << 24;
    // An empty container that refers to "EOF" ends the file since version 2.1.
    constexpr std::uint32_t kEndStart = 4542278;
    const auto major = view.u8(4), minor = view.u8(5);
    if (!view.matches(0, "CRAM") || !minor || *major < 2 || *major > 3)
        return unknownExtent();
    std::uint64_t at = kDefinition;
    for (std::uint32_t i = 0; i < kMostContainers; ++i) {
        const auto bytes = view.le32(at);
        if (!bytes)
            return cutOffAt(view, at);
        if (*bytes > 0x7FFFFFFF)
            return damagedAt(view, at);
        std::uint64_t field = at + 4;
        // Sequence, its start, its span, records; then the counter of records and the bases, blocks.
        bool whole = skipNumber(view, field, kShort);
        const bool ends = view.u8(field) == 0xE0 && view.be32(field) == (0xE0000000 | kEndStart);
        whole = whole && skipNumber(view, field, kShort) && skipNumber(view, field, kShort) &&
                skipNumber(view, field, kShort) && skipNumber(view, field, *major == 2 ? kShort : kLong) &&
                skipNumber(view, field, kLong) && skipNumber(view, field, kShort);
        const auto landmarks = whole ? view.u8(field) : std::nullopt;
        if (!landmarks)
            return cutOffAt(view, view.size());
        std::uint64_t count = *landmarks;
        if (count >= 0x80)
            count = count < 0xC0 ? view.be16(field).value_or(0) & 0x3FFFU
                                 : (count < 0xE0 ? view.number(field, 3, Endian::Big).value_or(0) & 0x1FFFFFU : 0);
        whole = skipNumber(view, field, kShort);
        for (std::uint64_t k = 0; whole && k < count; ++k)
            whole = skipNumber(view, field, kShort);
        if (!whole)
            return cutOffAt(view, view.size());
        at = addClamped(field + (*major == 3 ? 4 : 0), *bytes);
        if (ends)
            return completeAt(view, at);
        if (!view.holds(0, at))
            return cutOffAt(view, view.size());
    }
    return damagedAt(view, at);
}

}  // namespace

extern constexpr Format kCram = {
    .name = "CRAM",
    .group = Group::Documents,
    .walk = walkCram,
    .extensions = " CRAM ",
    .large = true,
};

}  // namespace vantor
