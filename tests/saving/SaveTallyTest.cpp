// Every outcome is counted once and said.
#include <gtest/gtest.h>

#include "saving/SaveTally.h"

namespace vantor {
namespace {

SaveOutcome savedAs(Verdict verdict) {
    SaveOutcome outcome;
    outcome.saved = true;
    outcome.bytes = 1000;
    outcome.verdict = verdict;
    return outcome;
}

}  // namespace

TEST(SaveTally, SaysWhatBecameOfEach) {
    SaveTally tally;
    tally.add("a", savedAs(Verdict::Complete));
    tally.add("b", savedAs(Verdict::Complete));
    SaveOutcome checked = savedAs(Verdict::Complete);
    checked.checked = true;
    tally.add("b2", checked);
    tally.add("c", savedAs(Verdict::CutOff));
    tally.add("d", savedAs(Verdict::Unknown));
    SaveOutcome outcome = savedAs(Verdict::Damaged);
    outcome.sectorsUnreadable = 3;
    tally.add("e", outcome);
    outcome = savedAs(Verdict::Complete);
    outcome.duplicate = true;
    tally.add("f", outcome);
    outcome = {};
    outcome.leftOut = LeftOut::TooSmall;
    tally.add("g", outcome);
    outcome.leftOut = LeftOut::Part;
    tally.add("g2", outcome);
    tally.add("g3", outcome);
    outcome = {};
    outcome.error = "No room";
    tally.add("h", outcome);
    EXPECT_EQ(tally.lines("/out"),
              QStringList({"6 saved in /out (6.0 kB): 1 complete, 2 ending where they say (content not "
                           "checked), 1 cut off, 1 damaged, 1 of unknown length",
                           "1 of them have sectors that could not be read",
                           "1 not written again: the same bytes are saved already",
                           "1 left out: smaller than asked for",
                           "2 left out: parts of files that are saved whole"}));
    EXPECT_EQ(tally.failed, 1U);
    EXPECT_EQ(tally.failures, QStringList{"h: No room"});
}

TEST(SaveTally, WhatWentWithTheDestination_FailedAllOfIt) {
    SaveTally tally;
    tally.loseSaved("gone");
    EXPECT_EQ(tally.failed, 0U) << "nothing was there to go";
    SaveOutcome again = savedAs(Verdict::Complete);
    again.duplicate = true;
    tally.add("a", savedAs(Verdict::Complete));
    tally.add("b", again);
    tally.add("c", {});
    tally.loseSaved("gone");
    EXPECT_EQ(tally.lines("/out"), QStringList{"0 saved in /out"});
    EXPECT_EQ(tally.failed, 3U);
    EXPECT_EQ(tally.failures, (QStringList{"gone", "c: "}));
    EXPECT_EQ(tally.failedBeside(2), 0U);
    EXPECT_EQ(tally.failedBeside(1), 1U);
    tally.loseSaved("gone");
    EXPECT_EQ(tally.failed, 3U);
}

TEST(SaveTally, KeepsTheFirstFailuresOnly) {
    SaveTally tally;
    for (int i = 0; i < 1000; ++i) {
        tally.add(QString::number(i), {});
    }
    EXPECT_EQ(tally.failed, 1000U);
    EXPECT_EQ(tally.failures.size(), SaveTally::kFailuresTold);
}

}  // namespace vantor
