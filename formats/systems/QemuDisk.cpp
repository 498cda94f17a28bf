// Disks of virtual machines that grow by clusters (QCOW2). Source: QEMU documentation, "qcow2.txt", versions
// 2 and 3.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

struct QcowDisk {
    ByteView& view;
    std::uint64_t cluster = 0;  // bytes
    unsigned clusterBits = 0;
    std::uint64_t end = 0;

    void reach(std::uint64_t at, std::uint64_t bytes) { end = std::max(end, addClamped(at, bytes)); }

    // One cluster of places of data: packed data tells its sectors.
    bool table(std::uint64_t at) {
        constexpr std::uint64_t kPacked = 1ULL << 62, kPlace = 0x00FFFFFFFFFFFE00;
        reach(at, cluster);
        for (std::uint64_t i = 0; i < cluster; i += 8) {
            const auto entry = view.be64(at + i);
            if (!entry)
                return false;
            if ((*entry & kPacked) != 0) {
                const unsigned placeBits = 62 - (clusterBits - 8);
                const auto place = *entry & ((1ULL << placeBits) - 1);
                const auto sectors = ((*entry & (kPacked - 1)) >> placeBits) + 1;
                reach(place / 512 * 512, sectors * 512);
            } else if ((*entry & kPlace) != 0) {
                reach(*entry & kPlace, cluster);
            }
        }
        return true;
    }
};

Extent walkQemuDisk(ByteView& view) {
    constexpr std::uint64_t kPlace = 0x00FFFFFFFFFFFE00, kUnknownLayouts = ~7ULL;
    if (!view.matches(0, "QFI\xFB"))
        return unknownExtent();
    Cursor in(view, 4);
    const auto version = in.u32();
    in.skip(12);
    const auto clusterBits = in.u32();
    in.skip(12);
    const std::uint64_t tables = in.u32(), tablesAt = in.u64(), countsAt = in.u64(), countClusters = in.u32();
    const auto snapshots = in.u32();
    in.skip(8);
    const auto features = version >= 3 ? in.u64() : 0;
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (version < 2 || version > 3 || clusterBits < 9 || clusterBits > 21 || snapshots != 0 ||
        (features & kUnknownLayouts) != 0 || (features & 4) != 0)
        return unknownExtent();  // data of its own elsewhere, or tables that are not described
    QcowDisk disk{view, 1ULL << clusterBits, clusterBits};
    disk.reach(0, disk.cluster);
    disk.reach(tablesAt, tables * 8);
    disk.reach(countsAt, countClusters * disk.cluster);
    if (disk.end > view.size())
        return cutOffAt(view, view.size());
    for (std::uint64_t at = countsAt; at < countsAt + countClusters * disk.cluster; at += 8) {
        const auto counts = view.be64(at).value_or(0) & ~511ULL;
        if (counts != 0)
            disk.reach(counts, disk.cluster);
    }
    for (std::uint64_t i = 0; i < tables; ++i) {
        const auto table = view.be64(tablesAt + i * 8).value_or(0) & kPlace;
        if (table != 0 && !disk.table(table))
            return cutOffAt(view, view.size());
    }
    return completeAt(view, disk.end);
}

}  // namespace

extern constexpr Format kQemuDisk = {
    .name = "QEMU disk",
    .group = Group::Systems,
    .walk = walkQemuDisk,
    .extensions = " QCOW2 ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
