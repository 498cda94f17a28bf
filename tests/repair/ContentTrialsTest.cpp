// Whether what stands within a movie's frames is theirs.
#include <gtest/gtest.h>

#include <QFileInfo>

#include "decode/ContentTrials.h"
#include "formats/Registry.h"
#include "results/Soundness.h"
#include "tests/repair/MemoryReader.h"
#include "tests/repair/Movies.h"
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
        return ContentTrials(bounds, options).decodes(source, source.size(), stop);
    }

    std::optional<Soundness> look(const QByteArray& bytes, ContentTrials* trials) const {
        QByteArray card = bytes;
        card.resize((bytes.size() + 511) / 512 * 512);
        test::MemoryReader medium(card);
        ReadWatch watch;
        std::vector<std::uint8_t> kept;
        const CarvedRun carved{{{0, medium.mediumSectors()}}, false};
        return examine(QStringLiteral("MOV"), carved, medium, watch, kept, kMostExaminedBytes, {}, trials);
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

TEST_F(Contents, BeyondTheBounds_NothingIsTried) {
    TrialBounds small = kPatient;
    small.bytes = static_cast<std::uint64_t>(h264.size()) - 1;
    EXPECT_FALSE(decodes(h264, small));
    TrialBounds late = kPatient;
    late.forAll = std::chrono::milliseconds(0);
    EXPECT_FALSE(decodes(h264, late));
    EXPECT_FALSE(decodes(h264, kPatient, [] { return true; }));
}

TEST_F(Contents, OfAnItem_AreCheckedByDecoding) {
    ContentTrials trials(kPatient, options);
    const auto whole = look(h264, &trials);
    ASSERT_TRUE(whole);
    EXPECT_TRUE(whole->followed);
    EXPECT_TRUE(whole->checked);
    const auto spoilt = look(test::withForeignCluster(h264), &trials);
    ASSERT_TRUE(spoilt);
    EXPECT_EQ(spoilt->verdict, Verdict::Complete);
    EXPECT_TRUE(spoilt->followed);
    EXPECT_FALSE(spoilt->checked);
    const auto untried = look(h264, nullptr);
    ASSERT_TRUE(untried);
    EXPECT_FALSE(untried->checked);
}

}  // namespace
}  // namespace vantor
