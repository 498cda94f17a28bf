// From the rows of directories to files and where their bytes lie.
#include <algorithm>
#include <array>

#include "filesystem/CleanName.h"
#include "filesystem/ClusterVolume.h"
#include "filesystem/FileBeginning.h"

namespace vantor {

void ClusterVolume::tell(const FoundStarts& found, CardTable& table) {
    for (const bool live : {true, false}) {
        for (std::size_t at = 0; at < m_directories.size(); ++at) {
            tellDirectory(m_directories[at], folderOf(at), live, found, table);
        }
    }
    if (m_isCurrent) {
        m_liveRuns.push_back({m_shape.first, m_shape.firstCluster});
        table.inUse.insert(table.inUse.end(), m_liveRuns.begin(), m_liveRuns.end());
    }
}

// The files that are there, and what else is in use, or those that are not.
void ClusterVolume::tellDirectory(const CardDirectory& directory, const QString& folder, bool live,
                                  const FoundStarts& found, CardTable& table) {
    if (live && directory.state == FileState::Live) {
        m_liveRuns.insert(m_liveRuns.end(), directory.runs.begin(), directory.runs.end());
        for (const DirectoryEntry& own : directory.rows.ownFiles) {
            if (m_shape.holds(own.cluster)) {
                m_liveRuns.push_back(onePiece(own.cluster, clustersFor(own.bytes)));
            }
        }
    }
    for (const DirectoryEntry& entry : directory.rows.entries) {
        // A directory's own row is no file, and no file is larger than all clusters together.
        if (entry.isFolder || clustersFor(entry.bytes) > m_shape.clusters) {
            continue;
        }
        CardFile file;
        file.state = entry.isDeleted     ? FileState::Deleted
                     : entry.isBehindEnd ? FileState::Lost
                                         : directory.state;
        if ((file.state == FileState::Live) != live) {
            continue;
        }
        file.folder = folder;
        file.name = cleanName(entry.name);
        file.nameIsWhole = entry.nameIsWhole;
        file.bytes = entry.bytes;
        file.validBytes = entry.validBytes;
        file.modified = entry.modified;
        file.created = entry.created;
        file.clusterSectors = m_shape.clusterSectors;
        if (entry.bytes != 0 && m_shape.holds(entry.cluster)) {
            live ? placeLive(entry, file) : placeGone(entry, found, file);
        }
        table.files.push_back(std::move(file));
    }
}

void ClusterVolume::placeLive(const DirectoryEntry& entry, CardFile& file) {
    const std::uint64_t clusters = clustersFor(entry.bytes);
    if (entry.isOnePiece) {
        file.runs = {onePiece(entry.cluster, clusters)};
        file.runsKnownBy = RunsKnownBy::Flag;
    } else {
        file.runs = chainFrom(entry.cluster, clusters).runs;
        file.runsKnownBy = RunsKnownBy::Chain;
    }
    if (m_liveStepsLeft < clusters) {
        return;
    }
    m_liveStepsLeft -= clusters;
    for (const SectorRun& run : file.runs) {
        const std::uint64_t first = (run.first - m_shape.firstCluster) / m_shape.clusterSectors;
        const std::uint64_t end = (run.end - m_shape.firstCluster) / m_shape.clusterSectors;
        std::fill(m_live.begin() + static_cast<std::ptrdiff_t>(first),
                  m_live.begin() + static_cast<std::ptrdiff_t>(end), true);
    }
    m_liveRuns.insert(m_liveRuns.end(), file.runs.begin(), file.runs.end());
}

void ClusterVolume::placeGone(const DirectoryEntry& entry, const FoundStarts& found, CardFile& file) {
    const std::uint64_t clusters = clustersFor(entry.bytes);
    if (entry.isOnePiece) {
        file.runs = {onePiece(entry.cluster, clusters)};
        file.runsKnownBy = RunsKnownBy::Flag;
        return;
    }
    if (m_goneStepsLeft >= clusters) {
        Chain chain = chainFrom(entry.cluster, clusters);
        m_goneStepsLeft -= chain.clusters;
        if (chain.isWhole && clusters > 0) {
            file.runs = std::move(chain.runs);
            file.runsKnownBy = RunsKnownBy::Chain;
            return;
        }
    }
    const std::optional<std::uint32_t> cluster = beginningOf(entry, found);
    file.runsKnownBy = cluster ? RunsKnownBy::Guess : RunsKnownBy::StartOnly;
    file.runs = {onePiece(cluster.value_or(entry.cluster), cluster ? clusters : 1)};
}

// Some systems clear the upper half of the number with the deletion. Then the file begins under the number,
// of those with the same lower half, under which one of its kind was found, if that is one alone; nothing
// where that cannot be told.
std::optional<std::uint32_t> ClusterVolume::beginningOf(const DirectoryEntry& entry,
                                                        const FoundStarts& found) {
    std::array<std::uint8_t, 512> sector;
    if (!entry.isHalfCluster || m_keepsUpperHalf || !m_shape.holds(0x10000 + m_shape.firstNumber())) {
        return entry.cluster;
    }
    const std::uint64_t own = m_shape.sectorOf(entry.cluster);
    if (found.isAt(own, entry.name) ||
        (m_card.readAt(own, sector) && beginsLike(entry.name, sector).value_or(false))) {
        return entry.cluster;
    }
    std::optional<std::uint32_t> hit;
    for (std::uint64_t at = entry.cluster; m_shape.holds(at) && m_goneStepsLeft > 0;
         at += 0x10000, --m_goneStepsLeft) {
        if (found.isAt(m_shape.sectorOf(at), entry.name)) {
            if (hit) {
                return std::nullopt;
            }
            hit = static_cast<std::uint32_t>(at);
        }
    }
    return hit;
}

}  // namespace vantor
