// From the first sectors alone; directories are not looked at.
#include "filesystem/PresentVolumes.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <optional>

#include "filesystem/BootSector.h"
#include "filesystem/PartitionTable.h"
#include "filesystem/ReaderSource.h"
#include "media/FileSystemName.h"

namespace vantor {

namespace {

std::optional<VolumeShape> shapeAt(SectorSource& card, std::uint64_t sector, std::uint64_t first) {
    std::array<std::uint8_t, kSectorBytes> bytes;
    if (sector >= card.sectors() || !card.readAt(sector, bytes)) {
        return std::nullopt;
    }
    return shapeFromBootSector(bytes, first, card.sectors());
}

// Two partitions may begin in the same sector.
void addNew(const VolumeShape& shape, std::vector<VolumeShape>& to) {
    if (std::none_of(to.begin(), to.end(), [&](const VolumeShape& one) { return one.sameClusters(shape); })) {
        to.push_back(shape);
    }
}

QString displayName(FileSystemKind kind) {
    const auto fat = [](const char* version) {
        return fileSystemName(QStringLiteral("vfat"), QLatin1String(version));
    };
    switch (kind) {
        case FileSystemKind::Fat12:
            return fat("FAT12");
        case FileSystemKind::Fat16:
            return fat("FAT16");
        case FileSystemKind::Fat32:
            return fat("FAT32");
        case FileSystemKind::Exfat:
            return fileSystemName(QStringLiteral("exfat"), {});
        case FileSystemKind::Ntfs:
            return fileSystemName(QStringLiteral("ntfs"), {});
    }
    return {};
}

}  // namespace

// The whole card is one file system, or its tables name several. Where a first sector is gone, the places
// of its copies are asked: six and twelve sectors behind it, and the last one.
std::vector<VolumeShape> presentVolumes(SectorSource& card) {
    std::vector<VolumeShape> shapes;
    if (const auto whole = shapeAt(card, 0, 0)) {
        return {*whole};
    }
    for (const SectorRun& partition : partitionsOf(card)) {
        for (const std::uint64_t at :
             {partition.first, partition.first + 6, partition.first + 12, partition.end - 1}) {
            if (const auto shape = shapeAt(card, at, partition.first)) {
                addNew(*shape, shapes);
                break;
            }
        }
    }
    for (const std::uint64_t copy : {6, 12}) {
        const auto shape = shapes.empty() ? shapeAt(card, copy, 0) : std::nullopt;
        if (shape) {
            shapes.push_back(*shape);
        }
    }
    return shapes;
}

QString presentFileSystems(SectorReader& medium, std::uint64_t sectors) {
    ReaderSource card(medium, sectors);
    QStringList names;
    for (const VolumeShape& shape : presentVolumes(card)) {
        names << displayName(shape.kind);
    }
    names.removeDuplicates();
    return names.join(QStringLiteral(", "));
}

}  // namespace vantor
