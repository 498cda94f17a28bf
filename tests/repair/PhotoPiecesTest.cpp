// Photos whose clusters lie scattered over a medium.
#include <gtest/gtest.h>

#include "repair/ClusterKinds.h"
#include "repair/PhotoPieces.h"
#include "tests/repair/Photos.h"
#include "tests/repair/ScatteredCard.h"

namespace vantor {
namespace {

using test::clustersOf;
using test::kClusterBytes;
using test::kClusterSectors;
using test::makePhoto;
using test::MemoryReader;

}  // namespace

TEST(PhotoPieces, TwoPiecesWithSomethingElseBetween_AreJoined) {
    const QByteArray photo = makePhoto(1);
    const qsizetype cut = clustersOf(photo) / 2;
    test::ScatteredCard card;
    const std::uint64_t first = card.put(photo, 0, cut);
    card.putNoise(9);
    card.put(photo, cut);
    const auto assembly = card.completed(first);
    ASSERT_TRUE(assembly);
    EXPECT_EQ(assembly->runs.size(), 2u);
    EXPECT_EQ(assembly->proof, AssemblyProof::Proved);
    EXPECT_EQ(card.contentOf(*assembly), photo);
}

TEST(PhotoPieces, WholePhotoBetween_IsPassedOver) {
    const QByteArray photo = makePhoto(1);
    const QByteArray other = makePhoto(2);
    const qsizetype cut = clustersOf(photo) / 3;
    test::ScatteredCard card;
    const std::uint64_t first = card.put(photo, 0, cut);
    const std::uint64_t between = card.put(other);
    card.put(photo, cut);
    const auto assembly =
        card.completed(first, {}, {{between, between + static_cast<std::uint64_t>(clustersOf(other)) * 8}});
    ASSERT_TRUE(assembly);
    EXPECT_EQ(card.contentOf(*assembly), photo);
}

TEST(PhotoPieces, ThumbnailWithinThePhoto_TakesNoPlaceAway) {
    const QByteArray photo = makePhoto(1);
    const qsizetype cut = clustersOf(photo) / 2;
    test::ScatteredCard card;
    const std::uint64_t first = card.put(photo, 0, cut);
    card.putNoise(3);
    card.put(photo, cut);
    std::vector<std::uint64_t> others;
    for (std::uint64_t other = 0; other < 20; ++other) {
        others.push_back(other % 4 * kClusterSectors);
    }
    const auto assembly = card.completed(first, others, {{first + 1, first + 4}});
    ASSERT_TRUE(assembly);
    EXPECT_EQ(card.contentOf(*assembly), photo);
}

TEST(PhotoPieces, TwoPhotosCrossed_ComeApart) {
    test::expectToComeApart(makePhoto(1), makePhoto(2));
}

TEST(PhotoPieces, ThreePiecesOutOfOrder_AreJoined) {
    const QByteArray photo = makePhoto(3);
    test::ScatteredCard card;
    const std::uint64_t first = card.putOutOfOrder(photo);
    const auto assembly = card.completed(first);
    ASSERT_TRUE(assembly);
    EXPECT_EQ(assembly->runs.size(), 3u);
    EXPECT_EQ(card.contentOf(*assembly), photo);
}

TEST(PhotoPieces, ContinuationGone_NoOtherIsTaken) {
    const QByteArray photo = makePhoto(1);
    const qsizetype cut = clustersOf(photo) / 2;
    test::ScatteredCard card;
    const std::uint64_t first = card.put(photo, 0, cut);
    for (const unsigned seed : {2u, 3u, 4u, 5u}) {
        const QByteArray other = makePhoto(seed);
        card.put(other, clustersOf(other) / 2);
    }
    EXPECT_FALSE(card.completed(first));
}

TEST(PhotoPieces, WholePhoto_IsNotPutTogether) {
    test::ScatteredCard card;
    EXPECT_FALSE(card.completed(card.put(makePhoto(1))));
}

// What a search may cost is shared by all that look for the same photo.
TEST(PhotoPieces, WhatIsTried_IsCounted_AndEndsTheSearch) {
    const QByteArray photo = makePhoto(1);
    test::ScatteredCard card;
    const std::uint64_t first = card.put(photo, 0, clustersOf(photo) / 2);
    card.putNoise(9);
    card.put(photo, clustersOf(photo) / 2);
    const QByteArray bytes = card.bytes();
    MemoryReader reader(bytes);
    MediumBlocks blocks(reader);
    const FreeClusters grid({0, kClusterSectors}, reader.mediumSectors());
    ClusterKinds kinds(blocks, grid);
    const std::atomic<int> goOn{0};
    std::uint64_t units = PhotoPieces::kMostUnits;
    EXPECT_TRUE(PhotoPieces(blocks, grid, kinds, goOn).assemble(first / kClusterSectors, units));
    const std::uint64_t used = PhotoPieces::kMostUnits - units;
    EXPECT_GT(used, 0U);
    EXPECT_LT(used, PhotoPieces::kMostUnits / 8);
    std::uint64_t tooFew = 10;
    EXPECT_FALSE(PhotoPieces(blocks, grid, kinds, goOn).assemble(first / kClusterSectors, tooFew));
    EXPECT_EQ(tooFew, 0U);
}

TEST(PhotoCompletion, EachPhoto_IsCountedOnce) {
    const QByteArray one = makePhoto(1);
    const QByteArray bytes = QByteArray(4 * kClusterBytes, '\0') + one.left(5 * kClusterBytes);
    MemoryReader reader(bytes);
    const std::atomic<int> goOn{0};
    CompletionProgress progress;
    const std::vector<std::uint64_t> broken = {0, 4 * kClusterSectors};
    PhotoCompletion(reader, goOn, progress).run(broken, {});
    EXPECT_EQ(progress.looked, 2u);
    EXPECT_EQ(progress.of, 2u);
}

TEST(ClusterKinds, TellCodedUnitsFromOtherBytes) {
    const QByteArray photo = makePhoto(1);
    QByteArray bytes = photo.mid(4 * kClusterBytes, kClusterBytes);        // units
    bytes += photo.right(1000).leftJustified(kClusterBytes, '\0');         // an end
    bytes += QByteArray(kClusterBytes, '\0');                              // nothing
    bytes += QByteArray(kClusterBytes, 'a');                               // text
    bytes += QByteArray(kClusterBytes / 2, 'a').append(photo.left(2048));  // a head
    MemoryReader reader(bytes);
    MediumBlocks blocks(reader);
    const FreeClusters grid({0, kClusterSectors}, reader.mediumSectors());
    ClusterKinds clusters(blocks, grid);
    using Kind = ClusterKinds::Kind;
    const std::vector<Kind> expected = {Kind::Units, Kind::End, Kind::Foreign, Kind::Foreign, Kind::Foreign};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(clusters.kindOf(i), expected[i]) << i;
    }
}

}  // namespace vantor
