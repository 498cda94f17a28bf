#include "repair/PhotoCompletion.h"

#include "formats/Registry.h"
#include "repair/ClusterFile.h"
#include "repair/PhotoPieces.h"
#include "repair/RunsOfClusters.h"

namespace vantor {

namespace {

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
                                                          std::span<const SectorRun> whole) {
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
    std::vector<std::uint64_t> unitsLeft(broken.size(), PhotoPieces::kMostUnits);
    // What is put together may uncover where another one was cut.
    for (FreeClusters& grid : grids) {
        ClusterKinds kinds(blocks, grid);
        for (bool again = true; again && m_stop == 0;) {
            again = false;
            for (std::size_t i = 0; i < broken.size() && m_stop == 0; ++i) {
                const auto first = assemblies[i] ? std::nullopt : grid.beginningAt(broken[i]);
                if (!first || !grid.isFree(*first) || unitsLeft[i] == 0) {
                    continue;
                }
                PhotoPieces pieces(blocks, grid, kinds, m_stop);
                const auto photo = pieces.assemble(*first, unitsLeft[i]);
                if (!photo) {
                    continue;
                }
                again = true;
                const auto runs = runsOfClusters(photo->clusters, photo->bytes, grid);
                for (FreeClusters& other : grids) {
                    for (const SectorRun& run : runs) {
                        other.take(run);
                    }
                }
                if (runs.size() == 1) {
                    continue;  // whole as it lies
                }
                assemblies[i] =
                    Assembly{runs, photo->bytes,
                             photo->joinsShow && isWholeFile(blocks, grid, *photo) ? AssemblyProof::Proved
                                                                                   : AssemblyProof::Likely,
                             false};
            }
        }
    }
    return assemblies;
}

}  // namespace vantor
