// Laying out a FAT16 volume: boot sector, two tables, root folder, clusters.
#include "samples/FatCard.h"

#include <numeric>

#include "samples/Bytes.h"
#include "samples/CardTime.h"
#include "samples/FatNames.h"

namespace vantor::samples {

namespace {

constexpr int kMediaByte = 0xF8;
constexpr int kEndOfChain = 0xFFFF;
constexpr int kEntryBytes = 32;
constexpr int kVolumeLabel = 0x08;
constexpr int kDirectory = 0x10;
constexpr int kArchive = 0x20;
constexpr char kDeleted = '\xE5';
const QByteArray kLabel = "VANTOR CARD";

// Entries are a minute apart, from ten o'clock on.
int timeOf(int entry) {
    const int minutes = 600 + entry;
    return (minutes / 60 % 24) << 11 | (minutes % 60) << 5;
}

QByteArray directoryEntry(const QByteArray& shortName, int attributes, int time, std::int64_t firstCluster,
                          qsizetype bytes) {
    Bytes entry;
    const auto t = static_cast<std::uint64_t>(time);
    entry.raw(shortName)
        .u8(static_cast<std::uint64_t>(attributes))
        .u8(0)
        .u8(0)
        .le16(t)
        .le16(kDosDate)
        .le16(kDosDate)
        .le16(0);
    entry.le16(t)
        .le16(kDosDate)
        .le16(static_cast<std::uint64_t>(firstCluster))
        .le32(static_cast<std::uint64_t>(bytes));
    return entry.bytes();
}

}  // namespace

FatCard::FatCard() : m_image(kCardBytes, '\0') {
    writeBootSector();
    setFat(0, 0xFF00 | kMediaByte);
    setFat(1, kEndOfChain);
    appendEntry(m_folders[QString()], directoryEntry(kLabel, kVolumeLabel, timeOf(m_entriesMade), 0, 0));
}

void FatCard::writeBootSector() {
    constexpr std::uint64_t kSerial = 0x20240601;
    Bytes boot;
    boot.u8(0xEB).u8(0x3C).u8(0x90).field("VANTOR", 8, ' ');
    boot.le16(kSectorBytes).u8(kSectorsPerCluster).le16(kReservedSectors).u8(kFatCount).le16(kRootEntries);
    boot.le16(0).u8(kMediaByte).le16(kFatSectors).le16(32).le16(8).le32(0).le32(kCardBytes / kSectorBytes);
    boot.u8(0x80).u8(0).u8(0x29).le32(kSerial).raw(kLabel).field("FAT16", 8, ' ');
    boot.u8(0xEB).u8(0xFE);  // started as a boot sector it waits for ever
    boot.zeros(510 - boot.size()).u8(0x55).u8(0xAA);
    m_image.replace(0, boot.size(), boot.bytes());
}

void FatCard::setFat(std::int64_t cluster, int value) {
    for (int copy = 0; copy < kFatCount; ++copy) {
        const qsizetype at = (kReservedSectors + copy * kFatSectors) * kSectorBytes + cluster * 2;
        m_image[at] = static_cast<char>(value);
        m_image[at + 1] = static_cast<char>(value >> 8);
    }
}

void FatCard::chain(const std::vector<std::int64_t>& clusters) {
    for (std::size_t i = 0; i < clusters.size(); ++i)
        setFat(clusters[i], i + 1 < clusters.size() ? static_cast<int>(clusters[i + 1]) : kEndOfChain);
}

std::vector<std::int64_t> FatCard::take(std::int64_t clusters) {
    if (clusters > kClusters + 2 - m_nextCluster)
        return {};
    std::vector<std::int64_t> taken(static_cast<std::size_t>(clusters));
    std::iota(taken.begin(), taken.end(), m_nextCluster);
    m_nextCluster += clusters;
    return taken;
}

qsizetype FatCard::offsetOf(std::int64_t cluster) {
    return (kFirstDataSector + (cluster - 2) * kSectorsPerCluster) * kSectorBytes;
}

// Whether all entries of one more name fit into the folder.
bool FatCard::hasRoomFor(const Folder& folder, const QString& name) {
    const std::size_t room = folder.clusters.empty() ? std::size_t{kRootEntries}
                                                     : folder.clusters.size() * kClusterBytes / kEntryBytes;
    const std::size_t needed = isShortName(name) ? 1 : 1 + longNameEntries(name, shortNameOf(name, 1)).size();
    return static_cast<std::size_t>(folder.entries) + needed <= room;
}

qsizetype FatCard::appendEntry(Folder& folder, const QByteArray& entry) {
    const qsizetype inside = qsizetype{folder.entries++} * kEntryBytes;
    const qsizetype at =
        folder.clusters.empty()
            ? (kReservedSectors + kFatCount * kFatSectors) * kSectorBytes + inside
            : offsetOf(folder.clusters.at(static_cast<std::size_t>(inside / kClusterBytes))) +
                  inside % kClusterBytes;
    m_image.replace(at, kEntryBytes, entry);
    return at;
}

std::vector<qsizetype> FatCard::appendNamedEntries(Folder& folder, const QString& name, int attributes,
                                                   std::int64_t firstCluster, qsizetype bytes) {
    std::vector<qsizetype> offsets;
    ++m_entriesMade;
    const QByteArray shortName = shortNameOf(name, m_entriesMade);
    if (!isShortName(name)) {
        for (const QByteArray& entry : longNameEntries(name, shortName))
            offsets.push_back(appendEntry(folder, entry));
    }
    offsets.push_back(appendEntry(
        folder, directoryEntry(shortName, attributes, timeOf(m_entriesMade), firstCluster, bytes)));
    return offsets;
}

bool FatCard::makeFolder(const QString& path, int clusters) {
    if (m_folders.contains(path))
        return true;
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    const QString parentPath = slash < 0 ? QString() : path.left(slash);
    const QString name = path.mid(slash + 1);
    if (!makeFolder(parentPath))
        return false;
    Folder& parent = m_folders[parentPath];
    Folder folder;
    if (hasRoomFor(parent, name))
        folder.clusters = take(clusters);
    if (folder.clusters.empty())
        return false;
    chain(folder.clusters);
    const std::int64_t parentCluster = parent.clusters.empty() ? 0 : parent.clusters.front();
    appendNamedEntries(parent, name, kDirectory, folder.clusters.front(), 0);
    const int time = timeOf(m_entriesMade);
    appendEntry(folder, directoryEntry(QByteArray(".").leftJustified(11, ' '), kDirectory, time,
                                       folder.clusters.front(), 0));
    appendEntry(folder,
                directoryEntry(QByteArray("..").leftJustified(11, ' '), kDirectory, time, parentCluster, 0));
    m_folders[path] = folder;
    return true;
}

// The folder of that path, made if need be, if a file of that name fits into it; null else.
FatCard::Folder* FatCard::folderFor(const QString& path, const QString& name) {
    if (!makeFolder(path))
        return nullptr;
    Folder& folder = m_folders[path];
    return hasRoomFor(folder, name) ? &folder : nullptr;
}

std::optional<std::vector<SectorRun>> FatCard::addFile(const QString& folder, const QString& name,
                                                       const QByteArray& bytes) {
    Folder* const into = folderFor(folder, name);
    if (into == nullptr)
        return std::nullopt;
    const std::vector<std::int64_t> clusters = take((bytes.size() + kClusterBytes - 1) / kClusterBytes);
    if (clusters.empty())
        return std::nullopt;
    return store(*into, name, bytes, clusters);
}

std::optional<std::vector<SectorRun>> FatCard::addFileInTwoPieces(const QString& folder, const QString& name,
                                                                  const QByteArray& bytes,
                                                                  std::int64_t gapClusters) {
    Folder* const into = folderFor(folder, name);
    if (into == nullptr)
        return std::nullopt;
    const std::int64_t count = (bytes.size() + kClusterBytes - 1) / kClusterBytes;
    std::vector<std::int64_t> clusters = take(count / 2);
    m_nextCluster += gapClusters;
    const std::vector<std::int64_t> rest = take(count - count / 2);
    if (clusters.empty() || rest.empty())
        return std::nullopt;
    clusters.insert(clusters.end(), rest.begin(), rest.end());
    return store(*into, name, bytes, clusters);
}

std::vector<SectorRun> FatCard::store(Folder& folder, const QString& name, const QByteArray& bytes,
                                      const std::vector<std::int64_t>& clusters) {
    chain(clusters);
    std::vector<SectorRun> runs;
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        const QByteArray part = bytes.mid(static_cast<qsizetype>(i) * kClusterBytes, kClusterBytes);
        m_image.replace(offsetOf(clusters[i]), part.size(), part);
        const std::int64_t first = offsetOf(clusters[i]) / kSectorBytes;
        const std::int64_t sectors = (part.size() + kSectorBytes - 1) / kSectorBytes;
        if (runs.empty() || runs.back().end != first)
            runs.push_back({first, first});
        runs.back().end = first + sectors;
    }
    m_files.push_back({appendNamedEntries(folder, name, kArchive, clusters.front(), bytes.size()), clusters});
    return runs;
}

void FatCard::leaveGap(std::int64_t clusters, const QByteArray& content) {
    const std::vector<std::int64_t> gap = take(clusters);
    if (gap.empty())
        return;
    const QByteArray bytes = content.left(clusters * kClusterBytes);
    m_image.replace(offsetOf(gap.front()), bytes.size(), bytes);
}

void FatCard::deleteFiles() {
    for (const StoredFile& file : m_files) {
        for (const qsizetype at : file.entryOffsets)
            m_image[at] = kDeleted;
        for (const std::int64_t cluster : file.clusters)
            setFat(cluster, 0);
    }
    m_files.clear();
}

}  // namespace vantor::samples
