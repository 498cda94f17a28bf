// Real movies played through the helpers: pictures, sound, positions, and that an ended movie is silent.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <algorithm>
#include <atomic>
#include <span>

#include "tests/support/CorpusFolder.h"
#include "tests/window/Played.h"
#include "window/preview/HelperMovie.h"
#include "window/preview/PlaybackClock.h"

namespace vantor {
namespace {

class PlayedMovie : public Played {
  protected:
    void SetUp() override {
        if (test::corpusFolder().isEmpty()) {
            GTEST_SKIP() << "no corpus";
        }
        Played::SetUp();
    }
    void openMovie(const char* name = "synth/vp9_opus.webm") {
        movie = HelperMovie::open(test::corpusFolder() + QStringLiteral("/videos/") + QLatin1String(name),
                                  {160, 160}, options());
        ASSERT_TRUE(movie);
        movie->onFrame = [this](const QImage& frame) {
            ++frames;
            last = frame;
        };
    }
    bool listenUntil(std::int64_t timeMs) { return Played::listenUntil(*movie, timeMs, 5); }

    std::unique_ptr<Movie> movie;
    int frames = 0;
    QImage last;
};

TEST_F(PlayedMovie, PicturesFollowTheSound) {
    ASSERT_NO_FATAL_FAILURE(openMovie());
    EXPECT_TRUE(movie->hasSound());
    EXPECT_EQ(movie->durationMs(), 4008);
    EXPECT_FALSE(heard.playing) << "nothing sounds before it is played";
    movie->play();
    ASSERT_TRUE(waitFor([&] { return heard.playing.load(); }));
    EXPECT_LT(movie->positionMs(), 100) << "the device has taken nothing yet";
    ASSERT_TRUE(listenUntil(1000));
    EXPECT_GT(loudest, 500);
    EXPECT_GT(frames, 3);
    EXPECT_LE(movie->positionMs(), heard.played / 48 + 150) << "no picture before its sound";
}

TEST_F(PlayedMovie, StoppedOrClosed_IsSilentAtOnce) {
    ASSERT_NO_FATAL_FAILURE(openMovie());
    movie->play();
    ASSERT_TRUE(listenUntil(200));
    movie->stop();
    EXPECT_FALSE(heard.playing);
    const std::int64_t stoodAt = movie->positionMs();
    movie->play();
    ASSERT_TRUE(listenUntil(stoodAt + 200));
    EXPECT_EQ(heard.starts, 2) << "it goes on where it stood";
    movie.reset();
    EXPECT_FALSE(heard.playing);
    EXPECT_EQ(heard.alive, 0);
}

TEST_F(PlayedMovie, ClosedAtAnyMoment_NothingGoesOnSounding) {
    for (const int wait : {0, 1, 5, 20, 60, 150}) {
        ASSERT_NO_FATAL_FAILURE(openMovie());
        movie->play();
        QTest::qWait(wait);
        movie.reset();
        EXPECT_FALSE(heard.playing);
        EXPECT_EQ(heard.alive, 0);
    }
}

TEST_F(PlayedMovie, Sought_ShowsThatFrameAndPlaysOnFromThere) {
    ASSERT_NO_FATAL_FAILURE(openMovie());
    movie->seek(2000);
    EXPECT_EQ(movie->positionMs(), 2000);
    ASSERT_TRUE(waitFor([this] { return frames == 1; }));
    EXPECT_FALSE(heard.playing) << "a paused movie stays so";
    EXPECT_NE(last, movie->poster());
    movie->play();
    ASSERT_TRUE(listenUntil(2200));
    EXPECT_GE(movie->positionMs(), 2000);
    movie->seek(500);
    EXPECT_FALSE(heard.playing) << "what is heard is never from elsewhere";
    ASSERT_TRUE(listenUntil(700));
    EXPECT_LT(movie->positionMs(), 1500);
    EXPECT_NE(movie->rate(), 0);
}

TEST_F(PlayedMovie, SoughtBeyondItsEnds_StandsThere) {
    ASSERT_NO_FATAL_FAILURE(openMovie());
    movie->seek(99'000);
    EXPECT_EQ(movie->positionMs(), 4008);
    movie->seek(-5);
    EXPECT_EQ(movie->positionMs(), 0);
}

TEST_F(PlayedMovie, AtItsEnd_ItStandsThereAndBeginsAnew) {
    ASSERT_NO_FATAL_FAILURE(openMovie());
    movie->seek(3800);
    movie->play();
    bool told = false;
    movie->onProgress = [&] { told = told || movie->rate() == 0; };
    ASSERT_TRUE(listenUntil(60'000));
    EXPECT_EQ(movie->rate(), 0);
    EXPECT_EQ(movie->positionMs(), 4008);
    EXPECT_FALSE(heard.playing);
    ASSERT_TRUE(waitFor([&] { return told; }));
    movie->play();
    ASSERT_TRUE(waitFor([this] { return heard.playing.load(); }));
    EXPECT_LT(movie->positionMs(), 500);
}

TEST_F(PlayedMovie, WithoutADevice_ItPlaysSilently) {
    heard.broken = true;
    ASSERT_NO_FATAL_FAILURE(openMovie());
    movie->play();
    ASSERT_TRUE(waitFor([this] { return movie->positionMs() > 200; }));
    EXPECT_FALSE(heard.playing);
}

TEST_F(PlayedMovie, Muted_PlaysOnUnheard) {
    ASSERT_NO_FATAL_FAILURE(openMovie());
    movie->setMuted(true);
    EXPECT_TRUE(movie->isMuted());
    movie->play();
    ASSERT_TRUE(listenUntil(600));
    EXPECT_EQ(loudest, 0);
    movie->setMuted(false);
    ASSERT_TRUE(listenUntil(1200));
    EXPECT_GT(loudest, 500);
}

TEST_F(PlayedMovie, WithoutSound_AsksForNoDevice) {
    ASSERT_NO_FATAL_FAILURE(openMovie("mkv/nom-exif__testdata__mkv_640x360.mkv"));
    EXPECT_FALSE(movie->hasSound());
    EXPECT_EQ(heard.alive, 0);
    movie->play();
    EXPECT_TRUE(waitFor([this] { return movie->positionMs() > 200; }));
}

// Whatever this computer has.
TEST(DesktopSoundDevice, PlaysOrSaysThatItCannot_AndNeverAsksAfterStop) {
    const std::unique_ptr<SoundDevice> device = makeDesktopSoundDevice();
    for (int round = 0; round < 3; ++round) {
        std::atomic<int> asked{0};
        std::atomic<bool> over{false};
        std::atomic<int> askedTooLate{0};
        device->start([&](std::span<std::int16_t> samples) {
            ++asked;
            askedTooLate += over;
            std::fill(samples.begin(), samples.end(), std::int16_t{0});
        });
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return device->hasFailed() || (asked > 0 && device->playedFrames() > 0); }, 60'000));
        device->stop();
        over = true;
        QTest::qWait(100);
        EXPECT_EQ(askedTooLate, 0);
    }
}

struct ScriptedSound {
    std::int64_t positionMs() const { return position; }
    bool hasFailed() const { return failed; }
    void stop() { ++stops; }
    std::int64_t position = 1000;
    bool failed = false;
    int stops = 0;
};

TEST(PlaybackClock, FollowsTheSound_UntilItFails) {
    using std::chrono::milliseconds;
    const PlaybackClock<ScriptedSound>::Time now{};
    ScriptedSound sound;
    PlaybackClock<ScriptedSound> clock(1000, &sound, now, milliseconds(2000));
    EXPECT_EQ(clock.nowMs(now + milliseconds(500)), 1000) << "not heard yet";
    sound.position = 1300;
    EXPECT_EQ(clock.nowMs(now + milliseconds(600)), 1300);
    sound.position = 1200;
    EXPECT_EQ(clock.nowMs(now + milliseconds(610)), 1300) << "never back";
    sound.failed = true;
    EXPECT_EQ(clock.nowMs(now + milliseconds(620)), 1300);
    EXPECT_FALSE(clock.hasSound());
    EXPECT_EQ(clock.nowMs(now + milliseconds(720)), 1400);
    EXPECT_EQ(sound.stops, 1);
}

TEST(PlaybackClock, ADeviceThatStands_IsGivenUp) {
    using std::chrono::milliseconds;
    const PlaybackClock<ScriptedSound>::Time now{};
    ScriptedSound sound;
    PlaybackClock<ScriptedSound> clock(1000, &sound, now, milliseconds(2000));
    EXPECT_EQ(clock.nowMs(now + milliseconds(1900)), 1000);
    EXPECT_EQ(clock.nowMs(now + milliseconds(2100)), 1000);
    EXPECT_EQ(sound.stops, 1);
    EXPECT_EQ(clock.nowMs(now + milliseconds(2200)), 1100) << "no leap over the time that was waited";
}

TEST(PlaybackClock, WithoutSound_IsTheWalls) {
    const PlaybackClock<ScriptedSound>::Time now{};
    PlaybackClock<ScriptedSound> clock(1000, nullptr, now, std::chrono::milliseconds(2000));
    EXPECT_EQ(clock.nowMs(now + std::chrono::milliseconds(250)), 1250);
}

}  // namespace
}  // namespace vantor
