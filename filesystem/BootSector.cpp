// Sources: Microsoft's published descriptions of FAT ("fatgen103") and exFAT; public descriptions of the NTFS
// boot sector.
#include "filesystem/BootSector.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

#include "filesystem/LittleEndian.h"

namespace vantor {

namespace {

constexpr std::uint64_t kSector = 512;
// Cluster numbers from here on have other meanings in every kind's table.
constexpr std::uint64_t kMostClusters = 0xFFFFFFF5 - 2;
constexpr std::uint64_t kMostFat32Clusters = 0x0FFFFFF5;

bool namesSystem(std::span<const std::uint8_t> bytes, const char (&name)[9]) {
    return std::memcmp(bytes.data() + 3, name, 8) == 0;
}

bool isSectorSize(std::uint64_t bytes) {
    return bytes >= 512 && bytes <= 4096 && std::has_single_bit(bytes);
}

// So many clusters as there is room for on the medium; nothing where not even one has.
bool clip(VolumeShape& shape, std::uint64_t clusters, std::uint64_t cardSectors) {
    if (shape.firstCluster >= cardSectors) {
        return false;
    }
    const std::uint64_t room = (cardSectors - shape.firstCluster) / shape.clusterSectors;
    shape.clusters = static_cast<std::uint32_t>(std::min({clusters, room, kMostClusters}));
    return shape.clusters > 0;
}

std::optional<VolumeShape> fatShape(std::span<const std::uint8_t> bytes, std::uint64_t first,
                                    std::uint64_t cardSectors) {
    const std::uint64_t sectorBytes = le16(bytes, 11);
    const std::uint32_t perCluster = bytes[13];
    const std::uint64_t reserved = le16(bytes, 14);
    const std::uint32_t copies = bytes[16];
    const std::uint64_t rootRows = le16(bytes, 17);
    const std::uint64_t total = le16(bytes, 19) != 0 ? le16(bytes, 19) : le32(bytes, 32);
    const bool wide = le16(bytes, 22) == 0;
    const std::uint64_t tableSectors = wide ? le32(bytes, 36) : le16(bytes, 22);
    if (!isSectorSize(sectorBytes) || !std::has_single_bit(perCluster) || reserved == 0 || copies == 0 ||
        copies > 4 || tableSectors == 0 || (bytes[21] != 0xF0 && bytes[21] < 0xF8) ||
        wide != (rootRows == 0)) {
        return std::nullopt;
    }
    const std::uint64_t scale = sectorBytes / kSector;
    const std::uint64_t rootSectors = (rootRows * 32 + sectorBytes - 1) / sectorBytes;
    const std::uint64_t before = reserved + copies * tableSectors + rootSectors;
    if (total <= before) {
        return std::nullopt;
    }
    const std::uint64_t clusters = (total - before) / perCluster;
    VolumeShape shape;
    shape.kind = wide              ? FileSystemKind::Fat32
                 : clusters < 4085 ? FileSystemKind::Fat12
                                   : FileSystemKind::Fat16;
    if (clusters > (wide ? kMostFat32Clusters : 65524)) {
        return std::nullopt;
    }
    shape.first = first;
    shape.sectors = total * scale;
    shape.clusterSectors = static_cast<std::uint32_t>(perCluster * scale);
    shape.firstCluster = first + before * scale;
    shape.table = first + reserved * scale;
    shape.tableSectors = tableSectors * scale;
    shape.tableCopies = copies;
    shape.root = shape.firstCluster - rootSectors * scale;
    shape.rootSectors = rootSectors * scale;
    shape.rootCluster = wide ? le32(bytes, 44) & 0x0FFFFFFF : 0;
    return clip(shape, clusters, cardSectors) ? std::optional(shape) : std::nullopt;
}

std::optional<VolumeShape> exfatShape(std::span<const std::uint8_t> bytes, std::uint64_t first,
                                      std::uint64_t cardSectors) {
    const unsigned sectorShift = bytes[108];
    const unsigned clusterShift = bytes[109];
    if (sectorShift < 9 || sectorShift > 12 || clusterShift > 25 - sectorShift) {
        return std::nullopt;
    }
    const std::uint64_t scale = (std::uint64_t{1} << sectorShift) / kSector;
    VolumeShape shape;
    shape.kind = FileSystemKind::Exfat;
    shape.first = first;
    const std::uint64_t total = le64(bytes, 72);
    shape.sectors = total > std::numeric_limits<std::uint64_t>::max() / scale ? 0 : total * scale;
    shape.clusterSectors = static_cast<std::uint32_t>(scale << clusterShift);
    shape.table = first + le32(bytes, 80) * scale;
    shape.tableSectors = le32(bytes, 84) * scale;
    shape.tableCopies = bytes[110];
    shape.firstCluster = first + le32(bytes, 88) * scale;
    shape.rootCluster = le32(bytes, 96);
    const std::uint64_t clusters = le32(bytes, 92);
    if (shape.tableCopies < 1 || shape.tableCopies > 2 || shape.table == first ||
        shape.firstCluster < shape.table + shape.tableSectors || !clip(shape, clusters, cardSectors)) {
        return std::nullopt;
    }
    return shape;
}

std::optional<VolumeShape> ntfsShape(std::span<const std::uint8_t> bytes, std::uint64_t first,
                                     std::uint64_t cardSectors) {
    const std::uint64_t sectorBytes = le16(bytes, 11);
    // Beyond 128 the count is a power of two, as a negative exponent.
    const std::uint64_t perCluster = bytes[13] <= 128   ? bytes[13]
                                     : bytes[13] >= 240 ? std::uint64_t{1} << (256 - bytes[13])
                                                        : 0;
    if (!isSectorSize(sectorBytes) || !std::has_single_bit(perCluster)) {
        return std::nullopt;
    }
    const std::uint64_t scale = sectorBytes / kSector;
    const std::uint64_t total = le64(bytes, 40);
    const std::uint64_t records = le64(bytes, 48);
    const unsigned recordClusters = bytes[64];
    const std::uint64_t recordBytes = recordClusters >= 0xE0 ? std::uint64_t{1} << (256 - recordClusters)
                                                             : recordClusters * perCluster * sectorBytes;
    if (total == 0 || total > std::numeric_limits<std::uint64_t>::max() / scale || recordBytes < kSector ||
        recordBytes > 65536 || !std::has_single_bit(recordBytes)) {
        return std::nullopt;
    }
    VolumeShape shape;
    shape.kind = FileSystemKind::Ntfs;
    shape.first = first;
    shape.sectors = total * scale;
    shape.clusterSectors = static_cast<std::uint32_t>(perCluster * scale);
    shape.firstCluster = first;
    shape.recordBytes = static_cast<std::uint32_t>(recordBytes);
    if (!clip(shape, total / perCluster, cardSectors) || !shape.holds(records)) {
        return std::nullopt;
    }
    shape.rootCluster = static_cast<std::uint32_t>(records);
    return shape;
}

}  // namespace

bool looksLikeBootSector(const std::uint8_t* bytes) {
    return bytes[510] == 0x55 && bytes[511] == 0xAA && (bytes[0] == 0xEB || bytes[0] == 0xE9) &&
           shapeFromBootSector(std::span<const std::uint8_t, 512>(bytes, 512), 0,
                               std::numeric_limits<std::uint64_t>::max() / 2)
               .has_value();
}

std::optional<VolumeShape> shapeFromBootSector(std::span<const std::uint8_t, 512> bytes, std::uint64_t first,
                                               std::uint64_t cardSectors) {
    if (bytes[510] != 0x55 || bytes[511] != 0xAA || first >= cardSectors) {
        return std::nullopt;
    }
    if (namesSystem(bytes, "EXFAT   ")) {
        return exfatShape(bytes, first, cardSectors);
    }
    if (namesSystem(bytes, "NTFS    ")) {
        return ntfsShape(bytes, first, cardSectors);
    }
    return fatShape(bytes, first, cardSectors);
}

std::vector<std::uint64_t> possibleBeginnings(std::span<const std::uint8_t, 512> bytes, std::uint64_t at) {
    std::vector<std::uint64_t> beginnings{at};
    const auto before = [&](std::uint64_t sectors) {
        if (sectors != 0 && sectors <= at) {
            beginnings.push_back(at - sectors);
        }
    };
    const std::uint64_t scale = std::max<std::uint64_t>(le16(bytes, 11) / kSector, 1);
    if (namesSystem(bytes, "EXFAT   ")) {
        // The second boot region follows the first one's twelve sectors.
        before(std::uint64_t{12} << (std::clamp<unsigned>(bytes[108], 9, 12) - 9));
    } else if (namesSystem(bytes, "NTFS    ")) {
        // The copy stands in the sector behind the last.
        before(le64(bytes, 40) <= at / scale ? le64(bytes, 40) * scale : 0);
    } else if (le16(bytes, 22) == 0) {
        before(le16(bytes, 50) * scale);
    }
    return beginnings;
}

}  // namespace vantor
