// Where streams, rows of pictures and pages end that tell no length, with zeros and with other files' bytes
// behind.
#include <gtest/gtest.h>

#include <array>
#include <initializer_list>

#include "Corpus.h"
#include "ExpectedEnd.h"
#include "Samples.h"

namespace vantor::test {
namespace {

// A key picture and those that hang on it.
Bytes avcStream() {
    return codedUnits({0x67, 0x68, 0x65, 0x41, 0x01, 0x41}, 1);
}

Bytes hevcStream() {
    return codedUnits({0x4001, 0x4201, 0x4401, 0x2601, 0x0201, 0x0202}, 2);
}

TEST(CodedUnits, ZerosThatNoStartCodeFollows_EndTheStream) {
    for (const auto& [type, file] : {std::pair("H264", avcStream()), std::pair("H265", hevcStream())}) {
        expectEnd(type, Build().add(file).fill(5000), file.size());
        expectEnd(type, Build().add(file).fill(700).add(noise(5000, 4)), file.size());
        // Between units they may stand.
        expectEnd(type, Build().add(file).fill(3).add(file).fill(900), 2 * file.size() + 3);
    }
}

TEST(CodedUnits, StreamBehindAFilledSector_IsTheNextFile) {
    for (const auto& [type, file] : {std::pair("H264", avcStream()), std::pair("H265", hevcStream())}) {
        const std::size_t sector = (file.size() + kSector - 1) / kSector * kSector;
        ASSERT_GT(sector, file.size() + 3);
        expectEnd(type, Build().add(file).to(sector).add(file), file.size());
    }
}

TEST(CodedUnits, BytesThatNoUnitHolds_AreAnothers) {
    for (const Bytes& foreign :
         {Build().be32(0x00000201).fill(5000, 7).bytes(), Build().be32(0x00000309).fill(5000, 7).bytes(),
          Build().be32(0x00000180).fill(5000, 7).bytes()}) {
        const Bytes file = avcStream();
        const Extent extent = walkBytes("H264", Build().add(file).fill(50, 7).add(foreign));
        EXPECT_EQ(extent.verdict, Verdict::CutOff);
        EXPECT_LE(extent.end, file.size() + 400);
    }
}

TEST(CodedUnits, FewOrOtherUnits_AreNoStream) {
    EXPECT_EQ(walkBytes("H264", codedUnits({0x67, 0x68, 0x65}, 1)).verdict, Verdict::Unknown);
    EXPECT_EQ(walkBytes("H264", codedUnits({0x41, 0x67, 0x68, 0x65, 0x41, 0x41}, 1)).verdict,
              Verdict::Unknown);
    EXPECT_EQ(walkBytes("H264", codedUnits({0x67, 0x08, 0x65, 0x41, 0x41, 0x41}, 1)).verdict,
              Verdict::Unknown);
    EXPECT_EQ(walkBytes("H265", codedUnits({0x4001, 0x4200, 0x4401, 0x2601, 0x0201, 0x0202}, 2)).verdict,
              Verdict::Unknown);
}

TEST(MpegVideoHabits, ZerosInsideASlice_EndItThoughAStartCodeFollowsFurtherOn) {
    Build video;
    video.be32(0x000001B3).be32(0x14000F13).fill(8, 5);
    for (std::uint64_t slice = 1; slice < 12; ++slice)
        video.be32(0x00000100 | slice).fill(200, 6);
    const Bytes file = video;
    expectEnd("M2V", Build().add(file).fill(700).text("another file").be32(0x000001E0).fill(300, 9),
              file.size());
}

TEST(MatroskaHabits, BytesBehindAClusterOfUnknownSize_AreNoBlocks) {
    Bytes open;
    for (const Sample& sample : movieSamples()) {
        if (sample.extension == "WEBM")
            open = sample.bytes;
    }
    ASSERT_FALSE(open.empty());
    expectEnd("WEBM", Build().add(open).add({0xA3, 0x84, 0x81, 0, 0, 0x80}), open.size() + 6);
    for (const Bytes& foreign : {Bytes{0xA3, 0x84, 0x41, 0, 0, 0x80}, Bytes{0xA3, 0x84, 0x81, 0, 0, 0x50},
                                 Bytes{0xA3, 0x82, 0x81, 0}, Bytes{0xA0, 0x82, 0x33, 0x33},
                                 Bytes{0xEC, 0x82, 0x33, 0x33}, Bytes{0xE7, 0x89, 1, 1, 1, 1, 1, 1, 1, 1, 1}})
        expectEnd("WEBM", Build().add(open).add(foreign).fill(300, 1), open.size());
}

TEST(JpegHabits, FramesOfABareMovie_AreAllTheFiles) {
    Build movie;
    while (movie.size() < 8000)
        movie.add(jpeg());
    ASSERT_GT(movie.size() / jpeg().size(), 70U);
    // None of them begins a sector, where the next file would begin.
    for (std::size_t at = jpeg().size(); at < movie.size(); at += jpeg().size())
        ASSERT_NE(at % kSector, 0U);
    expectEnd("JPG", Build().add(movie).add(noise(900, 3)), movie.size());
}

// Bytes that begin like letters behind their announcement.
TEST(PostScriptHabits, AnnouncedBytesThatLookLikeLetters_BelongToTheFile) {
    Build out;
    out.text("%!PS-Adobe-3.0 EPSF-3.0\n%%BeginData: 9000 Binary Bytes\n").fill(2000, 0xB5);
    out.fill(7000, 1).text("\n%%EndData\nend\n%%EOF\n");
    expectEnd("EPS", Build().add(out).add(noise(3000, 6)), out.size());
}

TEST(SunRasterHabits, PaddingOfRowsThatTheLengthLeavesOut_BelongsToTheFile) {
    const auto raster = [](std::uint64_t told, std::uint64_t type) {
        return Build().be32(0x59A66A95).be32(3).be32(10).be32(24).be32(told).be32(type).be32(0).be32(0);
    };
    for (const std::uint64_t type : {0, 1, 3})
        expectEnd("RAS", raster(90, type).fill(3000, 5), 32 + 100);
    expectEnd("RAS", raster(120, 1).fill(3000, 5), 32 + 120);
    expectEnd("RAS", raster(90, 2).fill(3000, 5), 32 + 90);
}

// Little-endian pages of one strip each, whose directories stand at these places.
Bytes pages(std::initializer_list<std::uint64_t> places, std::uint64_t stripBytes, std::uint64_t note = 0) {
    constexpr std::uint64_t kStripBehind = 80;
    Build out;
    out.text("II").le16(42).le32(*places.begin());
    for (auto place = places.begin(); place != places.end(); ++place) {
        out.to(*place).le16(note != 0 ? 5 : 4);
        const auto entry = [&](std::uint64_t tag, std::uint64_t value) {
            out.le16(tag).le16(4).le32(1).le32(value);
        };
        entry(256, 10);
        entry(257, stripBytes);
        entry(273, *place + kStripBehind);
        entry(279, stripBytes);
        if (note != 0)
            out.le16(note).le16(1).le32(4).le32(0x3C3C3C3C);
        out.le32(place + 1 != places.end() ? *(place + 1) : 0).to(*place + kStripBehind).fill(stripBytes, 9);
    }
    return out;
}

TEST(TiffHabits, PagesAppendedAtMultiplesOfSixteen_FillTheLastOne) {
    const Bytes file = pages({8, 168, 328}, 37);
    ASSERT_EQ(file.size(), 445U);
    for (const std::size_t filling : {3, 2000})
        expectEnd("TIF", Build().add(file).fill(filling).add(noise(900, 2)), 448);
    expectEnd("TIF", Build().add(file).fill(1).fill(900, 4), file.size());
    // One page, pages elsewhere, or a camera's say nothing.
    expectEnd("TIF", Build().add(pages({8, 168, 328}, 37, 271)).fill(900), file.size());
    expectEnd("TIF", Build().add(pages({8}, 37)).fill(900), 8 + 80 + 37);
    expectEnd("TIF", Build().add(pages({8, 170}, 37)).fill(900), 170 + 80 + 37);
}

TEST(TiffHabits, WhoWritesXmp_LeavesAnEvenLength) {
    expectEnd("TIF", Build().add(pages({8}, 37, 700)).fill(900), 8 + 80 + 38);
    expectEnd("TIF", Build().add(pages({8}, 37, 700)).fill(900, 1), 8 + 80 + 37);
    expectEnd("TIF", Build().add(pages({8}, 37, 701)).fill(900), 8 + 80 + 37);
    // Writers of JPEG XR do not pad.
    const Bytes xr = Build().add(pages({8}, 37, 700)).put(2, {0xBC, 0x01}).fill(900);
    expectEnd("JXR", xr, 8 + 80 + 37);
}

TEST(OneNoteHabits, SectionFromAServer_TellsNoLength) {
    const Bytes file = Build()
                           .be64(0xE4525C7B8CD8A74D)
                           .be64(0xAEB15378D02996D3)
                           .to(48)
                           .be64(0x2FE98D63D4A6C14B)
                           .to(196)
                           .le64(5000)
                           .to(8000);
    EXPECT_EQ(walkBytes("ONE", file).verdict, Verdict::Unknown);
}

}  // namespace
}  // namespace vantor::test
