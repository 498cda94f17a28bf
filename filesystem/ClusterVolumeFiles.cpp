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
        if (entry.bytes != 0 && directory.hasClusters && m_shape.holds(entry.cluster)) {
            live ? placeLive(entry, file) : placeGone(entry, found, file);
        }
        table.files.push_back(std::move(file));
    }
}

void ClusterVolume::placeLive(const DirectoryEntry& entry, CardFile& file) {
    const std::uint64_t clusters = clustersFor(entry.bytes);
    if (!entry.isOnePiece) {
        // Whatever the sizes say, all chains together are no longer than the table.
        file.runs = chainFrom(entry.cluster, clusters).runs;
        file.runsKnownBy = RunsKnownBy::Chain;
    } else {
        file.runs = {onePiece(entry.cluster, clusters)};
        file.runsKnownBy = RunsKnownBy::Flag;
        if (m_liveStepsLeft < clusters) {
            return;
        }
        m_liveStepsLeft -= clusters;
        setLive(file.runs, true);
    }
    m_liveRuns.insert(m_liveRuns.end(), file.runs.begin(), file.runs.end());
}

void ClusterVolume::placeGone(const DirectoryEntry& entry, const FoundStarts& found, CardFile& file) {
    const std::uint64_t clusters = clustersFor(entry.bytes);
    if (entry.isOnePiece) {
        file.runs = {onePiece(entry.cluster, clusters)};
        file.runsKnownBy = RunsKnownBy::Flag;
    } else if (m_goneStepsLeft >= clusters) {
        Chain chain = chainFrom(entry.cluster, clusters);
        setLive(chain.runs, false);
        m_goneStepsLeft -= chain.clusters;
        if (chain.isWhole && clusters > 0) {
            file.runs = std::move(chain.runs);
            file.runsKnownBy = RunsKnownBy::Chain;
        }
    }
    if (!file.runs.empty()) {
        // What was found there tells itself whose it is.
        if (!found.isAnyAt(file.runs.front().first) && beginsOtherwise(entry.cluster, entry, found)) {
            file.runs = {onePiece(entry.cluster, 1)};
            file.runsKnownBy = RunsKnownBy::StartOnly;
        }
        return;
    }
    const std::vector<std::uint32_t> beginnings = beginningsOf(entry, found);
    const bool isGuess = beginnings.size() == 1 && !beginsOtherwise(beginnings.front(), entry, found);
    file.runsKnownBy = isGuess ? RunsKnownBy::Guess : RunsKnownBy::StartOnly;
    if (beginnings.size() <= 1) {
        const std::uint32_t beginning = beginnings.empty() ? entry.cluster : beginnings.front();
        file.runs = {onePiece(beginning, isGuess ? clusters : 1)};
    }
}

// Whether what lies there cannot be the beginning of a file of that name: another's piece, since.
bool ClusterVolume::beginsOtherwise(std::uint32_t cluster, const DirectoryEntry& entry,
                                    const FoundStarts& found) {
    const std::uint64_t place = m_shape.sectorOf(cluster);
    if (found.isAt(place, entry.name) || !knowsBeginningOf(entry.name)) {
        return false;
    }
    if (m_beginningLooksLeft == 0) {
        // Where files of its kind were found, one that begins there would have been.
        return !found.ofKind(entry.name, 1).empty();
    }
    --m_beginningLooksLeft;
    std::array<std::uint8_t, 512> sector;
    return m_card.readAt(place, sector) && !beginsLike(entry.name, sector).value_or(true);
}

// Whether a file of that name may begin there: one was found, or what lies there does not rule it out.
bool ClusterVolume::mayBegin(std::uint32_t cluster, const DirectoryEntry& entry, const FoundStarts& found) {
    const std::uint64_t place = m_shape.sectorOf(cluster);
    const bool isOwn = cluster == entry.cluster;
    if (!isOwn && m_live[cluster - m_shape.firstNumber()]) {
        return false;  // what begins there is another's
    }
    if (found.isAt(place, entry.name)) {
        return true;
    }
    const bool wouldBeFound = !isOwn && !found.ofKind(entry.name, 1).empty();
    std::array<std::uint8_t, 512> sector;
    if (wouldBeFound || m_halfLooksLeft == 0 || found.isAnyAt(place)) {
        return false;
    }
    --m_halfLooksLeft;
    if (!m_card.readAt(place, sector)) {
        return false;
    }
    const bool isEmpty = std::all_of(sector.begin(), sector.end(), [](auto byte) { return byte == 0; });
    return beginsLike(entry.name, sector).value_or(!isEmpty);
}

bool ClusterVolume::mayBeHalf(const DirectoryEntry& entry) const {
    return entry.isHalfCluster && !entry.isFolder && entry.bytes != 0 && !m_keepsUpperHalf &&
           m_shape.holds(entry.cluster) && m_shape.holds(0x10000 + m_shape.firstNumber());
}

// Some systems clear the upper half of the number with the deletion. Then the file begins under the number,
// of those with the same lower half, under which one of its kind does, if that is one alone.
std::vector<std::uint32_t> ClusterVolume::beginningsOf(const DirectoryEntry& entry,
                                                       const FoundStarts& found) {
    if (!mayBeHalf(entry)) {
        return {entry.cluster};
    }
    std::vector<std::uint32_t> clusters;
    for (std::uint64_t at = entry.cluster; m_shape.holds(at) && m_goneStepsLeft > 0 && clusters.size() < 2;
         at += 0x10000, --m_goneStepsLeft) {
        if (mayBegin(static_cast<std::uint32_t>(at), entry, found)) {
            clusters.push_back(static_cast<std::uint32_t>(at));
        }
    }
    return clusters;
}

}  // namespace vantor
