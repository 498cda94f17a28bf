// Durations as the progress line words them.
#include <gtest/gtest.h>

#include "cli/ProgressLine.h"

namespace vantor {

TEST(DurationText, ReadsWell) {
    EXPECT_EQ(durationText(0.4), "0 s");
    EXPECT_EQ(durationText(59.4), "59 s");
    EXPECT_EQ(durationText(250), "4 min 10 s");
    EXPECT_EQ(durationText(7500), "2 h 5 min");
}

}  // namespace vantor
