// RPM packages. Source: LSB 5.0.
#include "formats/Format.h"

namespace vantor {

namespace {

// The signature says how long the header and the payload behind it are.
Extent walkRpm(ByteView& view) {
    constexpr std::uint64_t kSignature = 96, kIndex = 16;
    constexpr std::uint32_t kSizeTag = 1000, kLongSizeTag = 270, kMostEntries = 4096;
    if (!view.matches(0, "\xED\xAB\xEE\xDB"))
        return unknownExtent();
    Cursor in(view, kSignature);
    const auto magic = in.u32();
    in.skip(4);
    const auto entries = in.u32();
    const std::uint64_t bytes = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (magic != 0x8EADE801 || entries == 0 || entries > kMostEntries)
        return unknownExtent();
    const auto store = kSignature + kIndex + entries * kIndex;
    const auto behind = (store + bytes + 7) / 8 * 8;
    for (std::uint64_t i = 0; i < entries; ++i) {
        Cursor entry(view, kSignature + kIndex + i * kIndex);
        const auto tag = entry.u32();
        entry.skip(4);
        const std::uint64_t at = entry.u32();
        if (tag != kSizeTag && tag != kLongSizeTag)
            continue;
        const auto rest = view.number(store + at, tag == kSizeTag ? 4 : 8, Endian::Big);
        return rest ? completeAt(view, addClamped(behind, *rest)) : cutOffAt(view, view.size());
    }
    return view.holds(0, behind) ? unknownExtent() : cutOffAt(view, view.size());
}

}  // namespace

extern constexpr Format kRpm = {
    .name = "RPM",
    .group = Group::Archives,
    .walk = walkRpm,
    .extensions = " RPM ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
