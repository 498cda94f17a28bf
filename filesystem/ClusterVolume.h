// One FAT or exFAT file system: the directories that it has, and those that it had.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "filesystem/AllocationTable.h"
#include "filesystem/CardTable.h"
#include "filesystem/DirectoryRows.h"
#include "filesystem/FoundStarts.h"
#include "filesystem/SectorSource.h"
#include "filesystem/VolumeShape.h"

namespace vantor {

// A directory as it was read.
struct CardDirectory {
    FileState state = FileState::Live;
    std::uint32_t cluster = 0;  // its first; 0: the root, or not known
    std::uint64_t sector = 0;   // its first
    std::optional<std::size_t> parent;
    QString name;  // "" for a root
    bool nameIsWhole = true;
    bool isRoot = false;
    bool isNamed = false;
    bool hasClusters = true;  // false: its rows count clusters that lie nobody knows where
    DirectoryRows rows;
    std::vector<SectorRun> runs;
    // Its last rows where no row said that it ends there: it may go on elsewhere.
    std::vector<std::uint8_t> openEnd;
    // Of a part without a beginning: its first rows, and the directory that it goes on, once that is known.
    std::vector<std::uint8_t> firstRows;
    std::optional<std::size_t> partOf;
};

// Every cluster belongs to one directory at most, so that no row of folders, however twisted, has no end.
class ClusterVolume {
  public:
    // The card outlives it.
    ClusterVolume(SectorSource& card, const VolumeShape& shape, bool isCurrent);
    ClusterVolume(const ClusterVolume&) = delete;
    ClusterVolume& operator=(const ClusterVolume&) = delete;

    const VolumeShape& shape() const { return m_shape; }
    bool isCurrent() const { return m_isCurrent; }
    const QString& label() const { return m_label; }
    const std::vector<CardDirectory>& directories() const { return m_directories; }

    // The directories from the root on, then those whose rows in them are marked as deleted.
    void readFromRoot();
    // The root of a file system that was, which lies before the clusters (FAT12, FAT16).
    void readLostRoot();
    // A directory that nothing leads to, from a cluster on; false when it is known already or is none.
    bool readLost(std::uint32_t cluster);
    // The same for sectors that hold rows of directories of which it is not known where they begin.
    void readLostParts(const std::vector<SectorRun>& sectors);
    // The same for rows whose clusters are of a file system of which nothing else is known: they tell names,
    // lengths and times, and no places.
    void readPlaceless(const std::vector<SectorRun>& sectors);
    // Finds the folders that lost directories lie in, once all are read.
    void linkLost();

    bool isClaimed(std::uint64_t sector) const;

    // Appends the files and, for a current file system, what it holds as in use.
    void tell(const FoundStarts& found, CardTable& table);

  private:
    struct Chain {
        std::vector<SectorRun> runs;
        std::uint64_t clusters = 0;
        bool isWhole = false;  // the table led to the end, through as many clusters as were asked for
    };

    struct Pending {
        std::uint32_t cluster = 0;
        std::uint64_t bytes = 0;
        bool isOnePiece = false;
        FileState state = FileState::Live;
        std::optional<std::size_t> parent;
        QString name;
        bool nameIsWhole = true;
    };

    bool isExfat() const { return m_shape.kind == FileSystemKind::Exfat; }
    std::uint64_t clusterBytes() const { return std::uint64_t{m_shape.clusterSectors} * 512; }
    std::uint64_t clustersFor(std::uint64_t bytes) const;
    bool isClusterClaimed(std::uint64_t cluster) const;
    void claim(std::uint64_t cluster);
    // Up to a cluster that something holds which is there; holds those it passes, so that a loop ends.
    Chain chainFrom(std::uint32_t cluster, std::uint64_t most);
    // Of runs in whole clusters.
    void setLive(const std::vector<SectorRun>& runs, bool live);
    SectorRun onePiece(std::uint32_t cluster, std::uint64_t clusters) const;

    void readRootBeforeClusters(FileState state);
    void readFoldersOf(std::size_t directory);
    bool readPending(const Pending& pending);
    bool readPart(const SectorRun& sectors, bool hasClusters);
    std::optional<std::uint32_t> nextOfLostPart(std::uint64_t sector);
    std::vector<SectorRun> splitAtClusters(const std::vector<SectorRun>& sectors) const;
    std::vector<std::uint32_t> clustersOf(const Pending& pending);
    bool continuesDirectory(std::uint32_t cluster);
    bool beginsFolder(std::uint32_t cluster, FileState state);
    DirectoryRows rowsOf(std::span<const std::uint8_t> bytes, RowTimes times = RowTimes::AreTimes) const;
    DirectoryRows liveRowsOf(std::span<const std::uint8_t> bytes);
    void append(CardDirectory directory, const std::vector<std::uint8_t>& bytes);
    void queueFolders(std::size_t directory, std::vector<Pending>& live, std::vector<Pending>& deleted);
    void readAll(std::vector<Pending> live, std::vector<Pending> deleted);

    std::optional<std::uint64_t> endOfLastFile(const CardDirectory& directory) const;
    void joinParts();
    void nameFromStandard();
    void restoreFirstLetters();
    QString folderOf(std::size_t directory) const;
    void tellDirectory(const CardDirectory& directory, const QString& folder, bool live,
                       const FoundStarts& found, CardTable& table);
    void placeLive(const DirectoryEntry& entry, CardFile& file);
    void placeGone(const DirectoryEntry& entry, const FoundStarts& found, CardFile& file);
    bool mayBeHalf(const DirectoryEntry& entry) const;
    bool mayBegin(std::uint32_t cluster, const DirectoryEntry& entry, const FoundStarts& found);
    // One; none where none is likely; two where it cannot be told which.
    std::vector<std::uint32_t> beginningsOf(const DirectoryEntry& entry, const FoundStarts& found);
    bool beginsOtherwise(std::uint32_t cluster, const DirectoryEntry& entry, const FoundStarts& found);

    SectorSource& m_card;
    const VolumeShape m_shape;
    const bool m_isCurrent;
    AllocationTable m_links;
    QString m_label;
    std::vector<CardDirectory> m_directories;
    std::unordered_map<std::uint32_t, std::size_t> m_byCluster;  // first clusters of directories
    std::vector<bool> m_claimed;                                 // by directories; one a cluster
    std::vector<bool> m_live;                                    // by what is there; one a cluster
    std::vector<SectorRun> m_liveRuns;
    // A deleted entry has its upper half (FAT32): who deletes here leaves it.
    bool m_keepsUpperHalf = false;
    // Clusters that may still be gone through: on a sound card each is a file's once.
    std::uint64_t m_liveStepsLeft = 0;
    std::uint64_t m_goneStepsLeft = 0;
    // Sectors that may still be read for what begins there, and for halves of numbers: on a card each is a
    // wait of its own.
    std::size_t m_beginningLooksLeft = 65'536;
    std::size_t m_halfLooksLeft = 4096;
};

}  // namespace vantor
