// Scenes in crate files (USDC): a table of sections, mostly the last of all. Source: public descriptions of
// the crate file format of Universal Scene Description.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkUsd(ByteView& view) {
    constexpr std::uint64_t kSection = 32, kMostSections = 64, kHead = 88;
    if (!view.matches(0, "PXR-USDC"))
        return unknownExtent();
    const auto table = view.le64(16);
    if (!table)
        return cutOffAt(view, view.size());
    if (*table < kHead)
        return damagedAt(view, kHead);
    const auto sections = view.le64(*table);
    if (!sections)
        return cutOffAt(view, view.size());
    if (*sections == 0 || *sections > kMostSections)
        return damagedAt(view, *table);
    std::uint64_t end = *table + 8 + *sections * kSection;
    for (std::uint64_t at = *table + 8, i = 0; i < *sections; ++i, at += kSection) {
        const auto place = view.le64(at + 16), bytes = view.le64(at + 24);
        if (!place || !bytes)
            return cutOffAt(view, view.size());
        end = std::max(end, addClamped(*place, *bytes));
    }
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kUsd = {
    .name = "USD crate",
    .group = Group::Documents,
    .walk = walkUsd,
    .extensions = " USDC ",
    .large = true,
};

}  // namespace vantor
