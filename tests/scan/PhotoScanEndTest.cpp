// How the photo scan ends: media that cannot be opened or read, exceptions, Stop.
#include <gtest/gtest.h>

#include <stdexcept>

#include "scan/PlatformException.h"
#include "tests/scan/PhotoItems.h"

namespace vantor {

TEST(PhotoScan, RepeatThatCannotBePassedOverIsNotSearched) {
    ScriptedMedium medium = dataMedium(8);
    medium.put(2, "\xFF\xD8");
    medium.badForEver = {3};
    medium.seekAfterFailureFails = true;
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    EXPECT_FALSE(session.Photo_Recovey_Mode("GEN"));
    ASSERT_EQ(nonEmpty(session).size(), 1U);
    EXPECT_EQ(nonEmpty(session)[0].data.size(), 6 * 512) << "the repeats still belong to the open item";
    EXPECT_EQ(session.alerts, QStringList{kReadError});
}

TEST(PhotoScan, FailedLastReadIsReported) {
    ScriptedMedium medium = dataMedium(4);
    medium.badForEver = {3};
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    EXPECT_FALSE(session.Photo_Recovey_Mode("GEN"));
    EXPECT_EQ(session.alerts, QStringList{kReadError});
    EXPECT_EQ(session.lastOutcome(), PassOutcome::ReadError);
    EXPECT_EQ(session.endPanels, 0) << "the end screen is the driver's to show";
}

TEST(PhotoScan, MediumThatCannotBeOpened) {
    ScriptedMedium medium(4);
    TestSession session(medium);
    session.openingsThatSucceed = 0;
    session.screen_counter = 2;
    session.stop_now = 1;
    session.Ext_Array = kJpegAndPng;
    session.Photo_Rec_Thread();
    EXPECT_EQ(session.screen_counter, 1);
    EXPECT_EQ(session.stop_now, 0);
    EXPECT_EQ(session.stop_screen_already_show, 1);
    EXPECT_EQ(session.alerts, QStringList{kReadError});
    EXPECT_EQ(session.endPanels, 0);
    EXPECT_EQ(session.log.mid(4), QStringList({"timer invalidated", "back from scan screen", "options on",
                                               "alert: " + kReadError}));
    EXPECT_EQ(session.lastOutcome(), PassOutcome::OpenError);
}

TEST(PhotoScan, MediumThatCannotBeOpenedForTheThoroughPassLeavesTheControlsUsable) {
    ScriptedMedium medium = dataMedium(4);
    TestSession session(medium);
    session.openingsThatSucceed = 1;
    session.Ext_Array = session.Adv_Ext_Array = kJpegAndPng;
    session.Photo_Rec_Thread();
    EXPECT_EQ(session.log.filter("options").last(), "options on");
    EXPECT_EQ(session.lastOutcome(), PassOutcome::OpenError);
    EXPECT_EQ(session.endPanels, 0);
}

TEST(PhotoScan, PlatformExceptionEndsThePassAsTheEndOfTheRangeDoes) {
    ScriptedMedium medium = dataMedium(20);
    medium.put(2, "\xFF\xD8").put(5, "\x89PNG");
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    int reloads = 0;
    session.onNote = [&reloads](const QString& line) {
        if (line == u"reload photo browser" && ++reloads == 1) {
            throw PlatformException("the browser is gone");
        }
    };
    EXPECT_TRUE(session.Photo_Recovey_Mode("GEN")) << "the last read succeeded";
    EXPECT_EQ(session.lastOutcome(), PassOutcome::Completed);
    EXPECT_EQ(session.for_index, 6U);
    EXPECT_EQ(session.names(), QStringList({"GND00001.JPG", "GND00001.JPG"}))
        << "handed over once more, as it stands";
    EXPECT_EQ(session.pFile_Disk, nullptr);
    EXPECT_TRUE(session.alerts.isEmpty());
}

TEST(PhotoScan, PlatformExceptionWhileThePassIsPreparedEndsItWithoutARead) {
    ScriptedMedium medium = dataMedium(20);
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    session.onNote = [&session](const QString& line) {
        if (line.startsWith(u"sectors") && session.sectorLabels.size() == 2) {
            throw PlatformException("no label");
        }
    };
    EXPECT_FALSE(session.Photo_Recovey_Mode("GEN"));
    EXPECT_EQ(medium.reads, 0U);
    EXPECT_EQ(session.lastOutcome(), PassOutcome::ReadError);
    EXPECT_EQ(session.alerts, QStringList{kReadError});
}

TEST(PhotoScan, OtherExceptionsAreTheCallers) {
    ScriptedMedium medium = dataMedium(20);
    medium.put(2, "\xFF\xD8").put(5, "\x89PNG");
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    session.onNote = [](const QString& line) {
        if (line == u"reload photo browser") {
            throw std::logic_error("not the platform's");
        }
    };
    EXPECT_THROW(session.Photo_Recovey_Mode("GEN"), std::logic_error);
}

TEST(PhotoScan, StopHandsTheOpenItemOverAndShowsTheEndOnce) {
    ScriptedMedium medium = dataMedium(20);
    medium.put(2, "\xFF\xD8");
    TestSession session(medium);
    session.Ext_Array = session.Adv_Ext_Array = kJpegAndPng;
    session.stopBeforeRead(6);
    session.onNote = [&](const QString& line) {
        if (line == u"timer invalidated") {
            EXPECT_EQ(session.stop_now, 0) << "the word was heard";
        }
    };
    session.Photo_Rec_Thread();
    ASSERT_EQ(nonEmpty(session).size(), 1U);
    EXPECT_EQ(nonEmpty(session)[0].data.size(), 5 * 512);
    EXPECT_EQ(session.endPanels, 1);
    EXPECT_EQ(session.lastOutcome(), PassOutcome::Stopped);
    EXPECT_EQ(session.openedPaths.size(), 1) << "no thorough pass after a stop";
    EXPECT_EQ(session.stop_now, 0);
    EXPECT_EQ(session.for_index, 7U) << "the request is seen at the next sector";
    EXPECT_TRUE(session.log.contains("timer invalidated"));
    EXPECT_EQ(session.pFile_Disk, nullptr);
}

}  // namespace vantor
