// Zeros that no encoder writes, in units behind lengths and behind start codes.
#include <gtest/gtest.h>

#include <vector>

#include "decode/movie/CodedUnits.h"

namespace vantor::decode {
namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(CodedUnits, BehindLengths_NoZerosPartThem) {
    EXPECT_FALSE(hasForbiddenZeros(Bytes{0, 0, 0, 3, 0x65, 1, 2, 0, 0, 0, 2, 0x41, 9}, 4)) << "in lengths";
    EXPECT_FALSE(hasForbiddenZeros(Bytes{0, 5, 0x65, 0, 0, 3, 1}, 2)) << "with the 03 that has to be there";
    EXPECT_FALSE(hasForbiddenZeros(Bytes{0, 5, 0x65, 7, 0, 0, 0, 0, 2, 0x41, 1}, 2)) << "behind a unit";
    EXPECT_FALSE(hasForbiddenZeros(Bytes{0, 4, 0x65, 0, 0, 4}, 2)) << "two of them";
    for (const std::uint8_t next : {0, 1, 2}) {
        EXPECT_TRUE(hasForbiddenZeros(Bytes{0, 5, 0x65, 0, 0, next, 9}, 2)) << int{next};
        EXPECT_TRUE(hasForbiddenZeros(Bytes{1, 0x65, 5, 0x41, 0, 0, next, 9}, 1))
            << "in the second " << int{next};
    }
    EXPECT_TRUE(hasForbiddenZeros(Bytes{0, 0, 9, 0x65, 0, 0, 1, 9}, 3)) << "in one that is cut";
    EXPECT_FALSE(hasForbiddenZeros(Bytes{}, 4));
    EXPECT_FALSE(hasForbiddenZeros(Bytes{0, 0, 0, 0}, 4));
}

TEST(CodedUnits, BehindStartCodes_ZerosLeadToTheNextOfThese) {
    EXPECT_FALSE(
        hasForbiddenZeros(Bytes{0, 0, 0, 1, 0x67, 5, 0, 0, 0, 0, 0, 1, 0x65, 8, 0, 0, 1, 0x41, 3}, 0));
    EXPECT_FALSE(hasForbiddenZeros(Bytes{0, 0, 1, 0x65, 8, 0, 0, 0, 0}, 0)) << "behind the last";
    EXPECT_TRUE(hasForbiddenZeros(Bytes{0, 0, 1, 0x65, 8, 0, 0, 0, 9}, 0));
    EXPECT_TRUE(hasForbiddenZeros(Bytes{0, 0, 1, 0x65, 8, 0, 0, 2, 9}, 0));
}

}  // namespace
}  // namespace vantor::decode
