// Disks of virtual machines in grains (VMDK), also packed for a stream. Source: VMware "Virtual Disk
// Format 5.0".
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kVmwareSector = 512;

struct VmwareDisk {
    std::uint64_t grainSectors = 0;
    std::uint32_t entries = 0;  // of a table of grains
    bool packed = false;        // each grain tells its bytes
};

// The end of a grain at a sector; nothing where it cannot be read.
std::optional<std::uint64_t> grainEnd(ByteView& view, const VmwareDisk& disk, std::uint64_t sector) {
    const auto at = sector * kVmwareSector;
    if (!disk.packed)
        return at + disk.grainSectors * kVmwareSector;
    const auto bytes = view.le32(at + 8);
    if (!bytes)
        return std::nullopt;
    return at + (12 + std::uint64_t{*bytes} + kVmwareSector - 1) / kVmwareSector * kVmwareSector;
}

// Follows the directory of tables of grains.
Extent endOfTables(ByteView& view, const VmwareDisk& disk, std::uint64_t directory, std::uint64_t tables,
                   std::uint64_t end) {
    for (std::uint64_t i = 0; i < tables; ++i) {
        const auto table = view.le32(directory * kVmwareSector + i * 4);
        if (!table)
            return cutOffAt(view, view.size());
        if (*table == 0)
            continue;
        const auto tableAt = *table * kVmwareSector;
        end = std::max<std::uint64_t>(end, tableAt + disk.entries * 4ULL);
        for (std::uint64_t entry = 0; entry < disk.entries; ++entry) {
            const auto sector = view.le32(tableAt + entry * 4);
            if (!sector)
                return cutOffAt(view, view.size());
            if (*sector <= 1)
                continue;  // none, or all zeros
            const auto behind = grainEnd(view, disk, *sector);
            if (!behind)
                return cutOffAt(view, view.size());
            end = std::max(end, *behind);
        }
    }
    return completeAt(view, end);
}

// Follows a stream of packed grains and marks up to the mark of its end.
Extent endOfStream(ByteView& view, std::uint64_t at) {
    for (;;) {
        const auto value = view.le64(at);
        const auto bytes = view.le32(at + 8), kind = view.le32(at + 12);
        if (!value || !bytes || !kind)
            return cutOffAt(view, view.size());
        if (*bytes != 0) {
            at += (12 + std::uint64_t{*bytes} + kVmwareSector - 1) / kVmwareSector * kVmwareSector;
            continue;
        }
        if (*kind > 3)
            return damagedAt(view, at);
        at = addClamped(at, kVmwareSector);
        if (*kind == 0)
            return completeAt(view, at);
        at = addClamped(at, mulClamped(*value, kVmwareSector));
    }
}

Extent walkVmwareDisk(ByteView& view) {
    constexpr std::uint64_t kInTheFooter = ~0ULL, kMostTables = 1 << 20;
    constexpr std::uint32_t kPacked = 1 << 16;
    if (!view.matches(0, "KDMV"))
        return unknownExtent();
    Cursor in(view, 4, Endian::Little);
    const auto version = in.u32(), flags = in.u32();
    const auto capacity = in.u64();
    VmwareDisk disk;
    disk.grainSectors = in.u64();
    const auto description = in.u64(), descriptionSectors = in.u64();
    disk.entries = in.u32();
    in.skip(8);
    const auto directory = in.u64(), overhead = in.u64();
    disk.packed = (flags & kPacked) != 0;
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (version == 0 || version > 3 || disk.grainSectors == 0 || disk.grainSectors > 65536 ||
        disk.entries == 0 || disk.entries > 65536)
        return unknownExtent();
    const auto start =
        mulClamped(std::max(overhead, addClamped(description, descriptionSectors)), kVmwareSector);
    if (directory == kInTheFooter)
        return endOfStream(view, mulClamped(overhead, kVmwareSector));
    const auto span = disk.grainSectors * disk.entries;
    const auto tables = capacity / span + (capacity % span != 0 ? 1 : 0);
    if (tables > kMostTables || directory > view.size() / kVmwareSector)
        return unknownExtent();
    return endOfTables(view, disk, directory, tables, start);
}

}  // namespace

extern constexpr Format kVmwareDisk = {
    .name = "VMware disk",
    .group = Group::Systems,
    .walk = walkVmwareDisk,
    .extensions = " VMDK ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
