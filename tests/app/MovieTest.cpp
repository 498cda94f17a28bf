// The movie preview of the video mode, over movies that a test plays itself.
#include <limits>

#include "results/RecoveryMode.h"
#include "tests/app/WindowTest.h"

namespace vantor {
namespace {

struct MovieLog {
    int alive = 0;
    int stops = 0;
};

class ScriptedMovie : public Movie {
  public:
    explicit ScriptedMovie(MovieLog& log) : m_log(log) { ++m_log.alive; }
    ~ScriptedMovie() override { --m_log.alive; }
    float rate() const override { return playing; }
    void play() override { playing = 1; }
    void stop() override {
        playing = 0;
        ++m_log.stops;
    }
    float playing = 0;

  private:
    MovieLog& m_log;
};

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
        QTest::qWait(1);
    }
    void select(int row) {
        ImageBrowserView* browser = controller->imageBrowser_2;
        QTest::mouseClick(browser->viewport(), Qt::LeftButton, {},
                          browser->visualRect(browser->model()->index(row, 0)).center());
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
