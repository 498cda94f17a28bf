// What is particular to drawings: the ends of their three generations, and files that lie about them.
#include <gtest/gtest.h>

#include "Corpus.h"
#include "Samples.h"
#include "WalkBytes.h"

namespace vantor::test {
namespace {

std::vector<Bytes> tailsBehind(const Bytes& file) {
    return {{}, Bytes(5000, 0), noise(5000, 21), file};
}

TEST(Drawing, EveryGeneration_EndsToTheByteWhateverFollows) {
    for (const Bytes& file : {placedDrawing(), maskedDrawing(), packedDrawing()}) {
        for (const Bytes& tail : tailsBehind(file)) {
            const Extent extent = walkBytes("DWG", Build().add(file).add(tail));
            EXPECT_EQ(extent.verdict, Verdict::Complete);
            EXPECT_EQ(extent.end, file.size());
            EXPECT_TRUE(extent.exactEnd);
        }
    }
}

TEST(Drawing, CutOff_IsNeverSurelyWhole) {
    for (const Bytes& file : {placedDrawing(), maskedDrawing(), packedDrawing()}) {
        for (std::size_t cut = 6; cut < file.size(); ++cut) {
            const Bytes part(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(cut));
            const Extent extent = walkBytes("DWG", part);
            ASSERT_FALSE(extent.verdict == Verdict::Complete && extent.exactEnd) << cut;
            ASSERT_LE(extent.end, cut);
        }
    }
}

TEST(Drawing, WithoutSecondHeaderAndPreview_IsKeptToItsLastSection) {
    Bytes file = placedDrawing();
    file.resize(450);
    const Bytes noPreview(4, 0);
    std::copy(noPreview.begin(), noPreview.end(), file.begin() + 0x0D);
    const Extent extent = walkBytes("DWG", Build().add(file).fill(3000));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_FALSE(extent.exactEnd);
    EXPECT_EQ(extent.end, 450U);
}

TEST(Drawing, PreviewThatIsNone_IsDamage) {
    Bytes file = placedDrawing();
    file[560] ^= 1;
    EXPECT_EQ(walkBytes("DWG", file).verdict, Verdict::Damaged);
    file = placedDrawing();
    file.back() ^= 1;
    EXPECT_EQ(walkBytes("DWG", file).verdict, Verdict::Damaged);
}

TEST(Drawing, HeaderNotRepeatedWhereItSays_IsDamage) {
    Bytes file = maskedDrawing();
    file[700] ^= 1;
    EXPECT_EQ(walkBytes("DWG", file).verdict, Verdict::Damaged);
}

TEST(Drawing, RepeatedHeaderAlone_IsKept) {
    Bytes file = maskedDrawing();
    const std::size_t header = file.size() - 20;
    file.resize(header);
    const Extent extent = walkBytes("DWG", Build().add(file).fill(3000));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_FALSE(extent.exactEnd);
    EXPECT_EQ(extent.end, header);
}

TEST(Drawing, PackedHeaderThatReachesBeforeItsStart_IsDamage) {
    Bytes file = packedDrawing();
    file[0x80 + 3 * 0x26] = 0x6F;  // from sixteen bytes back, of two
    EXPECT_EQ(walkBytes("DWG", file).verdict, Verdict::Damaged);
}

}  // namespace
}  // namespace vantor::test
