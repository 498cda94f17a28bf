// Virtual PC disks of growing size (VHD). Source: Microsoft VHD specification 1.0.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

// Of growing size: a copy of the trailer stands at the beginning, the trailer behind the last block.
Extent walkVirtualPcDisk(ByteView& view) {
    constexpr std::string_view kTrailer = "conectix";
    constexpr std::uint64_t kSector = 512, kHeadAt = 512, kHead = 1024;
    constexpr std::uint32_t kMostBlocks = 1 << 22, kUnused = 0xFFFFFFFF;
    if (!view.matches(0, kTrailer) || view.be64(16) != kHeadAt || !view.matches(kHeadAt, "cxsparse"))
        return unknownExtent();
    const auto table = view.be64(kHeadAt + 16);
    const auto blocks = view.be32(kHeadAt + 28), block = view.be32(kHeadAt + 32);
    if (!table || !blocks || !block)
        return cutOffAt(view, view.size());
    if (*table < kHeadAt + kHead || *table > view.size() || *blocks > kMostBlocks || *block < kSector)
        return unknownExtent();
    const auto upToSector = [](std::uint64_t bytes) { return (bytes + kSector - 1) / kSector * kSector; };
    const std::uint64_t stored = *block + upToSector((*block / kSector + 7) / 8);
    auto end = upToSector(*table + std::uint64_t{*blocks} * 4);
    for (std::uint64_t i = 0; i < *blocks; ++i) {
        const auto sector = view.be32(*table + i * 4);
        if (!sector)
            return cutOffAt(view, view.size());
        if (*sector != kUnused)
            end = std::max(end, *sector * kSector + stored);
    }
    const bool closed = view.matches(end, kTrailer);
    return closed || end + kSector > view.size() ? completeAt(view, end + kSector) : damagedAt(view, end);
}

}  // namespace

extern constexpr Format kVirtualPcDisk = {
    .name = "Virtual PC disk",
    .group = Group::Systems,
    .walk = walkVirtualPcDisk,
    .extensions = " VHD ",
    .strongMagic = false,
    .large = true,
};

}  // namespace vantor
