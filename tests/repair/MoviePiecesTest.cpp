// Movies whose clusters lie scattered over a medium.
#include <gtest/gtest.h>

#include "repair/MovieCompletion.h"
#include "repair/MoviePieces.h"
#include "tests/repair/MemoryReader.h"
#include "tests/repair/Movies.h"
#include "tests/repair/Photos.h"

namespace vantor {
namespace {

using test::asSpan;
using test::MadeMovie;
using test::makeMovie;
using test::MemoryReader;
using test::picturesOfManySizes;
using test::plainPictures;

constexpr std::uint64_t kMovieClusterSectors = 8;
constexpr qsizetype kMovieClusterBytes = 4096;
const std::atomic<int> kGoOn{0};

// A medium of that many clusters, filled with noise.
QByteArray mediumOf(int clusters) {
    QByteArray medium(clusters * kMovieClusterBytes, Qt::Uninitialized);
    std::mt19937 random(9);
    for (char& byte : medium) {
        byte = static_cast<char>(random());
    }
    return medium;
}

int movieClustersOf(const QByteArray& file) {
    return static_cast<int>((file.size() + kMovieClusterBytes - 1) / kMovieClusterBytes);
}

// The clusters of the file into these of the medium.
void scatter(const QByteArray& file, const std::vector<int>& clusters, QByteArray& medium) {
    ASSERT_EQ(static_cast<int>(clusters.size()), movieClustersOf(file));
    for (int i = 0; i < static_cast<int>(clusters.size()); ++i) {
        const QByteArray piece = file.mid(i * kMovieClusterBytes, kMovieClusterBytes);
        medium.replace(clusters[static_cast<std::size_t>(i)] * kMovieClusterBytes, piece.size(), piece);
    }
}

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

std::vector<int> every(int step, int from, int count) {
    std::vector<int> clusters;
    for (int i = 0; i < count; ++i) {
        clusters.push_back(from + i * step);
    }
    return clusters;
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

// Clusters in which samples of the one begin are none of the other's, in which nothing begins.
TEST(MovieCompletion, UnevenTurns_AreToldApartByTheOthersSamples) {
    std::vector<test::PictureSpec> specs = picturesOfManySizes(100, 1);
    specs[20].bytes = 8 * static_cast<int>(kMovieClusterBytes);
    const MadeMovie one = makeMovie(specs, false, 1);
    std::vector<test::PictureSpec> otherSpecs = picturesOfManySizes(120, 2);
    otherSpecs[80].bytes = specs[20].bytes;
    const MadeMovie other = makeMovie(otherSpecs, false, 2);
    std::vector<int> places[2];
    const int counts[2] = {movieClustersOf(one.bytes), movieClustersOf(other.bytes)};
    std::mt19937 random(3);
    int next = 8;
    for (int turn = 0;
         static_cast<int>(places[0].size()) < counts[0] || static_cast<int>(places[1].size()) < counts[1];
         ++turn) {
        auto& own = places[turn % 2];
        for (unsigned i = 0; i <= random() % 3 && static_cast<int>(own.size()) < counts[turn % 2]; ++i) {
            own.push_back(next++);
        }
    }
    QByteArray medium = mediumOf(next + 20);
    scatter(one.bytes, places[0], medium);
    scatter(other.bytes, places[1], medium);
    MemoryReader reader(medium);
    MovieReaderOptions noHelper;
    noHelper.helper = QStringLiteral("/nowhere");
    CompletionProgress progress;
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors,
                                            static_cast<std::uint64_t>(places[1][0]) * kMovieClusterSectors};
    const auto found = MovieCompletion(reader, kGoOn, progress, noHelper).run(starts, {});
    ASSERT_TRUE(found[0]);
    EXPECT_EQ(found[0]->proof, AssemblyProof::Proved);
    QByteArray bytes;
    for (const SectorRun& run : found[0]->runs) {
        bytes += medium.mid(static_cast<qsizetype>(run.first * kSectorBytes),
                            static_cast<qsizetype>((run.end - run.first) * kSectorBytes));
    }
    EXPECT_EQ(bytes.first(static_cast<qsizetype>(found[0]->bytes)), one.bytes);
}

TEST(MovieCompletion, EachMovieLeavesFewerPlacesForTheNext) {
    // The second goes on in a row where the first has ended.
    const MadeMovie one = makeMovie(picturesOfManySizes(120, 1), false, 1);
    const MadeMovie other = makeMovie(picturesOfManySizes(300, 2), false, 2);
    const int count = movieClustersOf(one.bytes);
    const int otherCount = movieClustersOf(other.bytes);
    QByteArray medium = mediumOf(count + otherCount + 40);
    scatter(one.bytes, every(2, 8, count), medium);
    std::vector<int> clusters = every(2, 9, count);
    while (static_cast<int>(clusters.size()) < otherCount) {
        clusters.push_back(clusters.back() + 1);
    }
    scatter(other.bytes, clusters, medium);
    MemoryReader reader(medium);
    MovieReaderOptions noHelper;
    noHelper.helper = QStringLiteral("/nowhere");
    CompletionProgress progress;
    MovieCompletion completion(reader, kGoOn, progress, noHelper);
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors, 9 * kMovieClusterSectors};
    const auto found = completion.run(starts, {});
    ASSERT_EQ(found.size(), 2U);
    const MadeMovie* const movies[] = {&one, &other};
    for (std::size_t i = 0; i < 2; ++i) {
        ASSERT_TRUE(found[i]) << i;
        QByteArray bytes;
        for (const SectorRun& run : found[i]->runs) {
            bytes += medium.mid(static_cast<qsizetype>(run.first * kSectorBytes),
                                static_cast<qsizetype>((run.end - run.first) * kSectorBytes));
        }
        EXPECT_EQ(bytes.first(static_cast<qsizetype>(found[i]->bytes)), movies[i]->bytes) << i;
    }
}

// An index that happens to begin with a sector is taken for a movie.
TEST(MovieCompletion, IndexAtASectorsStart_HidesNoClusters) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    const int count = movieClustersOf(movie.bytes);
    QByteArray medium = mediumOf(2 * count + 30);
    scatter(movie.bytes, every(2, 8, count), medium);
    MemoryReader reader(medium);
    MovieReaderOptions noHelper;
    noHelper.helper = QStringLiteral("/nowhere");
    CompletionProgress progress;
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors, 11 * kMovieClusterSectors + 3,
                                            15 * kMovieClusterSectors + 5};
    EXPECT_TRUE(MovieCompletion(reader, kGoOn, progress, noHelper).run(starts, {})[0]);
}

TEST(MovieCompletion, WhatLeavesNoChoice_IsPlacedFirst) {
    // A picture of the one is so large that nothing tells its clusters; the other ends beside it.
    std::vector<test::PictureSpec> specs = picturesOfManySizes(60, 1);
    specs[8].bytes = 12 * static_cast<int>(kMovieClusterBytes);
    const MadeMovie one = makeMovie(specs, false, 1);
    const MadeMovie other = makeMovie(picturesOfManySizes(20, 2), false, 2);
    const int shorter = movieClustersOf(other.bytes);
    ASSERT_LT(shorter, 12);
    QByteArray medium = mediumOf(movieClustersOf(one.bytes) + shorter + 40);
    scatter(other.bytes, every(2, 9, shorter), medium);
    std::vector<int> clusters = every(2, 8, shorter);
    while (static_cast<int>(clusters.size()) < movieClustersOf(one.bytes)) {
        clusters.push_back(clusters.back() + (static_cast<int>(clusters.size()) == shorter ? 2 : 1));
    }
    scatter(one.bytes, clusters, medium);
    MemoryReader reader(medium);
    MovieReaderOptions noHelper;
    noHelper.helper = QStringLiteral("/nowhere");
    CompletionProgress progress;
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors, 9 * kMovieClusterSectors};
    const auto found = MovieCompletion(reader, kGoOn, progress, noHelper).run(starts, {});
    for (const auto& each : found) {
        ASSERT_TRUE(each);
        EXPECT_EQ(each->proof, AssemblyProof::Proved);
    }
    QByteArray bytes;
    for (const SectorRun& run : found[0]->runs) {
        bytes += medium.mid(static_cast<qsizetype>(run.first * kSectorBytes),
                            static_cast<qsizetype>((run.end - run.first) * kSectorBytes));
    }
    EXPECT_EQ(bytes.first(static_cast<qsizetype>(found[0]->bytes)), one.bytes);
}

TEST(MovieCompletion, ChoiceThatNoDecoderChecked_IsNotProved) {
    // Pictures longer than a cluster leave clusters in which nothing begins.
    std::vector<test::PictureSpec> large = plainPictures(12);
    for (test::PictureSpec& spec : large) {
        spec.bytes = 3 * static_cast<int>(kMovieClusterBytes) - 40 * static_cast<int>(spec.number);
    }
    const MadeMovie movie = makeMovie(large, false, 1);
    const int count = movieClustersOf(movie.bytes);
    MovieReaderOptions noHelper;
    noHelper.helper = QStringLiteral("/nowhere");
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors};
    for (const int step : {1, 2}) {
        QByteArray medium = mediumOf(2 * count + 40);
        scatter(movie.bytes, every(step, 8, count), medium);
        MemoryReader reader(medium);
        CompletionProgress progress;
        MovieCompletion completion(reader, kGoOn, progress, noHelper);
        const auto found = completion.run(starts, {});
        ASSERT_TRUE(found[0]) << step;
        EXPECT_EQ(found[0]->proof, step == 1 ? AssemblyProof::Proved : AssemblyProof::Likely);
    }
}

TEST(MovieCompletion, MovieInOnePiece_IsNotPutTogether) {
    std::vector<test::PictureSpec> specs = picturesOfManySizes(40, 1);
    const MadeMovie movie = makeMovie(specs, false, 1);
    QByteArray medium = mediumOf(movieClustersOf(movie.bytes) + 40);
    scatter(movie.bytes, every(1, 8, movieClustersOf(movie.bytes)), medium);
    // A picture is overwritten in part: its length stands, what is coded behind it does not.
    medium.replace(8 * kMovieClusterBytes + static_cast<qsizetype>(movie.pictures[20].at) + 30, 20,
                   QByteArray(20, '\0'));
    MemoryReader reader(medium);
    MovieReaderOptions noHelper;
    noHelper.helper = QStringLiteral("/nowhere");
    CompletionProgress progress;
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors};
    EXPECT_FALSE(MovieCompletion(reader, kGoOn, progress, noHelper).run(starts, {})[0]);
}

TEST(MovieCompletion, IndexThatOtherMoviesFit_ProvesNothing) {
    // Two movies of the same sizes: each index fits the pieces of both.
    const MadeMovie one = makeMovie(std::vector<test::PictureSpec>(200), false, 1);
    const MadeMovie other = makeMovie(std::vector<test::PictureSpec>(150), false, 2);
    QByteArray medium = mediumOf(3 * movieClustersOf(one.bytes) + 10);
    scatter(one.bytes, every(2, 4, movieClustersOf(one.bytes)), medium);
    scatter(other.bytes, every(2, 5, movieClustersOf(other.bytes)), medium);
    MemoryReader reader(medium);
    CompletionProgress progress;
    MovieCompletion completion(reader, kGoOn, progress);
    const std::vector<std::uint64_t> starts{4 * kMovieClusterSectors, 5 * kMovieClusterSectors};
    std::size_t assembled = 0;
    for (const auto& each : completion.run(starts, {})) {
        assembled += each ? 1 : 0;
        EXPECT_TRUE(!each || each->proof == AssemblyProof::Likely);
    }
    EXPECT_NE(assembled, 0U);
}

// What was put together before but is only likely may have taken what was another's.
TEST(MovieCompletion, WhatFollowsALikelyMovie_HasToDecode) {
    const MadeMovie alike = makeMovie(std::vector<test::PictureSpec>(200), false, 1);
    const MadeMovie telling = makeMovie(picturesOfManySizes(100, 2), false, 2);
    const int first = movieClustersOf(alike.bytes);
    const int second = movieClustersOf(telling.bytes);
    QByteArray medium = mediumOf(2 * (first + second) + 60);
    scatter(alike.bytes, every(2, 8, first), medium);
    scatter(telling.bytes, every(2, 8 + 2 * first, second), medium);
    const std::uint64_t starts[] = {8 * kMovieClusterSectors,
                                    (8 + 2 * static_cast<std::uint64_t>(first)) * kMovieClusterSectors};
    for (const bool likelyFirst : {true, false}) {
        MemoryReader reader(medium);
        MovieReaderOptions noHelper;
        noHelper.helper = QStringLiteral("/nowhere");
        CompletionProgress progress;
        const std::vector<std::uint64_t> broken{starts[likelyFirst ? 0 : 1], starts[likelyFirst ? 1 : 0]};
        const auto found = MovieCompletion(reader, kGoOn, progress, noHelper).run(broken, {});
        ASSERT_TRUE(found[0] && found[1]);
        EXPECT_EQ(found[likelyFirst ? 0 : 1]->proof, AssemblyProof::Likely);
        EXPECT_EQ(found[likelyFirst ? 1 : 0]->proof,
                  likelyFirst ? AssemblyProof::Likely : AssemblyProof::Proved);
    }
}

// Their samples tell no more than that they begin.
TEST(MovieCompletion, PicturesThatTellLittle_HaveToDecode) {
    MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    for (const bool faint : {false, true}) {
        if (faint) {
            movie.bytes.replace("avc1", "mp4v");
            for (const IsoSample& picture : movie.pictures) {
                movie.bytes.replace(static_cast<qsizetype>(picture.at), 4, QByteArray("\0\0\1\xB6", 4));
            }
        }
        QByteArray medium = mediumOf(2 * movieClustersOf(movie.bytes) + 40);
        scatter(movie.bytes, every(2, 8, movieClustersOf(movie.bytes)), medium);
        MemoryReader reader(medium);
        MovieReaderOptions noHelper;
        noHelper.helper = QStringLiteral("/nowhere");
        CompletionProgress progress;
        const auto found =
            MovieCompletion(reader, kGoOn, progress, noHelper).run(std::vector{8 * kMovieClusterSectors}, {});
        ASSERT_TRUE(found[0]) << faint;
        EXPECT_EQ(found[0]->proof, faint ? AssemblyProof::Likely : AssemblyProof::Proved);
    }
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
