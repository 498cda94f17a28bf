// Helpers that are late, and others that only wait for a processor.
#include <gtest/gtest.h>

#include "decode/WorkDeadline.h"

namespace vantor::decode {

using Milliseconds = WorkDeadline::Milliseconds;

TEST(WorkDeadline, HelperThatDoesNothing_IsLateAtOnce) {
    WorkDeadline deadline(Milliseconds(1000), Milliseconds(70));
    EXPECT_EQ(deadline.more(Milliseconds(1000), Milliseconds(70)), std::nullopt);
}

TEST(WorkDeadline, HelperThatWorkedAllTheTime_IsLateAtOnce) {
    WorkDeadline deadline(Milliseconds(1000), Milliseconds(70));
    EXPECT_EQ(deadline.more(Milliseconds(1000), Milliseconds(1070)), std::nullopt);
}

TEST(WorkDeadline, HelperThatWaitsForAProcessor_GetsTheWorkItWasAllowed) {
    WorkDeadline deadline(Milliseconds(1000), Milliseconds(5070));  // longer than this for those before
    Milliseconds waited(1000);
    Milliseconds worked(5070);
    int times = 0;
    for (;; ++times) {
        worked += Milliseconds(100);
        const auto more = deadline.more(waited, worked);
        if (!more) {
            break;
        }
        EXPECT_GT(*more, Milliseconds(0));
        waited += *more;
    }
    EXPECT_EQ(worked, Milliseconds(6070));
    EXPECT_EQ(times, 9);
}

TEST(WorkDeadline, HelperThatStopsWorking_IsLateAtTheNextLook) {
    WorkDeadline deadline(Milliseconds(1000), Milliseconds(70));
    const auto more = deadline.more(Milliseconds(1000), Milliseconds(170));
    ASSERT_TRUE(more);
    EXPECT_EQ(deadline.more(Milliseconds(1000) + *more, Milliseconds(170)), std::nullopt);
}

TEST(WorkDeadline, HelperThatHardlyWorks_IsLateInTheEnd) {
    WorkDeadline deadline(Milliseconds(1000), Milliseconds(0));
    Milliseconds waited(1000);
    Milliseconds worked(0);
    while (const auto more = deadline.more(waited, worked += Milliseconds(1))) {
        waited += *more;
    }
    EXPECT_EQ(waited, Milliseconds(1000) * WorkDeadline::kMostPatience);
}

}  // namespace vantor::decode
