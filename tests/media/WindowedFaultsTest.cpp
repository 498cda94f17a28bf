// Faults at every place of a window: each surfaces where single reads would meet it.
#include <gtest/gtest.h>

#include "tests/media/WindowedSteps.h"

namespace vantor::test {
namespace {

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

}  // namespace
}  // namespace vantor::test
