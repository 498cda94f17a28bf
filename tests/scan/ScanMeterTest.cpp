// Speed and time left in words.
#include <gtest/gtest.h>

#include "scan/ScanMeter.h"

namespace vantor {
namespace {

// 1,000 sectors a second for ten seconds.
void runTenSeconds(ScanMeter& meter) {
    for (int second = 0; second <= 10; ++second) {
        meter.update(second * 1000, static_cast<std::uint64_t>(second) * 1000);
    }
}

}  // namespace

TEST(ScanMeter, TimeLeftInWords) {
    ScanMeter meter;
    meter.begin(70000);
    runTenSeconds(meter);
    ASSERT_TRUE(meter.secondsLeft());
    EXPECT_DOUBLE_EQ(*meter.secondsLeft(), 60);
    EXPECT_EQ(meter.text(1), "512 kB/s   ·   about 1 min left   ·   1 item found");

    meter.begin(140000);
    runTenSeconds(meter);
    EXPECT_DOUBLE_EQ(*meter.secondsLeft(), 130);
    EXPECT_EQ(meter.text(1234), "512 kB/s   ·   about 3 min left   ·   1,234 items found");
}

}  // namespace vantor
