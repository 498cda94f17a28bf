// Finding the folders that lost directories lie in.
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <utility>

#include "filesystem/CleanName.h"
#include "filesystem/ClusterVolume.h"
#include "filesystem/FirstLetters.h"

namespace vantor {

namespace {

constexpr std::size_t kMostJoins = 100'000;

// Whether an entry begins in the last rows and does not end there.
bool endsWithinEntry(const std::vector<std::uint8_t>& last, bool isExfat) {
    const std::size_t rows = last.size() / kRowBytes;
    if (!isExfat) {
        return rows > 0 && (last[(rows - 1) * kRowBytes + 11] & 0x3F) == 0x0F;
    }
    for (std::size_t at = 0; at < rows; ++at) {
        // How many rows follow stands in the second byte of a set's first.
        if ((last[at * kRowBytes] | 0x80) == 0x85 && last[at * kRowBytes + 1] >= rows - at) {
            return true;
        }
    }
    return false;
}

// Whether an entry begins in the last rows of one part and ends in the first rows of the other.
bool goesOn(const std::vector<std::uint8_t>& last, const std::vector<std::uint8_t>& first, bool isExfat) {
    std::vector<std::uint8_t> both = last;
    both.insert(both.end(), first.begin(), first.end());
    const auto wholeNames = [isExfat](const std::vector<std::uint8_t>& bytes) {
        const DirectoryRows rows = isExfat ? readExfatRows(bytes) : readFatRows(bytes, true);
        return std::count_if(rows.entries.begin(), rows.entries.end(),
                             [isExfat](const DirectoryEntry& entry) {
                                 return isExfat || (entry.nameIsWhole && entry.name.size() > 12);
                             });
    };
    return wholeNames(both) > wholeNames(last) + wholeNames(first);
}

}  // namespace

// Of a directory that may go on elsewhere: the sector behind the file that was its last when its rows were
// full. The next cluster that was taken is the directory's own.
std::optional<std::uint64_t> ClusterVolume::endOfLastFile(const CardDirectory& directory) const {
    if (directory.openEnd.empty() || !directory.hasClusters || directory.rows.entries.empty()) {
        return std::nullopt;
    }
    const DirectoryEntry& last = directory.rows.entries.back();
    if (last.isFolder || last.bytes == 0 || !m_shape.holds(last.cluster)) {
        return std::nullopt;
    }
    const std::uint64_t clusters = clustersFor(last.bytes);
    return clusters < m_shape.clusters
               ? std::optional(m_shape.sectorOf(last.cluster) + clusters * m_shape.clusterSectors)
               : std::nullopt;
}

// Parts that a directory goes on in: an entry that lies across the seam proves it, or the place. The
// likeliest is the next one on the card.
void ClusterVolume::joinParts() {
    std::vector<std::size_t> parts;
    for (std::size_t at = 0; at < m_directories.size(); ++at) {
        if (!m_directories[at].firstRows.empty() && !m_directories[at].parent) {
            parts.push_back(at);
        }
    }
    std::sort(parts.begin(), parts.end(), [this](std::size_t a, std::size_t b) {
        return m_directories[a].sector < m_directories[b].sector;
    });
    std::size_t left = kMostJoins;
    for (std::size_t before = 0; before < m_directories.size(); ++before) {
        CardDirectory& directory = m_directories[before];
        if (const auto next = endOfLastFile(directory)) {
            const auto part = std::lower_bound(
                parts.begin(), parts.end(), *next,
                [this](std::size_t at, std::uint64_t sector) { return m_directories[at].sector < sector; });
            if (part != parts.end() && *part != before && m_directories[*part].sector == *next &&
                !m_directories[*part].partOf) {
                m_directories[*part].partOf = before;
                continue;
            }
        }
        if (!endsWithinEntry(directory.openEnd, isExfat())) {
            continue;
        }
        const auto behind = std::upper_bound(
            parts.begin(), parts.end(), directory.runs.back().first,
            [this](std::uint64_t sector, std::size_t part) { return sector < m_directories[part].sector; });
        const auto first = static_cast<std::size_t>(behind - parts.begin());
        for (std::size_t i = 0; i < parts.size() && left > 0; ++i) {
            const std::size_t part = parts[(first + i) % parts.size()];
            if (part == before || m_directories[part].partOf) {
                continue;
            }
            --left;
            if (goesOn(directory.openEnd, m_directories[part].firstRows, isExfat())) {
                m_directories[part].partOf = before;
                break;
            }
        }
    }
}

void ClusterVolume::linkLost() {
    for (std::size_t at = 0; at < m_directories.size(); ++at) {
        for (const DirectoryEntry& entry : m_directories[at].rows.entries) {
            const bool leads = entry.isFolder && m_directories[at].hasClusters;
            const auto known = leads ? m_byCluster.find(entry.cluster) : m_byCluster.end();
            if (known == m_byCluster.end() || known->second == at) {
                continue;
            }
            CardDirectory& child = m_directories[known->second];
            const std::uint32_t own = m_directories[at].isRoot ? 0 : m_directories[at].cluster;
            const bool disagrees = child.rows.parent && *child.rows.parent != own;
            if (!child.isRoot && !child.isNamed && !disagrees) {
                child.parent = at;
                child.name = cleanName(entry.name);
                child.nameIsWhole = entry.nameIsWhole;
                child.isNamed = true;
            }
        }
    }
    joinParts();
    // What one folder held stays together. A FAT directory knows where its parent begins, if not what it is
    // called itself.
    for (std::size_t at = 0; at < m_directories.size(); ++at) {
        CardDirectory& directory = m_directories[at];
        if (directory.isRoot || directory.parent || directory.partOf || directory.cluster == 0) {
            continue;
        }
        directory.name = QStringLiteral("folder-%1").arg(directory.cluster);
        const auto parent = m_byCluster.find(directory.rows.parent.value_or(0));
        if (directory.rows.parent && parent != m_byCluster.end() && parent->second != at) {
            directory.parent = parent->second;
        }
    }
    nameFromStandard();
    restoreFirstLetters();
}

// Standards name what lies in the root: that of cameras (DCF) the folder that holds theirs, of three digits
// and five characters, and that of camcorders (AVCHD on cards) the one that holds their movies'.
void ClusterVolume::nameFromStandard() {
    static const std::array<std::pair<QRegularExpression, QString>, 2> standards{{
        {QRegularExpression(QStringLiteral("^[1-9][0-9]{2}[A-Z0-9_]{5}$")), QStringLiteral("DCIM")},
        {QRegularExpression(QStringLiteral("^(AVCHD|M4ROOT)$")), QStringLiteral("PRIVATE")},
    }};
    for (CardDirectory& directory : m_directories) {
        if (directory.isRoot || directory.isNamed || directory.rows.parent.value_or(1) != 0) {
            continue;
        }
        const auto& entries = directory.rows.entries;
        for (const auto& standard : standards) {
            if (!directory.isNamed && std::any_of(entries.begin(), entries.end(), [&](const auto& entry) {
                    return entry.isFolder && standard.first.match(entry.name).hasMatch();
                })) {
                directory.name = standard.second;
                directory.isNamed = true;
            }
        }
    }
}

void ClusterVolume::restoreFirstLetters() {
    FirstLetters letters;
    const auto where = [](std::size_t folder, std::size_t number, const DirectoryEntry& entry) {
        return FirstLetters::Where{folder, number, entry.created.value_or(entry.modified.value_or(0))};
    };
    for (std::size_t at = 0; at < m_directories.size(); ++at) {
        const auto& entries = m_directories[at].rows.entries;
        for (std::size_t entry = 0; entry < entries.size(); ++entry) {
            if (entries[entry].nameIsWhole) {
                letters.learn(entries[entry].name, where(at, entry, entries[entry]));
            }
        }
    }
    const auto restore = [&](QString& name, const FirstLetters::Where& at) {
        if (const auto letter = letters.of(name, at)) {
            name.front() = *letter;
        }
    };
    for (std::size_t at = 0; at < m_directories.size(); ++at) {
        CardDirectory& directory = m_directories[at];
        if (!directory.nameIsWhole && directory.parent) {
            // Only its series and the standards tell a folder's.
            restore(directory.name,
                    {*directory.parent, m_directories[*directory.parent].rows.entries.size(), 0});
        }
        auto& entries = directory.rows.entries;
        for (std::size_t entry = 0; entry < entries.size(); ++entry) {
            if (!entries[entry].nameIsWhole) {
                restore(entries[entry].name, where(at, entry, entries[entry]));
            }
        }
    }
}

QString ClusterVolume::folderOf(std::size_t directory) const {
    constexpr int kDeepest = 64;
    QString path;
    std::optional<std::size_t> at = directory;
    for (int depth = 0; at && depth < kDeepest; ++depth) {
        const CardDirectory& one = m_directories[*at];
        if (one.partOf) {
            at = one.partOf;
            continue;
        }
        if (!one.isRoot && !one.name.isEmpty() && !prependFolder(one.name, path)) {
            break;
        }
        at = one.parent;
    }
    return path;
}

}  // namespace vantor
