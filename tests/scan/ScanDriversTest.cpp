// Which passes run, what a tick shows, and that the end comes once.
#include <gtest/gtest.h>

#include <stdexcept>

#include "scan/PlatformException.h"
#include "tests/support/TestSession.h"

namespace vantor {
namespace {

ScriptedMedium threeSectors() {
    ScriptedMedium medium(3);
    medium.fill(0, 1).fill(1, 1).fill(2, 1);
    return medium;
}

const QStringList kPdf = recordsOf({{"PDF", "25504446"}});

}  // namespace

TEST(ScanDrivers, PhotoModeWithoutTheBoxNeverRunsTheThoroughPass) {
    ScriptedMedium medium = threeSectors();
    TestSession session(medium);
    session.Ext_Array = session.Adv_Ext_Array = kPdf;
    session.thorough = false;
    session.Photo_Rec_Thread();
    EXPECT_EQ(session.openedPaths.size(), 1);
    EXPECT_EQ(session.endPanels, 1);
    EXPECT_TRUE(session.log.contains("photo end panel"));
}

TEST(ScanDrivers, RawModesRunTheThoroughPassWithoutTheBoxToo) {
    ScriptedMedium medium = threeSectors();
    TestSession session(medium);
    session.choose(kPdf, kPdf);
    session.thorough = false;
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.openedPaths.size(), 2);
    EXPECT_EQ(session.endPanels, 1);
}

TEST(ScanDrivers, RawModesWithoutTheBoxAndWithoutThoroughRecordsStopAfterTheGeneralPass) {
    ScriptedMedium medium = threeSectors();
    TestSession session(medium);
    session.choose(kPdf);
    session.thorough = false;
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.openedPaths.size(), 1);
    session.thorough = true;
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.openedPaths.size(), 3) << "with the box the thorough pass runs even over no records";
}

TEST(ScanDrivers, FailedGeneralPassIsFollowedByTheEndScreenAlone) {
    ScriptedMedium medium = threeSectors();
    medium.badForEver = {2};
    TestSession session(medium);
    session.choose(kPdf, kPdf);
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.openedPaths.size(), 1);
    EXPECT_EQ(session.endPanels, 1);
}

TEST(ScanDrivers, AfterTheGeneralPassTheCountersAreThoseOfTheThoroughTypes) {
    ScriptedMedium medium = threeSectors();
    TestSession session(medium);
    session.choose(kPdf, recordsOf({{"TIF", "49492A00"}, {"GIF", "474946"}, {"TIF", "4D4D002A"}}));
    session.openingsThatSucceed = 1;  // so that the thorough pass does not come to make them itself
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.Fol_Cnt_Array, QVariantList({"TIF", -1LL, "TIF", "GIF", -1LL, "GIF"}));
    EXPECT_EQ(session.REC_PROC_Array, session.CheckListHeader_Adv_Array);

    session.choose(kPdf);
    session.thorough = false;
    session.openingsThatSucceed = 1;
    session.Raw_File_Rec_Thread();
    EXPECT_TRUE(session.Fol_Cnt_Array.isEmpty());
}

TEST(ScanDrivers, PlatformExceptionAtTheEndOfARawScanIsSwallowed) {
    ScriptedMedium medium = threeSectors();
    TestSession session(medium);
    session.choose(kPdf);
    session.onNote = [](const QString& line) {
        if (line == u"raw end panel") {
            throw PlatformException("no panel");
        }
    };
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.endPanels, 1);
    EXPECT_FALSE(session.log.contains("result controls"));

    session.onNote = [](const QString& line) {
        if (line == u"raw end panel") {
            throw std::logic_error("not the platform's");
        }
    };
    EXPECT_THROW(session.Raw_File_Rec_Thread(), std::logic_error);
}

TEST(ScanDrivers, ModalSessionPutsTheEndScreenOff) {
    ScriptedMedium medium = threeSectors();
    TestSession session(medium);
    session.choose(kPdf);
    session.modal = true;
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.endPanels, 0);
    EXPECT_EQ(session.stop_now, 1);
}

TEST(ScanDrivers, EndScreenStepsComeInOrder) {
    ScriptedMedium medium = threeSectors();
    TestSession session(medium);
    Recovery_MODE = kVideoMode;
    session.Final_or_Stop_Screen();
    EXPECT_EQ(session.log,
              QStringList({"help: \nTo select another disk for recovery, click on ‘Back’ Button.",
                           "progress hidden", "raw end panel", "result controls", "enabled after scan"}));
    EXPECT_EQ(session.stop_now, 0);
    EXPECT_EQ(session.stop_screen_already_show, 1);
}

TEST(ScanDrivers, TickShowsCounterAndPercentage) {
    ScriptedMedium medium(1);
    TestSession session(medium);
    session.start_sector = 100;
    session.end_sector = 400;
    session.total_sector = 300;
    session.for_index = 199;
    session.timerTickSetLabel();
    EXPECT_EQ(session.sectorLabels, QStringList{"Sectors 199 of 400   ( Completed 33% )"});
    EXPECT_EQ(session.progress, std::vector<double>{99.0});
}

TEST(ScanDrivers, TickBeyondTheEndChangesNothing) {
    ScriptedMedium medium(1);
    TestSession session(medium);
    session.end_sector = 10;
    session.total_sector = 10;
    session.for_index = 11;
    session.timerTickSetLabel();
    EXPECT_TRUE(session.sectorLabels.isEmpty());
    EXPECT_TRUE(session.progress.empty());
    session.for_index = 10;
    session.timerTickSetLabel();
    EXPECT_EQ(session.sectorLabels, QStringList{"Sectors 10 of 10   ( Completed 100% )"});
}

TEST(ScanDrivers, TickOverNoSectorsShowsZeroPerCent) {
    ScriptedMedium medium(0);
    TestSession session(medium);
    session.timerTickSetLabel();
    EXPECT_EQ(session.sectorLabels, QStringList{"Sectors 0 of 0   ( Completed 0% )"});
}

TEST(ScanDrivers, StopDuringTheGeneralPassListsWhatWasFound) {
    ScriptedMedium medium = threeSectors();
    medium.put(0, "%PDF");
    TestSession session(medium);
    session.choose(kPdf, kPdf);
    session.stopBeforeRead(1);
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.endPanels, 1);
    EXPECT_EQ(session.names(), QStringList{"PDF00001.PDF"});
    EXPECT_EQ(session.openedPaths.size(), 1);
}

}  // namespace vantor
