// A step of the movie helper ends by its own work, not by what else the machine does.
#include <gtest/gtest.h>

#include <thread>

#include "decode/movie/StepClock.h"

namespace vantor::decode {
namespace {

using namespace std::chrono_literals;

TEST(StepClock, TimeGivenToOthersDoesNotCount) {
    StepClock clock(500ms);
    clock.start();
    std::this_thread::sleep_for(600ms);
    EXPECT_FALSE(clock.isOver());
}

TEST(StepClock, PausesItWasToldOfCount) {
    StepClock clock(500ms);
    clock.start();
    clock.paused(300ms);
    EXPECT_FALSE(clock.isOver());
    clock.paused(300ms);
    EXPECT_TRUE(clock.isOver());
    clock.start();
    EXPECT_FALSE(clock.isOver());
}

TEST(StepClock, WorkComesToItsEnd) {
    StepClock clock(5ms);
    clock.start();
    std::uint64_t rounds = 0;
    while (!clock.isOver()) {
        ++rounds;
    }
    EXPECT_GT(rounds, 0U);
    clock.start();
    EXPECT_FALSE(clock.isOver());
}

}  // namespace
}  // namespace vantor::decode
