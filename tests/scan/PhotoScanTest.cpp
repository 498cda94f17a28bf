// The photo scan over scripted media: items, limits, faults.
#include <gtest/gtest.h>

#include <random>

#include "results/MyImageObject.h"
#include "scan/PhotoItemBuffer.h"
#include "tests/scan/PhotoItems.h"

namespace vantor {

TEST(PhotoScan, NextHeaderEndsAnItem) {
    ScriptedMedium medium = dataMedium(10);
    medium.put(2, "\xFF\xD8").put(5, "\x89PNG");
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    EXPECT_TRUE(session.Photo_Recovey_Mode("GEN"));
    const auto items = nonEmpty(session);
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].name, "GND00001.JPG");
    EXPECT_EQ(items[0].first, 2U);
    EXPECT_EQ(items[0].data.size(), 3 * 512);
    EXPECT_EQ(items[1].name, "GND00002.PNG");
    EXPECT_EQ(items[1].data.size(), 5 * 512);
    EXPECT_EQ(session.lastOutcome(), PassOutcome::Completed);
    EXPECT_EQ(session.openedPaths, QStringList{"/dev/rdisk2"});
}

TEST(PhotoScan, HeadersInConsecutiveSectorsGiveOneSectorItems) {
    ScriptedMedium medium = dataMedium(4);
    medium.put(1, "\xFF\xD8").put(2, "\xFF\xD8");
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    session.Photo_Recovey_Mode("GEN");
    const auto items = nonEmpty(session);
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].data.size(), 512);
    EXPECT_EQ(items[1].data.size(), 2 * 512);
}

TEST(PhotoScan, LimitOfOneMebibyteHolds2047Sectors) {
    ScriptedMedium medium(2100);
    medium.put(3, "\xFF\xD8");
    TestSession session(medium);
    session.Ext_Array = recordsOf({{"JPG", "FFD8", "1", "1048576"}});
    session.Photo_Recovey_Mode("GEN");
    const auto items = nonEmpty(session);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].data.size(), 2047 * 512);
}

TEST(PhotoScan, LimitOf512OrLessHandsOverNothing) {
    ScriptedMedium medium = dataMedium(4);
    medium.put(1, "\xFF\xD8");
    TestSession session(medium);
    session.Ext_Array = recordsOf({{"JPG", "FFD8", "1", "512"}});
    session.Photo_Recovey_Mode("GEN");
    EXPECT_TRUE(nonEmpty(session).empty());
    ASSERT_FALSE(session.handedOver.empty());
    EXPECT_EQ(session.handedOver[0].name, "GND00001.JPG");
    EXPECT_EQ(session.itemCount(), 0U);
    EXPECT_EQ(session.addedItemCount(), 0U);
}

TEST(PhotoScan, LimitIsThatOfTheRecordExaminedLast) {
    // The JPEG's own limit is large; data sectors behind it are searched to the end of the list, whose last
    // record allows two sectors only.
    ScriptedMedium medium = dataMedium(10);
    medium.put(1, "\xFF\xD8");
    TestSession session(medium);
    session.Ext_Array = recordsOf({{"JPG", "FFD8", "1", "1000000"}, {"PNG", "89504E47", "1", "1536"}});
    session.Photo_Recovey_Mode("GEN");
    ASSERT_EQ(nonEmpty(session).size(), 1U);
    EXPECT_EQ(nonEmpty(session)[0].data.size(), 2 * 512);

    // Zero sectors are not searched and leave the limit of the matched record in force.
    ScriptedMedium zeros(10);
    zeros.put(1, "\xFF\xD8");
    TestSession other(zeros);
    other.Ext_Array = session.Ext_Array;
    other.Photo_Recovey_Mode("GEN");
    EXPECT_EQ(nonEmpty(other)[0].data.size(), 9 * 512);
}

TEST(PhotoScan, ItemClosedByItsLimitIsNotHandedOverAgain) {
    ScriptedMedium medium = dataMedium(10);
    medium.put(1, "\xFF\xD8").put(7, "\xFF\xD8");
    TestSession session(medium);
    session.Ext_Array = recordsOf({{"JPG", "FFD8", "1", "1536"}});
    session.Photo_Recovey_Mode("GEN");
    const auto items = nonEmpty(session);
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].first, 1U);
    EXPECT_EQ(items[1].first, 7U);
}

TEST(PhotoScan, SectorOfZerosIsNeverSearched) {
    ScriptedMedium medium(4);
    medium.put(2, "\x01");
    TestSession session(medium);
    session.Ext_Array = recordsOf({{"NUL", "0000"}});
    EXPECT_TRUE(session.Photo_Recovey_Mode("GEN"));
    EXPECT_TRUE(nonEmpty(session).empty());
}

TEST(PhotoScan, EmptyCatalogueReadsNothingAndReportsAReadError) {
    ScriptedMedium medium = dataMedium(4);
    TestSession session(medium);
    EXPECT_FALSE(session.Photo_Recovey_Mode("THD"));
    EXPECT_EQ(medium.reads, 0U);
    EXPECT_EQ(session.alerts, QStringList{kReadError});
    EXPECT_EQ(session.lastOutcome(), PassOutcome::ReadError);
    ASSERT_EQ(session.handedOver.size(), 1U);
    EXPECT_TRUE(session.handedOver[0].data.isEmpty());
}

TEST(PhotoScan, OtherPassTextsSearchForNothing) {
    ScriptedMedium medium = dataMedium(4);
    TestSession session(medium);
    session.Ext_Array = session.Adv_Ext_Array = kJpegAndPng;
    EXPECT_FALSE(session.Photo_Recovey_Mode("gen"));
    EXPECT_EQ(medium.reads, 0U);
    EXPECT_TRUE(session.log.contains(
        "mode: ( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )"));
}

TEST(PhotoScan, RangeOfNoSectorsShowsZeroPerCentAndReadsNothing) {
    ScriptedMedium medium(0);
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    EXPECT_FALSE(session.Photo_Recovey_Mode("GEN"));
    EXPECT_EQ(medium.reads, 0U);
    EXPECT_EQ(session.sectorLabels,
              QStringList({"Sectors 0 of 0   ( Completed 0% )", "Sectors 0 of 0   ( Completed 0% )"}));
    EXPECT_EQ(session.alerts, QStringList{kReadError});
}

TEST(PhotoScan, RangeBeginsBehindAHeader) {
    ScriptedMedium medium = dataMedium(20);
    medium.put(2, "\xFF\xD8").put(6, "\xFF\xD8").put(15, "\xFF\xD8");
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    session.setRange(3, 12);
    EXPECT_TRUE(session.Photo_Recovey_Mode("GEN"));
    const auto items = nonEmpty(session);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].first, 6U);
    EXPECT_EQ(items[0].end, 12U);
    EXPECT_EQ(session.sectorLabels.first(), "Sectors 3 of 12   ( Completed 0% )");
    EXPECT_EQ(session.for_index, 12U);
    EXPECT_EQ(session.total_sector, 9U);
}

TEST(PhotoScan, StepsOfAGeneralPassComeInOrder) {
    ScriptedMedium medium = dataMedium(2);
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    session.Photo_Recovey_Mode("GEN");
    EXPECT_EQ(session.log,
              QStringList(
                  {"photo browser reset",
                   "mode: ( Currently performing Search based on: Vantor General Recovery Procedure )",
                   "range: 2", "sectors: Sectors 0 of 2   ( Completed 0% )", "options off", "progress starts",
                   "help: \nTo stop recovery, click on ‘Stop’ Button or please wait for the process to be "
                   "completed.",
                   "sectors: Sectors 0 of 2   ( Completed 0% )"}));
}

TEST(PhotoScan, ThoroughPassKeepsItemsAndItsOwnNumbers) {
    ScriptedMedium medium = dataMedium(6);
    medium.put(1, "\xFF\xD8").put(3, std::string_view("II*\0", 4));
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    session.Adv_Ext_Array = recordsOf({{"TIF", "49492A00"}});
    session.Photo_Rec_Thread();
    EXPECT_EQ(session.names(), QStringList({"GND00001.JPG", "THD00001.TIF"}));
    EXPECT_EQ(session.itemAt(1)->imageUID(), "THD00001.TIF");
    EXPECT_EQ(session.Fol_Cnt_Array, QVariantList({"TIF", 0LL, "TIF"}));
}

TEST(PhotoScan, NamesBeginAnewWithEachPassAndUidsRunOn) {
    ScriptedMedium medium = dataMedium(4);
    medium.put(1, "\xFF\xD8").put(2, "\xFF\xD8");
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    session.Photo_Recovey_Mode("GEN");
    session.Photo_Recovey_Mode("GEN");
    EXPECT_EQ(session.itemCount(), 2U) << "a general pass empties the list first";
    EXPECT_EQ(session.itemAt(1)->imageTitle(), "GND00002.JPG");
    EXPECT_EQ(session.itemAt(1)->imageUID(), "GND00004.JPG");
    EXPECT_EQ(session.GND_Image_number, 4U);
}

TEST(PhotoScan, ThoroughUidsRunOnFromScanToScan) {
    ScriptedMedium medium = dataMedium(6);
    medium.put(1, "\xFF\xD8").put(2, std::string_view("II*\0", 4)).put(3, std::string_view("II*\0", 4));
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    session.Adv_Ext_Array = recordsOf({{"TIF", "49492A00"}});
    session.Photo_Rec_Thread();
    session.Photo_Rec_Thread();
    EXPECT_EQ(session.names(), QStringList({"GND00001.JPG", "THD00001.TIF", "THD00002.TIF"}));
    EXPECT_EQ(session.itemAt(0)->imageUID(), "GND00002.JPG");
    EXPECT_EQ(session.itemAt(1)->imageUID(), "THD00003.TIF");
    EXPECT_EQ(session.itemAt(2)->imageUID(), "THD00004.TIF");
    EXPECT_EQ(session.THD_Image_number, 4U);
}

TEST(PhotoScan, TypeCountersCountFromMinusOne) {
    ScriptedMedium medium = dataMedium(6);
    medium.put(1, "\xFF\xD8").put(2, "\xFF\xD8").put(3, "\x89PNG");
    TestSession session(medium);
    session.Ext_Array = recordsOf({{"JPG", "FFD8"}, {"PNG", "89504E47"}, {"JPG", "4A4A"}});
    session.Photo_Recovey_Mode("GEN");
    EXPECT_EQ(session.Fol_Cnt_Array, QVariantList({"JPG", 1LL, "JPG", "PNG", 0LL, "PNG"}));
}

TEST(PhotoScan, BadSectorBehindAHeaderRepeatsTheHeader) {
    ScriptedMedium medium = dataMedium(8);
    medium.put(2, "\xFF\xD8");
    medium.badForEver = {3};
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    session.Photo_Recovey_Mode("GEN");
    const auto items = nonEmpty(session);
    // Sector 3 fails and the header's bytes are searched again; the retry fails and they are searched once
    // more; then the stream has moved past the bad sector and stays one behind the counter.
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].first, 2U);
    EXPECT_EQ(items[1].first, 3U);
    EXPECT_EQ(items[2].first, 4U);
    EXPECT_TRUE(items[1].carved.readFailed);
    EXPECT_EQ(items[2].carved.runs.front().first, 2U)
        << "the repeated bytes were truly read from the header's sector";
    EXPECT_EQ(session.lastOutcome(), PassOutcome::Completed);
}

TEST(PhotoScan, ItemKnowsTheSectorsReallyRead) {
    ScriptedMedium medium = dataMedium(10);
    medium.put(2, "\xFF\xD8");
    medium.badTimes[5] = 1;
    TestSession session(medium);
    session.Ext_Array = kJpegAndPng;
    session.Photo_Recovey_Mode("GEN");
    const auto items = nonEmpty(session);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_TRUE(items[0].carved.readFailed);
    ASSERT_EQ(items[0].carved.runs.size(), 1U);
    EXPECT_EQ(items[0].carved.runs[0].first, 2U);
    EXPECT_EQ(items[0].carved.runs[0].end, 9U) << "one sector behind the counter after the failed read";
    EXPECT_EQ(items[0].end, 10U);
}

// So that what memory holds can stand in for a medium that is gone.
TEST(PhotoScan, PublishedBytesWithoutTheirRepeatsAreTheSectorsReallyRead) {
    std::mt19937 random(5);
    int repeats = 0;
    for (int turn = 0; turn < 200; ++turn) {
        ScriptedMedium medium(60);
        for (std::size_t i = 0; i < 60; ++i) {
            medium.fill(i, static_cast<std::uint8_t>(1 + i));
        }
        medium.put(3, "\xFF\xD8").put(20 + random() % 20, "\xFF\xD8");
        for (int bad = 0; bad < 6; ++bad) {
            const std::uint64_t sector = 4 + random() % 56;
            bad % 2 == 0 ? medium.badTimes[sector] = 1 : medium.badForEver.insert(sector).second;
        }
        TestSession session(medium);
        session.Ext_Array = kJpegAndPng;
        session.Photo_Recovey_Mode("GEN");
        const auto items = nonEmpty(session);
        ASSERT_EQ(items.size(), session.itemCount());
        for (std::size_t item = 0; item < items.size(); ++item) {
            const CarvedRun& carved = items[item].carved;
            QByteArray read, expected;
            std::uint64_t at = 0;
            for (const SectorRun& repeat : carved.repeats) {
                read += items[item].data.mid(static_cast<qsizetype>(at) * 512,
                                             static_cast<qsizetype>(repeat.first - at) * 512);
                repeats += static_cast<int>(repeat.end - repeat.first);
                at = repeat.end;
            }
            read += items[item].data.mid(static_cast<qsizetype>(at) * 512);
            for (const SectorRun& run : carved.runs) {
                for (std::uint64_t sector = run.first; sector < run.end; ++sector) {
                    expected.append(reinterpret_cast<const char*>(medium.bytes[sector].data()), 512);
                }
            }
            ASSERT_EQ(read, expected) << turn;
            ASSERT_EQ(session.itemAt(item)->heldBytes(), carved.readFailed ? items[item].data : QByteArray());
        }
    }
    EXPECT_GT(repeats, 300);
}

TEST(PhotoScan, ItemBeyondTheMemoryBoundKeepsItsLengthAndChecksum) {
    PhotoMemory memory;
    PhotoItemBuffer small(memory);
    std::array<std::uint8_t, kSectorBytes> sector{};
    QCryptographicHash all(QCryptographicHash::Sha256);
    const std::uint64_t sectors = PhotoItemBuffer::kMaxBytesInMemory / kSectorBytes + 3;
    for (std::uint64_t i = 0; i < sectors; ++i) {
        sector[0] = static_cast<std::uint8_t>(i);
        small.append(sector.data());
        all.addData(QByteArrayView(reinterpret_cast<const char*>(sector.data()), kSectorBytes));
    }
    EXPECT_EQ(small.size(), sectors * kSectorBytes);
    EXPECT_EQ(static_cast<std::uint64_t>(small.bytes().size()), PhotoItemBuffer::kMaxBytesInMemory);
    EXPECT_EQ(small.overflowSha256(), all.result());
    small.clear();
    EXPECT_EQ(small.size(), 0U);
    EXPECT_TRUE(small.overflowSha256().isEmpty());
}

}  // namespace vantor