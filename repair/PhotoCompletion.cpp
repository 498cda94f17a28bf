// One photo after the other in what those before left free, until nothing changes.
#include "repair/PhotoCompletion.h"

#include <algorithm>

#include "formats/Registry.h"
#include "repair/ClusterFile.h"
#include "repair/PhotoPieces.h"
#include "repair/PngPieces.h"
#include "repair/ProgressivePieces.h"
#include "repair/RunsOfClusters.h"

namespace vantor {

namespace {

struct FoundPhoto {
    std::vector<std::uint64_t> clusters;
    std::uint64_t bytes = 0;
    bool proved = false;
};

// Whether the format itself finds the file whole: there may be more pictures behind the first.
bool isWholeFile(MediumBlocks& medium, const FreeClusters& grid, const PiecedPhoto& photo) {
    static const Format* const jpeg = formatFor("JPG");
    ClusterFile file(medium, grid, photo.clusters, photo.bytes);
    ByteView view(file);
    const Extent extent = jpeg->walk(view);
    return extent.verdict == Verdict::Complete && extent.end == photo.bytes;
}

}  // namespace

std::vector<std::optional<Assembly>> PhotoCompletion::run(std::span<const std::uint64_t> broken,
                                                          std::span<const SectorRun> whole,
                                                          const AssemblyFound& tell) {
    std::vector<std::optional<Assembly>> assemblies(broken.size());
    if (broken.empty()) {
        return assemblies;
    }
    MediumBlocks blocks(m_medium);
    std::vector<std::uint64_t> starts(broken.begin(), broken.end());
    for (const SectorRun& run : whole) {
        starts.push_back(run.first);
    }
    std::vector<FreeClusters> grids;
    for (const ClusterGrid& grid : gridsOf(starts)) {
        FreeClusters& free = grids.emplace_back(grid, m_medium.mediumSectors());
        for (const SectorRun& run : whole) {
            // What begins within a cluster is no file but a part of one, such as a photo's thumbnail.
            if (free.beginningAt(run.first)) {
                free.take(run);
            }
        }
    }
    m_progress.looked = 0;
    m_progress.of = broken.size();
    std::vector<std::uint64_t> unitsLeft(broken.size(), PhotoPieces::kMostUnits);
    std::vector<std::uint64_t> allowed(broken.size());
    for (FreeClusters& grid : grids) {
        ClusterKinds kinds(blocks, grid);
        // Few files may all begin on a wider grid than theirs by chance: that one must not use everything up.
        for (std::size_t i = 0; i < broken.size(); ++i) {
            allowed[i] = &grid == &grids.back() ? unitsLeft[i] : unitsLeft[i] - unitsLeft[i] / 8;
            unitsLeft[i] -= allowed[i];
        }
        // What is put together may uncover where another one was cut.
        for (bool again = true; again && m_stop == 0;) {
            again = false;
            for (std::size_t i = 0; i < broken.size() && m_stop == 0; ++i) {
                m_progress.looked = std::max<std::size_t>(m_progress.looked, i + 1);
                const auto first = assemblies[i] ? std::nullopt : grid.beginningAt(broken[i]);
                if (!first || !grid.isFree(*first) || allowed[i] == 0) {
                    continue;
                }
                std::optional<FoundPhoto> found;
                if (auto photo = PhotoPieces(blocks, grid, kinds, m_stop).assemble(*first, allowed[i])) {
                    const bool proved = photo->joinsShow && isWholeFile(blocks, grid, *photo);
                    found = FoundPhoto{std::move(photo->clusters), photo->bytes, proved};
                } else if (auto scans =
                               ProgressivePieces(blocks, grid, kinds, m_stop).assemble(*first, allowed[i])) {
                    const bool proved = scans->joinsShow && isWholeFile(blocks, grid, *scans);
                    found = FoundPhoto{std::move(scans->clusters), scans->bytes, proved};
                } else if (auto png = PngPieces(blocks, grid, m_stop).assemble(*first)) {
                    found = FoundPhoto{std::move(png->clusters), png->bytes, true};
                }
                if (!found) {
                    continue;
                }
                again = true;
                const auto runs = runsOfClusters(found->clusters, found->bytes, grid);
                for (FreeClusters& other : grids) {
                    for (const SectorRun& run : runs) {
                        other.take(run);
                    }
                }
                if (runs.size() == 1) {
                    continue;  // whole as it lies
                }
                assemblies[i] = Assembly{
                    runs, found->bytes, found->proved ? AssemblyProof::Proved : AssemblyProof::Likely, false};
                if (tell) {
                    tell(i, *assemblies[i]);
                }
            }
        }
        for (std::size_t i = 0; i < broken.size(); ++i) {
            unitsLeft[i] += allowed[i];
        }
    }
    return assemblies;
}

}  // namespace vantor
