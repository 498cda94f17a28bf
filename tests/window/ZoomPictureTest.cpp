// Where a picture lies at every zoom.
#include <gtest/gtest.h>

#include <QTest>

#include "window/preview/ZoomPicture.h"

namespace vantor {
namespace {

QImage plain(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

class ZoomPictures : public ::testing::Test {
  protected:
    ZoomPictures() { view.resize(400, 200); }
    ZoomPicture view;
};

TEST_F(ZoomPictures, ALargePicture_IsFitted) {
    view.begin(plain(1000, 1000), {1000, 1000});
    EXPECT_DOUBLE_EQ(view.scale(), 0.2);
    EXPECT_EQ(view.place(), QRectF(100, 0, 200, 200));
    EXPECT_FALSE(view.wantsMore());
}

TEST_F(ZoomPictures, ASmallPicture_IsNotBlownUp_AStandInIs) {
    view.begin(plain(100, 50), {100, 50});
    EXPECT_EQ(view.place().size(), QSizeF(100, 50));
    view.begin(plain(100, 50), {});
    EXPECT_EQ(view.place().size(), QSizeF(400, 200));
    view.begin(plain(100, 50), {4000, 2000});
    EXPECT_EQ(view.place().size(), QSizeF(400, 200));
}

TEST_F(ZoomPictures, ASharperCopy_MovesNothing) {
    view.begin(plain(400, 200), {4000, 2000});
    view.showActualSize();
    view.push({300, 100});
    const QRectF place = view.place();
    EXPECT_EQ(place.size(), QSizeF(4000, 2000));
    EXPECT_TRUE(view.wantsMore());
    view.sharpen(plain(4000, 2000), {4000, 2000});
    EXPECT_EQ(view.place(), place);
    EXPECT_FALSE(view.wantsMore());
}

TEST_F(ZoomPictures, NobodyCanPushItOutOfView) {
    view.begin(plain(1000, 1000), {1000, 1000});
    view.push({50, 50});
    EXPECT_EQ(view.place(), QRectF(100, 0, 200, 200)) << "all of it is in view";
    view.showActualSize();
    view.push({10'000, -10'000});
    EXPECT_EQ(view.place(), QRectF(0, -800, 1000, 1000));
}

TEST_F(ZoomPictures, ZoomingOutEndsWhereAllIsSeen) {
    view.begin(plain(1000, 1000), {1000, 1000});
    view.zoomBy(4);
    EXPECT_DOUBLE_EQ(view.scale(), 0.8);
    EXPECT_FALSE(view.isFitted());
    view.zoomBy(0.001);
    EXPECT_TRUE(view.isFitted());
    view.zoomBy(1e6);
    EXPECT_DOUBLE_EQ(view.scale(), 16);
}

TEST_F(ZoomPictures, ADoubleClickZoomsWhereItPoints) {
    view.begin(plain(1000, 1000), {1000, 1000});
    const QPointF spot(150, 50);
    const QPointF before = (spot - view.place().topLeft()) / view.scale();
    QTest::mouseDClick(&view, Qt::LeftButton, {}, spot.toPoint());
    EXPECT_DOUBLE_EQ(view.scale(), 1);
    EXPECT_EQ(spot - view.place().topLeft(), before) << "the same pixel is under the pointer";
    QTest::mouseDClick(&view, Qt::LeftButton, {}, spot.toPoint());
    EXPECT_TRUE(view.isFitted());
}

TEST_F(ZoomPictures, OnlyThePicture_IsPainted) {
    view.begin(plain(1000, 1000), {1000, 1000});
    QImage screen(view.size(), QImage::Format_RGB32);
    screen.fill(Qt::black);
    view.render(&screen, {}, {}, QWidget::DrawChildren);
    EXPECT_EQ(screen.pixelColor(200, 100), QColor(Qt::red));
    EXPECT_EQ(screen.pixelColor(50, 100), QColor(Qt::black));
}

}  // namespace
}  // namespace vantor
