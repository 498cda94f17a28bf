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
    WorkDeadline deadline(Milliseconds(1000), Milliseconds(70));
    Milliseconds waited(1000);
    Milliseconds worked(70);
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
    EXPECT_EQ(worked, Milliseconds(1070));
    EXPECT_EQ(times, 9);
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
