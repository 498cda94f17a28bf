// What is a part of what.
#include <gtest/gtest.h>

#include <limits>

#include "saving/FilesWithin.h"

namespace vantor {

TEST(FilesWithin, WhatLiesWhollyInsideAProvedFile_IsItsPart) {
    FilesWithin files;
    files.note("ZIP", "a.ZIP", 1000, 500, true);
    EXPECT_EQ(files.holderOf("JPG", 1001, 499), QStringLiteral("a.ZIP"));
    EXPECT_EQ(files.holderOf("ZIP", 1200, 10), QStringLiteral("a.ZIP"));
    EXPECT_FALSE(files.holderOf("JPG", 1001, 500)) << "ends behind it";
    EXPECT_FALSE(files.holderOf("JPG", 1000, 10)) << "begins where it begins";
    EXPECT_FALSE(files.holderOf("JPG", 999, 10));
    EXPECT_FALSE(files.holderOf("JPG", 1500, 10)) << "behind it";
    EXPECT_FALSE(files.holderOf("JPG", 1200, std::numeric_limits<std::uint64_t>::max()));
    files.clear();
    EXPECT_FALSE(files.holderOf("JPG", 1001, 10));
}

TEST(FilesWithin, WhatOnlyEndsWhereItSays_HoldsNothing) {
    FilesWithin files;
    files.note("MOV", "a.MOV", 1000, 500, false);
    EXPECT_FALSE(files.holderOf("JPG", 1100, 10));
    EXPECT_FALSE(files.holderOf("MOV", 1100, 10));
}

TEST(FilesWithin, WholeStream_HoldsWhatIsOfItsTypeAndBeginsInside) {
    FilesWithin files;
    files.note("TAR", "a.TAR", 1000, 500, false);
    EXPECT_EQ(files.holderOf("TAR", 1400, 900), QStringLiteral("a.TAR"));
    EXPECT_FALSE(files.holderOf("TAR", 1500, 10));
    EXPECT_FALSE(files.holderOf("JPG", 1400, 10)) << "its content was not looked at";
    for (const char* type : {"MTS", "TXT"}) {
        files.note(type, "a", 1000, 500, false);
        EXPECT_FALSE(files.holderOf(type, 1400, 10)) << type << " may run on into the next";
    }
}

TEST(FilesWithin, TheWidestFileCounts_InWhateverOrderTheyCame) {
    for (const bool innerFirst : {true, false}) {
        FilesWithin files;
        const auto inner = [&files] { files.note("ZIP", "inner", 1200, 100, true); };
        if (innerFirst) {
            inner();
        }
        files.note("ZIP", "outer", 1000, 500, true);
        if (!innerFirst) {
            inner();
        }
        files.note("ZIP", "crossing", 1400, 300, true);
        EXPECT_EQ(files.holderOf("JPG", 1350, 100), QStringLiteral("outer"));
        EXPECT_EQ(files.holderOf("JPG", 1250, 10), QStringLiteral("outer"));
        EXPECT_EQ(files.holderOf("JPG", 1450, 200), QStringLiteral("crossing"));
        EXPECT_FALSE(files.holderOf("JPG", 1350, 200));
    }
}

}  // namespace vantor
