// Movies: posters, frames, positions, and files that break decoders.
#include <gtest/gtest.h>
#include <signal.h>

#include <QFileInfo>
#include <QTransform>

#include "decode/MovieReader.h"
#include "decode/SoundReader.h"
#include "tests/decode/MovieFixtures.h"

namespace vantor {
namespace {

using namespace test;

class Movie : public MovieHelperTest {
  protected:
    void SetUp() override {
        MovieHelperTest::SetUp();
        if (corpusFolder().isEmpty()) {
            GTEST_SKIP() << "no corpus";
        }
    }
    static QString movie(const char* name) {
        return corpusFolder() + QStringLiteral("/videos/") + QLatin1String(name);
    }
};

struct ExpectedMovie {
    QString path;  // below the corpus's videos
    QSize size;    // empty for a file that is no movie to show
    std::int64_t durationMs = 0;
    bool sound = false;
};

std::vector<ExpectedMovie> expectedMovies() {
    std::vector<ExpectedMovie> rows;
    for (const QList<QByteArray>& fields : tableRows("decode/expected_movies.tsv")) {
        rows.push_back({QString::fromUtf8(fields.value(0)),
                        QSize(fields.value(1).toInt(), fields.value(2).toInt()), fields.value(3).toLongLong(),
                        fields.value(4) == "1"});
    }
    return rows;
}

TEST_F(Movie, RealFiles_AreShownInTheirSizeAndHeard_OrNot) {
    const std::vector<ExpectedMovie> grid = expectedMovies();
    ASSERT_GT(grid.size(), 50U);
    for (const auto& [name, size, durationMs, sound] : grid) {
        SCOPED_TRACE(name.toStdString());
        const QString path = corpusFolder() + QStringLiteral("/videos/") + name;
        EXPECT_EQ(SoundReader::open(path, movieOptions()) != nullptr, sound);
        const auto reader = MovieReader::open(path, {200, 200}, movieOptions());
        EXPECT_EQ(reader != nullptr, !size.isEmpty());
        if (!reader) {
            continue;
        }
        EXPECT_EQ(reader->fullSize(), size);
        EXPECT_EQ(reader->durationMs(), durationMs);
        EXPECT_EQ(reader->hasSound(), sound);
        const QImage& poster = reader->poster().image;
        const int longer = std::max(size.width(), size.height());
        EXPECT_EQ(std::max(poster.width(), poster.height()), std::min(200, longer));
        EXPECT_NEAR(poster.width() * size.height(), poster.height() * size.width(), longer);
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
        EXPECT_FALSE(MovieReader::open(movie(name), {200, 200}, movieOptions())) << name;
    }
    EXPECT_FALSE(MovieReader::open(written(QByteArray(1 << 20, '\0'), QStringLiteral("zeros.mts")),
                                   {200, 200}, movieOptions()));
    EXPECT_FALSE(MovieReader::open(written({}, QStringLiteral("empty.avi")), {200, 200}, movieOptions()));
    EXPECT_FALSE(
        MovieReader::open(m_folder.filePath(QStringLiteral("missing.avi")), {200, 200}, movieOptions()));
    EXPECT_FALSE(MovieReader::open(m_folder.path(), {200, 200}, movieOptions()));
}

TEST_F(Movie, TheCoverOfASong_IsNoMovieButItsPicture) {
    const QString song =
        corpusFolder() + QStringLiteral("/files/ape/file-type__fixture__fixture-monkeysaudio.ape");
    EXPECT_FALSE(MovieReader::open(song, {200, 200}, movieOptions()));
    EXPECT_EQ(MovieReader::cover(song, {200, 200}, movieOptions()).size(), QSize(200, 200));
    EXPECT_TRUE(MovieReader::cover(song, {}, movieOptions()).isNull());
}

TEST_F(Movie, MissingHelper_IsNone) {
    MovieReaderOptions none;
    none.helper = QStringLiteral("/nonexistent/vantor-decode-movie");
    EXPECT_FALSE(MovieReader::open(movie("synth/vp9_opus.webm"), {200, 200}, none));
}

TEST_F(Movie, Frames_ComeInOrderUntilTheEnd) {
    const auto reader = MovieReader::open(movie("synth/av1_opus.mp4"), {160, 160}, movieOptions());
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
        const auto reader = MovieReader::open(movie(name), {160, 160}, movieOptions());
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

// The display matrix of the first track (ISO/IEC 14496-12, section 8.3.2) for quarters of a turn to the
// right.
QByteArray turnedBy(QByteArray movie, int quarters) {
    const QByteArray none(4, '\0'), one("\0\1\0\0", 4), minusOne("\xff\xff\0\0", 4);
    const QByteArray cosine = quarters == 2 ? minusOne : none;
    const QByteArray sine = quarters == 1 ? one : quarters == 3 ? minusOne : none;
    const QByteArray against = quarters == 1 ? minusOne : quarters == 3 ? one : none;
    constexpr qsizetype kMatrixBehindName = 44;
    const QByteArray matrix = cosine + sine + none + against + cosine;
    return movie.replace(movie.indexOf("tkhd") + kMatrixBehindName, matrix.size(), matrix);
}

// Mean difference of the green parts.
double difference(const QImage& one, const QImage& other) {
    EXPECT_EQ(one.size(), other.size());
    qint64 sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            sum += std::abs(qGreen(one.pixel(x, y)) - qGreen(other.pixel(x, y)));
        }
    }
    return static_cast<double>(sum) / (one.width() * one.height());
}

TEST_F(Movie, HeldTurned_IsShownUpright) {
    const QByteArray bytes = bytesOfFile(movie("synth/av1_opus.mp4"));
    const auto lying = MovieReader::open(movie("synth/av1_opus.mp4"), {200, 200}, movieOptions());
    ASSERT_TRUE(lying);
    for (const int quarters : {1, 2, 3}) {
        SCOPED_TRACE(quarters);
        const QString path = written(turnedBy(bytes, quarters), QStringLiteral("dprv.MP4"));
        const auto turned = MovieReader::open(path, {200, 200}, movieOptions());
        ASSERT_TRUE(turned);
        EXPECT_EQ(turned->fullSize(), quarters == 2 ? QSize(1280, 720) : QSize(720, 1280));
        const auto heldBy = [&](int degrees) {
            return lying->poster().image.transformed(QTransform().rotate(degrees % 360));
        };
        EXPECT_LT(difference(turned->poster().image, heldBy(90 * quarters)), 3);
        EXPECT_GT(difference(turned->poster().image, heldBy(90 * quarters + 180)), 10) << "not upside down";
    }
}

TEST_F(Movie, HelperKilledWhilePlaying_EndsTheMovieOnly) {
    const auto reader = MovieReader::open(movie("synth/vp9_opus.webm"), {160, 160}, movieOptions());
    ASSERT_TRUE(reader && reader->next());
    kill(reader->helperPid(), SIGABRT);
    EXPECT_FALSE(reader->next());
    EXPECT_TRUE(reader->isOver());
    EXPECT_FALSE(reader->seek(0));
    EXPECT_FALSE(reader->poster().image.isNull());
}

TEST_F(Movie, HelperThatHangs_IsLeftAtTheDeadline) {
    MovieReaderOptions impatient = movieOptions();
    impatient.frameDeadline = std::chrono::milliseconds(100);
    const auto reader = MovieReader::open(movie("synth/vp9_opus.webm"), {160, 160}, impatient);
    ASSERT_TRUE(reader);
    stopProcess(reader->helperPid());
    EXPECT_FALSE(reader->next());
    EXPECT_TRUE(reader->isOver());
}

TEST_F(Movie, MutatedFiles_AreShownOrNot) {
    constexpr int kMutations = 120;
    const int shown = useMutated({"videos"}, kMutations, 11, [](const QString& path, const auto& impatient) {
        const auto reader = MovieReader::open(path, {100, 100}, impatient);
        if (reader) {
            for (int frame = 0; frame < 10 && reader->next(); ++frame) {
            }
            reader->seek(reader->durationMs() / 2);
        }
        return reader != nullptr;
    });
    EXPECT_GT(shown, kMutations / 10);
    EXPECT_LT(shown, kMutations);
}

// A file with everything but its middle, which is a hole.
QString writtenWithoutMiddle(const QByteArray& bytes, qsizetype from, qsizetype end, const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(bytes.size()));
    EXPECT_EQ(file.write(bytes.first(from)), from);
    EXPECT_TRUE(file.seek(end));
    EXPECT_EQ(file.write(bytes.sliced(end)), bytes.size() - end);
    return path;
}

TEST_F(Movie, AFileStillBeingFilled_OpensAtOnce_AndWhatIsMissingIsWaitedForInsteadOfShownAsRubbish) {
    const QByteArray bytes = bytesOfFile(movie("mov/digicam_corpus__Apple__iPhone_XR__IMG_3589.mov"));
    constexpr qsizetype kFrom = 768 * 1024, kEnd = 2048 * 1024;
    ASSERT_GT(bytes.size(), kEnd);
    const QString path =
        writtenWithoutMiddle(bytes, kFrom, kEnd, m_folder.filePath(QStringLiteral("dprv.mov")));
    const auto whole =
        MovieReader::open(written(bytes, QStringLiteral("whole.mov")), {200, 200}, movieOptions());
    const auto reader = MovieReader::open(path, {200, 200}, movieOptions());
    ASSERT_TRUE(whole && reader);
    EXPECT_EQ(reader->durationMs(), whole->durationMs());
    // As far as it is there, frame by frame the same; then nothing rather than something else.
    int same = 0;
    for (;;) {
        const auto frame = reader->next();
        if (!frame) {
            break;
        }
        const auto expected = whole->next();
        ASSERT_TRUE(expected);
        ASSERT_EQ(frame->timeMs, expected->timeMs);
        ASSERT_EQ(frame->image, expected->image) << frame->timeMs;
        ++same;
    }
    EXPECT_GT(same, 5);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(kFrom));
    ASSERT_EQ(file.write(bytes.sliced(kFrom, kEnd - kFrom)), kEnd - kFrom);
    file.close();
    EXPECT_FALSE(reader->isOver());
    const auto later = reader->seek(2000), expected = whole->seek(2000);
    ASSERT_TRUE(later && expected);
    EXPECT_EQ(later->image, expected->image);
}

}  // namespace
}  // namespace vantor
