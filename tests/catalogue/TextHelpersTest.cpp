// The string helpers, in UTF-16 units.
#include <gtest/gtest.h>

#include "catalogue/TextHelpers.h"

namespace vantor {

TEST(TextHelpers, Left_TakesAtMostTheWholeString) {
    EXPECT_EQ(Left_Str_substringToIndex("abc", 5), "abc");
    EXPECT_EQ(Left_Str_substringToIndex("abc", 3), "abc");
    EXPECT_EQ(Left_Str_substringToIndex("abc", -1), "");
    EXPECT_EQ(Left_Str_substringToIndex("abc", 2), "ab");
}

TEST(TextHelpers, Right_TakesTheLastUnits) {
    EXPECT_EQ(Right_Str_substringFromIndex("abcdef", 2), "ef");
    EXPECT_EQ(Right_Str_substringFromIndex("abcdef", 6), "abcdef");
    EXPECT_EQ(Right_Str_substringFromIndex("abcdef", 100), "abcdef");
    EXPECT_EQ(Right_Str_substringFromIndex("abcdef", 0), "");
    EXPECT_EQ(Right_Str_substringFromIndex("abcdef", -3), "");
}

TEST(TextHelpers, FromIndex_BeyondTheEndIsEmpty) {
    EXPECT_EQ(Read_Str_FromIndex("abc", 3), "");
    EXPECT_EQ(Read_Str_FromIndex("abc", 4), "");
    EXPECT_EQ(Read_Str_FromIndex("abc", 1), "bc");
    EXPECT_EQ(Read_Str_FromIndex("abc", 0xFFFFFFFFU), "");
}

TEST(TextHelpers, UptoIndex_BeyondTheEndIsEmptyToo) {
    EXPECT_EQ(Read_Str_Upto_Index("abc", 3), "abc");
    EXPECT_EQ(Read_Str_Upto_Index("abc", 4), "");
    EXPECT_EQ(Read_Str_Upto_Index("abc", 0), "");
    EXPECT_EQ(Read_Str_Upto_Index("abc", 0xFFFFFFFFU), "");
}

TEST(TextHelpers, Find_IsLiteralAndCaseSensitive) {
    EXPECT_FALSE(Find_Str("abc", ""));
    EXPECT_FALSE(Find_Str("", ""));
    EXPECT_FALSE(Find_Str("jpg", "JPG"));
    EXPECT_TRUE(Find_Str("a JPG", "JPG"));
    EXPECT_FALSE(Find_Str("JP", "JPG"));
}

TEST(TextHelpers, Trim_KeepsInnerBlanks) {
    EXPECT_EQ(Trim_Str("\t 12 \n"), "12");
    EXPECT_EQ(Trim_Str(" a b\r\n"), "a b");
    EXPECT_EQ(Trim_Str(QString(QChar(0x2028)) + "x" + QChar(0xA0)), "x");
}

TEST(TextHelpers, LengthsCountUtf16Units) {
    const QString clef = QString::fromUtf8("\xF0\x9D\x84\x9E");  // one character, two units
    EXPECT_EQ(Left_Str_substringToIndex(clef, 1).size(), 1);
    EXPECT_EQ(Read_Str_FromIndex(clef, 2), "");
}

}  // namespace vantor
