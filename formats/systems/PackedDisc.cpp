// Packed discs of consoles (CSO). Source: CISO header notes.
#include "formats/Format.h"

namespace vantor {

namespace {

// The last entry of the index is the end.
Extent walkPackedDisc(ByteView& view) {
    constexpr std::uint64_t kHead = 24;
    if (!view.matches(0, "CISO"))
        return unknownExtent();
    Cursor in(view, 8, Endian::Little);
    const auto plain = in.u64();
    const std::uint64_t block = in.u32();
    in.skip(1);
    const auto shift = in.u8();
    if (!in.ok() || plain == 0 || block < 512 || block > 1 << 20 || plain > std::uint64_t{1} << 40 ||
        shift > 16)
        return in.ok() ? unknownExtent() : cutOffAt(view, view.size());
    const auto last = kHead + (plain + block - 1) / block * 4;
    const auto place = view.le32(last);
    if (!place)
        return cutOffAt(view, view.size());
    const auto end = std::uint64_t{*place & 0x7FFFFFFF} << shift;
    return end > last ? completeAt(view, end) : damagedAt(view, last);
}

}  // namespace

extern constexpr Format kPackedDisc = {
    .name = "Packed disc",
    .group = Group::Systems,
    .walk = walkPackedDisc,
    .extensions = " CSO ",
    .large = true,
};

}  // namespace vantor
