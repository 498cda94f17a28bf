// Sound: pieces, positions, and files and helpers that break.
#include <gtest/gtest.h>
#include <signal.h>

#include "decode/SoundReader.h"
#include "tests/decode/MovieFixtures.h"
#include "tests/decode/Tones.h"
#include "tests/decode/WatchedThread.h"

namespace vantor {
namespace {

using namespace test;

// Of the left channel, from how often it turns positive.
double hertzOf(const SoundPiece& piece) {
    int turns = 0;
    for (std::size_t i = 2; i < piece.samples.size(); i += 2) {
        turns += piece.samples[i - 2] < 0 && piece.samples[i] >= 0;
    }
    return static_cast<double>(turns) * kSoundFramesPerSecond / static_cast<double>(piece.frames());
}

using Sound = MovieHelperTest;

TEST_F(Sound, Pieces_FollowEachOtherToTheEnd) {
    const auto reader = SoundReader::open(written(tones(3), QStringLiteral("dprv.WAV")), movieOptions());
    ASSERT_TRUE(reader);
    EXPECT_EQ(reader->durationMs(), 3000);
    std::int64_t frames = 0;
    while (const auto piece = reader->next()) {
        EXPECT_NEAR(piece->timeMs, frames * 1000 / kSoundFramesPerSecond, 2);
        EXPECT_LE(piece->frames(), kSoundFramesPerSecond / 10);
        EXPECT_NEAR(hertzOf(*piece), 200 + 100 * (piece->timeMs / 1000), 11);
        for (std::size_t i = 1; i < piece->samples.size(); i += 2) {
            ASSERT_EQ(piece->samples[i], 0) << "left and right are told apart";
        }
        frames += piece->frames();
    }
    EXPECT_NEAR(frames, 3 * kSoundFramesPerSecond, 64);
    EXPECT_FALSE(reader->isOver());
    EXPECT_FALSE(reader->next());
    EXPECT_TRUE(reader->seek(0));
}

TEST_F(Sound, Seek_GivesThePieceAtThatTime) {
    const auto reader = SoundReader::open(written(tones(5), QStringLiteral("dprv.WAV")), movieOptions());
    ASSERT_TRUE(reader);
    for (const int time : {4300, 1200, 2500}) {
        const auto piece = reader->seek(time);
        ASSERT_TRUE(piece);
        EXPECT_NEAR(piece->timeMs, time, 100);
        EXPECT_NEAR(hertzOf(*piece), 200 + 100 * (time / 1000), 11);
    }
    EXPECT_FALSE(reader->seek(60'000));
}

TEST_F(Sound, RealMovies_SoundAsLongAsTheyAre) {
    if (corpusFolder().isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    for (const char* name :
         {"videos/3gp/file-type__fixture__fixture.3gp",
          "videos/avi/digicam_corpus__Canon__PowerShot_S40__MVI_0121.AVI", "videos/synth/vp9_opus.webm",
          "videos/mov/digicam_corpus__Apple__iPhone_XR__IMG_3589.mov",
          "videos/mpg/digicam_corpus__Sony__DSC-P5__MOMLV100__DSC00010.MPG",
          "videos/mts/file-type__fixture__fixture-raw.mts"}) {
        SCOPED_TRACE(name);
        const auto reader = SoundReader::open(corpusFolder() + u'/' + QLatin1String(name), movieOptions());
        ASSERT_TRUE(reader);
        std::int64_t frames = 0;
        std::int64_t loudest = 0;
        while (const auto piece = reader->next()) {
            if (frames == 0) {
                EXPECT_NEAR(static_cast<double>(piece->timeMs), 0, 100) << "it begins with the pictures";
            }
            frames += piece->frames();
            for (const std::int16_t sample : piece->samples) {
                loudest = std::max<std::int64_t>(loudest, std::abs(sample));
            }
        }
        EXPECT_NEAR(frames * 1000 / kSoundFramesPerSecond, reader->durationMs(),
                    200 + reader->durationMs() / 10);
        EXPECT_GT(loudest, 0);
        EXPECT_FALSE(reader->isOver());
    }
}

// Files in which seeking by the sound alone lands beyond the end.
TEST_F(Sound, SeekInRealMovies_LandsThere) {
    if (corpusFolder().isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    for (const char* name :
         {"avi/digicam_corpus__Canon__PowerShot_S40__MVI_0121.AVI",
          "avi/"
          "media__libraries__test_data__src__test__assets__media__avi__sample-unflagged-audio-keyframes.avi",
          "mpg/digicam_corpus__Sony__DSC-P5__MOMLV100__DSC00010.MPG", "synth/vp9_opus.webm"}) {
        SCOPED_TRACE(name);
        const auto reader = SoundReader::open(
            corpusFolder() + QStringLiteral("/videos/") + QLatin1String(name), movieOptions());
        ASSERT_TRUE(reader);
        const std::int64_t middle = reader->durationMs() / 2;
        const auto piece = reader->seek(middle);
        ASSERT_TRUE(piece);
        // Where the packet begins that holds the time.
        EXPECT_LE(piece->timeMs, middle + 150);
        EXPECT_GE(piece->timeMs, middle - 1000);
    }
}

// A transport stream that lost its middle: what follows is heard where it belongs, not too early.
TEST_F(Sound, AHoleInTheFile_IsAHoleInTime) {
    if (corpusFolder().isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    constexpr qsizetype kPacketBytes = 188;
    const QByteArray whole = bytesOfFile(
        corpusFolder() +
        QStringLiteral("/videos/ts/media__libraries__test_data__src__test__assets__media__hls__cea608__"
                       "sd-hls0000000000.ts"));
    const qsizetype third = whole.size() / 3 / kPacketBytes * kPacketBytes;
    const auto reader = SoundReader::open(
        written(whole.left(third) + whole.mid(2 * third), QStringLiteral("dprv.TS")), movieOptions());
    ASSERT_TRUE(reader);
    std::int64_t endMs = -1, longestHoleMs = 0, soundMs = 0;
    while (const auto piece = reader->next()) {
        if (endMs >= 0) {
            EXPECT_GT(piece->timeMs, endMs - 100) << "never back";
            longestHoleMs = std::max(longestHoleMs, piece->timeMs - endMs);
        }
        soundMs += piece->frames() * 1000 / kSoundFramesPerSecond;
        endMs = piece->timeMs + piece->frames() * 1000 / kSoundFramesPerSecond;
    }
    EXPECT_GT(longestHoleMs, 300);
    EXPECT_NEAR(static_cast<double>(endMs), 2500, 300);
    EXPECT_LT(soundMs, endMs - 300);
}

TEST_F(Sound, WithoutSound_IsNone) {
    EXPECT_FALSE(
        SoundReader::open(written(QByteArray(1 << 20, '\0'), QStringLiteral("zeros.mp3")), movieOptions()));
    EXPECT_FALSE(SoundReader::open(written({}, QStringLiteral("empty.wav")), movieOptions()));
    EXPECT_FALSE(SoundReader::open(m_folder.filePath(QStringLiteral("missing.wav")), movieOptions()));
    MovieReaderOptions none;
    none.helper = QStringLiteral("/nonexistent/vantor-decode-movie");
    EXPECT_FALSE(SoundReader::open(written(tones(1), QStringLiteral("dprv.WAV")), none));
}

TEST_F(Sound, HelperKilled_EndsTheSoundOnly) {
    const auto reader = SoundReader::open(written(tones(3), QStringLiteral("dprv.WAV")), movieOptions());
    ASSERT_TRUE(reader && reader->next());
    kill(reader->helperPid(), SIGABRT);
    EXPECT_FALSE(reader->next());
    EXPECT_TRUE(reader->isOver());
    EXPECT_FALSE(reader->seek(0));
}

TEST_F(Sound, Cancel_FreesAReaderThatWaits) {
    CancelSignal cancel;
    MovieReaderOptions patient = movieOptions();
    patient.cancel = &cancel;
    patient.frameDeadline = std::chrono::minutes(10);
    const auto reader = SoundReader::open(written(tones(3), QStringLiteral("dprv.WAV")), patient);
    ASSERT_TRUE(reader && reader->next());
    stopProcess(reader->helperPid());
    // The helper lives and ends with the thread that asks it, so it is another one that cancels.
    const pid_t asking = gettid();
    WatchedThread canceller([&] {
        awaitThreadAsleepIn(asking, kAskingAHelper);
        cancel.raise();
    });
    EXPECT_FALSE(reader->next());
    EXPECT_TRUE(reader->isOver());
    canceller.join();
}

TEST_F(Sound, MutatedFiles_SoundOrNot) {
    if (corpusFolder().isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    constexpr int kMutations = 100;
    const std::vector<const char*> folders{"videos",    "files/mp3", "files/m4a", "files/flac", "files/ogg",
                                           "files/wma", "files/aac", "files/amr", "files/ape"};
    const int sounding = useMutated(folders, kMutations, 12, [](const QString& path, const auto& impatient) {
        const auto reader = SoundReader::open(path, impatient);
        if (reader) {
            for (int piece = 0; piece < 20 && reader->next(); ++piece) {
            }
            reader->seek(reader->durationMs() / 2);
        }
        return reader != nullptr;
    });
    EXPECT_GT(sounding, kMutations / 10);
    EXPECT_LT(sounding, kMutations);
}

}  // namespace
}  // namespace vantor
