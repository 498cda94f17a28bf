// Movies: posters, frames, positions, and files that break decoders.
#include <gtest/gtest.h>
#include <signal.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <random>

#include "decode/MovieReader.h"
#include "tests/decode/Fixtures.h"

namespace vantor {
namespace {

using namespace test;
using std::chrono::seconds;

MovieReaderOptions options() {
    MovieReaderOptions chosen;
    chosen.helper = QStringLiteral(VANTOR_MOVIE_HELPER);
    return chosen;
}

class Movie : public testing::Test {
  protected:
    void SetUp() override {
        if (corpusFolder().isEmpty()) {
            GTEST_SKIP() << "no corpus";
        }
        if (!QFileInfo::exists(options().helper)) {
            GTEST_SKIP() << "built without the movie helper";
        }
    }
    static QString movie(const char* name) {
        return corpusFolder() + QStringLiteral("/videos/") + QLatin1String(name);
    }
    QString written(const QByteArray& bytes, const QString& name) {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }
    QTemporaryDir m_folder;
};

TEST_F(Movie, RealFiles_HaveAPosterAndFacts) {
    struct Row {
        const char* name;
        QSize size;
        std::int64_t durationMs;
        bool sound;
    };
    const Row rows[] = {
        {"3gp/file-type__fixture__fixture.3gp", {504, 288}, 5578, true},
        {"asf/file-type__fixture__fixture.asf", {160, 120}, 28086, true},
        {"avi/digicam_corpus__Canon__PowerShot_S40__MVI_0121.AVI", {160, 120}, 9466, true},
        {"mkv/nom-exif__testdata__mkv_640x360.mkv", {640, 360}, 13346, false},
        {"mov/digicam_corpus__Apple__iPhone_XR__IMG_3589.mov", {1440, 1080}, 2936, true},
        // Stored lying and turned upright.
        {"mp4/media__libraries__test_data__src__test__assets__media__mp4__h265_with_metadata_track.mp4",
         {1080, 1920},
         100,
         true},
        {"mpg/digicam_corpus__Sony__DSC-P5__MOMLV100__DSC00010.MPG", {320, 240}, 6880, true},
        {"mts/file-type__fixture__fixture-raw.mts", {1920, 1080}, 1034, true},
        {"mxf/file-type__fixture__fixture.mxf", {768, 576}, 10640, false},
        {"synth/vp9_opus.webm", {640, 360}, 4008, true},
        {"wmv/"
         "tika__b471b335_standard__tika-parsers-standard-integration-tests__src__test__resources__test-"
         "documents__testWMV.wmv",
         {640, 480},
         5000,
         true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const auto reader = MovieReader::open(movie(row.name), {200, 200}, options());
        ASSERT_TRUE(reader);
        EXPECT_EQ(reader->fullSize(), row.size);
        EXPECT_EQ(reader->durationMs(), row.durationMs);
        EXPECT_EQ(reader->hasSound(), row.sound);
        const QImage& poster = reader->poster().image;
        EXPECT_EQ(std::max(poster.width(), poster.height()),
                  std::min(200, std::max(row.size.width(), row.size.height())));
        EXPECT_NEAR(poster.width() * row.size.height(), poster.height() * row.size.width(),
                    std::max(row.size.width(), row.size.height()));
    }
}

TEST_F(Movie, WithoutAPictureToShow_IsNone) {
    for (const char* name : {"mp4/"
                             "tika__33f7d3a7_d-modules__tika-parser-audiovideo-module__src__test__resources__"
                             "test-documents__testMP4AudioOnly.mp4",
                             "rm/file-type__fixture__fixture-realmedia-audio.rm",
                             // The head of a longer file.
                             "mp4/nom-exif__testdata__sony-a7-xavc.MP4"}) {
        ASSERT_TRUE(QFileInfo::exists(movie(name))) << name;
        EXPECT_FALSE(MovieReader::open(movie(name), {200, 200}, options())) << name;
    }
    EXPECT_FALSE(MovieReader::open(written(QByteArray(1 << 20, '\0'), QStringLiteral("zeros.mts")),
                                   {200, 200}, options()));
    EXPECT_FALSE(MovieReader::open(written({}, QStringLiteral("empty.avi")), {200, 200}, options()));
    EXPECT_FALSE(MovieReader::open(m_folder.filePath(QStringLiteral("missing.avi")), {200, 200}, options()));
    EXPECT_FALSE(MovieReader::open(m_folder.path(), {200, 200}, options()));
}

TEST_F(Movie, MissingHelper_IsNone) {
    MovieReaderOptions none;
    none.helper = QStringLiteral("/nonexistent/vantor-decode-movie");
    EXPECT_FALSE(MovieReader::open(movie("synth/vp9_opus.webm"), {200, 200}, none));
}

TEST_F(Movie, Frames_ComeInOrderUntilTheEnd) {
    const auto reader = MovieReader::open(movie("synth/av1_opus.mp4"), {160, 160}, options());
    ASSERT_TRUE(reader);
    std::int64_t last = reader->poster().timeMs;
    EXPECT_EQ(last, 0);
    int frames = 1;
    while (const auto frame = reader->next()) {
        EXPECT_GT(frame->timeMs, last);
        EXPECT_EQ(frame->image.size(), QSize(160, 90));
        last = frame->timeMs;
        ++frames;
    }
    // Three seconds of thirty frames.
    EXPECT_EQ(frames, 90);
    EXPECT_FALSE(reader->isOver());
    EXPECT_FALSE(reader->next());
    // After its end a movie can be begun again.
    const auto again = reader->seek(0);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->timeMs, 0);
    EXPECT_EQ(again->image, reader->poster().image);
}

TEST_F(Movie, Seek_GivesTheFrameAtThatTime) {
    for (const char* name :
         {"synth/vp9_opus.webm", "mpg/digicam_corpus__Sony__DSC-P5__MOMLV100__DSC00010.MPG",
          "mov/digicam_corpus__Apple__iPhone_XR__IMG_3589.mov"}) {
        SCOPED_TRACE(name);
        const auto reader = MovieReader::open(movie(name), {160, 160}, options());
        ASSERT_TRUE(reader);
        const std::int64_t middle = reader->durationMs() / 2;
        const auto frame = reader->seek(middle);
        ASSERT_TRUE(frame);
        EXPECT_GE(frame->timeMs, middle);
        EXPECT_LT(frame->timeMs, middle + 200);
        EXPECT_FALSE(reader->seek(reader->durationMs() * 10));
        EXPECT_TRUE(reader->seek(0));
    }
}

TEST_F(Movie, HelperKilledWhilePlaying_EndsTheMovieOnly) {
    const auto reader = MovieReader::open(movie("synth/vp9_opus.webm"), {160, 160}, options());
    ASSERT_TRUE(reader && reader->next());
    kill(reader->helperPid(), SIGABRT);
    EXPECT_FALSE(reader->next());
    EXPECT_TRUE(reader->isOver());
    EXPECT_FALSE(reader->seek(0));
    EXPECT_FALSE(reader->poster().image.isNull());
}

TEST_F(Movie, HelperThatHangs_IsLeftAtTheDeadline) {
    MovieReaderOptions impatient = options();
    impatient.frameDeadline = std::chrono::milliseconds(100);
    const auto reader = MovieReader::open(movie("synth/vp9_opus.webm"), {160, 160}, impatient);
    ASSERT_TRUE(reader);
    stopProcess(reader->helperPid());
    EXPECT_FALSE(reader->next());
    EXPECT_TRUE(reader->isOver());
}

// Cut off, zeroed in parts, bytes changed: whatever it does to the decoders, the program goes on.
TEST_F(Movie, MutatedFiles_AreShownOrNot) {
    constexpr qint64 kLargestSeed = 300 * 1024;
    constexpr int kMutations = 120;
    std::vector<QString> seeds;
    for (const QString& path : filesBelow(corpusFolder() + QStringLiteral("/videos"))) {
        if (QFileInfo(path).size() <= kLargestSeed) {
            seeds.push_back(path);
        }
    }
    ASSERT_GT(seeds.size(), 10U);
    std::mt19937 random(11);
    int shown = 0;
    for (int i = 0; i < kMutations; ++i) {
        const QString& seed = seeds[static_cast<std::size_t>(i) % seeds.size()];
        const QString path =
            written(mutated(bytesOfFile(seed), random), QStringLiteral("dprv.") + QFileInfo(seed).suffix());
        MovieReaderOptions impatient = options();
        impatient.openDeadline = impatient.frameDeadline = seconds(1);
        if (const auto reader = MovieReader::open(path, {100, 100}, impatient)) {
            ++shown;
            for (int frame = 0; frame < 10 && reader->next(); ++frame) {
            }
            reader->seek(reader->durationMs() / 2);
        }
    }
    EXPECT_GT(shown, kMutations / 10);
    EXPECT_LT(shown, kMutations);
}

}  // namespace
}  // namespace vantor
