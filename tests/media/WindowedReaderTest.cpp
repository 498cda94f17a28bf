// Reading in windows shows nowhere but in its speed: every failure surfaces where single reads would meet it.
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>

#include "media/RefusedSectors.h"
#include "media/WindowedReader.h"
#include "tests/media/ScriptedDrive.h"

namespace vantor::test {
namespace {

constexpr std::uint64_t kWindow = WindowedReader::kWindowSectors;

std::vector<ScanStep> windowedSteps(ScriptedDrive& medium, std::uint64_t start, std::uint64_t end) {
    WindowedReader reader(std::make_unique<ScriptedSource>(medium));
    return scanSteps(reader, start, end);
}

template <class Reader>
std::vector<ScanStep> plainSteps(ScriptedDrive medium, std::uint64_t start, std::uint64_t end) {
    Reader reader(medium);
    return scanSteps(reader, start, end);
}

struct Shape {
    bool wholeRequestFails;
    std::uint64_t start, end, sectors;
};

const std::vector<Shape>& shapes() {
    static const std::vector<Shape> all = {
        {true, 0, 3 * kWindow, 3 * kWindow},
        {false, 0, 3 * kWindow, 3 * kWindow},
        {true, 3, 2 * kWindow + 3, 3 * kWindow},
        {false, 3, 2 * kWindow + 3, 3 * kWindow},
        {true, kWindow - 1, 2 * kWindow + 5, 2 * kWindow + 5},
        {false, kWindow - 1, 2 * kWindow + 9, 2 * kWindow + 5},
    };
    return all;
}

// Near an end of the range or of a buffer, or one of a few places between.
bool isTellingPlace(const Shape& shape, std::uint64_t fault) {
    const auto nearWindowEdge = [](std::uint64_t s) { return s % kWindow < 4 || s % kWindow > kWindow - 4; };
    return nearWindowEdge(fault) || nearWindowEdge(fault - shape.start) || fault % 97 == 0;
}

// At an end of the range or of a buffer, where most goes wrong.
bool isEdge(const Shape& shape, std::uint64_t fault) {
    const auto atWindowEdge = [](std::uint64_t s) { return s % kWindow < 2 || s % kWindow > kWindow - 3; };
    return fault < shape.start + 2 || fault + 3 >= shape.end || atWindowEdge(fault) ||
           atWindowEdge(fault - shape.start) || fault % 251 == 0;
}

enum class Places { All, Telling, Edges };

// Every place of two windows where the range begins with the medium, the telling ones elsewhere: both ends of
// the range and of every buffer are among them.
template <class Check>
void forEveryFault(Places places, Check check) {
    for (const Shape& shape : shapes()) {
        for (std::uint64_t fault = shape.start; fault < shape.start + 2 * kWindow; ++fault) {
            const bool everyPlace = places == Places::All && shape.start == 0;
            const bool telling =
                places == Places::Edges ? isEdge(shape, fault) : isTellingPlace(shape, fault);
            if (!everyPlace && !telling) {
                continue;
            }
            ScriptedDrive medium;
            medium.sectors = shape.sectors;
            medium.wholeRequestFails = shape.wholeRequestFails;
            check(shape, fault, medium);
            if (testing::Test::HasFailure()) {
                ADD_FAILURE() << "fault at " << fault << ", range " << shape.start << " to " << shape.end
                              << ", whole request fails: " << shape.wholeRequestFails;
                return;
            }
        }
    }
}

TEST(WindowedReader, PersistentFault_SurfacesAsWithSingleReads) {
    forEveryFault(Places::All, [](const Shape& shape, std::uint64_t fault, ScriptedDrive& medium) {
        medium.refusals[fault] = kAlways;
        const auto expected = plainSteps<PlainReader>(medium, shape.start, shape.end);
        EXPECT_TRUE(windowedSteps(medium, shape.start, shape.end) == expected);
    });
}

TEST(WindowedReader, AdjacentPersistentFaults_SurfaceAsWithSingleReads) {
    for (const std::uint64_t length : {2U, 7U, 600U}) {
        forEveryFault(Places::Telling,
                      [length](const Shape& shape, std::uint64_t fault, ScriptedDrive& medium) {
                          for (std::uint64_t s = fault; s < fault + length; ++s) {
                              medium.refusals[s] = kAlways;
                          }
                          const auto expected = plainSteps<PlainReader>(medium, shape.start, shape.end);
                          EXPECT_TRUE(windowedSteps(medium, shape.start, shape.end) == expected);
                      });
    }
}

TEST(WindowedReader, FaultsAPartOfAWindowApart_SurfaceAsWithSingleReads) {
    for (const std::uint64_t distance : {2U, 3U, 511U, 512U, 513U}) {
        forEveryFault(Places::Telling,
                      [distance](const Shape& shape, std::uint64_t fault, ScriptedDrive& medium) {
                          medium.refusals[fault] = kAlways;
                          medium.refusals[fault + distance] = kAlways;
                          const auto expected = plainSteps<PlainReader>(medium, shape.start, shape.end);
                          EXPECT_TRUE(windowedSteps(medium, shape.start, shape.end) == expected);
                      });
    }
}

TEST(WindowedReader, TransientFault_SurfacesAsWithSingleReadsAndOneRetry) {
    for (const int times : {1, 2, 3}) {
        forEveryFault(Places::All, [times](const Shape& shape, std::uint64_t fault, ScriptedDrive& medium) {
            medium.refusals[fault] = times;
            const auto expected = plainSteps<PlainReaderWithRetry>(medium, shape.start, shape.end);
            EXPECT_TRUE(windowedSteps(medium, shape.start, shape.end) == expected);
        });
    }
}

// A window that is refused whole does not say where, so of two neighbours the second may be given up for the
// window that the first one spoiled. What holds for every kind of neighbours: a sector is given up when two
// requests that held it were refused, never for less; it refuses twice at most; and the reading goes on
// exactly as single reads do on a medium whose only bad sectors are those.
void expectReadingOfAMediumWithTheLostSectorsOnly(const Shape& shape, ScriptedDrive& medium) {
    const ScriptedDrive asWritten = medium;
    WindowedReader reader(std::make_unique<ScriptedSource>(medium));
    if (shape.start != 0) {
        reader.seek(shape.start);
    }
    ScriptedDrive lostOnly;
    lostOnly.sectors = shape.sectors;
    std::vector<ScanStep> steps;
    for (std::uint64_t index = shape.start; index < shape.end; ++index) {
        ScanStep step;
        const std::uint64_t asked = reader.position();
        step.readSucceeded = reader.read();
        if (!step.readSucceeded) {
            lostOnly.refusals[asked] = kAlways;
            step.seekSucceeded = reader.seek(index);
        }
        step.position = reader.position();
        std::memcpy(&step.bytesOf, reader.current(), sizeof(step.bytesOf));
        steps.push_back(step);
    }
    EXPECT_TRUE(steps == plainSteps<PlainReader>(lostOnly, shape.start, shape.end));
    for (const auto& [sector, times] : asWritten.refusals) {
        if (sector >= shape.sectors) {
            continue;  // behind the end of the medium
        }
        int inVain = 0;
        for (const auto& [first, end] : medium.refusedRequests) {
            inVain += sector >= first && sector < end ? 1 : 0;
        }
        const bool lost = lostOnly.refusals.count(sector) != 0;
        const bool reached = steps.back().position > sector;
        const auto refused = medium.refused.find(sector);
        EXPECT_LE(refused == medium.refused.end() ? 0 : refused->second, 2) << sector;
        EXPECT_TRUE(!lost || inVain >= 2) << sector;
        EXPECT_TRUE(lost || !reached || times < 2) << sector;
    }
}

TEST(WindowedReader, NeighbouringFaultsOfEveryKind_CostWhatWasRefusedTwiceAndNothingElse) {
    for (const int first : {1, 2, 3, kAlways}) {
        for (const int second : {1, 2, 3, kAlways}) {
            for (const int third : {0, 1, 2, kAlways}) {
                for (const std::uint64_t distance : {1U, 2U, 100U}) {
                    if (distance == 100 && third != 0) {
                        continue;
                    }
                    forEveryFault(Places::Edges,
                                  [&](const Shape& shape, std::uint64_t fault, ScriptedDrive& medium) {
                                      medium.refusals[fault] = first;
                                      medium.refusals[fault + distance] = second;
                                      if (third != 0) {
                                          medium.refusals[fault + 2 * distance] = third;
                                      }
                                      expectReadingOfAMediumWithTheLostSectorsOnly(shape, medium);
                                  });
                }
            }
        }
    }
}

// Where the first fault is not healed by the retry, even the choice of what is given up is that of single
// reads.
TEST(WindowedReader, AdjacentTransientFaults_SurfaceAsWithSingleReadsAndOneRetry) {
    for (const auto& times : {std::pair(2, 1), std::pair(2, 2), std::pair(3, 1), std::pair(3, 3)}) {
        for (const std::uint64_t distance : {1U, 2U, 100U}) {
            forEveryFault(
                Places::Telling, [&](const Shape& shape, std::uint64_t fault, ScriptedDrive& medium) {
                    medium.refusals[fault] = times.first;
                    medium.refusals[fault + distance] = times.second;
                    const auto expected = plainSteps<PlainReaderWithRetry>(medium, shape.start, shape.end);
                    EXPECT_TRUE(windowedSteps(medium, shape.start, shape.end) == expected);
                });
        }
    }
}

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

TEST(WindowedReader, RefusedSector_IsAskedForTwiceAndNeverAgain) {
    forEveryFault(Places::All, [](const Shape& shape, std::uint64_t fault, ScriptedDrive& medium) {
        medium.refusals[fault] = kAlways;
        medium.refusals[fault + 1] = kAlways;
        medium.refusals[fault + 5] = kAlways;
        WindowedReader reader(std::make_unique<ScriptedSource>(medium));
        scanSteps(reader, shape.start, shape.end);
        // Going back does not ask again either.
        reader.seek(shape.start);
        scanSteps(reader, shape.start, shape.end);
        for (const auto& [sector, times] : medium.refused) {
            EXPECT_EQ(times, 2) << "sector " << sector;
        }
    });
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
