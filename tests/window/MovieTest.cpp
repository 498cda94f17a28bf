// The movie preview of the video mode, over movies that a test plays itself.
#include <QLabel>
#include <QSlider>
#include <QToolButton>
#include <limits>

#include "results/ItemWords.h"
#include "results/RecoveryMode.h"
#include "tests/window/ScriptedMovie.h"
#include "tests/window/WindowTest.h"
#include "window/preview/MovieControls.h"

namespace vantor {
namespace {

class MoviePreview : public WindowTest {
  protected:
    void openResults() {
        parts.movie = [this](const QString&) {
            return playable ? std::make_unique<ScriptedMovie>(log) : nullptr;
        };
        openWithCard();
        toRange(kVideoMode);
        controller->show_hide_2_screen(true);
        controller->show_hide_4_screen_RawFile(false);
        for (const char* name : {"A.MP4", "B.MP4"}) {
            controller->addImageWithData_2({}, QString::fromLatin1(name), QString::fromLatin1(name), 40, 42);
        }
        settle();
    }
    void select(int row) {
        ImageBrowserView* browser = controller->imageBrowser_2;
        QTest::mouseClick(browser->viewport(), Qt::LeftButton, {},
                          browser->visualRect(browser->model()->index(row, 0)).center());
        settle();  // the preview begins when the click is over
    }

    ScriptedMovie& shownMovie() { return dynamic_cast<ScriptedMovie&>(*controller->mMovieView->movie()); }
    template <typename Widget>
    Widget* control(const char* name) {
        return controller->mMovieView->findChild<Widget*>(QLatin1String(name));
    }

    MovieLog log;
    bool playable = true;
};

TEST_F(MoviePreview, AMovieTakesThePlaceOfThePicture) {
    openResults();
    select(0);
    EXPECT_TRUE(controller->mMovieView->isVisible());
    EXPECT_FALSE(controller->_QuickLook_View->isVisible());
    EXPECT_NE(controller->mMovieView->movie(), nullptr);
    EXPECT_EQ(controller->_QuickLook_View_Box->title(), QStringLiteral("A.MP4"));
}

TEST_F(MoviePreview, WhatIsNoMovie_ShowsThePicture) {
    playable = false;
    openResults();
    select(0);
    EXPECT_FALSE(controller->mMovieView->isVisible());
    EXPECT_TRUE(controller->_QuickLook_View->isVisible());
    EXPECT_FALSE(controller->_QuickLook_View->pixmap().isNull());
}

TEST_F(MoviePreview, AnotherItem_StopsAndRemovesTheMovieFirst) {
    openResults();
    select(0);
    controller->mMovieView->togglePlaying();
    EXPECT_TRUE(controller->isPlaying(controller->mMovieView->movie()));
    playable = false;
    select(1);
    EXPECT_EQ(log.stops, 1);
    EXPECT_EQ(log.alive, 0);
}

TEST_F(MoviePreview, APausedMovie_IsNotStoppedAgainButRemoved) {
    openResults();
    select(0);
    controller->closemovie_Win();
    EXPECT_EQ(log.stops, 0);
    EXPECT_EQ(log.alive, 0);
    controller->closemovie_Win();  // an empty view is left alone
}

TEST_F(MoviePreview, ARateThatIsNoNumber_CountsAsPlaying) {
    open();
    ScriptedMovie movie(log);
    EXPECT_FALSE(controller->isPlaying(&movie));
    movie.playing = std::numeric_limits<float>::quiet_NaN();
    EXPECT_TRUE(controller->isPlaying(&movie));
    EXPECT_FALSE(controller->isPlaying(nullptr));
    controller->stopPlayingMovie(&movie);
    EXPECT_EQ(log.stops, 1);
}

TEST_F(MoviePreview, LeavingTheScreenClosesTheMovie) {
    openResults();
    select(0);
    controller->mMovieView->togglePlaying();
    controller->show_hide_4_screen_RawFile(true);
    EXPECT_EQ(log.stops, 1);
    EXPECT_EQ(log.alive, 0);
    EXPECT_FALSE(controller->mMovieView->isVisible());
}

TEST_F(MoviePreview, SpaceAndClickPlayAndStop) {
    openResults();
    select(0);
    QTest::keyClick(controller->mMovieView, Qt::Key_Space);
    EXPECT_TRUE(controller->isPlaying(controller->mMovieView->movie()));
    click(controller->mMovieView);
    EXPECT_FALSE(controller->isPlaying(controller->mMovieView->movie()));
}

TEST_F(MoviePreview, TheControls_PlayPauseAndMute) {
    openResults();
    EXPECT_FALSE(control<QToolButton>("moviePlay")->isVisible()) << "nothing to control yet";
    select(0);
    click(control<QToolButton>("moviePlay"));
    EXPECT_TRUE(controller->isPlaying(controller->mMovieView->movie()));
    EXPECT_TRUE(control<QToolButton>("moviePlay")->accessibleName().startsWith(QStringLiteral("Pause")));
    click(control<QToolButton>("movieMute"));
    EXPECT_TRUE(shownMovie().muted);
    EXPECT_EQ(control<QToolButton>("movieMute")->accessibleName(), QStringLiteral("Sound on"));
    click(control<QToolButton>("moviePlay"));
    EXPECT_FALSE(controller->isPlaying(controller->mMovieView->movie()));
    EXPECT_TRUE(control<QToolButton>("moviePlay")->accessibleName().startsWith(QStringLiteral("Play")));
}

TEST_F(MoviePreview, ThePosition_IsShownAndCanBeChosen) {
    openResults();
    select(0);
    auto* slider = control<QSlider>("moviePosition");
    auto* times = control<QLabel>("movieTimes");
    EXPECT_EQ(times->text(), QStringLiteral("0:00 / 1:05"));
    shownMovie().position = 7200;
    shownMovie().onProgress();
    EXPECT_EQ(times->text(), QStringLiteral("0:07 / 1:05"));
    EXPECT_EQ(slider->value(), 7200);
    QTest::mouseClick(slider, Qt::LeftButton, {}, {slider->width() / 2, slider->height() / 2});
    EXPECT_NEAR(static_cast<double>(shownMovie().position), 32'500, 3000) << "a click means that place";
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Home);
    EXPECT_EQ(shownMovie().position, 0);
    QTest::keyClick(controller->mMovieView, Qt::Key_Right);
    EXPECT_EQ(shownMovie().position, 5000);
    EXPECT_EQ(times->text(), QStringLiteral("0:05 / 1:05"));
    QTest::keyClick(controller->mMovieView, Qt::Key_Left);
    EXPECT_EQ(shownMovie().position, 0);
}

TEST_F(MoviePreview, AHandleThatIsHeld_StaysInTheHand) {
    openResults();
    select(0);
    settle();
    auto* slider = control<QSlider>("moviePosition");
    const QPoint handle(4, slider->height() / 2);
    QTest::mousePress(slider, Qt::LeftButton, {}, handle);
    shownMovie().position = 30'000;
    shownMovie().onProgress();
    EXPECT_EQ(slider->value(), 0);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, handle);
    shownMovie().onProgress();
    EXPECT_EQ(slider->value(), 30'000);
}

TEST_F(MoviePreview, AnUnknownLength_LeavesNothingToSeekBy) {
    openResults();
    auto movie = std::make_unique<ScriptedMovie>(log);
    movie->duration = 0;
    select(0);
    controller->mMovieView->setMovie(std::move(movie));
    EXPECT_FALSE(control<QSlider>("moviePosition")->isEnabled());
    EXPECT_EQ(control<QLabel>("movieTimes")->text(), QStringLiteral("0:00"));
    QTest::keyClick(controller->mMovieView, Qt::Key_Right);
    EXPECT_EQ(shownMovie().position, 0);
}

TEST(TimeText, MinutesSecondsAndHours) {
    EXPECT_EQ(timeText(-5), QStringLiteral("0:00"));
    EXPECT_EQ(timeText(59'999), QStringLiteral("0:59"));
    EXPECT_EQ(timeText(600'000), QStringLiteral("10:00"));
    EXPECT_EQ(timeText(3'723'000), QStringLiteral("1:02:03"));
}

TEST_F(MoviePreview, WithoutPictures_ASignOfSoundIsDrawn) {
    openResults();
    select(0);
    controller->mMovieView->togglePlaying();
    const QImage shown = controller->mMovieView->grab().toImage();
    int drawn = 0;
    const QRgb ground = shown.pixel(shown.width() / 2, 4);
    for (int x = 0; x < shown.width(); ++x) {
        drawn += shown.pixel(x, shown.height() / 2) != ground;
    }
    EXPECT_GT(drawn, 20);
    EXPECT_LT(drawn, shown.width() - 20);
    settle();
    EXPECT_FALSE(
        control<QLabel>("movieTimes")->geometry().intersects(control<QToolButton>("movieMute")->geometry()));
}

TEST_F(MoviePreview, FramesAreDrawn) {
    openResults();
    select(0);
    controller->mMovieView->togglePlaying();
    QImage frame(40, 30, QImage::Format_RGB32);
    frame.fill(Qt::green);
    controller->mMovieView->movie()->onFrame(frame);
    const QImage shown = controller->mMovieView->grab().toImage();
    EXPECT_EQ(shown.pixelColor(shown.rect().center()), QColor(Qt::green));
}

}  // namespace
}  // namespace vantor
