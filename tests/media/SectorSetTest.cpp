// Which sectors were refused, kept as runs.
#include <gtest/gtest.h>

#include "media/SectorSet.h"

namespace vantor::test {
namespace {

TEST(SectorSet, NeighboursBecomeOneRun) {
    SectorSet set;
    for (const std::uint64_t s : {5U, 7U, 6U, 4U, 9U}) {
        set.add(s);
    }
    EXPECT_EQ(set.runs(), 2U);
    for (std::uint64_t s = 0; s < 12; ++s) {
        EXPECT_EQ(set.contains(s), (s >= 4 && s <= 7) || s == 9) << s;
    }
    EXPECT_EQ(set.firstFrom(0), 4U);
    EXPECT_EQ(set.firstFrom(6), 6U);
    EXPECT_EQ(set.firstFrom(8), 9U);
    EXPECT_EQ(set.firstFrom(10), ~std::uint64_t{0});
}

TEST(SectorSet, KnowsWhereARowBegins) {
    SectorSet set;
    for (const std::uint64_t s : {4U, 5U, 6U, 9U}) {
        set.add(s);
    }
    const std::uint64_t expected[] = {0, 1, 2, 3, 4, 4, 4, 4, 8, 9, 9, 11};
    for (std::uint64_t s = 0; s < 12; ++s) {
        EXPECT_EQ(set.firstOfRunUpTo(s), expected[s]) << s;
    }
}

TEST(SectorSet, GrowsToItsBoundOnly) {
    SectorSet set;
    for (std::uint64_t s = 0; s < 4 * SectorSet::kMaxRuns; s += 2) {
        set.add(s);
    }
    EXPECT_EQ(set.runs(), SectorSet::kMaxRuns);
    EXPECT_TRUE(set.contains(4 * SectorSet::kMaxRuns - 2));
}

}  // namespace
}  // namespace vantor::test
