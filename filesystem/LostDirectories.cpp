#include "filesystem/LostDirectories.h"

#include <algorithm>
#include <array>

#include "filesystem/FileBeginning.h"

namespace vantor {

namespace {

// As many as a card may hold directories; beyond, its traces are not looked at.
constexpr std::uint64_t kMostTraceSectors = std::uint64_t{1} << 20;
constexpr std::size_t kPieceSectors = 128;
constexpr int kMostFormerSystems = 8;
// Entries of one part that are looked at where they say they are.
constexpr std::size_t kMostLooks = 16;
constexpr std::size_t kMostSightings = 400'000;
constexpr std::size_t kMostPlaces = 2048;
// Directories that are read for whether their files lie in a row: they may lie all over the card.
constexpr std::size_t kMostRowLooks = 64;
// Sightings that only may be true have to agree more often than those that say so themselves.
constexpr std::size_t kLeastVotes = 3;

void extend(std::vector<SectorRun>& runs, std::uint64_t sector) {
    // A sector full of the rows of one long name looks like none.
    if (!runs.empty() && sector - runs.back().end <= 1) {
        runs.back().end = sector + 1;
    } else {
        runs.push_back({sector, sector + 1});
    }
}

}  // namespace

void LostDirectories::read(const std::vector<SectorRun>& traces, std::vector<VolumeShape> shapes) {
    for (const auto& volume : m_volumes) {
        m_shapes.push_back(volume->shape());
    }
    for (const VolumeShape& shape : shapes) {
        if (std::none_of(m_shapes.begin(), m_shapes.end(),
                         [&](const VolumeShape& known) { return known.sameClusters(shape); })) {
            m_shapes.push_back(shape);
        }
    }
    sortOut(traces);
    placeRoots();
    placeBeginnings();
    placeParts(false);
    placeParts(true);
}

bool LostDirectories::isClaimed(std::uint64_t sector) const {
    return std::any_of(m_volumes.begin(), m_volumes.end(),
                       [&](const auto& volume) { return volume->isClaimed(sector); });
}

void LostDirectories::sortOut(const std::vector<SectorRun>& traces) {
    std::uint64_t left = kMostTraceSectors;
    std::vector<std::uint8_t> bytes(kPieceSectors * 512);
    for (const SectorRun& run : traces) {
        const std::uint64_t end = std::min(run.end, m_card.sectors());
        for (std::uint64_t at = run.first; at < end && left > 0;) {
            const std::uint64_t sectors = std::min<std::uint64_t>({kPieceSectors, end - at, left});
            m_card.readAt(at, {bytes.data(), sectors * 512});
            for (std::uint64_t i = 0; i < sectors; ++i) {
                const std::uint8_t* sector = bytes.data() + i * 512;
                if (isClaimed(at + i)) {
                    continue;
                }
                if (const auto cluster = fatDirectoryBeginning(sector)) {
                    m_beginnings.push_back({*cluster, at + i});
                } else if (looksLikeFatRows(sector)) {
                    extend(m_fatParts, at + i);
                } else if (looksLikeExfatRows(sector)) {
                    extend(m_exfatParts, at + i);
                }
            }
            at += sectors;
            left -= sectors;
        }
    }
}

ClusterVolume* LostDirectories::volumeOf(const VolumeShape& shape) {
    for (const auto& volume : m_volumes) {
        if (volume->shape().sameClusters(shape)) {
            return volume.get();
        }
    }
    m_volumes.push_back(std::make_unique<ClusterVolume>(m_card, shape, false));
    return m_volumes.back().get();
}

// Those that lie before the clusters.
void LostDirectories::placeRoots() {
    for (std::size_t at = 0; at < m_shapes.size(); ++at) {
        const VolumeShape shape = m_shapes[at];
        const SectorRun place{shape.root, shape.root + shape.rootSectors};
        const auto part = std::find_if(m_fatParts.begin(), m_fatParts.end(), [&](const SectorRun& run) {
            return run.first == place.first && place.first != place.end;
        });
        if (part == m_fatParts.end()) {
            continue;
        }
        volumeOf(shape)->readLostRoot();
        part->first = std::min(part->end, place.end);
        if (part->first == part->end) {
            m_fatParts.erase(part);
        }
    }
}

void LostDirectories::placeKnownBeginnings() {
    std::erase_if(m_beginnings, [this](const ClusterSighting& one) {
        for (const VolumeShape& shape : m_shapes) {
            const bool fits = shape.kind != FileSystemKind::Exfat && shape.holds(one.cluster) &&
                              shape.sectorOf(one.cluster) == one.sector;
            if (fits) {
                volumeOf(shape)->readLost(one.cluster);
                return true;
            }
        }
        return false;
    });
}

// One directory alone tells its clusters where its files were written one behind the other: the numbers that
// they begin with are as far apart as their lengths take clusters, and of one size alone.
std::optional<ClusterPlaces> LostDirectories::placesOfRow(const ClusterSighting& directory) {
    constexpr std::size_t kLeastInRow = 3;
    constexpr std::size_t kLeastOfSeveral = 2;  // clusters
    constexpr unsigned kLargestFatCluster = 8;  // as a power of two, in sectors
    const std::uint64_t sectors = std::min<std::uint64_t>(kPieceSectors, m_card.sectors() - directory.sector);
    std::vector<std::uint8_t> bytes(sectors * 512);
    m_card.readAt(directory.sector, bytes);
    const std::vector<DirectoryEntry> entries = readFatRows(bytes, true).entries;
    std::optional<ClusterPlaces> told;
    for (unsigned shift = 0; shift < kLargestFatCluster; ++shift) {
        const std::uint64_t clusterBytes = std::uint64_t{512} << shift;
        const std::uint64_t before = std::uint64_t{directory.cluster - 2} << shift;
        std::size_t inRow = 0;
        std::size_t ofSeveral = 0;
        for (std::size_t at = 0; at + 1 < entries.size(); ++at) {
            const std::uint64_t clusters = (entries[at].bytes + clusterBytes - 1) / clusterBytes;
            const bool fits = clusters != 0 && entries[at].cluster > directory.cluster &&
                              entries[at + 1].cluster == entries[at].cluster + clusters;
            inRow += fits ? 1 : 0;
            ofSeveral += fits && clusters > 1 ? 1 : 0;
        }
        if (inRow < kLeastInRow || ofSeveral < kLeastOfSeveral || before >= directory.sector) {
            continue;
        }
        if (told) {
            return std::nullopt;
        }
        told = ClusterPlaces{std::uint32_t{1} << shift, directory.sector - before, 1};
    }
    return told;
}

// Each says itself which cluster it begins in.
void LostDirectories::placeBeginnings() {
    placeKnownBeginnings();
    std::size_t looks = 0;
    for (int i = 0; i < kMostFormerSystems; ++i) {
        auto places = voteForClusters(m_beginnings, 2, Sightings::True);
        for (auto one = m_beginnings.begin(); one != m_beginnings.end() && !places && looks < kMostRowLooks;
             ++one, ++looks) {
            places = placesOfRow(*one);
        }
        if (!places) {
            return;
        }
        VolumeShape shape;
        shape.clusterSectors = places->clusterSectors;
        shape.firstCluster = places->firstCluster;
        shape.clusters =
            static_cast<std::uint32_t>((m_card.sectors() - shape.firstCluster) / shape.clusterSectors);
        m_shapes.push_back(shape);
        placeKnownBeginnings();
    }
}

DirectoryRows LostDirectories::rowsOf(const SectorRun& part, bool exfat) {
    std::vector<std::uint8_t> bytes((part.end - part.first) * 512);
    m_card.readAt(part.first, bytes);
    return exfat ? readExfatRows(bytes) : readFatRows(bytes, true);
}

bool LostDirectories::standsThere(const DirectoryEntry& entry, const VolumeShape& shape) {
    const std::uint64_t sector = shape.sectorOf(entry.cluster);
    std::array<std::uint8_t, 512> bytes;
    if (!entry.isFolder && m_found.isAt(sector, entry.name)) {
        return true;
    }
    if (!m_card.readAt(sector, bytes)) {
        return false;
    }
    if (!entry.isFolder) {
        return beginsLike(entry.name, bytes).value_or(false);
    }
    return shape.kind == FileSystemKind::Exfat ? looksLikeExfatRows(bytes.data())
                                               : fatDirectoryBeginning(bytes.data()) == entry.cluster;
}

// Whether a file lies directly behind the part's cluster and the next one directly behind that: a directory
// gets a further cluster when rows are added to it, and then their files get theirs. Tells of files, such as
// texts, that nothing tells by how they begin.
bool LostDirectories::followsPart(const std::vector<DirectoryEntry>& entries, const SectorRun& part,
                                  const VolumeShape& shape) {
    const std::uint64_t cluster = (part.end - 1 - shape.firstCluster) / shape.clusterSectors;
    std::uint64_t next = shape.firstCluster + (cluster + 1) * shape.clusterSectors;
    int found = 0;
    for (const DirectoryEntry& entry : entries) {
        const bool isThere = !entry.isFolder && entry.bytes != 0 && shape.holds(entry.cluster) &&
                             shape.sectorOf(entry.cluster) == next;
        if (isThere) {
            const std::uint64_t clusterBytes = std::uint64_t{shape.clusterSectors} * 512;
            next += ((entry.bytes - 1) / clusterBytes + 1) * shape.clusterSectors;
            ++found;
        }
    }
    return found >= 2;
}

std::size_t LostDirectories::evidence(const SectorRun& part, const VolumeShape& shape) {
    const bool exfat = shape.kind == FileSystemKind::Exfat;
    const std::vector<DirectoryEntry> entries = rowsOf(part, exfat).entries;
    std::size_t hits = 0;
    std::size_t looks = 0;
    for (const DirectoryEntry& entry : entries) {
        if (looks < kMostLooks && shape.holds(entry.cluster)) {
            ++looks;
            hits += standsThere(entry, shape) ? 1 : 0;
        }
    }
    return hits == 0 && followsPart(entries, part, shape) ? 1 : hits;
}

std::vector<ClusterSighting> LostDirectories::sightings(const std::vector<SectorRun>& parts, bool exfat) {
    std::vector<ClusterSighting> made;
    for (const SectorRun& part : parts) {
        for (const DirectoryEntry& entry : rowsOf(part, exfat).entries) {
            if (made.size() >= kMostSightings || entry.cluster < 2) {
                continue;
            }
            if (!entry.isFolder) {
                for (const std::uint64_t sector : m_found.ofKind(entry.name, kMostPlaces)) {
                    made.push_back({entry.cluster, sector});
                }
            } else if (exfat && parts.size() <= kMostPlaces) {
                for (const SectorRun& other : parts) {
                    made.push_back({entry.cluster, other.first});
                }
            }
        }
    }
    return made;
}

void LostDirectories::placeParts(bool exfat) {
    std::vector<SectorRun>& parts = exfat ? m_exfatParts : m_fatParts;
    std::erase_if(parts, [this](const SectorRun& part) { return isClaimed(part.first); });
    const auto isOfKind = [exfat](const VolumeShape& shape) {
        return (shape.kind == FileSystemKind::Exfat) == exfat;
    };
    std::vector<std::vector<SectorRun>> ofShape;
    for (int i = 0; i <= kMostFormerSystems && !parts.empty(); ++i) {
        ofShape.resize(m_shapes.size());
        std::erase_if(parts, [&](const SectorRun& part) {
            std::size_t best = m_shapes.size();
            std::size_t most = 0;
            for (std::size_t at = 0; at < m_shapes.size(); ++at) {
                const VolumeShape& shape = m_shapes[at];
                const bool mayLieThere =
                    isOfKind(shape) && part.first >= shape.firstCluster && part.first < shape.endOfClusters();
                const std::size_t hits = mayLieThere ? evidence(part, shape) : 0;
                if (hits > most) {
                    most = hits;
                    best = at;
                }
            }
            if (most == 0) {
                return false;
            }
            ofShape[best].push_back(part);
            return true;
        });
        const auto places = voteForClusters(sightings(parts, exfat), kLeastVotes, Sightings::Possible);
        if (!places || places->firstCluster >= m_card.sectors()) {
            break;
        }
        VolumeShape shape;
        shape.kind = exfat ? FileSystemKind::Exfat : FileSystemKind::Fat32;
        shape.clusterSectors = places->clusterSectors;
        shape.firstCluster = places->firstCluster;
        shape.clusters =
            static_cast<std::uint32_t>((m_card.sectors() - shape.firstCluster) / shape.clusterSectors);
        if (std::any_of(m_shapes.begin(), m_shapes.end(),
                        [&](const VolumeShape& known) { return known.sameClusters(shape); })) {
            break;
        }
        m_shapes.push_back(shape);
    }
    ofShape.resize(m_shapes.size());
    placeKnownBeginnings();
    for (std::size_t at = 0; at < m_shapes.size(); ++at) {
        if (!ofShape[at].empty()) {
            volumeOf(m_shapes[at])->readLostParts(ofShape[at]);
        }
    }
    // Sets whose checksum is right are true names, also where all that they named is overwritten.
    const auto present = std::find_if(m_shapes.begin(), m_shapes.end(), isOfKind);
    if (exfat && present != m_shapes.end()) {
        volumeOf(*present)->readPlaceless(parts);
    }
}

}  // namespace vantor
