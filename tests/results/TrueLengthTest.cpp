// The rule of how much is saved.
#include <gtest/gtest.h>

#include "results/TrueLength.h"

namespace vantor {
namespace {

constexpr LengthLimits kLimits{1000, 100'000, true, 50'000};

Extent extent(Verdict verdict, std::uint64_t end) {
    Extent e;
    e.verdict = verdict;
    e.end = end;
    return e;
}

}  // namespace

TEST(BytesToKeep, CompleteFilesEndWhereTheyEnd) {
    EXPECT_EQ(bytesToKeep(extent(Verdict::Complete, 400), kLimits), 400U);
    EXPECT_EQ(bytesToKeep(extent(Verdict::Complete, 99'999), kLimits), 99'999U);
    EXPECT_EQ(bytesToKeep(extent(Verdict::Complete, 200'000), kLimits), 100'000U) << "no more than there is";
}

TEST(BytesToKeep, BrokenFilesKeepAllThatWasCarved) {
    for (const Verdict verdict : {Verdict::Damaged, Verdict::CutOff}) {
        EXPECT_EQ(bytesToKeep(extent(verdict, 400), kLimits), 1000U);
        EXPECT_EQ(bytesToKeep(extent(verdict, 40'000), kLimits), 40'000U);
        EXPECT_EQ(bytesToKeep(extent(verdict, 60'000), kLimits), 1000U) << "an implausible length";
    }
}

TEST(BytesToKeep, CutByTheViewIsNoLength) {
    LengthLimits limits = kLimits;
    limits.viewEndsWithMedium = false;
    EXPECT_EQ(bytesToKeep(extent(Verdict::CutOff, 40'000), limits), 1000U);
}

TEST(BytesToKeep, UnknownIsAsPublished) {
    EXPECT_EQ(bytesToKeep(extent(Verdict::Unknown, 40'000), kLimits), 1000U);
}

// What one frame alone is: nothing, but behind a tag, of which there is something.
TEST(CertainlyUnsound, FramesThatStandAloneAreNoSound) {
    for (const char* type : {"AC3", "AAC", "MP3", "MP2", "DTS", "TS"}) {
        SCOPED_TRACE(type);
        EXPECT_TRUE(isCertainlyUnsound(type, extent(Verdict::Unknown, 0)));
        EXPECT_FALSE(isCertainlyUnsound(type, extent(Verdict::Unknown, 10)));
        EXPECT_FALSE(isCertainlyUnsound(type, extent(Verdict::CutOff, 600)));
    }
}

TEST(CertainlyUnsound, OnlyWhereTheWalkerWouldHaveKnown) {
    EXPECT_TRUE(isCertainlyUnsound("JPG", extent(Verdict::Unknown, 0)));
    EXPECT_TRUE(isCertainlyUnsound("jpg", extent(Verdict::Unknown, 0)));
    EXPECT_FALSE(isCertainlyUnsound("JPG", extent(Verdict::Damaged, 600)));
    EXPECT_FALSE(isCertainlyUnsound("JXL", extent(Verdict::Unknown, 0)));
    EXPECT_FALSE(isCertainlyUnsound("NOSUCHTYPE", extent(Verdict::Unknown, 0)));
}

}  // namespace vantor
