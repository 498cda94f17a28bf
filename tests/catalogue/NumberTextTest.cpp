// Text to number, junk and overflow included.
#include <gtest/gtest.h>

#include <QString>
#include <limits>

#include "catalogue/NumberText.h"

namespace vantor {

TEST(NumberText, IntegersEndAtTheFirstOtherCharacter) {
    EXPECT_EQ(textToInt64(u"12a"), 12);
    EXPECT_EQ(textToInt64(u"  -7 "), -7);
    EXPECT_EQ(textToInt64(u"+5"), 5);
    EXPECT_EQ(textToInt64(u""), 0);
    EXPECT_EQ(textToInt64(u"abc"), 0);
    EXPECT_EQ(textToInt64(u"- 5"), 0);
    EXPECT_EQ(textToInt64(u"<None>"), 0);
}

TEST(NumberText, OverflowIsClamped) {
    EXPECT_EQ(textToInt64(u"9223372036854775807"), std::numeric_limits<qint64>::max());
    EXPECT_EQ(textToInt64(u"9223372036854775808"), std::numeric_limits<qint64>::max());
    EXPECT_EQ(textToInt64(u"99999999999999999999999999"), std::numeric_limits<qint64>::max());
    EXPECT_EQ(textToInt64(u"-9223372036854775808"), std::numeric_limits<qint64>::min());
    EXPECT_EQ(textToInt64(u"-99999999999999999999"), std::numeric_limits<qint64>::min());
    EXPECT_EQ(textToInt32(u"2147483648"), std::numeric_limits<qint32>::max());
    EXPECT_EQ(textToInt32(u"-2147483649"), std::numeric_limits<qint32>::min());
}

TEST(NumberText, ScanTellsJunkFromZero) {
    EXPECT_FALSE(scanInt64(u"x1").has_value());
    EXPECT_FALSE(scanInt64(u"").has_value());
    EXPECT_EQ(scanInt64(u"0x"), 0);
}

TEST(NumberText, DoublesAreDecimalOnly) {
    EXPECT_DOUBLE_EQ(textToDouble(u"1.5e3x"), 1500.0);
    EXPECT_DOUBLE_EQ(textToDouble(u"12e"), 12.0);
    EXPECT_DOUBLE_EQ(textToDouble(u".5"), 0.5);
    EXPECT_FALSE(scanDouble(u"inf").has_value());
    EXPECT_FALSE(scanDouble(u"nan").has_value());
    EXPECT_FALSE(scanDouble(u".").has_value());
    EXPECT_FALSE(scanDouble(u"").has_value());
    EXPECT_DOUBLE_EQ(textToDouble(u"0x10"), 0.0);
}

TEST(NumberText, HexDigits) {
    EXPECT_EQ(HexText::hex2dec(u"0"), 0);
    EXPECT_EQ(HexText::hex2dec(u"9"), 9);
    EXPECT_EQ(HexText::hex2dec(u"A"), 10);
    EXPECT_EQ(HexText::hex2dec(u"f"), 15);
    EXPECT_EQ(HexText::hex2dec(u"g"), 0);
    EXPECT_EQ(HexText::hex2dec(u""), 0);
    EXPECT_EQ(HexText::hex2dec(u"\u0141"), 10);  // only the low 8 bits count, here those of 'A'
}

TEST(NumberText, HexStrings) {
    EXPECT_EQ(HexText::hex2int(u""), 0);
    EXPECT_EQ(HexText::hex2int(u"FF"), 255);
    EXPECT_EQ(HexText::hex2int(u"G1"), 1);
    EXPECT_EQ(HexText::hex2int(u"1G"), 16);
    EXPECT_EQ(HexText::hex2int(u"7FFFFFFF"), 0x7FFFFFFF);
    EXPECT_EQ(HexText::hex2int(u"FFFFFFFF"), -1);
}

}  // namespace vantor
