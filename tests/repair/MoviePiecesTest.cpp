// Movies whose clusters lie scattered over a medium.
#include <gtest/gtest.h>

#include "repair/MoviePieces.h"
#include "tests/repair/MovieClusters.h"
#include "tests/repair/Photos.h"

namespace vantor {
namespace {

using test::asSpan;
using test::every;
using test::kGoOn;
using test::kMovieClusterBytes;
using test::kMovieClusterSectors;
using test::MadeMovie;
using test::makeMovie;
using test::mediumOf;
using test::MemoryReader;
using test::movieClustersOf;
using test::picturesOfManySizes;
using test::plainPictures;
using test::scatter;
using test::withIndexInFront;

std::optional<QByteArray> assembled(const QByteArray& medium, std::uint64_t firstCluster) {
    MemoryReader reader(medium);
    MediumBlocks blocks(reader);
    const FreeClusters free({0, kMovieClusterSectors}, reader.mediumSectors());
    const auto indexes = indexPlaces(blocks, kGoOn);
    MoviePieces pieces(blocks, free, indexes, kGoOn);
    const auto movie = pieces.assemble(firstCluster);
    if (!movie || movie->wholeSamples != movie->samples) {
        return std::nullopt;
    }
    QByteArray bytes(static_cast<qsizetype>(movie->bytes), '\0');
    ClusterFile source(blocks, free, movie->clusters, movie->bytes);
    source.read(0, {reinterpret_cast<std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())});
    return bytes;
}

}  // namespace

TEST(MoviePieces, TwoMoviesInTurn_ComeApart) {
    const MadeMovie one = makeMovie(picturesOfManySizes(200, 1), false, 1);
    const MadeMovie other = makeMovie(picturesOfManySizes(200, 2), false, 2);
    const int count = movieClustersOf(one.bytes);
    ASSERT_GT(count, 8);
    QByteArray medium = mediumOf(3 * count + 10);
    scatter(one.bytes, every(2, 4, count), medium);
    scatter(other.bytes, every(2, 5, movieClustersOf(other.bytes)), medium);
    EXPECT_EQ(assembled(medium, 4), one.bytes);
    EXPECT_EQ(assembled(medium, 5), other.bytes);
}

TEST(MoviePieces, HeadBehindTheBody_IsJoined) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    const int count = movieClustersOf(movie.bytes);
    QByteArray medium = mediumOf(2 * count + 10);
    std::vector<int> clusters = every(1, 2, count);
    clusters.front() = count + 5;
    scatter(movie.bytes, clusters, medium);
    EXPECT_EQ(assembled(medium, static_cast<std::uint64_t>(count) + 5), movie.bytes);
}

TEST(MoviePieces, IndexBeforeTheMovie_IsFound) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    const int count = movieClustersOf(movie.bytes);
    const int indexClusters = count - static_cast<int>(movie.indexAt / kMovieClusterBytes);
    QByteArray medium = mediumOf(2 * count + 20);
    std::vector<int> clusters = every(1, indexClusters + 6, count);
    for (int i = 0; i < indexClusters; ++i) {
        clusters[static_cast<std::size_t>(count - indexClusters + i)] = 1 + i;
    }
    scatter(movie.bytes, clusters, medium);
    EXPECT_EQ(assembled(medium, static_cast<std::uint64_t>(indexClusters) + 6), movie.bytes);
}

// The index is in pieces itself: as often as the movie's turns come, or round one other piece.
TEST(MoviePieces, IndexInFrontInPieces_IsJoined) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(900, 1), false, 1);
    const QByteArray bytes = withIndexInFront(movie);
    const int count = movieClustersOf(bytes);
    ASSERT_GT(bytes.size() - movie.indexAt, 3 * kMovieClusterBytes / 2);
    std::vector<int> cut = every(1, 4, count);
    for (int i = 1; i < count; ++i) {
        cut[static_cast<std::size_t>(i)] += 20;
    }
    for (const std::vector<int>& clusters : {every(2, 4, count), every(3, 4, count), cut}) {
        QByteArray medium = mediumOf(3 * count + 40);
        scatter(bytes, clusters, medium);
        EXPECT_EQ(assembled(medium, 4), bytes) << clusters[1];
    }
}

TEST(MoviePieces, IndexInTwoPieces_IsJoined) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(900, 1), false, 1);
    const int count = movieClustersOf(movie.bytes);
    QByteArray medium = mediumOf(count + 60);
    std::vector<int> clusters = every(1, 4, count);
    clusters.back() += 20;
    ASSERT_LT(movie.indexAt / kMovieClusterBytes, count - 1);
    scatter(movie.bytes, clusters, medium);
    EXPECT_EQ(assembled(medium, 4), movie.bytes);
}

TEST(MoviePieces, PieceThatIsGone_GivesNoWholeMovie) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    const int count = movieClustersOf(movie.bytes);
    QByteArray medium = mediumOf(2 * count + 10);
    scatter(movie.bytes, every(1, 4, count), medium);
    medium.replace(8 * kMovieClusterBytes, kMovieClusterBytes, QByteArray(kMovieClusterBytes, '\0'));
    EXPECT_EQ(assembled(medium, 4), std::nullopt);
}

TEST(MoviePieces, IndexOfAnotherMovie_IsNotTaken) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    const MadeMovie other = makeMovie(picturesOfManySizes(150, 2), false, 2);
    QByteArray medium = mediumOf(2 * movieClustersOf(movie.bytes) + 10);
    scatter(movie.bytes, every(1, 4, movieClustersOf(movie.bytes)), medium);
    // The index is overwritten by one that describes other data.
    const qsizetype at = 4 * kMovieClusterBytes + movie.indexAt;
    medium.replace(at, movie.bytes.size() - movie.indexAt,
                   QByteArray(movie.bytes.size() - movie.indexAt, '\0'));
    const QByteArray index = other.bytes.mid(other.indexAt);
    medium.replace(at, index.size(), index);
    EXPECT_EQ(assembled(medium, 4), std::nullopt);
}

// The codes of a photo are none of a movie: what remains between two samples leaves no choice.
TEST(MoviePieces, PhotoInALargePicture_IsPassedOver) {
    std::vector<test::PictureSpec> specs = picturesOfManySizes(40, 1);
    specs[6].bytes = 9 * static_cast<int>(kMovieClusterBytes);
    const MadeMovie movie = makeMovie(specs, false, 1);
    const QByteArray photo = test::makePhoto(1);
    const int count = movieClustersOf(movie.bytes);
    std::vector<int> clusters = every(1, 4, count);
    for (int i = 5; i < count; ++i) {
        clusters[static_cast<std::size_t>(i)] += 3;
    }
    QByteArray medium = mediumOf(2 * count + 30);
    scatter(movie.bytes, clusters, medium);
    medium.replace(9 * kMovieClusterBytes, 3 * kMovieClusterBytes,
                   photo.mid(4 * kMovieClusterBytes, 3 * kMovieClusterBytes));
    EXPECT_EQ(assembled(medium, 4), movie.bytes);
}

// A gap in front of the last sample's cluster is no turn: what follows lies behind it.
TEST(MoviePieces, TailBehindAGap_FollowsInTheRow) {
    std::vector<test::PictureSpec> specs = picturesOfManySizes(40, 1);
    specs.back().bytes = 5 * static_cast<int>(kMovieClusterBytes);
    const MadeMovie movie = makeMovie(specs, false, 1);
    const QByteArray bytes = withIndexInFront(movie);
    const int count = movieClustersOf(bytes);
    std::vector<int> clusters = every(1, 4, count);
    const std::uint64_t last =
        movie.pictures.back().at + static_cast<std::uint64_t>(bytes.size() - movie.indexAt);
    for (auto i = static_cast<std::size_t>(last) / kMovieClusterBytes; i < clusters.size(); ++i) {
        clusters[i] += 3;
    }
    QByteArray medium = mediumOf(count + 60);
    scatter(bytes, clusters, medium);
    EXPECT_EQ(assembled(medium, 4), bytes);
}

// Nothing tells where the first picture goes on; its head lies behind it all.
TEST(MoviePieces, HeadBehindALargePicture_JoinsWhatItLeadsUpTo) {
    std::vector<test::PictureSpec> specs = picturesOfManySizes(40, 1);
    specs[0].bytes = 4 * static_cast<int>(kMovieClusterBytes);
    const MadeMovie movie = makeMovie(specs, false, 1);
    const int count = movieClustersOf(movie.bytes);
    std::vector<int> clusters = every(1, 2, count);
    clusters.front() = count + 5;
    QByteArray medium = mediumOf(2 * count + 30);
    scatter(movie.bytes, clusters, medium);
    EXPECT_EQ(assembled(medium, static_cast<std::uint64_t>(count) + 5), movie.bytes);
}

// Of a picture in several units a cluster seldom shows the end, but the lengths of some.
TEST(MoviePieces, PicturesOfSeveralUnits_AreFound) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    const MadeMovie other = makeMovie(picturesOfManySizes(200, 2), false, 2);
    const auto joinedOf = [](const MadeMovie& made) {
        // Six pictures are taken for the units of one.
        IndexedTrack track;
        const ReferenceTrack shape = test::videoTrack();
        track.described = &shape;
        track.video = true;
        for (std::size_t i = 0; i + 6 <= made.pictures.size(); i += 6) {
            const auto& last = made.pictures[i + 5];
            track.chunks.push_back({made.pictures[i].at, 1});
            track.sizes.push_back(static_cast<std::uint32_t>(last.at + last.bytes - made.pictures[i].at));
        }
        return made.withoutIndex() + writeIndex({track});
    };
    const QByteArray one = joinedOf(movie);
    const QByteArray two = joinedOf(other);
    const int count = movieClustersOf(one);
    QByteArray medium = mediumOf(3 * count + 10);
    scatter(one, every(2, 4, count), medium);
    scatter(two, every(2, 5, movieClustersOf(two)), medium);
    EXPECT_EQ(assembled(medium, 4), one);
    EXPECT_EQ(assembled(medium, 5), two);
}

// An index that claims more clusters than follow: the ways to the medium's end are too many to be tried.
TEST(MoviePieces, IndexBeyondTheMedium_EndsTheSearch) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    const int count = movieClustersOf(movie.bytes);
    QByteArray broken = movie.bytes;
    qToBigEndian(std::uint32_t{8} << 20, broken.data() + movie.indexAt);
    QByteArray medium = mediumOf(count + 90);
    scatter(broken, every(1, 4, count), medium);
    EXPECT_EQ(assembled(medium, 4), std::nullopt);
}

// What is searched is counted, and what lies near is found when nothing of that is left.
TEST(MoviePieces, WithNothingLeftToSearch_OnlyWhatIsFarIsMissed) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    const int count = movieClustersOf(movie.bytes);
    for (const bool far : {false, true}) {
        QByteArray medium = mediumOf(2 * count + 200);
        std::vector<int> clusters = every(1, 4, count);
        for (int i = count / 2; far && i < count; ++i) {
            clusters[static_cast<std::size_t>(i)] += 120;
        }
        scatter(movie.bytes, clusters, medium);
        for (const std::uint64_t bytes : {std::uint64_t{0}, MoviePieces::kMostSearched}) {
            MemoryReader reader(medium);
            MediumBlocks blocks(reader);
            const FreeClusters free({0, kMovieClusterSectors}, reader.mediumSectors());
            const auto indexes = indexPlaces(blocks, kGoOn);
            MoviePieces pieces(blocks, free, indexes, kGoOn, bytes);
            const auto found = pieces.assemble(4);
            EXPECT_EQ(found && found->wholeSamples == found->samples, !far || bytes != 0) << far << bytes;
            EXPECT_EQ(pieces.searchLeft() < bytes, far && bytes != 0);
        }
    }
}

// Most of a card may be empty, and is looked at for every grid of clusters.
TEST(MediumBlocks, EmptyOnes_AreReadOnce) {
    constexpr auto kBlockBytes = static_cast<qsizetype>(MediumBlocks::kBlockSectors * kSectorBytes);
    constexpr auto kBlocks = static_cast<qsizetype>(MediumBlocks::kMostBlocks) + 8;
    QByteArray medium(kBlocks * kBlockBytes, '\0');
    medium[3 * kBlockBytes + 500] = 'x';
    MemoryReader reader(medium);
    MediumBlocks blocks(reader);
    EXPECT_FALSE(blocks.isKnownEmpty(0, 1));
    for (int turn = 0; turn < 2; ++turn) {
        std::uint64_t seen = 0;
        blocks.lookThrough(16, kGoOn, [&](std::span<const std::uint8_t> bytes, std::uint64_t) {
            seen += static_cast<std::uint64_t>(std::count(bytes.begin(), bytes.end(), 'x'));
        });
        EXPECT_EQ(seen, 1U);
    }
    EXPECT_EQ(blocks.fetched(), static_cast<std::uint64_t>(kBlocks));
    EXPECT_TRUE(blocks.isKnownEmpty(0, 3 * kBlockBytes));
    EXPECT_FALSE(blocks.isKnownEmpty(0, 3 * kBlockBytes + 1));
    EXPECT_FALSE(blocks.isKnownEmpty(static_cast<std::uint64_t>(medium.size()), 1));
}

TEST(FreeClusters, GridIsWhatFilesBeginOn) {
    const std::vector<std::uint64_t> starts{131, 195, 323, 1091};
    const auto grids = gridsOf(starts);
    ASSERT_FALSE(grids.empty());
    EXPECT_EQ(grids.front(), (ClusterGrid{3, 64}));
    FreeClusters free(grids.front(), 640);
    EXPECT_EQ(free.count(), 9U);
    EXPECT_EQ(free.beginningAt(131), 2U);
    EXPECT_EQ(free.beginningAt(132), std::nullopt);
    free.take({195, 260});  // a little of the next as well
    EXPECT_EQ(free.ahead(2, 1), 5U);
    EXPECT_EQ(free.back(5, 1), 2U);
    EXPECT_EQ(free.stepsBetween(2, 6), 2U);
    EXPECT_EQ(free.ahead(2, 9), std::nullopt);
}

}  // namespace vantor
