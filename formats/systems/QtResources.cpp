// Packed resources of Qt programs (RCC): packed files, their names, and the tree of entries, which comes
// last. Source: Qt documentation, "The Qt Resource System" (external binary resources), and the layout rcc
// writes.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkQtResources(ByteView& view) {
    constexpr std::uint32_t kMostEntries = 1 << 20;
    constexpr std::uint16_t kFolder = 2;
    Cursor in(view, 4);
    const auto version = in.u32();
    const std::uint64_t tree = in.u32(), data = in.u32(), names = in.u32();
    if (!view.matches(0, "qres") || !in.ok() || version == 0 || version > 3)
        return unknownExtent();
    if (tree <= data || tree <= names)
        return unknownExtent();  // by another writer
    const std::uint64_t entryBytes = version == 1 ? 14 : 22;
    std::uint64_t entries = 1;
    for (std::uint64_t i = 0; i < entries; ++i) {
        Cursor entry(view, tree + i * entryBytes + 4);
        const auto flags = entry.u16();
        const std::uint64_t count = entry.u32(), first = entry.u32();
        if (!entry.ok())
            return cutOffAt(view, view.size());
        if ((flags & kFolder) == 0)
            continue;
        if (count > kMostEntries || first > kMostEntries || (count != 0 && first <= i))
            return damagedAt(view, tree + i * entryBytes);
        entries = std::max(entries, first + count);
    }
    return completeAt(view, tree + entries * entryBytes);
}

}  // namespace

extern constexpr Format kQtResources = {
    .name = "Qt resources",
    .group = Group::Systems,
    .walk = walkQtResources,
    .extensions = " RCC ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
