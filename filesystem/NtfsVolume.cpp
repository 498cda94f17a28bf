// Source: public descriptions of NTFS: the master file table and its records.
#include "filesystem/NtfsVolume.h"

#include <algorithm>
#include <numeric>

#include "filesystem/CleanName.h"

namespace vantor {

namespace {

// The first records are the file system's own files; the fifth is the root.
constexpr std::uint64_t kFirstOfUsers = 24;
constexpr std::uint64_t kRoot = 5;
constexpr std::size_t kMostRecords = 2'000'000;
// Beyond these, files have names and no places.
constexpr std::uint64_t kMostRuns = 4'000'000;
constexpr std::uint64_t kMostContents = std::uint64_t{128} << 20;

std::uint64_t clustersOf(const std::vector<NtfsRun>& runs) {
    return std::accumulate(runs.begin(), runs.end(), std::uint64_t{0},
                           [](std::uint64_t sum, const NtfsRun& run) { return sum + run.count; });
}

// A record that is given back counts its next use already.
bool isMeantBy(const NtfsReference& reference, const NtfsRecord& record) {
    return record.use == reference.use ||
           (!record.isInUse && record.use == static_cast<std::uint16_t>(reference.use + 1));
}

}  // namespace

// Cut to the volume; a run outside it ends the list.
std::vector<SectorRun> NtfsVolume::sectorsOf(const std::vector<NtfsRun>& runs) const {
    std::vector<SectorRun> sectors;
    for (const NtfsRun& run : runs) {
        if (run.isHole) {
            continue;
        }
        if (!m_shape.holds(run.first) || run.count == 0 || run.count > m_shape.clusters - run.first) {
            break;
        }
        const std::uint64_t first = m_shape.sectorOf(run.first);
        sectors.push_back({first, first + run.count * m_shape.clusterSectors});
    }
    return sectors;
}

bool NtfsVolume::tell(CardTable& table) {
    std::vector<std::uint8_t> bytes(m_shape.recordBytes);
    const std::uint64_t at = m_shape.sectorOf(m_shape.rootCluster);
    if (at + bytes.size() / 512 > m_card.sectors() || !m_card.readAt(at, bytes)) {
        return false;
    }
    const auto own = readNtfsRecord(bytes);
    if (!own || own->runs.empty()) {
        return false;
    }
    readRecords(sectorsOf(own->runs), own->bytes / m_shape.recordBytes);
    joinParts();
    tellFiles(table);
    return true;
}

void NtfsVolume::tellLost(std::vector<NtfsRecord> records, CardTable& table) {
    // Those without a number of their own, and further ones of a number, are no folder that others name.
    std::uint64_t unnumbered = std::uint64_t{1} << 48;
    for (NtfsRecord& record : records) {
        const bool isKnown = record.number && record.base.record == 0 && !m_records.contains(*record.number);
        const std::uint64_t number = isKnown ? *record.number : unnumbered++;
        keep(number, std::move(record));
    }
    joinParts();
    tellFiles(table);
}

void NtfsVolume::tellFiles(CardTable& table) {
    table.inUse.insert(table.inUse.end(), m_held.begin(), m_held.end());
    for (const auto& [number, record] : m_records) {
        if (number >= kFirstOfUsers && !record.isFolder && !record.name.isEmpty()) {
            tellFile(record, table);
        }
    }
}

void NtfsVolume::readRecords(const std::vector<SectorRun>& places, std::uint64_t records) {
    constexpr std::uint64_t kPieceSectors = 256;
    const std::uint64_t recordSectors = m_shape.recordBytes / 512;
    std::uint64_t number = 0;
    std::vector<std::uint8_t> bytes;
    for (const SectorRun& place : places) {
        for (std::uint64_t at = place.first; at + recordSectors <= place.end && number < records;) {
            const std::uint64_t sectors =
                std::min({kPieceSectors, (place.end - at) / recordSectors * recordSectors,
                          (records - number) * recordSectors});
            m_places.push_back({at, at + sectors});
            bytes.resize(sectors * 512);
            m_card.readAt(at, bytes);
            for (std::uint64_t in = 0; in < sectors && number < records; in += recordSectors, ++number) {
                if (auto record = readNtfsRecord(std::span(bytes).subspan(in * 512, m_shape.recordBytes))) {
                    record->sector = at + in;
                    keep(number, std::move(*record));
                }
            }
            at += sectors;
        }
    }
}

void NtfsVolume::keep(std::uint64_t number, NtfsRecord record) {
    if (m_records.size() + m_partsKept >= kMostRecords) {
        return;
    }
    const std::size_t runs = record.runs.size() + record.otherRuns.size();
    if (m_runsKept + runs > kMostRuns) {
        record.runs = {};
        record.otherRuns = {};
        record.isPlain = record.isLegible = false;
    } else {
        m_runsKept += runs;
    }
    m_contentsKept += static_cast<std::uint64_t>(record.contents.size());
    if (m_contentsKept > kMostContents) {
        record.contents.clear();
    }
    for (const auto* const clusters : {&record.runs, &record.otherRuns}) {
        if (m_isCurrent && record.isInUse) {
            const std::vector<SectorRun> sectors = sectorsOf(*clusters);
            m_held.insert(m_held.end(), sectors.begin(), sectors.end());
        }
    }
    record.otherRuns = {};
    if (record.base.record == 0) {
        m_records.emplace(number, std::move(record));
        return;
    }
    if (!record.name.isEmpty() && m_names.size() < kMostRecords) {
        m_names.emplace(record.base.record, Named{record.base, record.parent, record.name});
    }
    if (record.hasData) {
        m_parts[record.base.record].emplace(record.firstCluster, std::move(record));
        ++m_partsKept;
    }
}

// A file of many pieces, or of many names, has more records than one; each part begins where the one before
// ends.
void NtfsVolume::joinParts() {
    for (auto& [number, file] : m_records) {
        const auto [begin, end] = m_names.equal_range(number);
        for (auto one = begin; one != end && file.name.isEmpty(); ++one) {
            if (isMeantBy(one->second.base, file)) {
                file.parent = one->second.parent;
                file.name = one->second.name;
            }
        }
    }
    for (auto& [number, parts] : m_parts) {
        const auto base = m_records.find(number);
        if (base == m_records.end()) {
            continue;
        }
        NtfsRecord& file = base->second;
        std::uint64_t clusters = clustersOf(file.runs);
        for (auto& [first, part] : parts) {
            if (!isMeantBy(part.base, file) || part.isInUse != file.isInUse ||
                part.firstCluster != clusters) {
                continue;
            }
            if (part.firstCluster == 0) {
                file.bytes = part.bytes;
                file.validBytes = part.validBytes;
            }
            file.hasData = true;
            file.isPlain = file.isPlain && part.isPlain;
            file.isLegible = file.isLegible && part.isLegible;
            file.unitClusters = std::max(file.unitClusters, part.unitClusters);
            file.runs.insert(file.runs.end(), part.runs.begin(), part.runs.end());
            clusters += clustersOf(part.runs);
        }
    }
}

// What one folder held stays together also where that has become another: "folder-" and its record's number.
std::optional<QString> NtfsVolume::folderOf(const NtfsReference& parent) const {
    constexpr int kDeepest = 64;
    QString path;
    NtfsReference at = parent;
    for (int depth = 0; at.record != kRoot && depth < kDeepest; ++depth) {
        if (at.record < kFirstOfUsers) {
            return std::nullopt;
        }
        const auto folder = m_records.find(at.record);
        const bool isMeant = folder != m_records.end() && folder->second.isFolder &&
                             !folder->second.name.isEmpty() && isMeantBy(at, folder->second);
        if (!isMeant) {
            prependFolder(QStringLiteral("folder-%1").arg(at.record), path);
            break;
        }
        const NtfsRecord& record = folder->second;
        if (!prependFolder(cleanName(record.name), path)) {
            break;
        }
        at = record.parent;
    }
    return path;
}

const std::optional<QString>& NtfsVolume::knownFolderOf(const NtfsReference& parent) {
    const auto [known, isNew] = m_folders.try_emplace(std::pair(parent.record, parent.use));
    if (isNew) {
        known->second = folderOf(parent);
    }
    return known->second;
}

void NtfsVolume::placeFile(const NtfsRecord& record, std::uint64_t sectors, CardFile& file) const {
    if (record.isResident) {
        constexpr qsizetype kSector = 512;
        const qsizetype count = (record.contents.size() + kSector - 1) / kSector;
        // No system makes records of more than 4 KiB.
        if (count != 0 && count <= 8 &&
            record.sector + static_cast<std::uint64_t>(count) <= m_card.sectors()) {
            file.contents = record.contents.leftJustified(count * kSector, '\0');
            file.runs = {{record.sector, record.sector + static_cast<std::uint64_t>(count)}};
        }
        return;
    }
    for (SectorRun run : sectorsOf(record.runs)) {
        if (sectors == 0) {
            break;
        }
        run.end = std::min(run.end, run.first + sectors);
        sectors -= run.end - run.first;
        file.runs.push_back(run);
    }
    if (sectors != 0 && !file.runs.empty()) {
        // Not all of its runs are known.
        file.runsKnownBy = RunsKnownBy::Guess;
    }
}

// Of a packed file the last unit counts to its end: where it has a hole is part of how it is packed.
void NtfsVolume::layOut(const NtfsRecord& record, std::uint64_t clusters, CardFile& file) const {
    constexpr std::size_t kMost = 16'000;  // pieces and holes; a packed file has one of each a unit
    constexpr std::uint64_t kMostUnitSectors = 2048;
    const std::uint64_t unit = std::max<std::uint64_t>(record.unitClusters, 1);
    const std::uint64_t end = (clusters + unit - 1) / unit * unit;
    std::uint64_t at = 0;
    std::uint64_t placed = 0;
    for (const NtfsRun& run : record.runs) {
        const std::uint64_t count = std::min(run.count, end - at);
        const bool isThere = m_shape.holds(run.first) && count <= m_shape.clusters - run.first;
        if (count == 0 || (!run.isHole && !isThere)) {
            break;
        }
        const std::uint64_t first = run.isHole ? at * m_shape.clusterSectors : m_shape.sectorOf(run.first);
        std::vector<SectorRun>& to = run.isHole ? file.holes : file.runs;
        to.push_back({first, first + count * m_shape.clusterSectors});
        at += count;
        placed += run.isHole ? 0 : count;
    }
    const std::uint64_t unitSectors = unit * m_shape.clusterSectors;
    const bool isKnown = at >= clusters && placed <= m_shape.clusters && file.runs.size() <= kMost &&
                         file.holes.size() <= kMost &&
                         (record.unitClusters == 0 || unitSectors <= kMostUnitSectors);
    if (!isKnown) {
        file.runs.clear();
        file.holes.clear();
    } else if (!file.holes.empty() && record.unitClusters != 0) {
        file.unitSectors = static_cast<std::uint32_t>(unitSectors);
    }
}

void NtfsVolume::tellFile(const NtfsRecord& record, CardTable& table) {
    const std::uint64_t clusterBytes = std::uint64_t{m_shape.clusterSectors} * 512;
    const std::uint64_t clusters = record.bytes / clusterBytes + (record.bytes % clusterBytes != 0 ? 1 : 0);
    const std::optional<QString>& folder = knownFolderOf(record.parent);
    if (!folder || clusters > m_shape.clusters) {
        return;
    }
    CardFile file;
    file.state = !m_isCurrent ? FileState::Lost : record.isInUse ? FileState::Live : FileState::Deleted;
    file.folder = *folder;
    file.name = cleanName(record.name);
    file.bytes = record.bytes;
    file.validBytes = record.validBytes;
    file.modified = record.modified;
    file.created = record.created;
    file.runsKnownBy = RunsKnownBy::Record;
    file.clusterSectors = m_shape.clusterSectors;
    if (record.isPlain) {
        placeFile(record, clusters * m_shape.clusterSectors, file);
    } else if (record.isLegible) {
        layOut(record, clusters, file);
    }
    table.files.push_back(std::move(file));
}

}  // namespace vantor
