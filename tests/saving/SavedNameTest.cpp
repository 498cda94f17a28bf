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
    EXPECT_EQ(safePathComponent("a:b*c?d\"e<f>g|h\x7F"), "a_b_c_d_e_f_g_h_");
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
    const SavePolicy byDate{.folders = SaveFolders::Date};
    const SavedName dated = savedNameOf("JPG", "GND00012.JPG", byDate, taken, nullptr);
    EXPECT_EQ(dated.folder, "JPG/2026-05-17");
    EXPECT_EQ(dated.file, "2026-05-17 14.03.22 GND00012.JPG");
    const SavedName plain = savedNameOf("J/PG", "GND00012.JPG", byDate, std::nullopt, nullptr);
    EXPECT_EQ(plain.folder, "J_PG");
    EXPECT_EQ(plain.file, "GND00012.JPG");
    const CivilTime noDay{2026, 2, 31, 0, 0, 0, false};
    CardFile file;
    file.modified = *secondsOf(taken);
    EXPECT_EQ(savedNameOf("JPG", "GND00012.JPG", byDate, noDay, &file).folder, "JPG/2026-05-17");
    EXPECT_LE(savedNameOf("JPG", QString(500, u'x') + ".JPG", byDate, taken, nullptr).file.size(), 80);
}

TEST(SavedName, NamesFromACardLeadNowhereElse) {
    EXPECT_EQ(safeCardName("IMG_0412.JPG"), "IMG_0412.JPG");
    EXPECT_EQ(safeCardName("Größe – 1.jpg"), "Größe – 1.jpg");
    EXPECT_EQ(safeCardName(".."), "_");
    EXPECT_EQ(safeCardName(""), "_");
    EXPECT_EQ(safeCardName("../x"), "_.._x");
    EXPECT_EQ(safeCardName("a/b\\c"), "a_b_c");
    EXPECT_EQ(safeCardName("a\n\x1b.JPG"), "a__.JPG");
    EXPECT_EQ(safeCardName(".bashrc"), "_.bashrc") << "no hidden file in the user's own folder";
    EXPECT_EQ(safeCardName("con.txt"), "_con.txt");
    for (const char* const device :
         {"CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4", "COM5", "COM6", "COM7",    "COM8",
          "COM9", "LPT1", "LPT2", "LPT3", "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9", "nul .txt"}) {
        EXPECT_EQ(safeCardName(device), QStringLiteral("_") + device);
    }
    EXPECT_EQ(safeCardName("a:b*c?d\"e<f>g|h"), "a_b_c_d_e_f_g_h");
    EXPECT_EQ(safeCardName(QStringLiteral("a") + QChar(0x2028) + u'b' + QChar(0x2029) + u'c'), "a_b_c");
    const QString persian = QStringLiteral("a") + QChar(0x200C) + u'b';
    EXPECT_EQ(safeCardName(persian), persian) << "several languages are written with it";
    EXPECT_EQ(safeCardName("CONTACTS.TXT"), "CONTACTS.TXT");
    EXPECT_EQ(safeCardName(QStringLiteral("gpj") + QChar(0x202E) + QStringLiteral(".exe")), "gpj_.exe");
    const QString family = QString::fromUtf8("\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7.jpg");
    EXPECT_EQ(safeCardName(family), family) << "two pictures joined into one";
    EXPECT_EQ(safeCardName(QString(QChar(0xD800)) + QStringLiteral("x")), "_x");
    EXPECT_EQ(safeCardName("name. "), "name");
}

TEST(SavedName, LongNamesKeepTheirExtensionAndWholeCharacters) {
    const QString name = safeCardName(QString(255, QChar(0x00E4)) + ".JPEG");
    EXPECT_TRUE(name.endsWith(".JPEG"));
    EXPECT_LE(name.toUtf8().size(), 255);
    EXPECT_GE(name.toUtf8().size(), 254);
    QString faces;
    for (int i = 0; i < 120; ++i) {
        faces += QString::fromUcs4(U"\U0001F600", 1);
    }
    const QString cut = safeCardName(faces);
    EXPECT_LE(cut.toUtf8().size(), 255);
    EXPECT_EQ(QString::fromUtf8(cut.toUtf8()), cut);
}

TEST(SavedName, FoldersOfACardStayBelowTheDestination) {
    EXPECT_EQ(safeCardFolder("DCIM/100CANON"), "DCIM/100CANON");
    EXPECT_EQ(safeCardFolder(""), "");
    EXPECT_EQ(safeCardFolder("/../.config//autostart"), "_/_.config/autostart");
    EXPECT_EQ(safeCardFolder(QString("x/").repeated(2000)), std::nullopt);
    EXPECT_EQ(safeCardFolder(QString("/").repeated(2000)), std::nullopt) << "not even taken apart";
    EXPECT_EQ(safeCardFolder((QString(80, QChar(0x00E4)) + u'/').repeated(7)), std::nullopt)
        << "short in letters, long in bytes";
}

TEST(SavedName, NameAndFolderAreTheCardsWhereTheUserWantsThem) {
    CardFile file;
    file.folder = "DCIM/100CANON";
    file.name = "IMG_0412.JPG";
    const auto placeOf = [&file](SaveNames names, SaveFolders folders) {
        const SavedName saved =
            savedNameOf("JPG", "GND00012.JPG", {.names = names, .folders = folders}, std::nullopt, &file);
        return saved.folder + '/' + saved.file;
    };
    EXPECT_EQ(placeOf(SaveNames::Original, SaveFolders::Card), "DCIM/100CANON/IMG_0412.JPG");
    EXPECT_EQ(placeOf(SaveNames::Found, SaveFolders::Card), "DCIM/100CANON/GND00012.JPG");
    EXPECT_EQ(placeOf(SaveNames::Original, SaveFolders::Type), "JPG/IMG_0412.JPG");
    EXPECT_EQ(placeOf(SaveNames::Found, SaveFolders::Date), "JPG/GND00012.JPG") << "nothing tells a date";
    file.modified = QDateTime(QDate(2026, 5, 17), QTime(14, 3, 22)).toSecsSinceEpoch();
    EXPECT_EQ(placeOf(SaveNames::Original, SaveFolders::Date),
              "JPG/2026-05-17/2026-05-17 14.03.22 IMG_0412.JPG");
    file.folder.clear();
    EXPECT_EQ(placeOf(SaveNames::Original, SaveFolders::Card), "/IMG_0412.JPG");
    const auto isAsOnCard = [&file](SaveFolders folders) {
        return savedNameOf("JPG", "a.JPG", {.folders = folders}, std::nullopt, &file).asOnCard;
    };
    EXPECT_TRUE(isAsOnCard(SaveFolders::Card));
    EXPECT_FALSE(isAsOnCard(SaveFolders::Type));
    file.name = "JPG";
    EXPECT_EQ(placeOf(SaveNames::Original, SaveFolders::Card), "JPG/JPG")
        << "a file in the root does not take the place of a type's folder";
    file.folder = "DCIM";
    EXPECT_EQ(placeOf(SaveNames::Original, SaveFolders::Card), "DCIM/JPG");
}

}  // namespace vantor
