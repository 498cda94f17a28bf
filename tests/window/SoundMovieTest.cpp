// Sound without pictures, played through the helper as a movie is.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

#include "tests/decode/Tones.h"
#include "tests/support/CorpusFolder.h"
#include "tests/window/Played.h"
#include "window/preview/SoundMovie.h"

namespace vantor {
namespace {

class PlayedSound : public Played {
  protected:
    QString written(const QByteArray& bytes, const char* name = "dprv.WAV") {
        const QString path = m_folder.filePath(QLatin1String(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }
    void openSound(int seconds) {
        sound = SoundMovie::open(written(test::tones(seconds)), {}, options());
        ASSERT_TRUE(sound);
    }
    bool listenUntil(std::int64_t timeMs) { return Played::listenUntil(*sound, timeMs, 20); }

    std::unique_ptr<Movie> sound;

  private:
    QTemporaryDir m_folder;
};

TEST_F(PlayedSound, PlaysStopsAndGoesOnWhereItStood) {
    ASSERT_NO_FATAL_FAILURE(openSound(5));
    EXPECT_EQ(sound->durationMs(), 5000);
    EXPECT_TRUE(sound->hasSound());
    EXPECT_TRUE(sound->poster().isNull());
    EXPECT_FALSE(heard.playing) << "nothing sounds before it is played";
    int told = 0;
    sound->onProgress = [&] { ++told; };
    sound->play();
    ASSERT_TRUE(listenUntil(1000));
    EXPECT_LE(sound->positionMs(), heard.played / 48) << "no further than what was heard";
    EXPECT_GT(loudest, 10'000);
    EXPECT_GT(told, 3);
    sound->stop();
    EXPECT_FALSE(heard.playing);
    EXPECT_EQ(sound->rate(), 0);
    const std::int64_t stoodAt = sound->positionMs();
    sound->play();
    EXPECT_EQ(sound->positionMs(), stoodAt);
    ASSERT_TRUE(listenUntil(stoodAt + 200));
    EXPECT_EQ(heard.starts, 2) << "nothing sounded in between";
    sound.reset();
    EXPECT_EQ(heard.alive, 0);
}

TEST_F(PlayedSound, Sought_PlaysFromThere) {
    ASSERT_NO_FATAL_FAILURE(openSound(5));
    sound->seek(3000);
    EXPECT_EQ(sound->positionMs(), 3000);
    EXPECT_FALSE(heard.playing) << "what stands goes on standing";
    sound->play();
    ASSERT_TRUE(listenUntil(3200));
    EXPECT_EQ(heard.starts, 1);
    sound->seek(700);
    EXPECT_NE(sound->rate(), 0);
    ASSERT_TRUE(listenUntil(900));
    EXPECT_LT(sound->positionMs(), 1500);
    sound->seek(99'000);
    EXPECT_EQ(sound->positionMs(), 5000);
    sound->seek(-5);
    EXPECT_EQ(sound->positionMs(), 0);
}

TEST_F(PlayedSound, AtItsEnd_ItStandsThereAndBeginsAnew) {
    ASSERT_NO_FATAL_FAILURE(openSound(2));
    sound->seek(1500);
    sound->play();
    ASSERT_TRUE(listenUntil(60'000));
    EXPECT_EQ(sound->rate(), 0);
    EXPECT_NEAR(static_cast<double>(sound->positionMs()), 2000, 100);
    EXPECT_FALSE(heard.playing);
    sound->play();
    EXPECT_EQ(sound->positionMs(), 0);
    ASSERT_TRUE(listenUntil(300));
    EXPECT_NE(sound->rate(), 0);
}

TEST_F(PlayedSound, Muted_PlaysOnUnheard) {
    ASSERT_NO_FATAL_FAILURE(openSound(3));
    sound->setMuted(true);
    EXPECT_TRUE(sound->isMuted());
    sound->play();
    ASSERT_TRUE(listenUntil(500));
    EXPECT_EQ(loudest, 0);
    sound->setMuted(false);
    ASSERT_TRUE(listenUntil(1000));
    EXPECT_GT(loudest, 10'000);
}

TEST_F(PlayedSound, WithoutADevice_ItStopsWhereItStands) {
    heard.broken = true;
    ASSERT_NO_FATAL_FAILURE(openSound(3));
    sound->seek(1000);
    bool told = false;
    sound->onProgress = [&] { told = sound->rate() == 0; };
    sound->play();
    EXPECT_NE(sound->rate(), 0);
    ASSERT_TRUE(waitFor([&] { return told; }));
    EXPECT_EQ(sound->positionMs(), 1000);
    HelperMovieOptions none = options();
    none.sound = nullptr;
    EXPECT_FALSE(SoundMovie::open(written(test::tones(1)), {}, none));
}

TEST_F(PlayedSound, WhatIsNoSound_IsNone) {
    QByteArray junk(1 << 20, '\0');
    std::uint32_t state = 1;
    for (char& byte : junk) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<char>(state >> 24);
    }
    for (const char* name : {"dprv.MP3", "dprv.MPG", "dprv.TS", "dprv.AMR"}) {
        EXPECT_FALSE(openMovieOrSound(written(junk, name), {200, 200}, options())) << name;
        EXPECT_FALSE(openMovieOrSound(written(QByteArray(1 << 20, '\0'), name), {200, 200}, options()))
            << name;
    }
    EXPECT_FALSE(openMovieOrSound(written({}), {200, 200}, options()));
    EXPECT_EQ(heard.alive, 0);
}

// A transport stream without its middle third.
TEST_F(PlayedSound, AHoleInTheFile_IsSilenceOfItsLength) {
    QFile whole(
        test::corpusFolder() +
        QStringLiteral("/videos/ts/media__libraries__test_data__src__test__assets__media__hls__cea608__"
                       "sd-hls0000000000.ts"));
    if (!whole.open(QIODevice::ReadOnly)) {
        GTEST_SKIP() << "no corpus";
    }
    constexpr qsizetype kPacketBytes = 188;
    const QByteArray bytes = whole.readAll();
    const qsizetype third = bytes.size() / 3 / kPacketBytes * kPacketBytes;
    sound = SoundMovie::open(written(bytes.left(third) + bytes.mid(2 * third), "dprv.TS"), {}, options());
    ASSERT_TRUE(sound);
    sound->play();
    ASSERT_TRUE(listenUntil(60'000));
    EXPECT_NEAR(static_cast<double>(sound->positionMs()), 2500, 300);
}

TEST_F(PlayedSound, AFileWithPictures_IsAMovie_AndOneWithoutIsHeard) {
    const QString folder = test::corpusFolder();
    if (folder.isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    const auto opened = [&](const char* name) {
        return openMovieOrSound(folder + u'/' + QLatin1String(name), {200, 200}, options());
    };
    const auto movie = opened("videos/synth/vp9_opus.webm");
    ASSERT_TRUE(movie);
    EXPECT_TRUE(dynamic_cast<HelperMovie*>(movie.get()));
    const auto covered = opened("files/ape/file-type__fixture__fixture-monkeysaudio.ape");
    ASSERT_TRUE(covered);
    EXPECT_TRUE(dynamic_cast<SoundMovie*>(covered.get()));
    EXPECT_EQ(covered->poster().size(), QSize(200, 200));
    const auto bare = opened(
        "videos/mp4/tika__33f7d3a7_d-modules__tika-parser-audiovideo-module__src__test__resources__"
        "test-documents__testMP4AudioOnly.mp4");
    ASSERT_TRUE(bare);
    EXPECT_TRUE(dynamic_cast<SoundMovie*>(bare.get()));
    EXPECT_TRUE(bare->poster().isNull());
    EXPECT_GT(bare->durationMs(), 0);
}

}  // namespace
}  // namespace vantor
