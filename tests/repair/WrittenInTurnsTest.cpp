// Files of which single clusters are known, among others that were written in turn with them.
#include <gtest/gtest.h>

#include "repair/WrittenInTurns.h"
#include "tests/repair/MovieClusters.h"

namespace vantor {
namespace {

using test::makeMovie;
using test::mediumOf;
using test::movieClustersOf;
using test::PictureSpec;

// The ordinal of each cluster of a file that lies in turns.
std::vector<std::uint64_t> inTurns(std::size_t count, std::uint64_t own, std::uint64_t others) {
    std::vector<std::uint64_t> ordinals;
    for (std::uint64_t number = 0; number < count; ++number) {
        ordinals.push_back(number + number / own * others);
    }
    return ordinals;
}

std::vector<KnownCluster> everySo(const std::vector<std::uint64_t>& ordinals, std::size_t step) {
    std::vector<KnownCluster> known;
    for (std::size_t number = 0; number < ordinals.size(); number += step) {
        known.push_back({number, ordinals[number]});
    }
    return known;
}

void expectFound(const std::vector<std::uint64_t>& ordinals, std::size_t step) {
    const auto known = everySo(ordinals, step);
    const auto all = turnsOf(known);
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].from, 0U);
    EXPECT_EQ(all[0].to, known.size());
    for (std::uint64_t number = 0; number <= known.back().number; ++number) {
        EXPECT_EQ(all[0].ordinalOf(number), ordinals[number]) << number;
    }
}

}  // namespace

TEST(WrittenInTurns, EachLength_IsFound) {
    for (const std::uint64_t own : {1U, 4U, 6U, 16U}) {
        for (const std::uint64_t others : {1U, 4U, 8U, 48U}) {
            SCOPED_TRACE(own);
            expectFound(inTurns(400, own, others), 7);
        }
    }
}

// Several turns lie between each two that are known.
TEST(WrittenInTurns, FewKnownClusters_AreEnough) {
    expectFound(inTurns(1500, 4, 4), 58);
}

TEST(WrittenInTurns, FirstClusterWrittenLast_ShiftsTheTurns) {
    std::vector<std::uint64_t> ordinals = inTurns(400, 8, 8);
    std::vector<KnownCluster> known;
    for (std::size_t number = 1; number < 400; number += 9) {
        known.push_back({number, ordinals[number - 1]});
    }
    const auto all = turnsOf(known);
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].to, known.size());
    for (std::uint64_t number = 1; number <= known.back().number; ++number) {
        EXPECT_EQ(all[0].ordinalOf(number), ordinals[number - 1]) << number;
    }
}

// A photo was taken meanwhile.
TEST(WrittenInTurns, OthersInTheWay_DivideTheTurns) {
    std::vector<std::uint64_t> ordinals = inTurns(400, 4, 4);
    for (std::size_t number = 200; number < ordinals.size(); ++number) {
        ordinals[number] += 101;
    }
    const auto known = everySo(ordinals, 5);
    const auto all = turnsOf(known);
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].to, 40U);
    EXPECT_EQ(all[1].from, 40U);
    for (std::uint64_t number = 0; number < 396; ++number) {
        EXPECT_EQ(all[number < 200 ? 0 : 1].ordinalOf(number), ordinals[number]) << number;
    }
}

TEST(WrittenInTurns, AFewAreChance_AndOneMoreIsNot) {
    EXPECT_TRUE(turnsOf(everySo(inTurns(16, 4, 4), 1)).empty()) << "others lie between three times";
    EXPECT_EQ(turnsOf(everySo(inTurns(17, 4, 4), 1)).size(), 1U);
}

TEST(WrittenInTurns, WhatIsUneven_IsNotExplained) {
    std::mt19937 random(3);
    std::vector<std::uint64_t> ordinals;
    std::uint64_t at = 0;
    for (int turn = 0; turn < 100; ++turn, at += 1 + random() % 7) {
        for (std::uint32_t own = 1 + random() % 7; own != 0; --own) {
            ordinals.push_back(at++);
        }
    }
    const auto known = everySo(ordinals, 3);
    for (const Turns& turns : turnsOf(known)) {
        EXPECT_LT(turns.to - turns.from, known.size() / 4);
    }
    EXPECT_TRUE(turnsOf(everySo(inTurns(100, 1000, 4), 3)).empty());
    EXPECT_TRUE(turnsOf({}).empty());
}

// Pairs of movies of large pictures, four clusters of one and four of the other: most clusters begin no
// picture, and what is found of one may be taken for another's. However many there are, each is looked at
// again when its neighbour gave way.
TEST(MovieCompletion, PairsInTurnsOfSeveralClusters_ComeApart) {
    constexpr unsigned kPairs = 6;
    constexpr qsizetype kTurn = 4 * test::kMovieClusterBytes;
    QByteArray medium = mediumOf(4);
    std::vector<QByteArray> files;
    std::vector<std::uint64_t> starts;
    for (unsigned pair = 0; pair < kPairs; ++pair) {
        QByteArray both[2];
        for (unsigned i = 0; i < 2; ++i) {
            std::vector<PictureSpec> pictures = test::picturesOfManySizes(40, 2 * pair + i);
            for (PictureSpec& picture : pictures) {
                picture.bytes = picture.bytes * 3 + 17'000;
            }
            both[i] = makeMovie(pictures, false, 2 * pair + i).bytes;
        }
        for (qsizetype at = 0; at < std::max(both[0].size(), both[1].size()); at += kTurn) {
            for (const QByteArray& file : both) {
                if (at == 0) {
                    starts.push_back(static_cast<std::uint64_t>(medium.size()) / kSectorBytes);
                    files.push_back(file);
                }
                const QByteArray piece = file.mid(at, kTurn);
                medium += piece.leftJustified(movieClustersOf(piece) * test::kMovieClusterBytes, '\0');
            }
        }
    }
    medium += mediumOf(4);
    const auto found = test::completedMovies(medium, starts);
    for (std::size_t i = 0; i < files.size(); ++i) {
        ASSERT_TRUE(found[i]) << i;
        EXPECT_EQ(test::bytesOf(medium, *found[i]) == files[i], true) << i;
    }
}

}  // namespace vantor
