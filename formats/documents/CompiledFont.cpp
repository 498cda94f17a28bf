// Compiled bitmap fonts of X11 (PCF): a list of tables with their places. Source: the format's public
// description (X11 portable compiled format).
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

// What the table of an entry takes. Writers tell more than they write for the accelerators, which shows where
// these come last.
std::uint64_t tableBytes(ByteView& view, std::uint64_t entry, std::uint64_t told) {
    constexpr std::uint32_t kAccelerators = 1 << 1, kOtherAccelerators = 1 << 8, kWithInkBounds = 0x100;
    constexpr std::uint64_t kReserved = 100, kLong = 72, kShort = 48;
    const auto kind = view.le32(entry).value_or(0), form = view.le32(entry + 4).value_or(0);
    if (told != kReserved || (kind != kAccelerators && kind != kOtherAccelerators))
        return told;
    return (form & kWithInkBounds) != 0 ? kLong : kShort;
}

Extent walkCompiledFont(ByteView& view) {
    constexpr std::uint32_t kMostTables = 64;
    if (!view.matches(0, "\1fcp"))
        return unknownExtent();
    const auto tables = view.le32(4).value_or(0);
    if (tables == 0 || tables > kMostTables)
        return unknownExtent();
    const std::uint64_t head = 8 + std::uint64_t{tables} * 16;
    std::uint64_t end = head;
    for (std::uint64_t entry = 8; entry < head; entry += 16) {
        const auto bytes = view.le32(entry + 8), at = view.le32(entry + 12);
        if (!bytes || !at)
            return cutOffAt(view, view.size());
        if (*at < head)
            return damagedAt(view, entry);
        end = std::max(end, (std::uint64_t{*at} + tableBytes(view, entry, *bytes) + 3) / 4 * 4);
    }
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kCompiledFont = {
    .name = "PCF",
    .group = Group::Documents,
    .walk = walkCompiledFont,
    .extensions = " PCF ",
};

}  // namespace vantor
