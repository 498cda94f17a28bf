// All that a card's own file systems tell: the table of its files, and what is in use.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

#include "filesystem/CardFile.h"
#include "media/SectorRun.h"

namespace vantor {

enum class FileSystemKind { Fat12, Fat16, Fat32, Exfat, Ntfs };

// A file system that is on the medium, or once was.
struct CardFileSystem {
    FileSystemKind kind = FileSystemKind::Fat32;
    bool isCurrent = false;          // a partition table, or the medium's first sector, leads to it
    std::uint64_t firstSector = 0;   // 0 where only its clusters are known
    std::uint64_t sectors = 0;       // 0 where nothing tells
    std::uint64_t firstCluster = 0;  // the sector where its first cluster begins
    std::uint32_t clusterSectors = 0;
    QString label;  // "" where it has none
    // Its allocation tables, all copies of them; empty where it has none or nothing tells.
    SectorRun tables = {};
};

struct CardTable {
    // The live files first, then the deleted, then the lost ones; within each by folder and name.
    std::vector<CardFile> files;
    std::vector<CardFileSystem> fileSystems;  // the current ones first
    // What the current file systems hold: the runs of the files that are there, their directories, and the
    // file systems' own areas. Sorted, apart from each other.
    std::vector<SectorRun> inUse;

    // Whether a current file system holds the sector as in use.
    bool isInUse(std::uint64_t sector) const;
    // The first run of sectors that no current file system holds as in use, at or behind `from` and before
    // `end`, cut to them; empty (first == end) when there is none. For finding the pieces of a file.
    SectorRun freeRunFrom(std::uint64_t from, std::uint64_t end) const;
};

// Sorts the runs and joins those that touch or overlap; empty ones are dropped.
void joinRuns(std::vector<SectorRun>& runs);

}  // namespace vantor
