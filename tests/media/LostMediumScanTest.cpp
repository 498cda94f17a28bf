// What a scan makes of a medium that goes away, and of one that stays but no longer reads.
#include <gtest/gtest.h>

#include "media/WindowedReader.h"
#include "tests/media/ScriptedDrive.h"
#include "tests/support/TestSession.h"

namespace vantor::test {
namespace {

constexpr std::uint64_t kGood = 1000;      // sectors; the last of them is number 999
constexpr std::uint64_t kWhole = 9 << 20;  // more bytes than 32 bits count
// The number 999 as a sector begins with it.
constexpr TestRecord kHeaderOfLastGoodSector{"JPG", "E703000000000000"};

class LostMediumScan : public testing::Test {
  protected:
    LostMediumScan() {
        medium.sectors = kWhole;
        session.controls.sectors = QString::number(kWhole);
        session.thorough = false;
        session.setMediumOpener([this](const QString&) {
            return std::make_unique<WindowedReader>(std::make_unique<ScriptedSource>(medium));
        });
    }

    void scanRaw() {
        session.choose(recordsOf({kHeaderOfLastGoodSector}));
        session.Raw_File_Rec_Thread();
    }
    void scanPhotos() {
        session.Ext_Array = recordsOf({kHeaderOfLastGoodSector});
        session.Photo_Rec_Thread();
    }

    void expectReadErrorAtTheEnd() {
        EXPECT_EQ(session.alerts, QStringList{kReadError});
        EXPECT_EQ(session.lastOutcome(), PassOutcome::ReadError);
        EXPECT_EQ(session.for_index, session.end_sector);
    }

    ScriptedDrive medium;
    ScriptedMedium unused{1};
    TestSession session{unused};
};

TEST_F(LostMediumScan, RawScanOfAMediumThatIsGone_PublishesOneItemAndEndsWithTheReadError) {
    medium.goneFrom = kGood;
    scanRaw();
    expectReadErrorAtTheEnd();
    // The one item runs to its size limit; the sectors that were not read repeat the last.
    ASSERT_EQ(session.itemCount(), 1U);
    EXPECT_EQ(session.itemAt(0)->File_Start_Sector(), kGood - 1);
    EXPECT_EQ(session.itemAt(0)->carved().sectors(), 1U);
    EXPECT_TRUE(session.itemAt(0)->carved().readFailed);
    EXPECT_EQ(session.end_sector, kWhole);
    EXPECT_LE(medium.requests, 4U);
    EXPECT_LT(session.log.size(), 100);
}

TEST_F(LostMediumScan, PhotoScanOfAMediumThatIsGone_PublishesOneItemAndEndsWithTheReadError) {
    medium.goneFrom = kGood;
    scanPhotos();
    expectReadErrorAtTheEnd();
    ASSERT_EQ(session.itemCount(), 1U);
    EXPECT_EQ(session.handedOver.front().first, kGood - 1);
    EXPECT_LE(session.handedOver.front().data.size(), 1048576);
    EXPECT_EQ(session.end_sector, kWhole);
    EXPECT_LE(medium.requests, 4U);
    EXPECT_LT(session.log.size(), 100);
}

TEST_F(LostMediumScan, MediumThatStaysButFails_IsAskedForEachSectorOnceMoreAtMost) {
    constexpr std::uint64_t kPart = 20000;
    session.setRange(0, kPart);
    for (std::uint64_t s = kGood; s < kPart; ++s) {
        medium.refusals[s] = kAlways;
    }
    scanRaw();
    expectReadErrorAtTheEnd();
    ASSERT_EQ(medium.refused.size(), kPart - kGood);
    for (const auto& [sector, times] : medium.refused) {
        ASSERT_LE(times, 2) << sector;
    }
}

// Every failed read shows the bytes of the last good sector again, and these hold a header: by the rules of
// the scan each counts as a find, until the reader takes the stretch for a dead one.
TEST_F(LostMediumScan, RawScanOfAMediumThatStaysButFails_EndsWithAsManyFindsAsAShortStretchHas) {
    medium.refusesFrom = kGood;
    scanRaw();
    expectReadErrorAtTheEnd();
    EXPECT_EQ(session.itemCount(), 1 + WindowedReader::kDeadStretch);
    EXPECT_EQ(session.end_sector, kWhole);
    EXPECT_LE(medium.requests, 2 * kWhole);
    EXPECT_LT(session.log.size(), 100 + 4 * static_cast<qsizetype>(session.itemCount()));
}

TEST_F(LostMediumScan, PhotoScanOfAMediumThatStaysButFails_EndsWithAsManyFindsAsAShortStretchHas) {
    medium.refusesFrom = kGood;
    scanPhotos();
    expectReadErrorAtTheEnd();
    EXPECT_EQ(session.itemCount(), 1 + WindowedReader::kDeadStretch);
    EXPECT_EQ(session.end_sector, kWhole);
    EXPECT_LE(medium.requests, 2 * kWhole);
    EXPECT_LT(session.log.size(), 100 + 4 * static_cast<qsizetype>(session.itemCount()));
}

// No stretch is long enough to count as dead by itself.
TEST_F(LostMediumScan, MediumFullOfShortStretches_AddsFindsUpToTheBoundOnly) {
    constexpr std::uint64_t kStretch = 16;
    constexpr std::uint64_t kPart = 4 * WindowedReader::kMostRefusals;
    session.setRange(0, kPart);
    std::uint64_t good = 0;
    for (std::uint64_t s = 0; s < kPart; ++s) {
        if (s % (kStretch + 1) == 0) {
            ++good;
        } else {
            medium.refusals[s] = kAlways;
        }
    }
    // Bytes 4 to 7 of every sector's number.
    session.choose(recordsOf({{"JPG", "00000000", "5"}}));
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.for_index, session.end_sector);
    EXPECT_GT(session.itemCount(), good);
    EXPECT_LE(session.itemCount(), 2 * good + WindowedReader::kMostRefusals);
}

}  // namespace
}  // namespace vantor::test
