// Size texts, with their doubled and trailing blanks.
#include <gtest/gtest.h>

#include "media/SizeText.h"

namespace vantor {

TEST(SizeText, UnitsAreTakenOnlyWhenStrictlyGreater) {
    EXPECT_EQ(getMPSize("512"), "512.00 bytes ");
    EXPECT_EQ(getMPSize("1023"), "1023.00 bytes ");
    EXPECT_EQ(getMPSize("1024"), "1024.00 bytes ");
    EXPECT_EQ(getMPSize("1025"), "1.00  KB ");
    EXPECT_EQ(getMPSize("1000000000"), "953.67  MB ");
    EXPECT_EQ(getMPSize("2013265920"), "1.88  GB ");
    EXPECT_EQ(getMPSize("1099511627776"), "1024.00  GB ");
    EXPECT_EQ(getMPSize("1125899906842624"), "1024.00  TB ");
    EXPECT_EQ(getMPSize("1125899906842624000"), "1024000.00  TB ");
}

TEST(SizeText, ValuePassesThroughSinglePrecision) {
    EXPECT_EQ(getMPSize("226135399936"), "210.60  GB ");
}

TEST(SizeText, JunkIsZero) {
    EXPECT_EQ(getMPSize(""), "0.00 bytes ");
    EXPECT_EQ(getMPSize("x"), "0.00 bytes ");
}

}  // namespace vantor
