// The bar that stands for the card: what it says follows the range controls.
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"
#include "window/panels/CardPicture.h"

namespace vantor {
namespace {

class CardPictureTest : public WindowTest {
  protected:
    CardPicture& picture() const {
        return *controller->diskFactsBox->findChild<CardPicture*>(QStringLiteral("cardPicture"));
    }
    QColor at(double share) const {
        const QImage seen = picture().grab().toImage();
        return seen.pixelColor(static_cast<int>(share * (seen.width() - 1)), 8);
    }
};

TEST_F(CardPictureTest, SaysWhatWillBeSearched) {
    openWithCard();
    toRange(kPhotoMode);
    ASSERT_TRUE(picture().isVisible());
    EXPECT_TRUE(picture().words().endsWith(QStringLiteral("all of it is searched")));
    EXPECT_EQ(picture().accessibleDescription(), picture().words());
    click(controller->_sector_range_rd);
    controller->_Start_slider_val->setText(QStringLiteral("16"));
    controller->_End_slider_val->setText(QStringLiteral("48"));
    EXPECT_TRUE(picture().accessibleDescription().endsWith(QStringLiteral("50 % of it is searched")));
    EXPECT_NE(at(0.1), at(0.5)) << "what is left out looks otherwise";
    EXPECT_EQ(at(0.1), at(0.9));
    const auto refused = [this](const char* start, const char* end, const char* why) {
        controller->_Start_slider_val->setText(QLatin1String(start));
        controller->_End_slider_val->setText(QLatin1String(end));
        EXPECT_TRUE(picture().words().endsWith(QStringLiteral("nothing of it would be searched · ") +
                                               QLatin1String(why)))
            << picture().words().toStdString();
    };
    refused("16", "10", "End Sector should be greater than Start Sector.");
    refused("-5", "10", "Please enter valid Start Sector value.");
    refused("", "10", "Please enter valid Start Sector value.");
    refused("0", "1x", "Please enter valid End Sector value.");
    refused("0", "65", "Maximum sector range exceeded");
    refused("64", "64", "End Sector should be greater than Start Sector.");
    click(controller->_entire_disk_rd);
    EXPECT_TRUE(picture().words().endsWith(QStringLiteral("all of it is searched")));
}

TEST(CardPictureParts, AreTold_AndThoseBeyondTheCardAreNot) {
    QLabel identifier(QStringLiteral("sdb")), sectors(QStringLiteral("64")), fact(QStringLiteral("FAT16"));
    QLineEdit start, end;
    QRadioButton sectorRange;
    RangeOutlets range;
    range.diskIdentifier = &identifier;
    range.sectors = &sectors;
    range.values = {&fact, &fact, &fact, &fact};
    range.start.value = &start;
    range.end.value = &end;
    range.sectorRange = &sectorRange;
    std::vector<CardPart> parts;
    CardPicture picture(
        range, [&](const QString&) { return parts; }, nullptr);
    picture.resize(400, picture.sizeHint().height());
    picture.show();
    EXPECT_EQ(picture.words(), QStringLiteral("32.8 kB as makers count · FAT16 · all of it is searched"));
    const auto at = [&](int x) { return picture.grab().toImage().pixelColor(x, 8); };
    const QColor plain = at(100);
    parts = {{QStringLiteral("one"), {0, 32}, 0.25},
             {QStringLiteral("two"), {40, 64}, {}},
             {QStringLiteral("beyond"), {64, 90}, {}}};
    picture.hide();
    picture.show();
    EXPECT_EQ(picture.words(),
              QStringLiteral("32.8 kB as makers count · one (25 % used) · two · all of it is searched"));
    EXPECT_NE(at(100), plain) << "of the first part";
    EXPECT_EQ(at(225), plain) << "between the two";
    EXPECT_NE(at(300), plain);
    sectors.setText(QStringLiteral("5000000"));
    sectorRange.setChecked(true);
    start.setText(QStringLiteral("1"));
    end.setText(QStringLiteral("5000000"));
    EXPECT_TRUE(picture.words().endsWith(QStringLiteral("99 % of it is searched")))
        << "a part is not told as 100 %: " << picture.words().toStdString();
}

}  // namespace
}  // namespace vantor
