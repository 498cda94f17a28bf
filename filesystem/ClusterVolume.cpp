// Reading directories: from the root on, and those that nothing leads to.
#include "filesystem/ClusterVolume.h"

#include <algorithm>
#include <array>
#include <unordered_set>

#include "filesystem/CleanName.h"

namespace vantor {

namespace {

// A row of a directory says more than these bytes would hold in any camera, computer or telephone;
// Microsoft's descriptions allow 2 MiB on FAT and 256 MiB on exFAT.
constexpr std::uint64_t kMostDirectoryBytes = std::uint64_t{256} << 20;
constexpr std::size_t kMostDirectories = 1'000'000;

}  // namespace

ClusterVolume::ClusterVolume(SectorSource& card, const VolumeShape& shape, bool isCurrent)
    : m_card(card),
      m_shape(shape),
      m_isCurrent(isCurrent),
      m_links(card, m_shape),
      m_claimed(shape.clusters),
      m_live(shape.clusters),
      m_liveStepsLeft(std::uint64_t{shape.clusters} * 2 + (1 << 20)),
      m_goneStepsLeft(std::uint64_t{shape.clusters} * 4 + (1 << 20)) {}

std::uint64_t ClusterVolume::clustersFor(std::uint64_t bytes) const {
    return bytes / clusterBytes() + (bytes % clusterBytes() != 0 ? 1 : 0);
}

bool ClusterVolume::isClusterClaimed(std::uint64_t cluster) const {
    return m_claimed[cluster - m_shape.firstNumber()];
}

void ClusterVolume::claim(std::uint64_t cluster) {
    m_claimed[cluster - m_shape.firstNumber()] = true;
}

bool ClusterVolume::isClaimed(std::uint64_t sector) const {
    if (m_shape.rootSectors != 0 && m_isCurrent && sector >= m_shape.root &&
        sector - m_shape.root < m_shape.rootSectors) {
        return true;
    }
    return sector >= m_shape.firstCluster && sector < m_shape.endOfClusters() &&
           m_claimed[(sector - m_shape.firstCluster) / m_shape.clusterSectors];
}

SectorRun ClusterVolume::onePiece(std::uint32_t cluster, std::uint64_t clusters) const {
    const std::uint64_t first = m_shape.sectorOf(cluster);
    const std::uint64_t room = (m_shape.endOfClusters() - first) / m_shape.clusterSectors;
    return {first, first + std::min(clusters, room) * m_shape.clusterSectors};
}

DirectoryRows ClusterVolume::rowsOf(std::span<const std::uint8_t> bytes, RowTimes times) const {
    return isExfat() ? readExfatRows(bytes)
                     : readFatRows(bytes, m_shape.kind == FileSystemKind::Fat32, times);
}

// The table has to speak for what its times speak against.
DirectoryRows ClusterVolume::liveRowsOf(std::span<const std::uint8_t> bytes) {
    DirectoryRows rows = rowsOf(bytes, RowTimes::MayBeAnything);
    std::erase_if(rows.entries, [this](const DirectoryEntry& entry) {
        if (!entry.hasOddTimes || !m_shape.holds(entry.cluster)) {
            return entry.hasOddTimes;
        }
        const AllocationTable::Link link = m_links.at(entry.cluster).link;
        return link != AllocationTable::Link::Next && link != AllocationTable::Link::End;
    });
    return rows;
}

void ClusterVolume::append(CardDirectory directory, const std::vector<std::uint8_t>& bytes) {
    directory.rows = directory.state == FileState::Live ? liveRowsOf(bytes) : rowsOf(bytes);
    // No other directory has the rows of exFAT's own files.
    directory.isRoot = directory.isRoot || !directory.rows.ownFiles.empty();
    if (!directory.rows.ended && directory.state != FileState::Live) {
        const std::size_t tail = std::min(bytes.size(), kMostRowsOfEntry * kRowBytes);
        directory.openEnd.assign(bytes.end() - static_cast<std::ptrdiff_t>(tail), bytes.end());
    }
    m_keepsUpperHalf = m_keepsUpperHalf ||
                       std::any_of(directory.rows.entries.begin(), directory.rows.entries.end(),
                                   [](const DirectoryEntry& entry) {
                                       return entry.isDeleted && entry.cluster > 0xFFFF && !entry.isFolder;
                                   });
    if (directory.cluster != 0) {
        m_byCluster.emplace(directory.cluster, m_directories.size());
    }
    m_directories.push_back(std::move(directory));
}

void ClusterVolume::readRootBeforeClusters(FileState state) {
    CardDirectory root;
    root.state = state;
    root.isRoot = true;
    const std::uint64_t sectors = std::min(m_shape.rootSectors, m_card.sectors() - m_shape.root);
    std::vector<std::uint8_t> bytes(sectors * 512);
    m_card.readAt(m_shape.root, bytes);
    root.sector = m_shape.root;
    root.runs = {{m_shape.root, m_shape.root + sectors}};
    append(std::move(root), bytes);
}

void ClusterVolume::readFromRoot() {
    if (m_shape.rootSectors != 0) {
        readRootBeforeClusters(FileState::Live);
    } else if (m_shape.holds(m_shape.rootCluster)) {
        readPending({m_shape.rootCluster, kMostDirectoryBytes, false, FileState::Live, {}, {}});
    }
    if (m_directories.empty()) {
        return;
    }
    m_label = m_directories.front().rows.label;
    readFoldersOf(0);
}

void ClusterVolume::readLostRoot() {
    readRootBeforeClusters(FileState::Lost);
    readFoldersOf(m_directories.size() - 1);
}

void ClusterVolume::readFoldersOf(std::size_t directory) {
    std::vector<Pending> live;
    std::vector<Pending> deleted;
    queueFolders(directory, live, deleted);
    readAll(std::move(live), std::move(deleted));
}

// What is there comes first: its clusters are its own, whatever a deleted row says of them.
void ClusterVolume::readAll(std::vector<Pending> live, std::vector<Pending> deleted) {
    while (!live.empty() || !deleted.empty()) {
        std::vector<Pending>& from = live.empty() ? deleted : live;
        const Pending next = std::move(from.back());
        from.pop_back();
        const std::size_t index = m_directories.size();
        if (readPending(next)) {
            queueFolders(index, live, deleted);
        }
    }
}

void ClusterVolume::queueFolders(std::size_t directory, std::vector<Pending>& live,
                                 std::vector<Pending>& deleted) {
    const FileState own = m_directories[directory].state;
    for (const DirectoryEntry& entry : m_directories[directory].rows.entries) {
        if (!entry.isFolder || !m_shape.holds(entry.cluster)) {
            continue;
        }
        const bool gone = entry.isDeleted || entry.isBehindEnd;
        const FileState state = own == FileState::Live && gone ? FileState::Deleted : own;
        (state == FileState::Live ? live : deleted)
            .push_back({entry.cluster, entry.bytes, entry.isOnePiece, state, directory, entry.name,
                        entry.nameIsWhole});
    }
}

// False for a folder's row whose place holds something else by now.
bool ClusterVolume::beginsFolder(std::uint32_t cluster, FileState state) {
    std::array<std::uint8_t, 512> sector;
    if (!m_card.readAt(m_shape.sectorOf(cluster), sector)) {
        return false;
    }
    if (isExfat()) {
        return looksLikeExfatRows(sector.data());
    }
    const auto self = fatDirectoryBeginning(
        sector.data(), state == FileState::Live ? RowTimes::MayBeAnything : RowTimes::AreTimes);
    const std::uint32_t known = m_shape.kind == FileSystemKind::Fat32 ? 0xFFFFFFFF : 0xFFFF;
    return self && (*self & known) == cluster;
}

// A directory whose chain is gone goes on in the next cluster if that holds rows and no beginning.
bool ClusterVolume::continuesDirectory(std::uint32_t cluster) {
    std::array<std::uint8_t, 512> sector;
    return m_shape.holds(cluster) && !isClusterClaimed(cluster) &&
           m_card.readAt(m_shape.sectorOf(cluster), sector) && !fatDirectoryBeginning(sector.data()) &&
           (isExfat() ? looksLikeExfatRows(sector.data()) : looksLikeFatRows(sector.data()));
}

std::vector<std::uint32_t> ClusterVolume::clustersOf(const Pending& pending) {
    const std::uint64_t told = isExfat() && pending.bytes != 0 ? pending.bytes : kMostDirectoryBytes;
    const std::uint64_t most =
        std::clamp<std::uint64_t>(clustersFor(std::min(told, kMostDirectoryBytes)), 1, m_shape.clusters);
    std::vector<std::uint32_t> clusters{pending.cluster};
    std::uint32_t at = pending.cluster;
    while (clusters.size() < most) {
        const AllocationTable::Entry link =
            pending.isOnePiece ? AllocationTable::Entry{AllocationTable::Link::Next, at + 1} : m_links.at(at);
        if (link.link == AllocationTable::Link::Next) {
            at = link.next;
        } else if (pending.state != FileState::Live && link.link != AllocationTable::Link::End &&
                   continuesDirectory(at + 1)) {
            ++at;
        } else {
            break;
        }
        if (!m_shape.holds(at) || isClusterClaimed(at)) {
            break;
        }
        claim(at);
        clusters.push_back(at);
    }
    return clusters;
}

bool ClusterVolume::readPending(const Pending& pending) {
    const bool isRoot = pending.cluster == m_shape.rootCluster;
    if (!m_shape.holds(pending.cluster) || isClusterClaimed(pending.cluster) ||
        m_directories.size() >= kMostDirectories) {
        return false;
    }
    // A live exFAT folder may be empty, and then nothing proves it.
    const bool isTold = isRoot || (isExfat() && pending.state == FileState::Live);
    if (!isTold && !beginsFolder(pending.cluster, pending.state)) {
        return false;
    }
    claim(pending.cluster);
    CardDirectory directory;
    directory.state = pending.state;
    directory.cluster = pending.cluster;
    directory.sector = m_shape.sectorOf(pending.cluster);
    directory.parent = pending.parent;
    directory.name = cleanName(pending.name);
    directory.nameIsWhole = pending.nameIsWhole;
    directory.isNamed = pending.parent.has_value();
    directory.isRoot = isRoot;
    std::vector<std::uint8_t> bytes;
    for (const std::uint32_t cluster : clustersOf(pending)) {
        const std::size_t before = bytes.size();
        bytes.resize(before + clusterBytes());
        const std::uint64_t sector = m_shape.sectorOf(cluster);
        m_card.readAt(sector, std::span(bytes).subspan(before));
        directory.runs.push_back({sector, sector + m_shape.clusterSectors});
    }
    append(std::move(directory), bytes);
    return true;
}

bool ClusterVolume::readLost(std::uint32_t cluster) {
    const std::size_t index = m_directories.size();
    if (!readPending({cluster, 0, false, FileState::Lost, {}, {}})) {
        return false;
    }
    readFoldersOf(index);
    return true;
}

std::vector<SectorRun> ClusterVolume::splitAtClusters(const std::vector<SectorRun>& sectors) const {
    std::vector<SectorRun> parts;
    for (const SectorRun& run : sectors) {
        std::uint64_t at = std::max(run.first, m_shape.firstCluster);
        const std::uint64_t end = std::min(run.end, m_shape.endOfClusters());
        while (at < end) {
            const std::uint64_t into = (at - m_shape.firstCluster) % m_shape.clusterSectors;
            const std::uint64_t next = std::min(at - into + m_shape.clusterSectors, end);
            parts.push_back({at, next});
            at = next;
        }
    }
    return parts;
}

// Those that no other part leads to come first, so that a folder's own row tells how far it goes.
void ClusterVolume::readLostParts(const std::vector<SectorRun>& sectors) {
    const std::vector<SectorRun> parts = splitAtClusters(sectors);
    std::unordered_set<std::uint64_t> ledTo;
    std::vector<std::uint8_t> bytes;
    for (const SectorRun& part : parts) {
        bytes.resize((part.end - part.first) * 512);
        m_card.readAt(part.first, bytes);
        for (const DirectoryEntry& entry : rowsOf(bytes).entries) {
            if (entry.isFolder && m_shape.holds(entry.cluster)) {
                ledTo.insert(m_shape.sectorOf(entry.cluster));
            }
        }
        if (const auto next = nextOfLostPart(part.first)) {
            ledTo.insert(m_shape.sectorOf(*next));
        }
    }
    for (const bool leading : {true, false}) {
        for (const SectorRun& part : parts) {
            const std::size_t index = m_directories.size();
            if ((leading && ledTo.contains(part.first)) || !readPart(part, true)) {
                continue;
            }
            readFoldersOf(index);
        }
    }
}

void ClusterVolume::readPlaceless(const std::vector<SectorRun>& sectors) {
    for (const SectorRun& part : splitAtClusters(sectors)) {
        readPart(part, false);
    }
}

// Deletion leaves exFAT's table as it is: the cluster of rows that the directory in this sector's goes on in.
std::optional<std::uint32_t> ClusterVolume::nextOfLostPart(std::uint64_t sector) {
    const std::uint64_t inClusters = sector - m_shape.firstCluster;
    if (!isExfat() || inClusters % m_shape.clusterSectors != 0) {
        return std::nullopt;
    }
    const std::uint64_t number = inClusters / m_shape.clusterSectors + m_shape.firstNumber();
    const AllocationTable::Entry link = m_links.at(static_cast<std::uint32_t>(number));
    const bool goesOn = link.link == AllocationTable::Link::Next && continuesDirectory(link.next);
    return goesOn ? std::optional(link.next) : std::nullopt;
}

bool ClusterVolume::readPart(const SectorRun& sectors, bool hasClusters) {
    if (isClaimed(sectors.first) || m_directories.size() >= kMostDirectories) {
        return false;
    }
    const std::uint64_t inClusters = sectors.first - m_shape.firstCluster;
    const std::uint64_t number = inClusters / m_shape.clusterSectors + m_shape.firstNumber();
    CardDirectory part;
    part.state = FileState::Lost;
    part.sector = sectors.first;
    part.runs = {sectors};
    part.hasClusters = hasClusters;
    claim(number);
    if (hasClusters && isExfat() && inClusters % m_shape.clusterSectors == 0) {
        part.cluster = static_cast<std::uint32_t>(number);
    }
    auto next = hasClusters ? nextOfLostPart(sectors.first) : std::nullopt;
    std::vector<std::uint8_t> bytes(next ? clusterBytes() : (sectors.end - sectors.first) * 512);
    m_card.readAt(sectors.first, bytes);
    while (next && bytes.size() < kMostDirectoryBytes) {
        claim(*next);
        const std::uint64_t sector = m_shape.sectorOf(*next);
        const std::size_t before = bytes.size();
        bytes.resize(before + clusterBytes());
        m_card.readAt(sector, std::span(bytes).subspan(before));
        part.runs.push_back({sector, sector + m_shape.clusterSectors});
        next = nextOfLostPart(sector);
    }
    const std::size_t head = std::min(bytes.size(), kMostRowsOfEntry * kRowBytes);
    part.firstRows.assign(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(head));
    append(std::move(part), bytes);
    return true;
}

ClusterVolume::Chain ClusterVolume::chainFrom(std::uint32_t cluster, std::uint64_t most) {
    Chain chain;
    while (chain.clusters < most && m_shape.holds(cluster) && !m_live[cluster - m_shape.firstNumber()]) {
        m_live[cluster - m_shape.firstNumber()] = true;
        const std::uint64_t sector = m_shape.sectorOf(cluster);
        if (!chain.runs.empty() && chain.runs.back().end == sector) {
            chain.runs.back().end += m_shape.clusterSectors;
        } else {
            chain.runs.push_back({sector, sector + m_shape.clusterSectors});
        }
        ++chain.clusters;
        const AllocationTable::Entry link = m_links.at(cluster);
        if (link.link != AllocationTable::Link::Next) {
            chain.isWhole = chain.clusters == most && link.link == AllocationTable::Link::End;
            break;
        }
        cluster = link.next;
    }
    return chain;
}

void ClusterVolume::setLive(const std::vector<SectorRun>& runs, bool live) {
    for (const SectorRun& run : runs) {
        const std::uint64_t first = (run.first - m_shape.firstCluster) / m_shape.clusterSectors;
        const std::uint64_t end = (run.end - m_shape.firstCluster) / m_shape.clusterSectors;
        std::fill(m_live.begin() + static_cast<std::ptrdiff_t>(first),
                  m_live.begin() + static_cast<std::ptrdiff_t>(end), live);
    }
}

}  // namespace vantor
