// A FAT16 card in memory: files are laid out on it as a camera would, then deleted as a camera would.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace vantor::samples {

constexpr std::int64_t kSectorBytes = 512;
constexpr std::int64_t kCardBytes = std::int64_t{64} * 1024 * 1024;

// A run of sectors [first, end) of the card.
struct SectorRun {
    std::int64_t first = 0;
    std::int64_t end = 0;
};

// The structure follows Microsoft's "FAT: General Overview of On-Disk Format", 1.03.
class FatCard {
  public:
    static constexpr int kSectorsPerCluster = 8;
    static constexpr std::int64_t kClusterBytes = kSectorsPerCluster * kSectorBytes;
    static constexpr std::int64_t kReservedSectors = 96;  // puts the first cluster at sector 256
    static constexpr std::int64_t kFatSectors = 64;
    static constexpr int kFatCount = 2;
    static constexpr int kRootEntries = 512;
    static constexpr std::int64_t kFirstDataSector =
        kReservedSectors + kFatCount * kFatSectors + kRootEntries * 32 / kSectorBytes;
    static constexpr std::int64_t kClusters =
        (kCardBytes / kSectorBytes - kFirstDataSector) / kSectorsPerCluster;

    FatCard();

    // Makes a folder ("DCIM/100VANTR"), its parents included, with room for the given number of clusters of
    // entries, unless it is there; false when the card or a parent is full.
    bool makeFolder(const QString& path, int clusters = 1);

    // Stores a file in the next free clusters; empty when the card or the folder is full.
    std::optional<std::vector<SectorRun>> addFile(const QString& folder, const QString& name,
                                                  const QByteArray& bytes);

    // Stores a file in two pieces, `gapClusters` unused clusters apart.
    std::optional<std::vector<SectorRun>> addFileInTwoPieces(const QString& folder, const QString& name,
                                                             const QByteArray& bytes,
                                                             std::int64_t gapClusters);

    // Leaves clusters unallocated, filled with the given bytes (repeated zeros where they end).
    void leaveGap(std::int64_t clusters, const QByteArray& content = {});

    // Deletes every file: first byte of each of its entries 0xE5, its chain freed in both tables; folders
    // stay.
    void deleteFiles();

    const QByteArray& image() const { return m_image; }

  private:
    struct Folder {
        std::vector<std::int64_t> clusters;  // empty for the root folder
        int entries = 0;
    };
    struct StoredFile {
        std::vector<qsizetype> entryOffsets;  // of all its directory entries, in the image
        std::vector<std::int64_t> clusters;
    };

    void writeBootSector();
    void setFat(std::int64_t cluster, int value);
    void chain(const std::vector<std::int64_t>& clusters);
    std::vector<std::int64_t> take(std::int64_t clusters);
    static qsizetype offsetOf(std::int64_t cluster);
    static bool hasRoomFor(const Folder& folder, const QString& name);
    qsizetype appendEntry(Folder& folder, const QByteArray& entry);
    std::vector<qsizetype> appendNamedEntries(Folder& folder, const QString& name, int attributes,
                                              std::int64_t firstCluster, qsizetype bytes);
    std::vector<SectorRun> store(Folder& folder, const QString& name, const QByteArray& bytes,
                                 const std::vector<std::int64_t>& clusters);
    Folder* folderFor(const QString& path, const QString& name);

    QByteArray m_image;
    std::map<QString, Folder> m_folders;
    std::vector<StoredFile> m_files;
    std::int64_t m_nextCluster = 2;
    int m_entriesMade = 0;
};

}  // namespace vantor::samples
