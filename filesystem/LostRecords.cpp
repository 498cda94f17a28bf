#include "filesystem/LostRecords.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <map>

#include "filesystem/ClusterVote.h"
#include "filesystem/FileBeginning.h"
#include "filesystem/NtfsVolume.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostRecordSectors = std::uint64_t{1} << 21;
constexpr std::size_t kMostLostRecords = 1'000'000;
constexpr qsizetype kMostLostContents = qsizetype{64} << 20;
// Files that are looked at where a shape puts them, for each shape.
constexpr std::size_t kMostRecordLooks = 256;
constexpr std::size_t kMostRecordSightings = 400'000;
constexpr std::size_t kMostRecordPlaces = 2048;
constexpr std::size_t kLeastRecordVotes = 3;
// More pieces than a table has, or more tables than a medium had.
constexpr std::size_t kMostTables = 64;

bool hasPlace(const NtfsRecord& record) {
    return !record.isFolder && !record.name.isEmpty() && record.isPlain && record.firstCluster == 0 &&
           !record.runs.empty();
}

bool isIn(const std::vector<SectorRun>& runs, std::uint64_t sector) {
    const auto behind =
        std::upper_bound(runs.begin(), runs.end(), sector,
                         [](std::uint64_t at, const SectorRun& run) { return at < run.first; });
    return behind != runs.begin() && sector < std::prev(behind)->end;
}

}  // namespace

void LostRecords::tell(const std::vector<SectorRun>& traces, const std::vector<SectorRun>& known,
                       const std::vector<VolumeShape>& shapes, CardTable& table) {
    std::vector<std::pair<VolumeShape, Records>> volumes;
    for (Records& records : tablesAt(traces, known)) {
        const auto shape = shapeOf(records, shapes);
        if (!shape) {
            continue;
        }
        auto volume = std::find_if(volumes.begin(), volumes.end(),
                                   [&](const auto& one) { return one.first.sameClusters(*shape); });
        if (volume == volumes.end()) {
            volume = volumes.insert(volume, {*shape, {}});
        }
        std::move(records.begin(), records.end(), std::back_inserter(volume->second));
    }
    for (auto& [shape, records] : volumes) {
        NtfsVolume(m_card, shape, false).tellLost(std::move(records), table);
    }
}

std::vector<LostRecords::Records> LostRecords::tablesAt(const std::vector<SectorRun>& traces,
                                                        const std::vector<SectorRun>& known) {
    // By the sector where record 0 would lie; those without a number lie in no table.
    std::map<std::optional<std::int64_t>, Records> byBeginning;
    std::uint64_t left = kMostRecordSectors;
    std::size_t count = 0;
    qsizetype contents = 0;
    std::vector<std::uint8_t> bytes;
    for (const SectorRun& run : traces) {
        const std::uint64_t end = std::min(run.end, m_card.sectors());
        for (std::uint64_t at = run.first; at < end && left > 0 && count < kMostLostRecords;) {
            bytes.resize(512);
            const bool isRead = !isIn(known, at) && m_card.readAt(at, bytes);
            const std::size_t sectors = isRead ? sectorsOfNtfsRecord(bytes.data()) : 0;
            --left;
            if (sectors == 0 || sectors > m_card.sectors() - at) {
                ++at;
                continue;
            }
            bytes.resize(sectors * 512);
            auto record = m_card.readAt(at, bytes) ? readNtfsRecord(bytes) : std::nullopt;
            if (!record) {
                ++at;
                continue;
            }
            record->sector = at;
            contents += record->contents.size();
            if (contents > kMostLostContents) {
                record->contents.clear();
            }
            std::optional<std::int64_t> beginning;
            if (record->number) {
                beginning = static_cast<std::int64_t>(at) -
                            static_cast<std::int64_t>(*record->number) * static_cast<std::int64_t>(sectors);
            }
            byBeginning[beginning].push_back(std::move(*record));
            at += sectors;
            ++count;
        }
    }
    std::vector<Records> tables;
    for (auto& [beginning, records] : byBeginning) {
        tables.push_back(std::move(records));
    }
    std::stable_sort(tables.begin(), tables.end(),
                     [](const Records& a, const Records& b) { return a.size() > b.size(); });
    tables.resize(std::min(tables.size(), kMostTables));
    return tables;
}

bool LostRecords::standsThere(const NtfsRecord& record, const VolumeShape& shape) {
    const std::uint64_t cluster = record.runs.front().first;
    if (!shape.holds(cluster)) {
        return false;
    }
    const std::uint64_t sector = shape.sectorOf(cluster);
    std::array<std::uint8_t, 512> bytes;
    return m_found.isAt(sector, record.name) || (sector < m_card.sectors() && m_card.readAt(sector, bytes) &&
                                                 beginsLike(record.name, bytes).value_or(false));
}

std::optional<VolumeShape> LostRecords::shapeOf(const std::vector<NtfsRecord>& records,
                                                const std::vector<VolumeShape>& shapes) {
    std::optional<VolumeShape> best;
    std::size_t most = 0;
    for (const VolumeShape& shape : shapes) {
        std::size_t looks = 0;
        std::size_t hits = 0;
        for (const NtfsRecord& record : records) {
            if (hasPlace(record) && ++looks <= kMostRecordLooks) {
                hits += standsThere(record, shape) ? 1 : 0;
            }
        }
        if (hits > most) {
            most = hits;
            best = shape;
        }
    }
    return best ? best : votedShape(records);
}

std::optional<VolumeShape> LostRecords::votedShape(const std::vector<NtfsRecord>& records) const {
    // The vote is about clusters of which the first is the second; here it is cluster 0.
    constexpr std::uint64_t kFirstNumber = 2;
    std::vector<ClusterSighting> sightings;
    for (const NtfsRecord& record : records) {
        if (!hasPlace(record) || record.runs.front().first >= UINT32_MAX - kFirstNumber) {
            continue;
        }
        const auto cluster = static_cast<std::uint32_t>(record.runs.front().first + kFirstNumber);
        for (const std::uint64_t sector : m_found.ofKind(record.name, kMostRecordPlaces)) {
            if (sightings.size() < kMostRecordSightings) {
                sightings.push_back({cluster, sector});
            }
        }
    }
    const auto places = voteForClusters(sightings, kLeastRecordVotes, Sightings::Possible);
    if (!places || places->firstCluster >= m_card.sectors()) {
        return std::nullopt;
    }
    VolumeShape shape;
    shape.kind = FileSystemKind::Ntfs;
    shape.first = shape.firstCluster = places->firstCluster;
    shape.clusterSectors = places->clusterSectors;
    shape.clusters =
        static_cast<std::uint32_t>((m_card.sectors() - shape.firstCluster) / shape.clusterSectors);
    return shape;
}

}  // namespace vantor
