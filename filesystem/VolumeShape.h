// Where a file system keeps its parts, in sectors of 512 bytes of the medium.
#pragma once

#include <cstdint>

#include "filesystem/CardTable.h"

namespace vantor {

// Everything lies on the medium: who fills it in has clipped it. The first cluster's number is 2, on NTFS 0.
struct VolumeShape {
    FileSystemKind kind = FileSystemKind::Fat32;
    std::uint64_t first = 0;    // sector of the boot sector
    std::uint64_t sectors = 0;  // 0: not known
    std::uint32_t clusterSectors = 1;
    std::uint64_t firstCluster = 0;  // sector where the first cluster begins
    std::uint32_t clusters = 0;
    std::uint64_t table = 0;         // sector of the allocation table; 0: not known
    std::uint64_t tableSectors = 0;  // of one copy
    std::uint32_t tableCopies = 0;
    std::uint64_t root = 0;         // first sector of a root directory without clusters (FAT12, FAT16)
    std::uint64_t rootSectors = 0;  // of such a one
    std::uint32_t rootCluster = 0;  // of the others; NTFS: first cluster of the file records
    std::uint32_t recordBytes = 0;  // of a file record (NTFS)

    std::uint32_t firstNumber() const { return kind == FileSystemKind::Ntfs ? 0 : 2; }
    bool holds(std::uint64_t cluster) const {
        return cluster >= firstNumber() && cluster - firstNumber() < clusters;
    }
    // Only for a cluster that it holds.
    std::uint64_t sectorOf(std::uint64_t cluster) const {
        return firstCluster + (cluster - firstNumber()) * clusterSectors;
    }
    std::uint64_t endOfClusters() const { return firstCluster + std::uint64_t{clusters} * clusterSectors; }

    // Whether both put the same cluster into the same place.
    bool sameClusters(const VolumeShape& other) const {
        return kind == other.kind && clusterSectors == other.clusterSectors &&
               firstCluster == other.firstCluster;
    }
};

}  // namespace vantor
