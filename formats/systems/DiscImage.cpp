// Images of discs (ISO 9660). Source: ECMA-119.
#include "formats/Format.h"

namespace vantor {

namespace {

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
