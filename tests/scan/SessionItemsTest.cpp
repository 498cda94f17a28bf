// The adders, the result rows, naming, and the file-type selection of a session.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/support/TestSession.h"

namespace vantor {
namespace {

struct SessionItems : testing::Test {
    ScriptedMedium medium{1};
    TestSession session{medium};
};

}  // namespace

TEST_F(SessionItems, EmptyDataAddsNothing) {
    session.addImageWithData({}, "GND00001.JPG", "GND00001.JPG");
    EXPECT_EQ(session.itemCount(), 0U);
    EXPECT_EQ(session.addedItemCount(), 0U);
}

TEST_F(SessionItems, DataThatIsNoPictureGetsThePlaceholder) {
    session.Null_Image_Data = "placeholder";
    session.setThumbnailer([](const QByteArray&, const QString&) { return QByteArray(); });
    session.addImageWithData("junk", "a", "b");
    EXPECT_EQ(session.itemAt(0)->imageData(), "placeholder");
    session.setThumbnailer([](const QByteArray& data, const QString&) { return "thumbnail of " + data; });
    session.addImageWithData("picture", "a", "b");
    EXPECT_EQ(session.itemAt(1)->imageData(), "thumbnail of picture");
}

TEST_F(SessionItems, PhotoBrowserFollowsAtEverySixthItem) {
    for (int i = 0; i < 13; ++i) {
        session.addImageWithData("x", "a", "b");
    }
    EXPECT_EQ(session.scrolls, (std::vector<qsizetype>{5, 11}));
    EXPECT_EQ(session.log.count("reload photo browser"), 13);
}

TEST_F(SessionItems, BlankPathAddsNothing) {
    session.addImageWithPath(" \t\n", "a", "b");
    session.addImageWithPath_2("  ", "a", "b");
    EXPECT_EQ(session.itemCount(), 0U);
}

TEST_F(SessionItems, PathIsShownFromTheFileOrAsPlaceholder) {
    const QTemporaryDir folder;
    QFile placeholder(folder.filePath("NoPreview.png"));
    ASSERT_TRUE(placeholder.open(QIODevice::WriteOnly));
    placeholder.write("png");
    placeholder.close();
    session.loadPlaceholder(folder.path());
    EXPECT_EQ(session.Null_Image_Data, "png");
    EXPECT_EQ(session.noprevfile, "");
    session.setThumbnailer([](const QByteArray& data, const QString&) { return data; });
    session.addImageWithPath(" " + placeholder.fileName() + "\n", "shown", "1");
    EXPECT_EQ(session.itemAt(0)->path(), placeholder.fileName());
    EXPECT_TRUE(session.itemAt(0)->imageData().isEmpty());
    session.addImageWithPath("/nowhere/at/all.jpg", "not shown", "2");
    EXPECT_EQ(session.itemAt(1)->imageData(), "png");
    EXPECT_EQ(session.itemAt(1)->path(), placeholder.fileName());
    Recovery_MODE = kVideoMode;
    session.addImageWithPath("/nowhere/at/all.mov", "movie", "3");
    EXPECT_EQ(session.itemAt(2)->path(), "/nowhere/at/all.mov");
}

TEST_F(SessionItems, MissingPlaceholderLeavesItEmpty) {
    const QTemporaryDir folder;
    session.loadPlaceholder(folder.path());
    EXPECT_TRUE(session.Null_Image_Data.isEmpty());
}

TEST_F(SessionItems, ModeDecidesTheRepresentationAtTheMomentOfAsking) {
    session.Null_Image_Data = "bytes";
    session.addImageWithData("x", "a", "b");
    const auto item = session.itemAt(0);
    EXPECT_EQ(item->imageRepresentationType(), RepresentationType::EncodedData);
    EXPECT_EQ(item->imageRepresentation().toByteArray(), "bytes");
    EXPECT_EQ(item->imageTitle(), item->imageSubtitle());
    for (const RecoveryMode mode : {kVideoMode, kRawFileMode}) {
        Recovery_MODE = mode;
        EXPECT_EQ(item->imageRepresentationType(), RepresentationType::Picture);
        EXPECT_TRUE(item->imageRepresentation().value<QIcon>().isNull())
            << "made from data, so an empty cell";
    }
}

TEST_F(SessionItems, RawItemIsTrimmedCountedAndReadableByKey) {
    Recovery_MODE = kRawFileMode;
    session.createSignatureListTableRecord("JPG", 0, "", "", "JPG");
    session.addImageWithData_2({}, " a.JPG ", "uid", 7, 9);
    session.addImageWithData_2({}, "b.JPG", "uid", 9, 12);
    const auto item = session.itemAt(0);
    EXPECT_EQ(item->imageTitle(), "a.JPG");
    EXPECT_EQ(item->imageUID(), "uid");
    EXPECT_EQ(item->valueForKey("path"), "a.JPG");
    EXPECT_EQ(item->valueForKey("File_Start_Sector").toULongLong(), 7U);
    EXPECT_EQ(item->valueForKey("File_End_Sector").toULongLong(), 9U);
    EXPECT_FALSE(item->valueForKey("image").isValid());
    const ResultRow row = session.resultRows().first();
    EXPECT_EQ(row["NoOfFile"], "2");
    EXPECT_EQ(row["FileName"], "b.JPG");
    EXPECT_EQ(row["FilePath"], "b.JPG");
    EXPECT_EQ(row["FileTypes"], "JPG");
    EXPECT_TRUE(session.log.contains("icon: JPG"));
}

TEST_F(SessionItems, BlankNameAddsAndCountsNothing) {
    session.createSignatureListTableRecord("JPG", 0, "", "", "JPG");
    session.addImageWithData_2({}, "  \n", "uid", 0, 1);
    EXPECT_EQ(session.itemCount(), 0U);
    EXPECT_EQ(session.resultRows().first()["NoOfFile"], "0");
}

TEST_F(SessionItems, ExtensionOfAnotherCaseIsShownButNotCounted) {
    session.createSignatureListTableRecord("JPG", 0, "", "", "JPG");
    session.addImageWithData_2({}, "a.jpg", "uid", 0, 1);
    EXPECT_EQ(session.itemCount(), 1U);
    EXPECT_EQ(session.resultRows().first()["NoOfFile"], "0");
}

TEST_F(SessionItems, FirstRowOfATypeCounts) {
    session.createSignatureListTableRecord("JPG", 3, "", "", "JPG");
    session.createSignatureListTableRecord("JPG", 0, "", "", "JPG");
    session.addImageWithData_2({}, "a.JPG", "uid", 0, 1);
    EXPECT_EQ(session.resultRows()[0]["NoOfFile"], "4");
    EXPECT_EQ(session.resultRows()[1]["NoOfFile"], "0");
}

TEST_F(SessionItems, RawBrowserFollowsAtEveryFourthItem) {
    for (int i = 0; i < 9; ++i) {
        session.addImageWithData_2({}, "a.JPG", "uid", 0, 1);
    }
    EXPECT_EQ(session.scrolls, (std::vector<qsizetype>{3, 7}));
}

TEST_F(SessionItems, FileOnDiskHasNoSectors) {
    session.createSignatureListTableRecord("JPG", 0, "", "", "JPG");
    session.addImageWithPath_2(" /x/y.JPG ", " its name ", "uid");
    const auto item = session.itemAt(0);
    EXPECT_EQ(item->File_Start_Sector(), 0U);
    EXPECT_EQ(item->File_End_Sector(), 0U);
    EXPECT_EQ(item->imageTitle(), " its name ");
    EXPECT_EQ(item->path(), "/x/y.JPG");
    const ResultRow row = session.resultRows().first();
    EXPECT_EQ(row["NoOfFile"], "1");
    EXPECT_EQ(row["FileName"], " its name ");
    EXPECT_EQ(row["FilePath"], "/x/y.JPG");
}

TEST_F(SessionItems, NamesArePaddedToFiveDigits) {
    const auto name = [&](std::uint64_t number) { return session.Generate_File_Name(number, "GND", "JPG"); };
    EXPECT_EQ(name(0), "GND00000.JPG");
    EXPECT_EQ(name(9), "GND00009.JPG");
    EXPECT_EQ(name(10), "GND00010.JPG");
    EXPECT_EQ(name(123), "GND00123.JPG");
    EXPECT_EQ(name(1234), "GND01234.JPG");
    EXPECT_EQ(name(9999), "GND09999.JPG");
    EXPECT_EQ(name(10000), "GND10000.JPG");
    EXPECT_EQ(name(100000), "GND100000.JPG");
    EXPECT_EQ(name(std::uint64_t{1} << 32), "GND4294967296.JPG");
    EXPECT_EQ(name(~std::uint64_t{0}), "GND18446744073709551615.JPG");
}

TEST_F(SessionItems, UidTakesItsPrefixFromThePassAndItsNumberAsGiven) {
    session.createSignatureListTableRecord("GND", 41, "", "", "GND");
    Recovery_MODE = kRawFileMode;
    EXPECT_EQ(session.Generate_File_UID_Num(17, false, "JPG"), "GND00017.JPG");
    EXPECT_EQ(session.Generate_File_UID_Num(9999, true, "TIF"), "THD09999.TIF");
}

TEST_F(SessionItems, RowOfTheTypeSuppliesTheNumberInRawModes) {
    session.createSignatureListTableRecord("JPG", 41, "", "", "JPG");
    session.createSignatureListTableRecord("JPG", 7, "", "", "JPG");
    EXPECT_EQ(session.Generate_File_Name(5, "JPG", "JPG"), "JPG00005.JPG") << "photo mode takes it as given";
    for (const RecoveryMode mode : {kVideoMode, kRawFileMode}) {
        Recovery_MODE = mode;
        EXPECT_EQ(session.Generate_File_Name(5, "JPG", "JPG"), "JPG00042.JPG");
        EXPECT_EQ(session.Generate_File_Name(5, "PNG", "PNG"), "PNG00005.PNG");
    }
}

TEST_F(SessionItems, UntickedTypesLeaveBothChosenLists) {
    Recovery_MODE = kVideoMode;
    session.Video_Array =
        recordsOf({{"MP4", "66747970", "5"}, {"AVI", "41564920", "9"}, {"MP4", "6D6F6F76", "5"}});
    session.Adv_Video_Array = recordsOf({{"MP4", "6D646174", "5"}, {"MPG", "000001BA"}});
    session.buildFileTypeList();
    ASSERT_EQ(session.nsCheckedListDataObject.size(), 3);
    EXPECT_EQ(session.nsCheckedListDataObject[0]["Extension"], "AVI");
    EXPECT_EQ(session.nsCheckedListDataObject[2]["Thoro"], "YES");
    session.nsCheckedListDataObject[1]["State"] = false;  // MP4
    session.cutCataloguesToTickedTypes();
    EXPECT_EQ(session.CheckListHeader_Array, recordsOf({{"AVI", "41564920", "9"}}));
    EXPECT_EQ(session.CheckListHeader_Adv_Array, recordsOf({{"MPG", "000001BA"}}));
    ASSERT_EQ(session.resultRows().size(), 2);
    EXPECT_EQ(session.resultRows()[0]["FileTypes_Hidden"], "AVI");
    EXPECT_EQ(session.resultRows()[1], makeResultRow("MPG", 0, "", "", "MPG"));
    session.cutCataloguesToTickedTypes();
    EXPECT_EQ(session.resultRows().size(), 2) << "rebuilt, not doubled";
}

TEST_F(SessionItems, SelectNoneKeepsTheOrderAndIsToldFromOne) {
    session.choose(recordsOf({{"b", "4142"}, {"A", "4344"}, {"c", "4546"}}));
    const auto order = [&] {
        QStringList list;
        for (const auto& row : session.nsCheckedListDataObject) {
            list.append(row["Extension"].toString());
        }
        return list;
    };
    EXPECT_EQ(order(), QStringList({"A", "b", "c"}));
    EXPECT_TRUE(session.Check_For_One_Extension_Selection());
    session.setAllFileTypes(false);
    EXPECT_EQ(order(), QStringList({"A", "b", "c"}));
    EXPECT_FALSE(session.Check_For_One_Extension_Selection());
    session.nsCheckedListDataObject[2]["State"] = true;
    EXPECT_TRUE(session.Check_For_One_Extension_Selection());
}

TEST_F(SessionItems, CataloguesAreReadIntoTheirArrays) {
    const QTemporaryDir folder;
    const auto write = [&](const char* name, const char* extension) {
        QFile file(folder.path() + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("a: ") + extension + "\nb: 1\nHeader : 4142\nd: 1\ne: 0\nf: x\n");
    };
    write("/ZelExt2.dll", "P");
    write("/ZelExt2Adv.dll", "PA");
    write("/ZelVideo.dll", "V");
    write("/ZelRaw.dll", "R");
    write("/ZelRawAdv.dll", "RA");
    session.loadCatalogues(folder.path());
    EXPECT_EQ(session.Ext_Array.value(0), "P");
    EXPECT_EQ(session.Adv_Ext_Array.value(0), "PA");
    EXPECT_EQ(session.Video_Array.value(0), "V");
    EXPECT_TRUE(session.Adv_Video_Array.isEmpty());
    EXPECT_EQ(session.RawFile_Array.value(0), "R");
    EXPECT_EQ(session.Adv_RawFile_Array.value(0), "RA");
}

TEST_F(SessionItems, HexHelpersAreMembersToo) {
    EXPECT_EQ(session.hex2int(u"G1"), 1);
    EXPECT_EQ(session.hex2dec(u"f"), 15);
}

}  // namespace vantor
