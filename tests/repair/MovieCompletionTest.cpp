// All broken movies of a medium, each leaving fewer places for the others.
#include <gtest/gtest.h>

#include "tests/repair/MovieClusters.h"

namespace vantor {

using test::bytesOf;
using test::completedMovies;
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
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors,
                                            static_cast<std::uint64_t>(places[1][0]) * kMovieClusterSectors};
    const auto found = completedMovies(medium, starts);
    ASSERT_TRUE(found[0]);
    EXPECT_EQ(found[0]->proof, AssemblyProof::Proved);
    EXPECT_EQ(bytesOf(medium, *found[0]), one.bytes);
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
    const auto found = completedMovies(medium, {8 * kMovieClusterSectors, 9 * kMovieClusterSectors});
    ASSERT_EQ(found.size(), 2U);
    const MadeMovie* const movies[] = {&one, &other};
    for (std::size_t i = 0; i < 2; ++i) {
        ASSERT_TRUE(found[i]) << i;
        EXPECT_EQ(bytesOf(medium, *found[i]), movies[i]->bytes) << i;
    }
}

// An index that happens to begin with a sector is taken for a movie.
TEST(MovieCompletion, IndexAtASectorsStart_HidesNoClusters) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    const int count = movieClustersOf(movie.bytes);
    QByteArray medium = mediumOf(2 * count + 30);
    scatter(movie.bytes, every(2, 8, count), medium);
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors, 11 * kMovieClusterSectors + 3,
                                            15 * kMovieClusterSectors + 5};
    EXPECT_TRUE(completedMovies(medium, starts)[0]);
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
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors, 9 * kMovieClusterSectors};
    const auto found = completedMovies(medium, starts);
    for (const auto& each : found) {
        ASSERT_TRUE(each);
        EXPECT_EQ(each->proof, AssemblyProof::Proved);
    }
    EXPECT_EQ(bytesOf(medium, *found[0]), one.bytes);
}

TEST(MovieCompletion, ChoiceThatNoDecoderChecked_IsNotProved) {
    // Pictures longer than a cluster leave clusters in which nothing begins.
    std::vector<test::PictureSpec> large = plainPictures(12);
    for (test::PictureSpec& spec : large) {
        spec.bytes = 3 * static_cast<int>(kMovieClusterBytes) - 40 * static_cast<int>(spec.number);
    }
    const MadeMovie movie = makeMovie(large, false, 1);
    const int count = movieClustersOf(movie.bytes);
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors};
    for (const int step : {1, 2}) {
        QByteArray medium = mediumOf(2 * count + 40);
        scatter(movie.bytes, every(step, 8, count), medium);
        const auto found = completedMovies(medium, starts);
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
    const std::vector<std::uint64_t> starts{8 * kMovieClusterSectors};
    EXPECT_FALSE(completedMovies(medium, starts)[0]);
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
    for (const auto& each : completion.run(starts, {}, {})) {
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
        const std::vector<std::uint64_t> broken{starts[likelyFirst ? 0 : 1], starts[likelyFirst ? 1 : 0]};
        const auto found = completedMovies(medium, broken);
        ASSERT_TRUE(found[0] && found[1]);
        EXPECT_EQ(found[likelyFirst ? 0 : 1]->proof, AssemblyProof::Likely);
        EXPECT_EQ(found[likelyFirst ? 1 : 0]->proof,
                  likelyFirst ? AssemblyProof::Likely : AssemblyProof::Proved);
    }
}

// Behind the index's tables stand notes, and any cluster would do for theirs.
TEST(MovieCompletion, IndexWithAClusterThatTellsNothing_ProvesNothing) {
    const MadeMovie movie = makeMovie(picturesOfManySizes(200, 1), false, 1);
    for (const bool notes : {false, true}) {
        QByteArray bytes = movie.bytes;
        if (notes) {
            QByteArray box = QByteArray(4, '\0') + "udta" + QByteArray(9000, 'n');
            qToBigEndian(static_cast<quint32>(box.size()), box.data());
            const qsizetype size = bytes.size() - movie.indexAt + box.size();
            bytes += box;
            qToBigEndian(static_cast<quint32>(size), bytes.data() + movie.indexAt);
        }
        QByteArray medium = mediumOf(2 * movieClustersOf(bytes) + 40);
        std::vector<int> clusters = every(1, 8, movieClustersOf(bytes));
        for (std::size_t i = 4; i < clusters.size(); ++i) {
            clusters[i] += 3;
        }
        scatter(bytes, clusters, medium);
        const auto found = completedMovies(medium, {8 * kMovieClusterSectors});
        ASSERT_TRUE(found[0]) << notes;
        EXPECT_EQ(found[0]->proof, notes ? AssemblyProof::Likely : AssemblyProof::Proved);
    }
}

// The first cluster of the one, and all behind it of the other, make a whole movie of the other's pictures.
TEST(MovieCompletion, IndexesThatAreAlike_AreNotMixed) {
    const MadeMovie movies[] = {makeMovie(picturesOfManySizes(900, 1), false, 1),
                                makeMovie(picturesOfManySizes(900, 2), false, 2)};
    QByteArray bytes[2];
    for (std::size_t i = 0; i < 2; ++i) {
        // Notes in front of the tables fill the first cluster.
        MadeMovie movie = movies[i];
        const QByteArray notes(kMovieClusterBytes, '\0');
        QByteArray box = QByteArray(4, '\0') + "udta" + notes;
        qToBigEndian(static_cast<quint32>(box.size()), box.data());
        const auto size = static_cast<quint32>(movie.bytes.size() - movie.indexAt + box.size());
        movie.bytes.insert(movie.indexAt + 8, box);
        qToBigEndian(size, movie.bytes.data() + movie.indexAt);
        bytes[i] = withIndexInFront(movie);
    }
    const int count = movieClustersOf(bytes[0]);
    const int other = movieClustersOf(bytes[1]);
    QByteArray medium = mediumOf(count + other + 40);
    // The first cluster of the one, all of the other, the rest of the one.
    std::vector<int> clusters = every(1, 8 + other, count);
    clusters[0] = 8;
    scatter(bytes[0], clusters, medium);
    scatter(bytes[1], every(1, 9, other), medium);
    const auto found = completedMovies(medium, {8 * kMovieClusterSectors, 9 * kMovieClusterSectors});
    ASSERT_TRUE(found[0]);
    EXPECT_EQ(bytesOf(medium, *found[0]), bytes[0]);
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
        const auto found = completedMovies(medium, {8 * kMovieClusterSectors});
        ASSERT_TRUE(found[0]) << faint;
        EXPECT_EQ(found[0]->proof, faint ? AssemblyProof::Likely : AssemblyProof::Proved);
    }
}

// What lies between two pieces of a picture is a whole photo, whose tables and notes look like anything; only
// a file that could be one of the movie's own pictures is not left out.
TEST(MovieCompletion, WholeFilesOfOtherTypes_AreNoPieces) {
    std::vector<test::PictureSpec> specs = picturesOfManySizes(40, 1);
    specs[6].bytes = 9 * static_cast<int>(kMovieClusterBytes);
    const MadeMovie movie = makeMovie(specs, false, 1);
    std::vector<int> clusters = every(1, 8, movieClustersOf(movie.bytes));
    for (std::size_t i = 5; i < clusters.size(); ++i) {
        clusters[i] += 3;
    }
    QByteArray medium = mediumOf(clusters.back() + 30);
    scatter(movie.bytes, clusters, medium);
    const std::vector<SectorRun> photo{{13 * kMovieClusterSectors, 16 * kMovieClusterSectors - 1}};
    for (const bool known : {false, true}) {
        const auto found =
            completedMovies(medium, {8 * kMovieClusterSectors}, known ? photo : std::vector<SectorRun>());
        ASSERT_TRUE(found[0]) << known;
        EXPECT_EQ(found[0]->proof == AssemblyProof::Proved, known);
        EXPECT_EQ(bytesOf(medium, *found[0]) == movie.bytes, known);
    }
}

}  // namespace vantor
