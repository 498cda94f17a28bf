// Photos coded in several scans whose clusters lie scattered over a medium.
#include <gtest/gtest.h>

#include "repair/ClusterRow.h"
#include "repair/ProgressiveUnits.h"
#include "tests/repair/Photos.h"
#include "tests/repair/ScatteredCard.h"

namespace vantor {
namespace {

using test::clustersOf;
using test::kClusterBytes;
using test::kClusterSectors;

QByteArray scansOf(unsigned seed) {
    return test::makePhoto(seed, 640, 480, test::Scans::Progressive);
}

// The clusters of a file that lies in one piece.
class WholeFile final : public ClusterSupply {
  public:
    explicit WholeFile(const QByteArray& file) : m_file(file) {}
    std::span<const std::uint8_t> cluster(std::uint64_t number) override {
        const auto at = static_cast<qsizetype>(number) * kClusterBytes;
        const QByteArrayView part = QByteArrayView(m_file).sliced(std::min(at, m_file.size()));
        return {reinterpret_cast<const std::uint8_t*>(part.data()),
                static_cast<std::size_t>(std::min(part.size(), kClusterBytes))};
    }

  private:
    const QByteArray m_file;
};

ProgressiveUnits::Outcome readToEnd(ProgressiveUnits& units) {
    auto outcome = ProgressiveUnits::Outcome::Unit;
    while (outcome == ProgressiveUnits::Outcome::Unit) {
        outcome = units.next();
    }
    return outcome;
}

}  // namespace

TEST(ProgressiveUnits, WholePhoto_EndsWithItsEndMark) {
    const QByteArray photo = scansOf(1);
    WholeFile file(photo + QByteArray(1000, '\0'));
    ProgressiveUnits units(kClusterBytes, file);
    ASSERT_TRUE(units.begin());
    EXPECT_EQ(readToEnd(units), ProgressiveUnits::Outcome::Complete);
    EXPECT_EQ(units.place().at, static_cast<std::uint64_t>(photo.size()));
    EXPECT_GT(units.place().scans, 5U);
}

TEST(ProgressiveUnits, PhotoCutShort_RunsOutOfData) {
    const QByteArray photo = scansOf(1);
    WholeFile file(photo.left(photo.size() / 2));
    ProgressiveUnits units(kClusterBytes, file);
    ASSERT_TRUE(units.begin());
    EXPECT_EQ(readToEnd(units), ProgressiveUnits::Outcome::OutOfData);
}

TEST(ProgressiveUnits, OtherCodings_AreNone) {
    for (const QByteArray& other : {test::makePhoto(1), QByteArray("GIF89a"), QByteArray()}) {
        WholeFile file(other);
        ProgressiveUnits units(kClusterBytes, file);
        EXPECT_FALSE(units.begin());
    }
}

// What scans told of blocks is forgotten on the way back: else bits would be read that are not there.
TEST(ProgressiveUnits, ReadOnFromAnEarlierPlace_ComesToTheSameEnd) {
    const QByteArray photo = scansOf(1);
    WholeFile file(photo);
    ProgressiveUnits units(kClusterBytes, file);
    ASSERT_TRUE(units.begin());
    std::vector<ProgressiveUnits::Place> places;
    std::uint64_t read = 0;
    while (units.next() == ProgressiveUnits::Outcome::Unit) {
        if (++read % 5000 == 0) {
            places.push_back(units.before());
        }
    }
    ASSERT_GT(places.size(), 4U);
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        units.resume(*place);
        EXPECT_EQ(readToEnd(units), ProgressiveUnits::Outcome::Complete)
            << place->scans << ' ' << place->unit;
    }
}

TEST(ProgressivePieces, TwoPiecesCutInAnyScan_AreJoined) {
    const QByteArray photo = scansOf(1);
    for (const qsizetype part : {1, 3, 5, 7, 9}) {
        const qsizetype cut = std::max<qsizetype>(clustersOf(photo) * part / 10, 1);
        test::ScatteredCard card;
        const std::uint64_t first = card.put(photo, 0, cut);
        card.putNoise(9);
        card.put(photo, cut);
        const auto assembly = card.completed(first);
        ASSERT_TRUE(assembly) << part;
        EXPECT_EQ(assembly->runs.size(), 2U);
        EXPECT_EQ(assembly->proof, AssemblyProof::Proved);
        EXPECT_EQ(card.contentOf(*assembly), photo) << part;
    }
}

TEST(ProgressivePieces, TwoPhotosCrossed_ComeApart) {
    test::expectToComeApart(scansOf(1), scansOf(2));
}

TEST(ProgressivePieces, ThreePiecesOutOfOrder_AreJoined_AndToBeLookedAt) {
    const QByteArray photo = scansOf(3);
    test::ScatteredCard card;
    const std::uint64_t first = card.putOutOfOrder(photo);
    const auto assembly = card.completed(first);
    ASSERT_TRUE(assembly);
    EXPECT_EQ(card.contentOf(*assembly), photo);
    EXPECT_EQ(assembly->proof, AssemblyProof::Likely);
}

TEST(ProgressivePieces, PieceGone_NoOtherIsTaken) {
    const QByteArray photo = scansOf(1);
    const qsizetype third = clustersOf(photo) / 3;
    test::ScatteredCard card;
    const std::uint64_t first = card.put(photo, 0, third);
    for (const unsigned seed : {2U, 3U, 4U, 5U}) {
        const QByteArray other = scansOf(seed);
        card.put(other, clustersOf(other) / 3);
    }
    card.put(photo, third + 2);
    EXPECT_FALSE(card.completed(first));
}

}  // namespace vantor
