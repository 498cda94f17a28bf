// What is a part of what.
#include <gtest/gtest.h>

#include <limits>
#include <vector>

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

// In clusters of two sectors.
TEST(FilesWithin, FileThatTheCardTellsOf_HoldsWhatBeginsWhereNoClusterDoes) {
    FilesWithin files;
    const std::vector<SectorRun> runs{{10, 20}, {31, 36}};
    files.noteOnCard("MTS", "a.MTS", runs, 2);
    const auto holds = [&files](const char* type, std::uint64_t sector, bool isWhole) {
        return files.holderOf(type, sector * 512, 1'000'000, isWhole) == QStringLiteral("a.MTS");
    };
    for (const std::uint64_t inside : {11, 19, 32, 34}) {
        EXPECT_TRUE(holds("MDF", inside, false)) << inside;
        EXPECT_TRUE(holds("M2TS", inside, true)) << inside << ": a stream's packets are all alike";
        EXPECT_FALSE(holds("JPG", inside, true)) << inside << ": may be left of an older file";
    }
    for (const std::uint64_t other : {9, 10, 12, 18, 20, 21, 30, 31, 33, 35, 36, 37}) {
        EXPECT_FALSE(holds("MDF", other, false)) << other;
        EXPECT_FALSE(holds("M2TS", other, true)) << other;
    }
    files.clear();
    EXPECT_FALSE(holds("MDF", 11, false));
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
