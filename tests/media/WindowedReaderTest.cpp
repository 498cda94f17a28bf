// Reading in windows shows nowhere but in its speed: every failure surfaces where single reads would meet it.
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>

#include "media/RefusedSectors.h"
#include "tests/media/WindowedSteps.h"

namespace vantor::test {
namespace {

TEST(WindowedReader, DeadStretch_FailsSeeksUntilItsEndAndLosesNothingBehindIt) {
    constexpr std::uint64_t kStart = 1000;
    constexpr std::uint64_t kEnd = kStart + 3 * WindowedReader::kDeadStretch;
    for (const bool wholeRequestFails : {true, false}) {
        ScriptedDrive medium;
        medium.sectors = kEnd + 5000;
        medium.wholeRequestFails = wholeRequestFails;
        for (std::uint64_t s = kStart; s < kEnd; ++s) {
            medium.refusals[s] = kAlways;
        }
        const auto single = plainSteps<PlainReader>(medium, 0, medium.sectors);
        const auto steps = windowedSteps(medium, 0, medium.sectors);
        for (std::uint64_t i = 0; i < steps.size(); ++i) {
            ASSERT_EQ(steps[i].readSucceeded, single[i].readSucceeded) << i;
            ASSERT_EQ(steps[i].bytesOf, single[i].bytesOf) << i;
            const bool dead = i >= kStart + WindowedReader::kDeadStretch && i < kEnd;
            ASSERT_EQ(steps[i].seekSucceeded, !dead) << i;
            ASSERT_TRUE(dead || steps[i].position == single[i].position) << i;
        }
        for (const auto& [sector, times] : medium.refused) {
            ASSERT_EQ(times, 2) << sector;
        }
    }
}

TEST(WindowedReader, DeadStretch_IsNoHindranceToOneWhoComesFromElsewhere) {
    ScriptedDrive medium;
    medium.sectors = 10000;
    medium.refusesFrom = 1000;
    WindowedReader reader(std::make_unique<ScriptedSource>(medium));
    scanSteps(reader, 0, medium.sectors);
    EXPECT_FALSE(reader.seek(9999));
    ASSERT_TRUE(reader.seek(500));
    ASSERT_TRUE(reader.read());
    EXPECT_EQ(reader.current()[0], 500 % 256);
    ASSERT_TRUE(reader.seek(9000));
    EXPECT_FALSE(reader.read());
}

TEST(WindowedReader, OneRefusalOnly_IsHealedByTheRetry) {
    ScriptedDrive medium;
    medium.sectors = 2 * kWindow;
    medium.refusals[100] = 1;
    for (const ScanStep& step : windowedSteps(medium, 0, medium.sectors)) {
        ASSERT_TRUE(step.readSucceeded);
    }
    EXPECT_EQ(medium.refused[100], 1);
}

// A drive that answers for one sector alone only when two readers have asked for it, or one waits for the
// other.
struct Meeting {
    static constexpr std::uint64_t kPlace = 3;

    ScriptedDrive drive;
    std::shared_ptr<RefusedSectors> refused = std::make_shared<RefusedSectors>();
    std::atomic<int> asked{0};  // for the sector alone
    std::mutex lock;
};

class MetSource : public BlockSource {
  public:
    explicit MetSource(Meeting& meeting) : m_meeting(meeting) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        if (sector == Meeting::kPlace && into.size() == kSectorBytes) {
            ++m_meeting.asked;
            while (m_meeting.asked < 2 && m_meeting.refused->waiting() == 0) {
                std::this_thread::yield();
            }
        }
        const std::lock_guard lock(m_meeting.lock);
        return m_meeting.drive.request(sector, into);
    }
    bool usable() override { return true; }

  private:
    Meeting& m_meeting;
};

TEST(WindowedReader, OfTwoAtOnce_OneAsksForABadSector) {
    Meeting meeting;
    meeting.drive.sectors = 6;
    meeting.drive.refusals[2] = kAlways;  // behind it both go sector by sector
    meeting.drive.refusals[Meeting::kPlace] = kAlways;
    std::vector<std::thread> readers;
    std::array<std::vector<ScanStep>, 2> steps;
    for (auto& mine : steps) {
        readers.emplace_back([&meeting, &mine] {
            WindowedReader reader(std::make_unique<MetSource>(meeting));
            reader.shareRefusals(meeting.refused);
            mine = scanSteps(reader, 0, meeting.drive.sectors);
        });
    }
    for (std::thread& reader : readers) {
        reader.join();
    }
    EXPECT_EQ(meeting.asked, 2);
    EXPECT_TRUE(meeting.refused->contains(Meeting::kPlace));
    EXPECT_TRUE(steps[0] == steps[1]);
}

TEST(WindowedReader, RefusedBlock_IsAskedForTwiceForAllItsSectors) {
    for (const std::uint64_t bad : {0U, 8U, 504U, 512U, 1016U}) {
        ScriptedDrive medium;
        medium.sectors = 3 * kWindow;
        medium.blockSectors = 8;
        for (std::uint64_t s = bad; s < bad + 8; ++s) {
            medium.refusals[s] = kAlways;
        }
        const auto expected = plainSteps<PlainReader>(medium, 0, medium.sectors);
        EXPECT_TRUE(windowedSteps(medium, 0, medium.sectors) == expected) << bad;
        EXPECT_EQ(medium.refusedRequests.size(), 2U) << bad;
    }
}

TEST(WindowedReader, LongDeadStretch_CostsTwoRequestsASectorAtMost) {
    ScriptedDrive medium;
    medium.sectors = 20000;
    for (std::uint64_t s = 1000; s < 11000; ++s) {
        medium.refusals[s] = kAlways;
    }
    windowedSteps(medium, 0, medium.sectors);
    // Beside two requests for each dead sector: single reads up to the stretch and a window's length behind
    // it, and whole windows elsewhere. The scan reads each refused sector twice, which asks for nothing.
    EXPECT_LE(medium.requests, 2U * 10000 + 2 * kWindow + medium.sectors / kWindow + 2);
    EXPECT_EQ(medium.refused.size(), 5000U + 5000U);
}

TEST(WindowedReader, HealthyMedium_IsReadInWholeWindows) {
    ScriptedDrive medium;
    medium.sectors = 10 * kWindow;
    windowedSteps(medium, 0, medium.sectors);
    EXPECT_EQ(medium.requests, 10U);
}

// As a look at places all over a card does before its search.
TEST(WindowedReader, AfterALookAtTheEndOrAtAFault_ReadsTheRestInWindows) {
    for (const std::uint64_t looked : {8 * kWindow - 1, 6 * kWindow + 3}) {
        ScriptedDrive medium;
        medium.sectors = 8 * kWindow;
        medium.refusals[6 * kWindow + 3] = kAlways;
        WindowedReader reader(std::make_unique<ScriptedSource>(medium));
        ASSERT_TRUE(reader.seek(looked));
        EXPECT_EQ(reader.read(), looked != 6 * kWindow + 3);
        const std::uint64_t requests = medium.requests;
        ASSERT_TRUE(reader.seek(0));
        for (std::uint64_t i = 0; i < 6 * kWindow; ++i) {
            ASSERT_TRUE(reader.read()) << i;
        }
        EXPECT_EQ(medium.requests - requests, 6) << looked;
    }
}

TEST(WindowedReader, AfterAFault_GoesBackToWindows) {
    ScriptedDrive medium;
    medium.sectors = 100 * kWindow;
    medium.refusals[5] = kAlways;
    windowedSteps(medium, 0, medium.sectors);
    EXPECT_LE(medium.requests, kWindow + 110);
}

TEST(WindowedReader, MediumGone_FailsReadsAndSeeksWithoutAskingIt) {
    ScriptedDrive medium;
    medium.sectors = std::uint64_t{1} << 26;
    medium.goneFrom = 1000;
    WindowedReader reader(std::make_unique<ScriptedSource>(medium));
    const auto steps = scanSteps(reader, 0, 100000);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        ASSERT_EQ(steps[i].readSucceeded, i < 1000) << i;
        ASSERT_EQ(steps[i].seekSucceeded, i < 1000) << i;
    }
    EXPECT_EQ(steps.back().position, 1000U);
    EXPECT_EQ(steps.back().bytesOf, 999U);
    EXPECT_LE(medium.requests, 4U);
    EXPECT_FALSE(reader.seek(0));
}

TEST(WindowedReader, EndOfTheMedium_FailsReadsButNotSeeks) {
    ScriptedDrive medium;
    medium.sectors = kWindow + 7;
    WindowedReader reader(std::make_unique<ScriptedSource>(medium));
    const auto steps = scanSteps(reader, 0, kWindow + 20);
    EXPECT_TRUE(steps[kWindow + 6].readSucceeded);
    EXPECT_FALSE(steps[kWindow + 7].readSucceeded);
    EXPECT_TRUE(steps[kWindow + 7].seekSucceeded);
    ASSERT_TRUE(reader.seek(3));
    ASSERT_TRUE(reader.read());
    EXPECT_EQ(reader.current()[0], 3);
}

TEST(WindowedReader, PositionsBeyondTwoTebibytes_ReachTheMedium) {
    constexpr std::uint64_t kFar = (std::uint64_t{1} << 40) + 17;  // sectors: 512 TiB
    ScriptedDrive medium;
    medium.sectors = kFar + 4;
    WindowedReader reader(std::make_unique<ScriptedSource>(medium));
    ASSERT_TRUE(reader.seek(kFar));
    ASSERT_TRUE(reader.read());
    std::uint64_t number = 0;
    std::memcpy(&number, reader.current(), sizeof(number));
    EXPECT_EQ(number, kFar);
}

}  // namespace
}  // namespace vantor::test
