// JT models: the table of contents tells where each segment lies. Source: ISO 14306, and Siemens' JT File
// Format Reference, versions 8.1 to 10.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkJt(ByteView& view) {
    constexpr std::uint64_t kVersionBytes = 80, kIdBytes = 16, kMostSegments = 1 << 20;
    const auto order = view.u8(kVersionBytes).value_or(0xFF);
    const auto major = view.u8(8).value_or(0);
    if (!view.matches(0, "Version ") || order > 1 || !((major >= '8' && major <= '9') || major == '1'))
        return unknownExtent();
    const bool wide = major == '1' && view.u8(9) == '0';  // 64-bit places since version 10
    const std::size_t digits = wide ? 8 : 4;
    const auto endian = order == 1 ? Endian::Big : Endian::Little;
    const auto table = view.number(kVersionBytes + 5, digits, endian);
    const auto count = table ? view.number(*table, 4, endian) : std::nullopt;
    if (!count)
        return cutOffAt(view, view.size());
    const std::uint64_t first = *table + 4, entry = kIdBytes + digits + 8;
    if (*table < kVersionBytes || *count == 0 || *count > kMostSegments)
        return damagedAt(view, kVersionBytes);
    std::uint64_t end = first + *count * entry;
    for (std::uint64_t i = 0; i < *count; ++i) {
        const auto at = first + i * entry + kIdBytes;
        const auto place = view.number(at, digits, endian), bytes = view.number(at + digits, 4, endian);
        if (!place || !bytes)
            return cutOffAt(view, view.size());
        end = std::max(end, addClamped(*place, *bytes));
    }
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kJt = {
    .name = "JT",
    .group = Group::Documents,
    .walk = walkJt,
    .extensions = " JT ",
    .strongMagic = false,
};

}  // namespace vantor
