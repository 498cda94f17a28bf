// 7z archives. Source: 7zFormat.txt of the LZMA SDK.
#include "formats/Crc.h"
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkSevenZip(ByteView& view) {
    constexpr std::uint64_t kHead = 32;
    constexpr std::uint64_t kMostProved = 64 * 1024 * 1024;
    if (!view.matches(0, "7z\xBC\xAF\x27\x1C"))
        return unknownExtent();
    Cursor in(view, 8, Endian::Little);
    const auto headCrc = in.u32();
    const auto offset = in.u64(), bytes = in.u64();
    const auto tailCrc = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    bool complete = false;
    if (crc32(view, 12, kHead, complete) != headCrc || !complete)
        return damagedAt(view, 12);
    const auto tail = addClamped(kHead, offset);
    const auto end = addClamped(tail, bytes);
    if (end > view.size())
        return cutOffAt(view, view.size());
    if (bytes <= kMostProved && crc32(view, tail, end, complete) != tailCrc)
        return damagedAt(view, end);
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kSevenZip = {
    .name = "7z",
    .group = Group::Archives,
    .walk = walkSevenZip,
    .extensions = " 7Z CB7 ",
    .large = true,
};

}  // namespace vantor
