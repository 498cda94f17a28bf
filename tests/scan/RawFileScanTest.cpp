// The raw file scan over scripted media: open items, companions, the 18 MiB limit, faults, ends.
#include <gtest/gtest.h>

#include <stdexcept>

#include "scan/PlatformException.h"
#include "tests/support/TestSession.h"

namespace vantor {
namespace {

QStringList published(const TestSession& session) {
    QStringList list;
    for (const HandedOver& item : session.handedOver) {
        list.append(QStringLiteral("%1 %2-%3").arg(item.name).arg(item.first).arg(item.end));
    }
    return list;
}

}  // namespace

TEST(RawScan, HeaderWhileOpenEndsTheItemOneAfterIt) {
    ScriptedMedium medium = dataMedium(12);
    medium.put(2, "%PDF").put(6, "PK\x03\x04");
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}, {"ZIP", "504B0304"}}));
    EXPECT_TRUE(session.Raw_File_Recovey_Mode("GEN"));
    EXPECT_EQ(published(session), QStringList({"PDF00001.PDF 2-7", "ZIP00001.ZIP 6-12"}));
    EXPECT_EQ(session.handedOver[0].uid, "PDF00001.PDF");
    EXPECT_EQ(session.lastOutcome(), PassOutcome::Completed);
}

TEST(RawScan, NarrowRuleFindsBehindItsOwnFirstByteOnly) {
    ScriptedMedium medium = dataMedium(9);
    medium.put(1, "ABC").put(3, "ABC", 40).put(5, std::string(40, 'A') + "ABC");
    TestSession session(medium);
    session.choose(recordsOf({{"NNN", "414243", "nn"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"NNN00001.NNN 1-6", "NNN00002.NNN 5-9"}));
}

TEST(RawScan, NumericRuleOf507MatchesAndOf508DoesNot) {
    ScriptedMedium medium = dataMedium(9);
    medium.put(1, "ABCDEF", 506).put(3, "GHIJK", 507);
    TestSession session(medium);
    session.choose(recordsOf({{"YES", "414243444546", "507"}, {"NOO", "4748494A4B", "508"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"YES00001.YES 1-9"}));
}

TEST(RawScan, HeadersThatContainOneAnotherOpenTogether) {
    ScriptedMedium medium = dataMedium(6);
    medium.put(1, "\xFF\xD8\xFF\xE0");
    TestSession session(medium);
    session.choose(
        recordsOf({{"BIG", "FFD8FFE000"}, {"JPG", "FFD8"}, {"JFF", "FFD8FFE0"}, {"JOF", "FFD8FFE0", "3"}}));
    session.Raw_File_Recovey_Mode("GEN");
    // BIG stands before the record that matched and is not opened; JOF contains it, but at another offset.
    EXPECT_EQ(published(session), QStringList({"JPG00001.JPG 1-6", "JFF00001.JFF 1-6"}));
}

TEST(RawScan, ContainmentMayFallAtAnOddDigit) {
    ScriptedMedium medium = dataMedium(4);
    medium.put(1, "\x12\x34\x56");
    TestSession session(medium);
    session.choose(recordsOf({{"MAT", "123456"}, {"ODD", "2345", "9"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"MAT00001.MAT 1-4", "ODD00001.ODD 1-4"}));
}

TEST(RawScan, ZeroSectorsCountButAreNotSearched) {
    ScriptedMedium medium(36870);
    medium.put(2, "%PDF");
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}, {"NUL", "0000"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"PDF00001.PDF 2-36866"})) << "18 MiB are 36864 sectors";
}

TEST(RawScan, HeaderExactlyAtTheLimitOpensANewItem) {
    ScriptedMedium medium(36870);
    medium.put(2, "%PDF").put(36866, "%PDF");
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"PDF00001.PDF 2-36866", "PDF00002.PDF 36866-36870"}));
}

TEST(RawScan, ItemBehindAnotherHasTheWholeLimitForItself) {
    ScriptedMedium medium(36864 + 200);
    medium.put(2, "%PDF").put(100, "%PDF");
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"PDF00001.PDF 2-101", "PDF00002.PDF 100-36964"}));
}

TEST(RawScan, WithoutARowOfItsTypeAnItemIsNumberedByThePass) {
    ScriptedMedium medium = dataMedium(12);
    medium.put(2, "%PDF").put(5, "PK\x03\x04").put(8, "%PDF");
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}, {"ZIP", "504B0304"}}));
    session.nsSIGFileInfoDataObject.clear();
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"PDF00001.PDF 2-6", "ZIP00002.ZIP 5-9", "PDF00003.PDF 8-12"}));
}

TEST(RawScan, CatalogueLimitIsNotUsed) {
    ScriptedMedium medium = dataMedium(8);
    medium.put(1, "%PDF");
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446", "1", "512"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"PDF00001.PDF 1-8"}));
}

TEST(RawScan, StopPublishesOpenItemsAndKeepsThemUntilTheNextGeneralPass) {
    ScriptedMedium medium = dataMedium(20);
    medium.put(2, "%PDF");
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}), recordsOf({{"TIF", "49492A00"}}));
    session.stopBeforeRead(7);
    QStringList words;  // to stop, when these things are done
    session.onNote = [&](const QString& line) {
        if (line == u"timer invalidated" || line == u"raw end panel") {
            words << QStringLiteral("%1: %2").arg(line).arg(session.stop_now);
        }
    };
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(words, QStringList({"timer invalidated: 0", "raw end panel: 1"}));
    EXPECT_EQ(published(session), QStringList({"PDF00001.PDF 2-8"}));
    EXPECT_EQ(session.MultiHeader_Array.size(), 7);
    EXPECT_EQ(session.MultiHeader_Array,
              QStringList({"PDF", "18874368", "25504446", "0", "/destination/PDF/PDF00001.PDF",
                           "PDF00001.PDF", "PDF00001.PDF"}));
    EXPECT_EQ(session.endPanels, 1);
    EXPECT_EQ(session.stop_now, 0);
    EXPECT_EQ(session.openedPaths.size(), 1) << "no thorough pass after a stop";
    EXPECT_EQ(session.lastOutcome(), PassOutcome::Stopped);
    medium.beforeRead = nullptr;
    session.handedOver.clear();
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_TRUE(session.MultiHeader_Array.isEmpty());
    EXPECT_EQ(published(session), QStringList({"PDF00002.PDF 2-20"})) << "and nothing of the item left open";
}

TEST(RawScan, ThoroughPassSearchesItsOwnRecordsOnlyAndKeepsTheResults) {
    ScriptedMedium medium = dataMedium(8);
    medium.put(1, "%PDF").put(4, std::string_view("II*\0", 4));
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}), recordsOf({{"TIF", "49492A00"}}));
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.names(), QStringList({"PDF00001.PDF", "TIF00001.TIF"}));
    EXPECT_EQ(session.handedOver[1].pass, "THD");
    EXPECT_EQ(session.handedOver[1].end, 8U);
}

TEST(RawScan, NoRecordsForThePassEndWithoutAReadOrAnAlert) {
    ScriptedMedium medium = dataMedium(4);
    TestSession session(medium);
    session.choose({});
    EXPECT_TRUE(session.Raw_File_Recovey_Mode("GEN"));
    EXPECT_EQ(medium.reads, 0U);
    EXPECT_TRUE(session.alerts.isEmpty());
}

TEST(RawScan, EmptyRangeEndsWithTheAlertEvenWithoutRecords) {
    ScriptedMedium medium = dataMedium(4);
    TestSession session(medium);
    session.choose({});
    session.setRange(2, 2);
    EXPECT_FALSE(session.Raw_File_Recovey_Mode("GEN"));
    EXPECT_EQ(session.alerts, QStringList{kReadError});
    EXPECT_EQ(session.sectorLabels.first(), "Sectors 2 of 2   ( Completed 0% )");
}

TEST(RawScan, ReadFailureLeavesTheStreamOneSectorBehind) {
    ScriptedMedium medium = dataMedium(12);
    medium.put(2, "%PDF").put(8, "PK\x03\x04");
    medium.badTimes[4] = 1;
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}, {"ZIP", "504B0304"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"PDF00001.PDF 2-10", "ZIP00001.ZIP 9-12"}));
    EXPECT_EQ(session.handedOver[1].carved.runs[0].first, 8U) << "where its header truly stands";
    EXPECT_TRUE(session.handedOver[0].carved.readFailed);
    EXPECT_FALSE(session.handedOver[1].carved.readFailed);
}

TEST(RawScan, FailedLastReadIsReportedAndItemsStay) {
    ScriptedMedium medium = dataMedium(6);
    medium.put(1, "%PDF");
    medium.badForEver = {5};
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}));
    EXPECT_FALSE(session.Raw_File_Recovey_Mode("GEN"));
    EXPECT_EQ(session.alerts, QStringList{kReadError});
    EXPECT_EQ(session.names(), QStringList{"PDF00001.PDF"});
}

TEST(RawScan, RepeatThatCannotBePassedOverIsNotSearched) {
    ScriptedMedium medium = dataMedium(8);
    medium.put(2, "%PDF");
    medium.badForEver = {3};
    medium.seekAfterFailureFails = true;
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"PDF00001.PDF 2-8"}));
}

TEST(RawScan, MediumThatCannotBeOpened) {
    ScriptedMedium medium(4);
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}));
    session.openingsThatSucceed = 0;
    session.screen_counter = 3;
    session.log.clear();
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.screen_counter, 2);
    EXPECT_EQ(session.alerts, QStringList{kReadError});
    EXPECT_EQ(session.log.mid(4), QStringList({"timer invalidated", "back from scan screen", "options on",
                                               "alert: " + kReadError}));
    EXPECT_EQ(session.endPanels, 0) << "the driver sees that the end was shown";
    EXPECT_EQ(session.addedItemCount(), 0U);
}

TEST(RawScan, MediumThatCannotBeOpenedForTheThoroughPassSetsTheCountOfAddedItemsBack) {
    ScriptedMedium medium = dataMedium(6);
    medium.put(1, "%PDF");
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}), recordsOf({{"TIF", "49492A00"}}));
    session.openingsThatSucceed = 1;
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(session.lastOutcome(), PassOutcome::OpenError);
    EXPECT_EQ(session.names(), QStringList{"PDF00001.PDF"}) << "what was found stays";
    EXPECT_EQ(session.addedItemCount(), 0U);
}

TEST(RawScan, PlatformExceptionEndsThePassWithoutItsOpenItems) {
    ScriptedMedium medium = dataMedium(12);
    medium.put(2, "%PDF").put(6, "PK\x03\x04");
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}, {"ZIP", "504B0304"}}));
    session.onNote = [](const QString& line) {
        if (line == u"icon: PDF") {
            throw PlatformException("no icon");
        }
    };
    EXPECT_TRUE(session.Raw_File_Recovey_Mode("GEN")) << "the last read succeeded";
    EXPECT_EQ(session.lastOutcome(), PassOutcome::Completed);
    EXPECT_EQ(session.for_index, 7U);
    EXPECT_TRUE(session.names().isEmpty());
    EXPECT_TRUE(session.MultiHeader_Array.isEmpty());
    EXPECT_EQ(session.pFile_Disk, nullptr);
    EXPECT_TRUE(session.alerts.isEmpty());
}

TEST(RawScan, OtherExceptionsAreTheCallers) {
    ScriptedMedium medium = dataMedium(12);
    medium.put(2, "%PDF").put(6, "%PDF");
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}));
    session.onNote = [](const QString& line) {
        if (line == u"icon: PDF") {
            throw std::logic_error("not the platform's");
        }
    };
    EXPECT_THROW(session.Raw_File_Recovey_Mode("GEN"), std::logic_error);
}

TEST(RawScan, WritesNothingToTheTerminal) {
    ScriptedMedium medium = dataMedium(8);
    medium.put(1, "%PDF").put(4, std::string_view("II*\0", 4));
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}), recordsOf({{"TIF", "49492A00"}}));
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    session.Raw_File_Rec_Thread();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(session.itemCount(), 2U) << "each of them was said to the log when it was opened";
}

TEST(RawScan, StepsOfAGeneralPassComeInOrder) {
    ScriptedMedium medium = dataMedium(2);
    TestSession session(medium);
    session.choose(recordsOf({{"PDF", "25504446"}}));
    session.Prev_Index = 5;
    session.log.clear();
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(
        session.log,
        QStringList({"reload raw browser",
                     "mode: ( Currently performing Search based on: Vantor General Recovery Procedure )",
                     "range: 2", "sectors: Sectors 0 of 2   ( Completed 0% )", "options off",
                     "preview title cleared", "progress starts",
                     "help: \nTo stop recovery, click on ‘Stop’ Button or please wait for the process to be "
                     "completed.",
                     "sectors: Sectors 0 of 2   ( Completed 0% )"}));
    EXPECT_EQ(session.Prev_Index, 0x7fffffffU);
}

TEST(RawScan, TwoRecordsOfOneTypeShareANumber) {
    ScriptedMedium medium = dataMedium(4);
    medium.put(1, "\xFF\xD8\xFF\xE0");
    TestSession session(medium);
    session.choose(recordsOf({{"JPG", "FFD8FFE0"}, {"JPG", "FFD8"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"JPG00001.JPG 1-4", "JPG00001.JPG 1-4"}));
    EXPECT_EQ(countOf(session.resultRows()[0]), 2);
}

TEST(RawScan, TypeWithADotIsNeverCounted) {
    ScriptedMedium medium = dataMedium(6);
    medium.put(1, "\x1F\x8B\x08").put(3, "\x1F\x8B\x08");
    TestSession session(medium);
    session.choose(recordsOf({{".TAR.GZ", "1F8B08"}}));
    session.Raw_File_Recovey_Mode("GEN");
    EXPECT_EQ(published(session), QStringList({"TAR.GZ00001.TAR.GZ 1-4", "TAR.GZ00001.TAR.GZ 3-6"}));
    EXPECT_EQ(countOf(session.resultRows()[0]), 0);
}

}  // namespace vantor
