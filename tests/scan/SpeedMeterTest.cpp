// Speed and time left.
#include <gtest/gtest.h>

#include "scan/SpeedMeter.h"

namespace vantor {

using namespace std::chrono_literals;

TEST(SpeedMeter, KnowsNothingFromOneMoment) {
    SpeedMeter meter;
    EXPECT_EQ(meter.bytesPerSecond(), 0);
    meter.note(SpeedMeter::Clock::time_point{}, 100);
    EXPECT_EQ(meter.bytesPerSecond(), 0);
    EXPECT_LT(meter.secondsFor(10), 0);
}

TEST(SpeedMeter, TakesTheLastMinuteOnly) {
    SpeedMeter meter;
    const SpeedMeter::Clock::time_point begin{};
    meter.note(begin, 0);
    meter.note(begin + 10s, 1000000);  // a fast beginning
    for (int s = 20; s <= 120; s += 10) {
        meter.note(begin + std::chrono::seconds(s), 1000000 + static_cast<std::uint64_t>(s) * 100);
    }
    EXPECT_DOUBLE_EQ(meter.bytesPerSecond(), 100.0 * 512);
    EXPECT_DOUBLE_EQ(meter.secondsFor(1000), 10.0);
}

TEST(SpeedMeter, BeginsAnewWithAnotherPass) {
    SpeedMeter meter;
    const SpeedMeter::Clock::time_point begin{};
    meter.note(begin, 5000);
    meter.note(begin + 1s, 10);
    EXPECT_EQ(meter.bytesPerSecond(), 0);
    meter.note(begin + 2s, 20);
    EXPECT_DOUBLE_EQ(meter.bytesPerSecond(), 10.0 * 512);
}

}  // namespace vantor
