// AVI movies whose clusters lie scattered over a medium.
#include <gtest/gtest.h>

#include "repair/MovieCompletion.h"
#include "tests/repair/Avis.h"
#include "tests/repair/Photos.h"
#include "tests/repair/ScatteredCard.h"

namespace vantor {
namespace {

using test::clustersOf;
using test::makeAvi;
using test::noiseChunks;

std::vector<std::optional<Assembly>> completedMovies(const test::ScatteredCard& card,
                                                     const std::vector<std::uint64_t>& starts,
                                                     const std::vector<SectorRun>& otherFiles = {}) {
    const QByteArray bytes = card.bytes();
    test::MemoryReader reader(bytes);
    const std::atomic<int> goOn{0};
    CompletionProgress progress;
    MovieReaderOptions noHelper;
    noHelper.helper = QStringLiteral("/nowhere");
    return MovieCompletion(reader, goOn, progress, noHelper).run(starts, {}, otherFiles);
}

}  // namespace

TEST(AviPieces, TwoMoviesInTurn_ComeApart) {
    const QByteArray one = makeAvi(noiseChunks(1, 40));
    const QByteArray other = makeAvi(noiseChunks(2, 60));
    test::ScatteredCard card;
    std::vector<std::uint64_t> starts;
    for (qsizetype i = 0; i < std::max(clustersOf(one), clustersOf(other)); ++i) {
        for (const QByteArray* const movie : {&one, &other}) {
            const std::uint64_t first = i < clustersOf(*movie) ? card.put(*movie, i, i + 1) : 0;
            if (i == 0) {
                starts.push_back(first);
            }
        }
    }
    const auto found = completedMovies(card, starts);
    ASSERT_EQ(found.size(), 2U);
    ASSERT_TRUE(found[0] && found[1]);
    EXPECT_EQ(card.contentOf(*found[0]), one);
    EXPECT_EQ(card.contentOf(*found[1]), other);
    EXPECT_EQ(found[1]->proof, AssemblyProof::Proved);
}

// Nothing begins in the clusters of a large picture: where it was cut, its codes tell.
TEST(AviPieces, CutWithinAPicture_IsTheOneWithWhichItComesOutEven) {
    test::Chunks chunks;
    for (const unsigned seed : {1U, 2U, 3U, 4U}) {
        chunks.emplace_back("00dc", test::makePhoto(seed));
    }
    const QByteArray movie = makeAvi(chunks);
    const QByteArray other = test::makePhoto(5);
    const qsizetype cut = clustersOf(movie) * 3 / 8;
    test::ScatteredCard card;
    const std::uint64_t first = card.put(movie, 0, cut);
    card.put(other, 4, 10);
    card.put(movie, cut);
    const auto found = completedMovies(card, {first})[0];
    ASSERT_TRUE(found);
    EXPECT_EQ(card.contentOf(*found), movie);
    EXPECT_EQ(found->proof, AssemblyProof::Proved);
}

// A picture of a movie is found as a photo of its own where it begins with a sector.
TEST(AviPieces, PicturesOfItsOwn_ArePieces) {
    test::Chunks chunks;
    for (const unsigned seed : {1U, 2U, 3U, 4U}) {
        chunks.emplace_back("00dc", test::makePhoto(seed));
    }
    const QByteArray movie = makeAvi(chunks);
    test::ScatteredCard card;
    const std::uint64_t first = card.put(movie, 0, 4);
    card.putNoise(5);
    card.put(movie, 4);
    const std::uint64_t inside = first + 12 * test::kClusterSectors;
    const std::uint64_t pictureSectors = static_cast<std::uint64_t>(chunks[0].second.size()) / kSectorBytes;
    const auto found = completedMovies(card, {first}, {{inside, inside + pictureSectors - 2}})[0];
    ASSERT_TRUE(found);
    EXPECT_EQ(card.contentOf(*found), movie);
}

TEST(AviPieces, PieceThatIsGone_IsNotProved) {
    // So long that what is gone is little of it.
    const QByteArray movie = makeAvi(noiseChunks(1, 300));
    test::ScatteredCard card;
    const std::uint64_t first = card.put(movie, 0, clustersOf(movie) / 2);
    card.putNoise(5);
    card.put(movie, clustersOf(movie) / 2 + 1);
    const auto found = completedMovies(card, {first});
    ASSERT_TRUE(found[0]);
    EXPECT_EQ(found[0]->proof, AssemblyProof::Likely);
}

// Nothing tells what stands in a chunk that is longer than its cluster: anything may have been taken for it.
TEST(AviPieces, ChunkWithAForeignPiece_IsToBeLookedAt) {
    test::Chunks chunks = noiseChunks(1, 30);
    chunks[20].second = QByteArray(10 * test::kClusterBytes, '\x21');
    const QByteArray movie = makeAvi(chunks);
    const qsizetype within = movie.indexOf(QByteArray(5000, '\x21')) / test::kClusterBytes + 4;
    test::ScatteredCard card;
    const std::uint64_t first = card.put(movie, 0, within);
    card.putNoise(5);
    card.put(movie, within + 2);
    const auto found = completedMovies(card, {first})[0];
    ASSERT_TRUE(found);
    EXPECT_EQ(found->runs.size(), 2U);
    EXPECT_EQ(found->proof, AssemblyProof::Likely);
}

TEST(AviPieces, FirstPartOfALongerMovie_IsLeft) {
    const QByteArray movie = makeAvi(noiseChunks(1, 40), 90);
    test::ScatteredCard card;
    const std::uint64_t first = card.put(movie, 0, clustersOf(movie) / 2);
    card.putNoise(5);
    card.put(movie, clustersOf(movie) / 2);
    EXPECT_FALSE(completedMovies(card, {first})[0]);
}

}  // namespace vantor
