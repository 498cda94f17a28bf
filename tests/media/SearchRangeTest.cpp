// The nine checks of a typed range, and the numbers behind the controls.
#include <gtest/gtest.h>

#include "media/SearchRange.h"

namespace vantor {
namespace {

const QString kMediumSectors = QStringLiteral("1000");

void expectRefused(const QString& start, const QString& end, const QString& message,
                   const QString& informative, RangeField field, const QString& sectors = kMediumSectors) {
    const auto refusal = refuseRange(start, end, sectors);
    ASSERT_TRUE(refusal.has_value()) << start.toStdString() << ":" << end.toStdString();
    EXPECT_EQ(refusal->message, message);
    EXPECT_EQ(refusal->informative, informative);
    EXPECT_EQ(refusal->field, field);
}

}  // namespace

TEST(SearchRange, WholeAndLastSectorPass) {
    EXPECT_FALSE(refuseRange("0", "1000", kMediumSectors).has_value());
    EXPECT_FALSE(refuseRange("999", "1000", kMediumSectors).has_value());
    EXPECT_FALSE(refuseRange("5", "6", kMediumSectors).has_value());
}

TEST(SearchRange, StartIsNoNumber) {
    for (const char* start : {"", "-5", "abc", "12a", "1 2", "+3", " 3", "1.5"}) {
        expectRefused(start, "1000", "\nPlease enter valid Start Sector value.", "", RangeField::Start);
    }
}

TEST(SearchRange, StartIsTooLongOrTooLarge) {
    expectRefused("00000000012", "1000000000", "\nMaximum sector range exceeded",
                  "Please enter valid Start Sector value.", RangeField::Start, "1000000000");
    expectRefused("1001", "1000", "\nMaximum sector range exceeded", "Please enter valid Start Sector value.",
                  RangeField::Start);
}

TEST(SearchRange, StartEqualToTheSectorCountPassesItsOwnChecks) {
    expectRefused("1000", "1000", "\nEnd Sector should be greater than Start Sector.", "", RangeField::End);
}

TEST(SearchRange, EndIsNoNumber) {
    for (const char* end : {"", "-5", "abc", "12a"}) {
        expectRefused("0", end, "\nPlease enter valid End Sector value.", "", RangeField::End);
    }
}

TEST(SearchRange, EndIsTooLongOrTooLarge) {
    expectRefused("0", "00001", "\nMaximum sector range exceeded", "Please enter valid End Sector value.",
                  RangeField::End);
    expectRefused("0", "1001", "\nMaximum sector range exceeded", "Please enter valid End Sector value.",
                  RangeField::End);
}

TEST(SearchRange, EndMustBeGreaterThanStart) {
    expectRefused("7", "7", "\nEnd Sector should be greater than Start Sector.", "", RangeField::End);
    expectRefused("8", "7", "\nEnd Sector should be greater than Start Sector.", "", RangeField::End);
}

TEST(SearchRange, StartIsCheckedBeforeEnd) {
    expectRefused("x", "y", "\nPlease enter valid Start Sector value.", "", RangeField::Start);
}

TEST(SearchRange, EmptyTextHasOnlyDigits) {
    EXPECT_TRUE(SectorText::Check_For_Valid_Sec(""));
    EXPECT_TRUE(SectorText::Check_For_Valid_Sec("0123456789"));
    EXPECT_FALSE(SectorText::Check_For_Valid_Sec("12 "));
    EXPECT_FALSE(SectorText::Check_For_Valid_Sec(QStringLiteral("\u0663")));  // a digit, but none of the ten
}

TEST(SearchRange, NumbersComeFromTheChosenControls) {
    RangeControls controls;
    controls.sectors = "1000";
    controls.startText = "5";
    controls.endText = "20";
    EXPECT_EQ(rangeFromControls(controls).start, 0U);
    EXPECT_EQ(rangeFromControls(controls).end, 1000U);
    controls.entireDisk = 0;
    controls.sectorRange = 1;
    EXPECT_EQ(rangeFromControls(controls).start, 5U);
    EXPECT_EQ(rangeFromControls(controls).end, 20U);
    controls.entireDisk = 1;
    EXPECT_EQ(rangeFromControls(controls).end, 0U);
    controls.entireDisk = controls.sectorRange = 0;
    EXPECT_EQ(rangeFromControls(controls).end, 0U);
}

TEST(SearchRange, NegativeTextIsStoredUnsigned) {
    RangeControls controls;
    controls.entireDisk = 0;
    controls.sectorRange = 1;
    controls.startText = "-1";
    EXPECT_EQ(rangeFromControls(controls).start, ~std::uint64_t{0});
}

}  // namespace vantor
