// Whether what stands within a movie's frames is theirs.
#include <gtest/gtest.h>

#include <QFileInfo>

#include "decode/ContentTrials.h"
#include "formats/Registry.h"
#include "tests/repair/Movies.h"
#include "tests/repair/Photos.h"
#include "tests/repair/RealMovie.h"

namespace vantor {
namespace {

using test::asSpan;

class Contents : public testing::Test {
  protected:
    void SetUp() override {
        options.helper = QStringLiteral(VANTOR_MOVIE_HELPER);
        options.startDeadline = options.openDeadline = std::chrono::minutes(5);
        if (!QFileInfo::exists(options.helper)) {
            GTEST_SKIP() << "built without the movie helper";
        }
        h264 = test::realMovie();
        if (h264.isEmpty()) {
            GTEST_SKIP() << "the corpus is not here";
        }
    }

    static Extent extentOf(const QByteArray& bytes) {
        SpanSource source(asSpan(bytes));
        return walk("MOV", source);
    }

    bool decodes(const QByteArray& bytes, TrialBounds bounds = kPatient, const StopRequest& stop = {}) const {
        SpanSource source(asSpan(bytes));
        const FileDescriptor file = inMemory(source, source.size(), {});
        return ContentTrials(bounds, options).decodes(file.get(), stop);
    }

    static constexpr TrialBounds kPatient{std::uint64_t{128} << 20, std::chrono::minutes(5),
                                          std::chrono::minutes(5)};
    MovieReaderOptions options;
    QByteArray h264;
};

TEST_F(Contents, MovieThatDecodes_IsWhole) {
    EXPECT_TRUE(extentOf(h264).framesOnly);
    EXPECT_TRUE(decodes(h264));
}

TEST_F(Contents, ForeignClusterWithinAPicture_ShowsInDecodingAlone) {
    const QByteArray spoilt = test::withForeignCluster(h264);
    ASSERT_TRUE(extentOf(spoilt).checked);
    EXPECT_FALSE(decodes(spoilt));
}

TEST_F(Contents, PicturesWhoseDecoderTakesAnyBytes_AreNotWhole) {
    const QByteArray h265 = test::realMovie(
        "mp4/media__libraries__test_data__src__test__assets__media__mp4__h265_with_metadata_track.mp4");
    ASSERT_FALSE(h265.isEmpty());
    EXPECT_FALSE(decodes(h265));
}

TEST_F(Contents, BehindAPhoto_AreThoseOfItsMovie) {
    const QByteArray photo =
        QByteArray("\xFF\xD8\xFF") + QByteArray(5000, 'p') + "ftyp" + QByteArray(5000, 'q');
    EXPECT_TRUE(decodes(photo + h264));
    EXPECT_FALSE(decodes(photo + test::withForeignCluster(h264)));
    EXPECT_FALSE(decodes(photo));
    EXPECT_FALSE(decodes(photo.first(5000)));
}

TEST_F(Contents, OfAPhotoWithAMovieBehindIt_AreNotCheckedByTheirLengths) {
    const QByteArray whole = test::makePhoto(1) + h264;
    SpanSource source(asSpan(whole));
    const Extent extent = walk("JPG", source);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, source.size());
    EXPECT_TRUE(extent.checked);
    EXPECT_TRUE(extent.framesOnly);
    EXPECT_TRUE(decodes(whole));
}

TEST_F(Contents, BeyondTheBounds_NothingIsTried) {
    TrialBounds small = kPatient;
    small.bytes = static_cast<std::uint64_t>(h264.size()) - 1;
    EXPECT_FALSE(decodes(h264, small));
    TrialBounds late = kPatient;
    late.forAll = std::chrono::milliseconds(0);
    EXPECT_FALSE(decodes(h264, late));
    EXPECT_FALSE(decodes(h264, kPatient, [] { return true; }));
}

TEST_F(Contents, OfASourceThatEndsEarly_AreNotInMemory) {
    SpanSource source(asSpan(h264));
    EXPECT_TRUE(inMemory(source, source.size(), {}));
    EXPECT_FALSE(inMemory(source, source.size() + 1, {}));
    EXPECT_FALSE(inMemory(source, source.size(), [] { return true; }));
}

}  // namespace
}  // namespace vantor
