// Images of discs (ISO 9660). Source: ECMA-119.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

// Behind the last partition of the table that makes an image start from a stick too, which its writers fill
// up to; 0 where there is none. One that covers a whole medium of unknown size (EE) tells nothing.
std::uint64_t behindPartitions(ByteView& view) {
    constexpr std::uint64_t kTable = 446, kEntry = 16, kSector = 512;
    constexpr std::uint8_t kProtective = 0xEE;
    std::uint64_t end = 0;
    if (!view.matches(510, "\x55\xAA"))
        return end;
    for (auto at = kTable; at < kTable + 4 * kEntry; at += kEntry) {
        const auto kind = view.u8(at + 4).value_or(0);
        const auto first = view.le32(at + 8).value_or(0), sectors = view.le32(at + 12).value_or(0);
        if (kind != 0 && kind != kProtective)
            end = std::max(end, (std::uint64_t{first} + sectors) * kSector);
    }
    return end;
}

// Begins with the disc's first sector, or with the volume record sixteen of them later.
Extent walkDiscImage(ByteView& view) {
    constexpr std::uint64_t kRecordAt = 16 * 2048;
    constexpr std::string_view kRecord("\1CD001\1\0", 8);
    const bool fromRecord = view.matches(0, kRecord);
    const std::uint64_t record = fromRecord ? 0 : kRecordAt;
    if (!fromRecord && !view.matches(kRecordAt, kRecord))
        return unknownExtent();
    const auto blocks = view.le32(record + 80), blocksAgain = view.be32(record + 84);
    const auto bytes = view.le16(record + 128), bytesAgain = view.be16(record + 130);
    if (!blocksAgain || !bytesAgain)
        return cutOffAt(view, view.size());
    const std::uint64_t all = std::uint64_t{*blocks} * *bytes;
    if (blocks != blocksAgain || bytes != bytesAgain || *bytes < 512 || all <= kRecordAt + 2048)
        return unknownExtent();
    // They fill up to a whole cylinder, of at most 63 sectors of 256 heads.
    constexpr std::uint64_t kMostFilling = 63 * 256 * 512;
    const auto partitions = fromRecord ? 0 : behindPartitions(view);
    if (partitions > all && partitions - all < kMostFilling && view.holds(0, partitions))
        return inexact(completeAt(view, partitions));
    return inexact(completeAt(view, all - (fromRecord ? kRecordAt : 0)));
}

}  // namespace

extern constexpr Format kDiscImage = {
    .name = "Disc image",
    .group = Group::Systems,
    .walk = walkDiscImage,
    .extensions = " ISO ",
    .strongMagic = false,
    .large = true,
};

}  // namespace vantor
