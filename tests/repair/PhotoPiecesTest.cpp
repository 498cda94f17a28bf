// Photos whose clusters lie scattered over a medium.
#include <gtest/gtest.h>

#include "repair/ClusterKinds.h"
#include "repair/PhotoCompletion.h"
#include "tests/repair/MemoryReader.h"
#include "tests/repair/Photos.h"

namespace vantor {
namespace {

using test::makePhoto;
using test::MemoryReader;

constexpr qsizetype kClusterBytes = 4096;
constexpr std::uint64_t kClusterSectors = 8;
const std::atomic<int> kGoOn{0};

// Pieces of files one behind the other, each in clusters of its own, behind four empty ones.
class Card {
  public:
    // Clusters [from, to) of the file; the first sector of them.
    std::uint64_t put(const QByteArray& file, qsizetype from = 0, qsizetype to = 1'000'000) {
        const auto first = static_cast<std::uint64_t>(m_bytes.size()) / kSectorBytes;
        const QByteArray piece = file.mid(from * kClusterBytes, (to - from) * kClusterBytes);
        const qsizetype clusters = (piece.size() + kClusterBytes - 1) / kClusterBytes;
        m_bytes += piece.leftJustified(clusters * kClusterBytes, '\0');
        return first;
    }
    void putNoise(int clusters) {
        std::mt19937 random(7);
        for (qsizetype i = 0; i < clusters * kClusterBytes; ++i) {
            m_bytes += static_cast<char>(random());
        }
    }

    std::optional<Assembly> completed(std::uint64_t first, const std::vector<std::uint64_t>& alsoBroken = {},
                                      const std::vector<SectorRun>& whole = {}) const {
        const QByteArray bytes = m_bytes + QByteArray(16 * kClusterBytes, '\0');
        MemoryReader reader(bytes);
        std::vector<std::uint64_t> broken = alsoBroken;
        broken.push_back(first);
        return PhotoCompletion(reader, kGoOn).run(broken, whole).back();
    }
    QByteArray contentOf(const Assembly& assembly) const {
        QByteArray content;
        for (const SectorRun& run : assembly.runs) {
            content += m_bytes.mid(static_cast<qsizetype>(run.first * kSectorBytes),
                                   static_cast<qsizetype>((run.end - run.first) * kSectorBytes));
        }
        return content.left(static_cast<qsizetype>(assembly.bytes));
    }

  private:
    QByteArray m_bytes = QByteArray(4 * kClusterBytes, '\0');
};

qsizetype clustersOf(const QByteArray& file) {
    return (file.size() + kClusterBytes - 1) / kClusterBytes;
}

}  // namespace

TEST(PhotoPieces, TwoPiecesWithSomethingElseBetween_AreJoined) {
    const QByteArray photo = makePhoto(1);
    const qsizetype cut = clustersOf(photo) / 2;
    Card card;
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
    Card card;
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
    Card card;
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
    const QByteArray one = makePhoto(1);
    const QByteArray other = makePhoto(2);
    Card card;
    const std::uint64_t firstOfOne = card.put(one, 0, clustersOf(one) / 2);
    const std::uint64_t firstOfOther = card.put(other, 0, clustersOf(other) / 2);
    card.put(one, clustersOf(one) / 2);
    card.put(other, clustersOf(other) / 2);
    const auto assembly = card.completed(firstOfOne, {firstOfOther});
    ASSERT_TRUE(assembly);
    EXPECT_EQ(card.contentOf(*assembly), one);
    const auto second = card.completed(firstOfOther, {firstOfOne});
    ASSERT_TRUE(second);
    EXPECT_EQ(card.contentOf(*second), other);
}

TEST(PhotoPieces, ThreePiecesOutOfOrder_AreJoined) {
    const QByteArray photo = makePhoto(3);
    const qsizetype third = clustersOf(photo) / 3;
    Card card;
    const std::uint64_t first = card.put(photo, 0, third);
    card.putNoise(3);
    card.put(photo, 2 * third);
    card.putNoise(2);
    card.put(photo, third, 2 * third);
    const auto assembly = card.completed(first);
    ASSERT_TRUE(assembly);
    EXPECT_EQ(assembly->runs.size(), 3u);
    EXPECT_EQ(card.contentOf(*assembly), photo);
}

TEST(PhotoPieces, ContinuationGone_NoOtherIsTaken) {
    const QByteArray photo = makePhoto(1);
    const qsizetype cut = clustersOf(photo) / 2;
    Card card;
    const std::uint64_t first = card.put(photo, 0, cut);
    for (const unsigned seed : {2u, 3u, 4u, 5u}) {
        const QByteArray other = makePhoto(seed);
        card.put(other, clustersOf(other) / 2);
    }
    EXPECT_FALSE(card.completed(first));
}

TEST(PhotoPieces, WholePhoto_IsNotPutTogether) {
    Card card;
    EXPECT_FALSE(card.completed(card.put(makePhoto(1))));
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
