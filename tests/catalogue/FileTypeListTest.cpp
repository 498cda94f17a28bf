// The file-type list and the cutting of catalogues.
#include <gtest/gtest.h>

#include "catalogue/FileTypeList.h"
#include "tests/support/Records.h"

namespace vantor {

TEST(FileTypeList, OneRowAnExtensionDescribedByItsFirstRecord) {
    QStringList general =
        recordsOf({{"JPG", "FFD8FFE0"}, {"JPG", "FFD8FFE1"}, {"PNG", "89504E47"}, {"JPG", "FFD8"}});
    general[5] = "first";
    general[12] = "second";
    const auto rows = fileTypeRows(general, {});
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0]["Extension"], "JPG");
    EXPECT_EQ(rows[0]["Description"], "first");
    EXPECT_TRUE(isTicked(rows[0]));
    removeRecordsOfType(general, "JPG");
    EXPECT_EQ(general, recordsOf({{"PNG", "89504E47"}}));
}

TEST(FileTypeList, ThoroughFlagMarksTypesOfTheThoroughCatalogueAlone) {
    const auto rows =
        fileTypeRows(recordsOf({{"JPG", "FFD8"}}), recordsOf({{"JPG", "FFD8FF"}, {"TIF", "49492A00"}}));
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0]["Thoro"], "");
    EXPECT_EQ(rows[1]["Extension"], "TIF");
    EXPECT_EQ(rows[1]["Thoro"], "YES");
}

TEST(FileTypeList, ExtensionsThatDifferInCaseAreTwoRowsSideBySide) {
    auto rows =
        fileTypeRows(recordsOf({{"doc", "D0CF"}, {"ABC", "4142"}, {"zip", "504B"}, {"DOC", "DBA5"}}), {});
    sortFileTypeRows(rows);
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0]["Extension"], "ABC");
    EXPECT_EQ(rows[1]["Extension"].toString().toLower(), "doc");
    EXPECT_EQ(rows[2]["Extension"].toString().toLower(), "doc");
    EXPECT_EQ(rows[3]["Extension"], "zip");
}

TEST(FileTypeList, RemovalIsCaseSensitive) {
    QStringList records = recordsOf({{"doc", "D0CF"}, {"DOC", "DBA5"}});
    removeRecordsOfType(records, "DOC");
    EXPECT_EQ(records, recordsOf({{"doc", "D0CF"}}));
}

TEST(FileTypeList, RemovalTakesAnIncompleteLastRecordOfTheTypeAlong) {
    const QStringList whole = recordsOf({{"ZIP", "504B"}});
    QStringList records = whole + QStringList({"DOC", "12"});
    removeRecordsOfType(records, "12");
    EXPECT_EQ(records, whole + QStringList({"DOC", "12"}));
    removeRecordsOfType(records, "DOC");
    EXPECT_EQ(records, whole);
}

TEST(FileTypeList, IncompleteRecordMakesNoRow) {
    QStringList records = recordsOf({{"JPG", "FFD8"}});
    records << "TIF";
    EXPECT_EQ(fileTypeRows(records, {}).size(), 1);
}

}  // namespace vantor
