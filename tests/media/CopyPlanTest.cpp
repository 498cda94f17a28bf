// The order in which a medium is copied, and what it costs in refusals.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <vector>

#include "media/CopyPlan.h"
#include "media/SectorReader.h"

namespace vantor {
namespace {

// A medium of which some sectors are never read; a request goes up to the first of them, or fails whole.
struct PlannedDrive {
    std::set<std::uint64_t> bad;
    bool wholeRequestFails = true;
    std::uint64_t block = 1;
    std::map<std::uint64_t, int> asked;  // of each bad sector, how many requests met it
    std::vector<CopyStep> steps;

    std::uint64_t read(const CopyStep& step) {
        steps.push_back(step);
        for (std::uint64_t sector = step.first; sector < step.end; ++sector) {
            if (bad.contains(sector)) {
                ++asked[sector];
                return wholeRequestFails ? 0 : sector - step.first;
            }
        }
        return step.end - step.first;
    }
};

CopyMap copied(PlannedDrive& drive, std::uint64_t sectors, std::vector<SectorRun> goals,
               bool scrapeAll = false) {
    CopyMap map(sectors * kSectorBytes);
    CopyPlan plan(map, drive.block);
    if (scrapeAll) {
        plan.scrapeAll();
    }
    plan.setGoals(std::move(goals));
    std::uint64_t most = 20 * sectors;
    while (const auto step = plan.next()) {
        EXPECT_LT(step->first, step->end);
        plan.done(*step, drive.read(*step));
        if (--most == 0) {
            ADD_FAILURE() << "no end";
            break;
        }
    }
    return map;
}

CopyState stateOf(const CopyMap& map, std::uint64_t sector) {
    return map.at(sector * kSectorBytes).state;
}

}  // namespace

TEST(CopyPlan, AGoodMediumIsReadOnceFromFrontToEnd) {
    PlannedDrive drive;
    const CopyMap map = copied(drive, 5000, {{0, 100}, {0, 5000}});
    EXPECT_EQ(map.bytesIn(CopyState::Copied), map.bytes());
    EXPECT_EQ(drive.steps.front().end, 100U) << "the first goal first";
    std::uint64_t at = 0;
    for (const CopyStep& step : drive.steps) {
        EXPECT_EQ(step.first, at);
        at = step.end;
    }
    EXPECT_EQ(map.position.phase, '+');
}

TEST(CopyPlan, OnlyTheGoalsAreRead) {
    PlannedDrive drive;
    const CopyMap map = copied(drive, 5000, {{4000, 4100}, {10, 20}});
    EXPECT_EQ(map.bytesIn(CopyState::Copied), 110 * kSectorBytes);
    EXPECT_EQ(drive.steps.front().first, 4000U);
}

TEST(CopyPlan, ABadZoneDoesNotHoldUpWhatIsBehindIt) {
    PlannedDrive drive;
    for (std::uint64_t sector = 10'000; sector < 40'000; ++sector) {
        drive.bad.insert(sector);
    }
    copied(drive, 200'000, {{0, 200'000}});
    std::size_t behind = 0;
    while (drive.steps[behind].end < 200'000) {
        ++behind;
    }
    // Before the end was reached once, only a few requests met the zone of 59 pieces.
    const auto refused =
        std::count_if(drive.steps.begin(), drive.steps.begin() + static_cast<std::ptrdiff_t>(behind),
                      [&](const CopyStep& step) { return step.first < 40'000 && step.end > 10'000; });
    EXPECT_LE(refused, 8);
    EXPECT_EQ(drive.steps[behind].kind, CopyStep::Kind::Copy);
}

TEST(CopyPlan, AllGoodSectorsAreCopiedAndNoBadOneIsAskedForThrice) {
    std::mt19937 random(3);
    for (int round = 0; round < 40; ++round) {
        PlannedDrive drive;
        drive.wholeRequestFails = round % 2 == 0;
        drive.block = round % 3 == 0 ? 8 : 1;
        constexpr std::uint64_t kSectors = 30'000;
        for (int zone = 0; zone < 6; ++zone) {
            const std::uint64_t first = random() % kSectors / drive.block * drive.block;
            const std::uint64_t blocks = 1 + random() % (zone == 0 ? 3000 : 20);
            for (std::uint64_t sector = first; sector < std::min(kSectors, first + blocks * drive.block);
                 ++sector) {
                drive.bad.insert(sector);
            }
        }
        const CopyMap map = copied(drive, kSectors, {{0, kSectors}}, true);
        for (std::uint64_t sector = 0; sector < kSectors; ++sector) {
            ASSERT_EQ(stateOf(map, sector), drive.bad.contains(sector) ? CopyState::Bad : CopyState::Copied)
                << round << " " << sector;
        }
        for (const auto& [sector, times] : drive.asked) {
            ASSERT_LE(times, drive.wholeRequestFails ? 2 : 3) << round << " " << sector;
        }
    }
}

TEST(CopyPlan, FarBetweenBadSectorsNothingIsAskedForUntilItIsWished) {
    PlannedDrive drive;
    for (std::uint64_t sector = 1000; sector < 9000; ++sector) {
        drive.bad.insert(sector);
    }
    drive.bad.erase(5000);
    const CopyMap map = copied(drive, 20'000, {{0, 20'000}});
    EXPECT_EQ(stateOf(map, 999), CopyState::Copied);
    EXPECT_EQ(stateOf(map, 9000), CopyState::Copied);
    EXPECT_EQ(stateOf(map, 5000), CopyState::NotScraped);
    PlannedDrive wished = drive;
    EXPECT_EQ(stateOf(copied(wished, 20'000, {{0, 20'000}}, true), 5000), CopyState::Copied);

    // Closer together they are asked for one by one.
    PlannedDrive close;
    close.bad = {1000, 1500};
    EXPECT_EQ(stateOf(copied(close, 20'000, {{0, 20'000}}), 1250), CopyState::Copied);
}

TEST(CopyPlan, GoesOnFromAnyMap) {
    std::mt19937 random(5);
    constexpr CopyState kStates[] = {CopyState::NotTried, CopyState::NotTrimmed, CopyState::NotScraped,
                                     CopyState::Bad, CopyState::Copied};
    for (int round = 0; round < 200; ++round) {
        constexpr std::uint64_t kSectors = 20'000;
        CopyMap map(kSectors * kSectorBytes);
        for (int run = 0; run < 20; ++run) {
            const std::uint64_t first = random() % kSectors;
            map.set(first * kSectorBytes, (first + random() % 3000) * kSectorBytes, kStates[random() % 5]);
        }
        const std::uint64_t copiedBefore = map.bytesIn(CopyState::Copied);
        const std::uint64_t badBefore = map.bytesIn(CopyState::Bad);
        CopyPlan plan(map);
        plan.scrapeAll();
        plan.setGoals({{0, kSectors}});
        std::uint64_t read = 0;
        while (const auto step = plan.next()) {
            ASSERT_NE(stateOf(map, step->first), CopyState::Copied);
            ASSERT_NE(stateOf(map, step->first), CopyState::Bad);
            read += step->end - step->first;
            plan.done(*step, step->end - step->first);
        }
        EXPECT_EQ(map.bytesIn(CopyState::Bad), badBefore);
        EXPECT_EQ(map.bytesIn(CopyState::Copied) + badBefore, map.bytes());
        EXPECT_EQ(copiedBefore + read * kSectorBytes + badBefore, map.bytes()) << "something was read twice";
    }
}

}  // namespace vantor
