// Checksums of listed items are of what was found, or are not told.
#include <gtest/gtest.h>

#include "cli/CliSession.h"
#include "tests/support/Records.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {
namespace {

constexpr std::size_t kSectors = 12;

ScriptedMedium twoItems() {
    ScriptedMedium medium = dataMedium(kSectors);
    medium.put(2, "HEAD").put(7, "HEAD");
    return medium;
}

// What the items' lines say, and whether all could be read.
struct Listed {
    bool all = false;
    QList<QJsonValue> sums;
    int opened = 0;  // for the sums
};

// The first `goodOpens` openings give a medium that reads, those behind them one with these sectors bad.
Listed list(std::set<std::uint64_t> badBeforehand, int goodOpens, std::set<std::uint64_t> badLater) {
    CliOptions options;
    options.mode = kRawFileMode;
    options.listJson = true;
    options.thorough = false;
    CliSession session(options, kSectors);
    ScriptedMedium medium = twoItems();
    medium.badForEver = std::move(badBeforehand);
    int opened = 0;
    session.setMediumOpener([&](const QString&) -> std::unique_ptr<SectorReader> {
        if (opened++ >= goodOpens) {
            medium.badForEver = badLater;
        }
        return std::make_unique<ScriptedReader>(medium);
    });
    session.RawFile_Array = recordsOf({{"XYZ", "48454144"}});
    session.chooseAllTypes();
    session.run();
    const int openedBefore = opened;
    Listed listed;
    listed.all = session.forEachJsonLine([&](const QJsonObject& line) {
        if (line.contains("sha256")) {
            listed.sums << line["sha256"];
        }
    });
    listed.opened = opened - openedBefore;
    return listed;
}

TEST(Checksums, OfItemsThatReadWhole) {
    const Listed listed = list({}, 100, {});
    EXPECT_TRUE(listed.all);
    ASSERT_EQ(listed.sums.size(), 2);
    EXPECT_EQ(listed.sums[0].toString().size(), 64);
    EXPECT_EQ(listed.opened, 1);
}

TEST(Checksums, WhatFailsOnlyOnceMoreIsNotSummed) {
    const Listed good = list({}, 100, {});
    const Listed listed = list({}, 1, {8});
    EXPECT_FALSE(listed.all);
    ASSERT_EQ(listed.sums.size(), 2);
    EXPECT_EQ(listed.sums[0], good.sums[0]);
    EXPECT_TRUE(listed.sums[1].isNull());
}

TEST(Checksums, WhatFailedInTheSearchRepeatsAndIsSummed) {
    const Listed listed = list({4}, 100, {});
    EXPECT_TRUE(listed.all);
    // The reads behind a refused one lag, so the item behind it is read from a medium opened anew.
    EXPECT_EQ(listed.opened, 2);
    ASSERT_EQ(listed.sums.size(), 2);
    EXPECT_EQ(listed.sums[0].toString().size(), 64);
}

}  // namespace
}  // namespace vantor
