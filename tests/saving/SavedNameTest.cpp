// Names that lead nowhere else, and dates.
#include <gtest/gtest.h>

#include <QDateTime>

#include "saving/SavedName.h"

namespace vantor {

TEST(SafePathComponent, LeadsNowhereElse) {
    EXPECT_EQ(safePathComponent("JPG"), "JPG");
    EXPECT_EQ(safePathComponent("a/b\\c"), "a_b_c");
    EXPECT_EQ(safePathComponent(".."), "_");
    EXPECT_EQ(safePathComponent("."), "_");
    EXPECT_EQ(safePathComponent(""), "_");
    EXPECT_EQ(safePathComponent(QString::fromLatin1("x\0y\n", 4)), "x_y_");
    EXPECT_EQ(safePathComponent("name. "), "name");
    EXPECT_EQ(safePathComponent(QString(500, u'x')).size(), 80);
}

TEST(SavedName, DatesWithoutZoneAreLocalTime) {
    const CivilTime local{2026, 5, 17, 14, 3, 22, false};
    EXPECT_EQ(secondsOf(local), QDateTime(QDate(2026, 5, 17), QTime(14, 3, 22)).toSecsSinceEpoch());
    const CivilTime utc{2026, 5, 17, 14, 3, 22, true};
    EXPECT_EQ(secondsOf(utc), 1779026602);
    EXPECT_EQ(secondsOf({2026, 2, 31, 0, 0, 0, true}), std::nullopt);
}

TEST(SavedName, DateComesBeforeTheGivenName) {
    const CivilTime taken{2026, 5, 17, 14, 3, 22, false};
    const SavedName dated = savedNameOf("JPG", "GND00012.JPG", taken);
    EXPECT_EQ(dated.folder, "JPG/2026-05-17");
    EXPECT_EQ(dated.file, "2026-05-17 14.03.22 GND00012.JPG");
    const SavedName plain = savedNameOf("J/PG", "GND00012.JPG", std::nullopt);
    EXPECT_EQ(plain.folder, "J_PG");
    EXPECT_EQ(plain.file, "GND00012.JPG");
    EXPECT_LE(savedNameOf("JPG", QString(500, u'x') + ".JPG", taken).file.size(), 80);
}

}  // namespace vantor
