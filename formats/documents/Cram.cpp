// CRAM: aligned reads of a sequencer, in containers that tell their length. Source: "CRAM format
// specification (version 2.1 and 3.1)" of the GA4GH.
#include "formats/Crc.h"
#include "formats/Format.h"

namespace vantor {

namespace {

// A number whose first byte's leading ones tell how many bytes follow (ITF-8 of at most five bytes, LTF-8 of
// at most nine). Moves `at` behind it.
std::optional<std::uint64_t> takeNumber(ByteView& view, std::uint64_t& at, unsigned mostFollowing) {
    const auto first = view.u8(at);
    if (!first)
        return std::nullopt;
    unsigned following = 0;
    while (following < mostFollowing && (*first << following & 0x80) != 0)
        ++following;
    std::uint64_t value = *first & (0xFFU >> following);
    if (following != 0) {
        const auto rest = view.number(at + 1, following, Endian::Big);
        if (!rest)
            return std::nullopt;
        value = (following < 8 ? value << (8 * following) : 0) | *rest;
    }
    at += 1 + following;
    return value;
}

struct Container {
    std::uint64_t behindHead = 0;
    bool last = false;  // the empty one that refers to "EOF", which ends files since version 2.1
};

enum class HeadState { Whole, Cut, Broken };

HeadState readHead(ByteView& view, std::uint64_t at, std::uint8_t major, Container& container) {
    constexpr unsigned kShort = 4, kLong = 8;
    constexpr std::uint64_t kMostLandmarks = 1U << 20;
    constexpr std::uint32_t kLastMark = 0xE0454F46;
    std::uint64_t field = at + 4;
    std::optional<std::uint64_t> landmarks = takeNumber(view, field, kShort);  // the sequence, first
    container.last = view.be32(field) == kLastMark;
    // Its start, its span, records; the counter of records, bases, blocks; and the places of slices.
    for (const unsigned bytes :
         {kShort, kShort, kShort, major == 2 ? kShort : kLong, kLong, kShort, kShort}) {
        if (landmarks)
            landmarks = takeNumber(view, field, bytes);
    }
    if (landmarks && *landmarks > kMostLandmarks)
        return HeadState::Broken;
    const auto count = landmarks.value_or(0);
    for (std::uint64_t i = 0; landmarks && i < count; ++i)
        landmarks = takeNumber(view, field, kShort);
    if (!landmarks)
        return HeadState::Cut;
    container.behindHead = field;
    if (major == 2)
        return HeadState::Whole;
    // Version 3 sums the head up.
    const auto sum = view.le32(field);
    bool complete = true;
    const bool right = crc32(view, at, field, complete) == sum;
    container.behindHead = field + 4;
    if (!sum || !complete)
        return HeadState::Cut;
    return right ? HeadState::Whole : HeadState::Broken;
}

Extent walkCram(ByteView& view) {
    constexpr std::uint64_t kDefinition = 26;
    constexpr std::uint32_t kMostBytes = 0x7FFFFFFF;
    const auto major = view.u8(4), minor = view.u8(5);
    if (!view.matches(0, "CRAM") || !minor || *major < 2 || *major > 3)
        return unknownExtent();
    for (std::uint64_t at = kDefinition;;) {
        Container container;
        const auto bytes = view.le32(at);
        if (!bytes)
            return cutOffAt(view, view.size());
        const auto state =
            *bytes != 0 && *bytes <= kMostBytes ? readHead(view, at, *major, container) : HeadState::Broken;
        if (state == HeadState::Cut)
            return cutOffAt(view, view.size());
        if (state == HeadState::Broken)
            return damagedAt(view, at);
        at = addClamped(container.behindHead, *bytes);
        if (container.last)
            return completeAt(view, at);
        if (!view.holds(0, at))
            return cutOffAt(view, view.size());
    }
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
