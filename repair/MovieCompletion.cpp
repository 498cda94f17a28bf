// Whole movies first; what they leave free is where the others are looked for.
#include "repair/MovieCompletion.h"

#include <algorithm>

#include "repair/MoviePieces.h"
#include "repair/MovieProof.h"
#include "repair/RunsOfClusters.h"

namespace vantor {

namespace {

// Fewer whole samples than nine in ten: more foreign than its own.
bool isWorthShowing(const PiecedMovie& movie) {
    return movie.samples != 0 && movie.wholeSamples >= movie.samples - movie.samples / 10;
}

bool isWhole(const PiecedMovie& movie) {
    return movie.samples != 0 && movie.wholeSamples == movie.samples;
}

// The best that was found of one movie so far.
struct FoundMovie {
    PiecedMovie movie;
    std::size_t grid = 0;
    bool settled = false;
};

}  // namespace

std::vector<std::optional<Assembly>> MovieCompletion::run(std::span<const std::uint64_t> broken,
                                                          std::span<const SectorRun> whole,
                                                          const AssemblyFound& tell) {
    std::vector<std::optional<Assembly>> assemblies(broken.size());
    if (broken.empty()) {
        return assemblies;
    }
    m_progress.looked = 0;
    m_progress.of = broken.size();
    MediumBlocks blocks(m_medium);
    const auto indexes = indexPlaces(blocks, m_stop);
    std::vector<std::uint64_t> starts(broken.begin(), broken.end());
    for (const SectorRun& run : whole) {
        starts.push_back(run.first);
    }
    std::vector<FreeClusters> grids;
    for (const ClusterGrid& grid : gridsOf(starts)) {
        grids.emplace_back(grid, m_medium.mediumSectors());
        for (const SectorRun& run : whole) {
            grids.back().take(run);
        }
    }
    std::vector<std::optional<FoundMovie>> found(broken.size());
    const auto settle = [&](std::size_t i, FoundMovie& movie) {
        movie.settled = true;
        const std::vector<SectorRun> runs =
            runsOfClusters(movie.movie.clusters, movie.movie.bytes, grids[movie.grid]);
        for (FreeClusters& grid : grids) {
            for (const SectorRun& run : runs) {
                grid.take(run);
            }
        }
        ClusterFile file(blocks, grids[movie.grid], movie.movie.clusters, movie.movie.bytes);
        const bool proved = isWhole(movie.movie) && movie.movie.telling &&
                            (movie.movie.guessed == 0 ||
                             (movie.movie.decodable && decodesWholly(file, movie.movie.samples, m_options)));
        assemblies[i] =
            Assembly{runs, movie.movie.bytes, proved ? AssemblyProof::Proved : AssemblyProof::Likely, false};
        if (tell) {
            tell(i, *assemblies[i]);
        }
    };
    // Whole ones first; then what is left is looked for in what they leave, until nothing changes.
    for (bool again = true; again && m_stop == 0;) {
        again = false;
        for (std::size_t i = 0; i < broken.size() && m_stop == 0; ++i) {
            m_progress.looked = std::max<std::size_t>(m_progress.looked, i + 1);
            for (std::size_t g = 0; g < grids.size() && !(found[i] && found[i]->settled) && m_stop == 0;
                 ++g) {
                const auto first = grids[g].beginningAt(broken[i]);
                MoviePieces pieces(blocks, grids[g], indexes, m_stop);
                auto movie = first && grids[g].isFree(*first) ? pieces.assemble(*first) : std::nullopt;
                if (!movie || (found[i] && movie->wholeSamples <= found[i]->movie.wholeSamples)) {
                    continue;
                }
                found[i] = FoundMovie{std::move(*movie), g, false};
                if (isWhole(found[i]->movie)) {
                    settle(i, *found[i]);
                    again = true;
                }
            }
        }
    }
    for (std::size_t i = 0; i < broken.size() && m_stop == 0; ++i) {
        if (found[i] && !found[i]->settled && isWorthShowing(found[i]->movie)) {
            settle(i, *found[i]);
        }
    }
    return assemblies;
}

}  // namespace vantor
