#include "repair/ArchiveCompletion.h"

#include "repair/ArchivePieces.h"
#include "repair/RunsOfClusters.h"

namespace vantor {

void ArchiveCompletion::run(std::span<const std::uint64_t> broken, std::span<const SectorRun> whole,
                            const AssemblyFound& tell) {
    m_progress.looked = 0;
    m_progress.of = broken.size();
    if (broken.empty()) {
        return;
    }
    MediumBlocks blocks(m_medium);
    const ArchivePlaces places = archivePlaces(blocks, m_stop);
    std::vector<FreeClusters> grids;
    // Members begin anywhere, and look like files of their own; sums tell a grid that is too wide.
    constexpr std::size_t kStrays = 4;
    for (const ClusterGrid& grid : gridsOf(broken, kStrays)) {
        FreeClusters& free = grids.emplace_back(grid, m_medium.mediumSectors());
        for (const SectorRun& each : whole) {
            if (free.beginningAt(each.first)) {
                free.take(each);
            }
        }
    }
    std::vector<bool> done(broken.size(), false);
    ArchiveEffort effort;
    for (const FreeClusters& grid : grids) {
        ArchivePieces pieces(blocks, grid, places, m_stop);
        // Once more where some gave way.
        bool any = true;
        for (int turn = 0; turn < 2 && any; ++turn) {
            any = false;
            pieces.forgetMissing();
            for (std::size_t i = 0; i < broken.size() && m_stop == 0; ++i) {
                m_progress.looked = std::max<std::size_t>(m_progress.looked, i + 1);
                const auto first = done[i] ? std::nullopt : grid.beginningAt(broken[i]);
                if (!first || !grid.isFree(*first)) {
                    continue;
                }
                const auto archive = pieces.assemble(*first, effort);
                if (!archive) {
                    continue;
                }
                done[i] = any = true;
                const auto runs = runsOfClusters(archive->clusters, archive->bytes, grid);
                for (FreeClusters& other : grids) {
                    for (const SectorRun& each : runs) {
                        other.take(each);
                    }
                }
                if (runs.size() > 1) {
                    tell(i, {runs, archive->bytes,
                             archive->proved ? AssemblyProof::Proved : AssemblyProof::Likely, false});
                }
            }
        }
    }
}

}  // namespace vantor
