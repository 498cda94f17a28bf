// How searches end: what the session knows of it, and how it is said.
#include <gtest/gtest.h>

#include "scan/PlatformException.h"
#include "tests/support/ReadAheadMedium.h"
#include "tests/support/TestSession.h"

namespace vantor {
namespace {

const QStringList kJpeg = recordsOf({{"JPG", "FFD8"}});
const QStringList kPdfAlone = recordsOf({{"PDF", "25504446"}});

// A medium that is taken out at a sector and says so.
class VanishingReader : public ScriptedReader {
  public:
    explicit VanishingReader(ScriptedMedium& medium) : ScriptedReader(medium) {}
    bool isGone() override { return true; }
};

class SearchEndTest : public testing::Test {
  protected:
    void badFrom(std::uint64_t sector) {
        for (; sector < medium.bytes.size(); ++sector) {
            medium.badForEver.insert(sector);
        }
    }

    ScriptedMedium medium = dataMedium(40);
};

}  // namespace

TEST_F(SearchEndTest, ACompletedSearch) {
    TestSession session(medium);
    session.Ext_Array = session.Adv_Ext_Array = kJpeg;
    session.Photo_Rec_Thread();
    const SearchEnd& end = session.searchEnd();
    EXPECT_EQ(end.outcome, PassOutcome::Completed);
    EXPECT_TRUE(end.thorough);
    EXPECT_TRUE(end.isFlawless());
    EXPECT_FALSE(end.canGoOn());
    EXPECT_EQ(searchEndHeadline(end), "The search has completed.");
    EXPECT_EQ(searchEndAdvice(end), "");
}

TEST_F(SearchEndTest, ACompletedSearchTellsWhatItCouldNotRead) {
    medium.badForEver = {7, 20};
    TestSession session(medium);
    session.Ext_Array = kJpeg;
    session.Photo_Recovey_Mode("GEN");
    EXPECT_EQ(session.searchEnd().outcome, PassOutcome::Completed);
    EXPECT_EQ(session.searchEnd().unreadable, 2U) << "each was asked for twice";
    EXPECT_FALSE(session.searchEnd().isFlawless());
    EXPECT_EQ(searchEndHeadline(session.searchEnd()),
              "The search has completed, but 2 sectors could not be read.");
}

TEST_F(SearchEndTest, WhatTheGeneralPassCouldNotReadIsKeptWhenTheThoroughOneReadsNothing) {
    medium.badForEver = {7};
    TestSession session(medium);
    session.choose(kPdfAlone);
    session.Raw_File_Rec_Thread();
    EXPECT_TRUE(session.searchEnd().thorough);
    EXPECT_EQ(session.searchEnd().unreadable, 1U);
    EXPECT_EQ(searchEndHeadline(session.searchEnd()),
              "The search has completed, but 1 sector could not be read.");
}

TEST_F(SearchEndTest, ASectorThatBothPassesCouldNotReadCountsOnce) {
    medium.badForEver = {7, 20};
    TestSession session(medium);
    session.Ext_Array = session.Adv_Ext_Array = kJpeg;
    session.Photo_Rec_Thread();
    EXPECT_TRUE(session.searchEnd().thorough);
    EXPECT_EQ(session.searchEnd().unreadable, 2U);
}

TEST_F(SearchEndTest, ANewSearchForgetsWhatTheOneBeforeCouldNotRead) {
    medium.badForEver = {7};
    TestSession session(medium);
    session.Ext_Array = kJpeg;
    session.Photo_Recovey_Mode("GEN");
    ASSERT_EQ(session.searchEnd().unreadable, 1U);
    medium.badForEver.clear();
    session.Photo_Recovey_Mode("GEN");
    EXPECT_EQ(session.searchEnd().unreadable, 0U);
    EXPECT_TRUE(session.searchEnd().isFlawless());
}

TEST_F(SearchEndTest, ASearchThatAnExceptionEndedIsNotSaidToHaveCompleted) {
    medium.put(2, "\xFF\xD8").put(5, "\xFF\xD8");
    TestSession session(medium);
    session.Ext_Array = kJpeg;
    int reloads = 0;
    session.onNote = [&reloads](const QString& line) {
        if (line == u"reload photo browser" && ++reloads == 1) {
            throw PlatformException("the browser is gone");
        }
    };
    session.Photo_Recovey_Mode("GEN");
    EXPECT_FALSE(session.searchEnd().isFlawless());
    EXPECT_EQ(searchEndHeadline(session.searchEnd()), "The search was broken off at sector 6 of 40.");
    EXPECT_TRUE(session.searchEnd().canGoOn());
}

TEST_F(SearchEndTest, AStoppedSearchSaysWhereAndFromWhereToGoOn) {
    TestSession session(medium);
    session.Ext_Array = kJpeg;
    session.stopBeforeRead(9);
    session.Photo_Rec_Thread();
    const SearchEnd& end = session.searchEnd();
    EXPECT_EQ(end.sector, 10U);
    EXPECT_EQ(end.goOnAt, 10U);
    EXPECT_FALSE(end.isFlawless());
    EXPECT_EQ(searchEndHeadline(end), "The search was stopped at 25 % (sector 10 of 40).");
    EXPECT_EQ(searchEndAdvice(end), "Press “Go On” to search the rest.");
}

TEST_F(SearchEndTest, ThePercentageIsThatOfTheRange) {
    TestSession session(medium);
    session.Ext_Array = kJpeg;
    session.setRange(20, 40);
    session.stopBeforeRead(9);
    session.Photo_Rec_Thread();
    EXPECT_EQ(searchEndHeadline(session.searchEnd()), "The search was stopped at 50 % (sector 30 of 40).");
}

TEST_F(SearchEndTest, ToGoOnBeginsWithTheItemThatWasOpen) {
    medium.put(6, "\xFF\xD8").put(4, "%PDF");
    TestSession photo(medium);
    photo.Ext_Array = kJpeg;
    photo.stopBeforeRead(9);
    photo.Photo_Rec_Thread();
    EXPECT_EQ(photo.searchEnd().sector, 10U);
    EXPECT_EQ(photo.searchEnd().goOnAt, 6U);

    medium.reads = 0;
    TestSession raw(medium);
    raw.choose(kPdfAlone);
    raw.stopBeforeRead(9);
    raw.Raw_File_Rec_Thread();
    EXPECT_EQ(raw.searchEnd().sector, 10U);
    EXPECT_EQ(raw.searchEnd().goOnAt, 4U);
}

TEST_F(SearchEndTest, ClosedItemsAreNotSearchedForAgain) {
    medium.put(2, "\xFF\xD8");
    TestSession session(medium);
    session.Ext_Array = recordsOf({{"JPG", "FFD8", "1", "1536"}});
    session.stopBeforeRead(9);
    session.Photo_Rec_Thread();
    EXPECT_EQ(session.searchEnd().goOnAt, 10U);
}

TEST_F(SearchEndTest, AfterAFailedReadTheStreamIsBehindTheCounter) {
    medium.badForEver = {5};
    TestSession session(medium);
    session.Ext_Array = kJpeg;
    session.stopBeforeRead(12);
    session.Photo_Rec_Thread();
    EXPECT_EQ(session.searchEnd().sector, 13U) << "as the bar says";
    EXPECT_EQ(session.searchEnd().goOnAt, 12U) << "which was not read yet";
}

TEST_F(SearchEndTest, AStopInTheThoroughSearch) {
    TestSession session(medium);
    session.Ext_Array = session.Adv_Ext_Array = kJpeg;
    session.stopBeforeRead(49);
    session.Photo_Rec_Thread();
    EXPECT_EQ(searchEndHeadline(session.searchEnd()),
              "The thorough search was stopped at 25 % (sector 10 of 40).");
    EXPECT_TRUE(
        searchEndAdvice(session.searchEnd()).startsWith("The general search before it was complete. "));
}

TEST_F(SearchEndTest, AReadErrorSaysWhereItBegan) {
    medium.badForEver = {3};
    badFrom(31);
    TestSession session(medium);
    session.choose(kPdfAlone);
    session.Raw_File_Rec_Thread();
    const SearchEnd& end = session.searchEnd();
    EXPECT_EQ(end.outcome, PassOutcome::ReadError);
    EXPECT_EQ(end.sector, 31U);
    EXPECT_EQ(end.goOnAt, 31U);
    EXPECT_FALSE(end.isFlawless());
    EXPECT_EQ(searchEndHeadline(end), "The search ended with a read error at sector 31 of 40.");
    EXPECT_EQ(searchEndAdvice(end), "Press “Go On” to search the rest.");
}

TEST_F(SearchEndTest, AMediumThatIsUnreadableFromItsFirstSectorOn) {
    badFrom(0);
    TestSession session(medium);
    session.Ext_Array = kJpeg;
    session.Photo_Rec_Thread();
    EXPECT_EQ(searchEndHeadline(session.searchEnd()),
              "The search ended with a read error at sector 0 of 40.");
}

TEST_F(SearchEndTest, AMediumThatIsGone) {
    badFrom(12);
    TestSession session(medium);
    session.Ext_Array = kJpeg;
    session.setMediumOpener([this](const QString&) { return std::make_unique<VanishingReader>(medium); });
    session.Photo_Rec_Thread();
    EXPECT_TRUE(session.searchEnd().mediumGone);
    EXPECT_EQ(searchEndHeadline(session.searchEnd()),
              "The medium was taken out or stopped answering at sector 12 of 40.");
    EXPECT_EQ(searchEndAdvice(session.searchEnd()),
              "Put the medium back in. Press “Go On” to search the rest.");
}

TEST_F(SearchEndTest, TheWindowedReaderKnowsThatItsMediumIsGone) {
    class Leaving : public ScriptedBytes {
      public:
        using ScriptedBytes::ScriptedBytes;
        bool usable() override { return false; }
    };
    badFrom(12);
    TestSession session(medium);
    session.Ext_Array = kJpeg;
    session.setMediumOpener([this](const QString&) {
        return std::make_unique<WindowedReader>(
            std::make_unique<SpoiltBlocks>(std::make_unique<Leaving>(medium), medium.badForEver));
    });
    session.Photo_Rec_Thread();
    EXPECT_TRUE(session.searchEnd().mediumGone);
    EXPECT_EQ(session.searchEnd().sector, 12U);
}

TEST_F(SearchEndTest, NothingToLookForIsNoReadError) {
    TestSession session(medium);
    session.Ext_Array = kJpeg;
    session.Photo_Rec_Thread();
    EXPECT_EQ(session.alerts, QStringList{kReadError}) << "which is said all the same";
    EXPECT_EQ(searchEndHeadline(session.searchEnd()), "The thorough search had nothing to look for.");
    EXPECT_EQ(searchEndAdvice(session.searchEnd()), "The general search before it was complete.");
}

TEST_F(SearchEndTest, AMediumThatCannotBeOpened) {
    TestSession session(medium);
    session.Ext_Array = session.Adv_Ext_Array = kJpeg;
    session.openingsThatSucceed = 0;
    session.Photo_Rec_Thread();
    EXPECT_EQ(searchEndHeadline(session.searchEnd()), "The medium could not be opened.");
    EXPECT_EQ(searchEndAdvice(session.searchEnd()), "");
    session.openingsThatSucceed = 1;
    session.Photo_Rec_Thread();
    EXPECT_EQ(searchEndHeadline(session.searchEnd()),
              "The medium could not be opened again for the thorough search.");
}

TEST_F(SearchEndTest, NumbersAreGrouped) {
    SearchEnd end;
    end.outcome = PassOutcome::Stopped;
    end.end = 62333952;
    end.sector = end.goOnAt = 1234567;
    EXPECT_EQ(searchEndHeadline(end), "The search was stopped at 1 % (sector 1,234,567 of 62,333,952).");
}

}  // namespace vantor
