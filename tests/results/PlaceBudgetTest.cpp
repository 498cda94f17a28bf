// What one place costs is not missing at another.
#include <gtest/gtest.h>

#include "results/MediumBytes.h"
#include "results/PlaceBudget.h"
#include "tests/support/SmallFiles.h"

namespace vantor {

constexpr std::uint64_t kPlace = PlaceBudget::kPlaceSectors;

TEST(PlaceBudget, PlacesArePaidForOneByOne) {
    PlaceBudget budget(10 * kPlace);
    budget.spend({kPlace / 2, 2 * kPlace});
    EXPECT_FALSE(budget.isSpent(0, 1)) << "half of it";
    EXPECT_TRUE(budget.isSpent(kPlace, 1));
    EXPECT_FALSE(budget.isSpent(kPlace, 2));
    EXPECT_FALSE(budget.isSpent(2 * kPlace, 1));
    EXPECT_TRUE(budget.covers({0, kPlace / 2}, 1));
    EXPECT_FALSE(budget.covers({0, kPlace / 2 + 1}, 1));
    EXPECT_FALSE(budget.covers({0, kPlace + 1}, 1)) << "one place of several";
    EXPECT_TRUE(budget.covers({2 * kPlace, 10 * kPlace}, 1));
}

TEST(PlaceBudget, MediaWithoutEndTakeNoMemoryWithoutEnd) {
    constexpr std::uint64_t kMost = ~std::uint64_t{0};
    PlaceBudget budget(kMost / 512);
    budget.spend({0, 1});
    budget.spend({kMost / 512 - 1, kMost / 512 + 100});
    EXPECT_FALSE(budget.isSpent(kMost, 1));
}

TEST(MediumBytesInVain, EndsWhereAPlaceWasReadTooOftenAndNowhereElse) {
    ScriptedMedium medium = mediumWith({}, 0, 3 * kPlace);
    ScriptedReader reader(medium);
    const std::uint64_t times = mostVainReads(medium.bytes.size());
    PlaceBudget vain(medium.bytes.size());
    std::vector<std::uint8_t> memory, into(512);
    for (std::uint64_t time = 0; time <= times; ++time) {
        ItemSource source{{{{0, 1}}, false}, {}, [&] { return &reader; }, medium.bytes.size()};
        source.readInVain = &vain;
        MediumBytes bytes(source, memory);
        std::vector<std::uint8_t> whole(kPlace * 512);
        const std::size_t arrived = bytes.read(kPlace * 512, whole);
        EXPECT_EQ(arrived, time < times ? whole.size() : 0U) << time;
        EXPECT_EQ(bytes.ranOut(), time == times);
        EXPECT_EQ(bytes.read(2 * kPlace * 512, into), into.size()) << "another place";
        bytes.endMeasuring();
        EXPECT_EQ(bytes.read(kPlace * 512, into), into.size()) << "what is written is not read in vain";
        bytes.spendReading(vain);
    }
}

}  // namespace vantor
