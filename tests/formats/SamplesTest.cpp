// Every walker on a small whole file of its format, made by hand: whole, followed by others' bytes, cut,
// absent.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "Corpus.h"
#include "Samples.h"
#include "formats/Registry.h"

namespace vantor::test {
namespace {

class SampleTest : public testing::TestWithParam<Sample> {
  protected:
    Extent walkWith(const Bytes& tail) const {
        JoinedSource source(GetParam().bytes, tail);
        return walk(GetParam().extension, source);
    }
};

TEST_P(SampleTest, Alone_IsCompleteAtItsEnd) {
    const Extent extent = walkWith({});
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, GetParam().bytes.size());
    EXPECT_EQ(extent.exactEnd, GetParam().marked);
}

TEST_P(SampleTest, FollowedByForeignBytes_EndsBeforeThem) {
    Bytes afterZeros = noise(5000, 3);
    afterZeros.insert(afterZeros.begin(), 700, 0);
    for (const Bytes& tail : {Bytes(70000, 0), afterZeros}) {
        const Extent extent = walkWith(tail);
        EXPECT_EQ(extent.verdict, Verdict::Complete);
        EXPECT_EQ(extent.end, GetParam().bytes.size());
    }
    if (GetParam().marked) {
        EXPECT_EQ(walkWith(noise(5000, 3)).end, GetParam().bytes.size());
    }
}

TEST_P(SampleTest, CutAnywhere_IsNeverSurelyWhole) {
    const Sample& sample = GetParam();
    // The last bytes of some formats are optional (a line end, padding).
    constexpr std::size_t kOptional = 2;
    for (std::size_t cut = 0; cut + kOptional < sample.bytes.size(); ++cut) {
        const Bytes part(sample.bytes.begin(), sample.bytes.begin() + static_cast<std::ptrdiff_t>(cut));
        SpanSource source(part);
        const Extent extent = walk(sample.extension, source);
        ASSERT_LE(extent.end, cut);
        const bool whole = extent.verdict == Verdict::Complete;
        EXPECT_FALSE(whole && (extent.exactEnd || sample.cutShows))
            << "said whole at " << extent.end << " when cut at " << cut << " of " << sample.bytes.size();
    }
}

TEST_P(SampleTest, OtherContent_IsUnknownToTheFormat) {
    const Format* format = formatFor(GetParam().extension);
    ASSERT_NE(format, nullptr);
    for (const Bytes& other : {Bytes(), Bytes(3000, 0), noise(3000, 11), Bytes(3000, 0xFF)}) {
        SpanSource source(other);
        ByteView view(source);
        EXPECT_EQ(format->walk(view).verdict, Verdict::Unknown);
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, SampleTest, testing::ValuesIn(allSamples()), [](const auto& sample) {
    return sample.param.extension == "MP+" ? "MPPLUS" : sample.param.extension;
});

TEST(Registry, EveryFormat_HasASample) {
    std::set<std::string_view> tested;
    for (const auto& sample : allSamples())
        tested.insert(formatFor(sample.extension)->name);
    for (const Format* format : allFormats())
        EXPECT_TRUE(tested.contains(format->name)) << format->name;
}

TEST(Registry, UnknownType_HasNoFormatButContentIsStillRecognised) {
    EXPECT_EQ(formatFor("QQQ"), nullptr);
    EXPECT_EQ(formatFor(""), nullptr);
    EXPECT_EQ(formatFor("JPG PNG"), nullptr);
    const Bytes picture = jpeg();
    SpanSource source(picture);
    EXPECT_EQ(walk("QQQ", source).end, picture.size());
}

TEST(Registry, ContentOfAnotherFormat_IsWalkedAsWhatItIs) {
    const Bytes content = Build().text("{\\rtf1 text}");
    SpanSource source(content);
    const Extent extent = walk("DOC", source);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, content.size());
}

TEST(Registry, NoExtension_IsServedTwice) {
    std::set<std::string> seen;
    for (const Format* format : allFormats()) {
        std::istringstream words{std::string(format->extensions)};
        for (std::string word; words >> word;)
            EXPECT_TRUE(seen.insert(word).second) << word;
    }
    EXPECT_GT(seen.size(), 200U);
}

}  // namespace
}  // namespace vantor::test
