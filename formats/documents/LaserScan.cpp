// Laser scans (LAS). Source: ASPRS LAS 1.4.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkLaserScan(ByteView& view) {
    constexpr std::uint8_t kPacked = 0x80;
    constexpr std::uint64_t kWideHead = 375, kExtra = 60;
    if (!view.matches(0, "LASF") || view.u8(24) != 1 || (view.u8(104).value_or(0) & kPacked) != 0)
        return unknownExtent();  // packed points tell no length
    Cursor in(view, 94, Endian::Little);
    const std::uint64_t head = in.u16(), points = in.u32();
    in.skip(5);
    const std::uint64_t bytes = in.u16();
    std::uint64_t count = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (head < 227 || points < head || bytes < 20)
        return unknownExtent();
    const bool wide = head >= kWideHead;
    if (wide)
        count = std::max(count, view.le64(247).value_or(0));
    std::uint64_t end = addClamped(points, mulClamped(bytes, count));
    std::uint64_t at = wide ? view.le64(235).value_or(0) : 0;
    for (auto records = wide ? view.le32(243).value_or(0) : 0; records > 0 && at >= end; --records) {
        const auto extra = view.le64(at + 20);
        if (!extra)
            return cutOffAt(view, view.size());
        end = at = addClamped(at + kExtra, *extra);
    }
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kLaserScan = {
    .name = "Laser scan",
    .group = Group::Documents,
    .walk = walkLaserScan,
    .extensions = " LAS ",
    .strongMagic = false,
    .large = true,
};

}  // namespace vantor
