// Whole movies first, and before all those that left no choice; what they leave free is where the others are
// looked for.
#include "repair/MovieCompletion.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

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

constexpr unsigned kMostVainLooks = 8;  // for one movie, as others give way
constexpr unsigned kMostLooks = 64;
constexpr std::size_t kSharing = 16;  // so many parts of what may be searched

// The best that was found of one movie so far.
struct FoundMovie {
    PiecedMovie movie;
    std::size_t grid = 0;
    bool settled = false;
    SectorRun span;               // from its first piece on the medium to its last
    std::optional<bool> decodes;  // once that was tried
};

// An index is found as a movie of its own wherever it stands at a sector's start: that is no cluster's.
bool mayBeginMovie(MediumBlocks& medium, std::uint64_t sector) {
    std::array<std::uint8_t, 8> head{};
    medium.read(sector * kSectorBytes, head);
    const std::string_view text(reinterpret_cast<const char*>(head.data()), head.size());
    const std::string_view name = text.substr(4);
    return name == "ftyp" || name == "wide" || name == "mdat" || text.substr(0, 4) == "RIFF";
}

SectorRun spanOf(const PiecedMovie& movie, const FreeClusters& grid) {
    const auto [first, last] = std::minmax_element(movie.clusters.begin(), movie.clusters.end());
    return {grid.firstSectorOf(*first), grid.firstSectorOf(*last + 1)};
}

bool leftNoChoice(const FoundMovie& found) {
    return isWhole(found.movie) && found.movie.guessed == 0;
}

}  // namespace

std::vector<std::optional<Assembly>> MovieCompletion::run(std::span<const std::uint64_t> broken,
                                                          std::span<const SectorRun> whole,
                                                          std::span<const SectorRun> otherFiles,
                                                          const AssemblyFound& tell) {
    std::vector<std::optional<Assembly>> assemblies(broken.size());
    if (broken.empty()) {
        return assemblies;
    }
    m_progress.looked = 0;
    m_progress.of = broken.size();
    MediumBlocks blocks(m_medium);
    const auto indexes = indexPlaces(blocks, m_stop);
    std::vector<std::uint64_t> starts;
    std::copy_if(broken.begin(), broken.end(), std::back_inserter(starts),
                 [&](std::uint64_t sector) { return mayBeginMovie(blocks, sector); });
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
    struct Looks {
        unsigned all = 0;
        unsigned inVain = 0;
        std::size_t settled = 0;  // movies at the last one
    };
    std::vector<Looks> looks(broken.size());
    std::vector<SectorRun> settledSpans;
    // None takes so much that nothing is left for the others.
    std::uint64_t searchLeft = MoviePieces::kMostSearched;
    const auto withPieces = [&](const FreeClusters& grid, auto&& use) {
        const std::uint64_t share = searchLeft / std::min<std::size_t>(broken.size(), kSharing);
        MoviePieces pieces(blocks, grid, indexes, m_stop, share, otherFiles);
        auto result = use(pieces);
        searchLeft -= share - pieces.searchLeft();
        return result;
    };
    // Of each grid and movie, once asked for: what is surely the movie's is none of the others'.
    std::vector<std::vector<std::vector<std::uint64_t>>> anchors(grids.size());
    const auto findAnchors = [&](std::size_t g) {
        anchors[g].resize(broken.size());
        for (std::size_t i = 0; i < broken.size() && broken.size() > 1 && m_stop == 0; ++i) {
            const auto first = found[i] && found[i]->settled ? std::nullopt : grids[g].beginningAt(broken[i]);
            if (first && grids[g].isFree(*first)) {
                anchors[g][i] =
                    withPieces(grids[g], [&](MoviePieces& pieces) { return pieces.anchorsOf(*first); });
            }
        }
    };
    const auto anchorsOfOthers = [&](std::size_t g, std::size_t i) {
        if (anchors[g].empty()) {
            findAnchors(g);
        }
        std::vector<std::uint64_t> all;
        for (std::size_t other = 0; other < broken.size(); ++other) {
            if (other != i && !(found[other] && found[other]->settled)) {
                all.insert(all.end(), anchors[g][other].begin(), anchors[g][other].end());
            }
        }
        return all;
    };
    // What one that is but likely took away may have been another's: that leaves no choice wrongly.
    bool allSure = true;
    const auto isProved = [&](FoundMovie& movie) {
        if (!isWhole(movie.movie) || !movie.movie.telling) {
            return false;
        }
        const bool mustDecode = !allSure || movie.movie.guessed != 0 || movie.movie.faint;
        if (mustDecode && !movie.decodes) {
            ClusterFile file(blocks, grids[movie.grid], movie.movie.clusters, movie.movie.bytes);
            movie.decodes = movie.movie.decodable && decodesWholly(file, movie.movie.samples, m_options);
        }
        return !mustDecode || *movie.decodes;
    };
    const auto settle = [&](std::size_t i) {
        FoundMovie& movie = *found[i];
        movie.settled = true;
        settledSpans.push_back(movie.span);
        const std::vector<SectorRun> runs =
            runsOfClusters(movie.movie.clusters, movie.movie.bytes, grids[movie.grid]);
        for (FreeClusters& grid : grids) {
            for (const SectorRun& run : runs) {
                grid.take(run);
            }
        }
        const AssemblyProof proof = isProved(movie) ? AssemblyProof::Proved : AssemblyProof::Likely;
        allSure = allSure && proof == AssemblyProof::Proved;
        if (runs.size() == 1 && proof == AssemblyProof::Likely) {
            return;  // as it lies
        }
        assemblies[i] = Assembly{runs, movie.movie.bytes, proof, false};
        if (tell) {
            tell(i, *assemblies[i]);
        }
    };
    // Only what gave way among its own pieces can change what is found of a movie.
    const auto isWorthALook = [&](std::size_t i) {
        const auto news = settledSpans.begin() + static_cast<std::ptrdiff_t>(looks[i].settled);
        const bool any = found[i] ? std::any_of(news, settledSpans.end(),
                                                [&](const SectorRun& span) {
                                                    return span.first < found[i]->span.end &&
                                                           found[i]->span.first < span.end;
                                                })
                                  : news != settledSpans.end() && looks[i].inVain < kMostVainLooks;
        const bool first = looks[i].all == 0;
        return (first || any) && looks[i].all < kMostLooks;
    };
    const auto lookFor = [&](std::size_t i) {
        if (found[i] && found[i]->settled) {
            return;
        }
        const auto isFree = [&](const FoundMovie& movie) {
            return std::all_of(movie.movie.clusters.begin(), movie.movie.clusters.end(),
                               [&](std::uint64_t cluster) { return grids[movie.grid].isFree(cluster); });
        };
        if (found[i] && !isFree(*found[i])) {
            found[i].reset();
        }
        if (!isWorthALook(i)) {
            return;
        }
        for (std::size_t g = 0; g < grids.size() && !(found[i] && leftNoChoice(*found[i])) && m_stop == 0;
             ++g) {
            const auto first = grids[g].beginningAt(broken[i]);
            if (!first || !grids[g].isFree(*first)) {
                continue;
            }
            const auto worth = [](const PiecedMovie& each) {
                return std::pair(each.wholeSamples, ~each.guessed);
            };
            const std::vector<std::uint64_t> others = anchorsOfOthers(g, i);
            for (const bool alone : {false, true}) {
                if (alone && (others.empty() || (found[i] && isWhole(found[i]->movie)))) {
                    break;
                }
                auto movie = withPieces(grids[g], [&](MoviePieces& pieces) {
                    return pieces.assemble(*first, alone ? std::vector<std::uint64_t>() : others);
                });
                // An index that is partly another's leads to that one's samples.
                const bool own = movie && (!alone || movie->ownIndex);
                if (own && (!found[i] || worth(*movie) > worth(found[i]->movie))) {
                    const SectorRun span = spanOf(*movie, grids[g]);
                    found[i] = FoundMovie{std::move(*movie), g, false, span, {}};
                }
            }
        }
        ++looks[i].all;
        looks[i].inVain += found[i] ? 0 : 1;
        looks[i].settled = settledSpans.size();
    };
    const auto settleAll = [&](auto&& isSure, bool lookAgain) {
        bool any = false;
        for (std::size_t i = 0; i < broken.size() && m_stop == 0; ++i) {
            if (lookAgain) {
                lookFor(i);
                m_progress.looked = std::max<std::size_t>(m_progress.looked, i + 1);
            }
            if (found[i] && !found[i]->settled && m_stop == 0 && isSure(*found[i])) {
                settle(i);
                any = true;
            }
        }
        return any;
    };
    // What leaves no choice; then, of those that do, what a decoder finds whole, one at a time, since it may
    // leave the others no choice either; and what is whole at least by its syntax, likewise.
    const auto settleOne = [&](auto&& isSure) {
        bool done = false;
        return settleAll([&](FoundMovie& each) { return !done && (done = isSure(each)); }, false);
    };
    while (m_stop == 0 && (settleAll(leftNoChoice, true) || settleOne(isProved) ||
                           settleOne([](const FoundMovie& each) { return isWhole(each.movie); }))) {
    }
    for (std::size_t i = 0; i < broken.size() && m_stop == 0; ++i) {
        if (found[i] && !found[i]->settled && isWorthShowing(found[i]->movie)) {
            settle(i);
        }
    }
    return assemblies;
}

}  // namespace vantor
