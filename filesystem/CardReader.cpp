// Puts the readers to work: the present file systems first, then what is left of those before them.
#include "filesystem/CardReader.h"

#include <algorithm>
#include <array>
#include <memory>

#include "filesystem/BootSector.h"
#include "filesystem/ClusterVolume.h"
#include "filesystem/FoundStarts.h"
#include "filesystem/LostDirectories.h"
#include "filesystem/LostRecords.h"
#include "filesystem/NtfsVolume.h"
#include "filesystem/PresentVolumes.h"

namespace vantor {

namespace {

using SectorBytes = std::array<std::uint8_t, 512>;

class VolumesReader {
  public:
    VolumesReader(SectorSource& card, const CardTraces& traces, const std::vector<FoundStart>& found)
        : m_card(card), m_traces(traces), m_found(found) {}

    CardTable read() {
        for (const VolumeShape& shape : presentVolumes(m_card)) {
            if (shape.kind == FileSystemKind::Ntfs) {
                tellNtfs(shape, true);
                continue;
            }
            m_volumes.push_back(std::make_unique<ClusterVolume>(m_card, shape, true));
            m_volumes.back()->readFromRoot();
        }
        LostDirectories(m_card, m_found, m_volumes).read(m_traces.directories, formerShapes());
        joinRuns(m_ntfsRecords);
        LostRecords(m_card, m_found).tell(m_traces.directories, m_ntfsRecords, m_ntfsShapes, m_table);
        for (const auto& volume : m_volumes) {
            volume->linkLost();
            volume->tell(m_found, m_table);
            note(volume->shape(), volume->isCurrent(), volume->label());
        }
        finish();
        return std::move(m_table);
    }

  private:
    void note(const VolumeShape& shape, bool isCurrent, const QString& label) {
        const std::uint64_t end =
            std::min(shape.table + shape.tableCopies * shape.tableSectors, m_card.sectors());
        m_table.fileSystems.push_back({shape.kind,
                                       isCurrent,
                                       shape.first,
                                       shape.sectors,
                                       shape.firstCluster,
                                       shape.clusterSectors,
                                       label,
                                       {std::min(shape.table, end), end}});
    }

    // Once, however many copies of its first sector there are.
    void tellNtfs(const VolumeShape& shape, bool isCurrent) {
        const auto isSame = [&](const CardFileSystem& known) {
            return known.kind == shape.kind && known.firstSector == shape.first &&
                   known.clusterSectors == shape.clusterSectors;
        };
        if (std::any_of(m_table.fileSystems.begin(), m_table.fileSystems.end(), isSame)) {
            return;
        }
        NtfsVolume volume(m_card, shape, isCurrent);
        if (volume.tell(m_table)) {
            note(shape, isCurrent, {});
        }
        m_ntfsShapes.push_back(shape);
        m_ntfsRecords.insert(m_ntfsRecords.end(), volume.recordPlaces().begin(), volume.recordPlaces().end());
    }

    // Those whose first sector or its copy was passed by.
    std::vector<VolumeShape> formerShapes() {
        constexpr std::size_t kMost = 64;
        std::vector<VolumeShape> shapes;
        for (const std::uint64_t at : m_traces.bootSectors) {
            SectorBytes bytes;
            if (at >= m_card.sectors() || shapes.size() >= kMost || !m_card.readAt(at, bytes)) {
                continue;
            }
            for (const std::uint64_t first : possibleBeginnings(bytes, at)) {
                const auto shape = shapeFromBootSector(bytes, first, m_card.sectors());
                if (shape && shape->kind == FileSystemKind::Ntfs) {
                    tellNtfs(*shape, false);
                } else if (shape) {
                    shapes.push_back(*shape);
                }
            }
        }
        return shapes;
    }

    void finish() {
        joinRuns(m_table.inUse);
        std::stable_partition(m_table.fileSystems.begin(), m_table.fileSystems.end(),
                              [](const CardFileSystem& system) { return system.isCurrent; });
        for (CardFile& file : m_table.files) {
            file.beginningIsInUse = file.state != FileState::Live && !file.runs.empty() &&
                                    file.contents.isEmpty() && m_table.isInUse(file.runs.front().first);
        }
        const auto key = [](const CardFile& file) {
            return std::tie(file.state, file.folder, file.name, file.bytes, file.modified);
        };
        const auto beginning = [](const CardFile& file) {
            return file.runs.empty() ? 0 : file.runs.front().first;
        };
        std::stable_sort(m_table.files.begin(), m_table.files.end(),
                         [&](const CardFile& a, const CardFile& b) { return key(a) < key(b); });
        // A row may stand in several places: a directory that was moved, or written again.
        const auto same = [&](const CardFile& a, const CardFile& b) {
            return key(a) == key(b) && beginning(a) == beginning(b);
        };
        m_table.files.erase(std::unique(m_table.files.begin(), m_table.files.end(), same),
                            m_table.files.end());
    }

    SectorSource& m_card;
    const CardTraces& m_traces;
    const FoundStarts m_found;
    std::vector<std::unique_ptr<ClusterVolume>> m_volumes;
    std::vector<VolumeShape> m_ntfsShapes;
    std::vector<SectorRun> m_ntfsRecords;  // that have been read with their file systems
    CardTable m_table;
};

}  // namespace

CardTable readCard(SectorSource& card, const CardTraces& traces, const std::vector<FoundStart>& found) {
    return VolumesReader(card, traces, found).read();
}

}  // namespace vantor
