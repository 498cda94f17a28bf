// Media of clusters over which the tests scatter movies.
#pragma once

#include <gtest/gtest.h>

#include "repair/MovieCompletion.h"
#include "tests/repair/MemoryReader.h"
#include "tests/repair/Movies.h"

namespace vantor::test {

constexpr std::uint64_t kMovieClusterSectors = 8;
constexpr qsizetype kMovieClusterBytes = 4096;
inline const std::atomic<int> kGoOn{0};

// A medium of that many clusters, filled with noise.
inline QByteArray mediumOf(int clusters) {
    QByteArray medium(clusters * kMovieClusterBytes, Qt::Uninitialized);
    std::mt19937 random(9);
    for (char& byte : medium) {
        byte = static_cast<char>(random());
    }
    return medium;
}

inline int movieClustersOf(const QByteArray& file) {
    return static_cast<int>((file.size() + kMovieClusterBytes - 1) / kMovieClusterBytes);
}

// The clusters of the file into these of the medium.
inline void scatter(const QByteArray& file, const std::vector<int>& clusters, QByteArray& medium) {
    ASSERT_EQ(static_cast<int>(clusters.size()), movieClustersOf(file));
    for (int i = 0; i < static_cast<int>(clusters.size()); ++i) {
        const QByteArray piece = file.mid(i * kMovieClusterBytes, kMovieClusterBytes);
        medium.replace(clusters[static_cast<std::size_t>(i)] * kMovieClusterBytes, piece.size(), piece);
    }
}

inline std::vector<int> every(int step, int from, int count) {
    std::vector<int> clusters;
    for (int i = 0; i < count; ++i) {
        clusters.push_back(from + i * step);
    }
    return clusters;
}

// What becomes of the movies that begin in these sectors; without a movie helper.
inline std::vector<std::optional<Assembly>> completedMovies(const QByteArray& medium,
                                                            const std::vector<std::uint64_t>& starts,
                                                            const std::vector<SectorRun>& otherFiles = {}) {
    MemoryReader reader(medium);
    MovieReaderOptions noHelper;
    noHelper.helper = QStringLiteral("/nowhere");
    CompletionProgress progress;
    return MovieCompletion(reader, kGoOn, progress, noHelper).run(starts, {}, otherFiles);
}

inline QByteArray bytesOf(const QByteArray& medium, const Assembly& pieces) {
    QByteArray bytes;
    for (const SectorRun& run : pieces.runs) {
        bytes += medium.mid(static_cast<qsizetype>(run.first * kSectorBytes),
                            static_cast<qsizetype>((run.end - run.first) * kSectorBytes));
    }
    return bytes.first(static_cast<qsizetype>(pieces.bytes));
}

}  // namespace vantor::test
