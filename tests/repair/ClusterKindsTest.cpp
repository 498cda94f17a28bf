// Clusters asked for again and again while photos are put together.
#include <gtest/gtest.h>

#include "repair/ClusterKinds.h"
#include "tests/repair/MemoryReader.h"

namespace vantor {
namespace {

constexpr std::uint64_t kClusters = 3000;
constexpr std::uint64_t kSectors = 8;

class CodedClusters : public testing::Test {
  protected:
    // Units of a picture: bytes without marks, and stuffed ones among them.
    void putUnits(std::uint64_t cluster) {
        const auto bytes = static_cast<qsizetype>(kSectors * kSectorBytes);
        QByteArray units(bytes, '\x5A');
        units[100] = '\xFF';
        units[101] = '\0';
        card.replace(static_cast<qsizetype>(cluster) * bytes, bytes, units);
    }
    static std::vector<std::uint64_t> from(ClusterKinds& kinds, std::uint64_t cluster,
                                           std::size_t most = kClusters) {
        std::vector<std::uint64_t> taken;
        kinds.eachCoded(cluster, [&](std::uint64_t each) {
            taken.push_back(each);
            return taken.size() < most;
        });
        return taken;
    }

    QByteArray card{static_cast<qsizetype>(kClusters * kSectors * kSectorBytes), '\0'};
    FreeClusters free{{0, kSectors}, kClusters* kSectors};
};

using Clusters = std::vector<std::uint64_t>;

TEST_F(CodedClusters, AreToldRoundTheCard_FromWhereverAndHoweverOften) {
    for (const std::uint64_t cluster : {3U, 511U, 512U, 1400U, 2999U}) {
        putUnits(cluster);
    }
    test::MemoryReader medium(card);
    MediumBlocks blocks(medium);
    ClusterKinds kinds(blocks, free);
    for (int again = 0; again < 3; ++again) {
        EXPECT_EQ(from(kinds, 600), (Clusters{1400, 2999, 3, 511, 512}));
        EXPECT_EQ(from(kinds, 512), (Clusters{1400, 2999, 3, 511})) << "not the one it begins behind";
        EXPECT_EQ(from(kinds, 0), (Clusters{3, 511, 512, 1400, 2999}));
        EXPECT_EQ(from(kinds, 2999), (Clusters{3, 511, 512, 1400}));
        EXPECT_EQ(from(kinds, 1399, 2), (Clusters{1400, 2999})) << "until enough are taken";
        EXPECT_EQ(from(kinds, 1400, 2), (Clusters{2999, 3}));
    }
}

TEST_F(CodedClusters, StretchSeenInPartOnly_IsNotTakenForOneWithoutAny) {
    putUnits(520);
    putUnits(1500);
    test::MemoryReader medium(card);
    MediumBlocks blocks(medium);
    ClusterKinds kinds(blocks, free);
    EXPECT_EQ(from(kinds, 530, 1), Clusters{1500}) << "the rest of the stretch of 520 holds none";
    EXPECT_EQ(from(kinds, 0), (Clusters{520, 1500}));
    EXPECT_EQ(from(kinds, 520), Clusters{1500}) << "and what lies before it none either";
    EXPECT_EQ(from(kinds, 0), (Clusters{520, 1500}));
}

TEST_F(CodedClusters, OnesTakenMeanwhile_AreToldNoMore) {
    putUnits(40);
    putUnits(700);
    test::MemoryReader medium(card);
    MediumBlocks blocks(medium);
    ClusterKinds kinds(blocks, free);
    EXPECT_EQ(from(kinds, 0), (Clusters{40, 700}));
    free.takeCluster(40);
    EXPECT_EQ(from(kinds, 0), Clusters{700});
    free.takeCluster(700);
    EXPECT_EQ(from(kinds, 0), Clusters{});
}

}  // namespace
}  // namespace vantor
