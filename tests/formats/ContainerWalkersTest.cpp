// What is particular to movie containers and sound.
#include <gtest/gtest.h>

#include "Corpus.h"
#include "Samples.h"
#include "WalkBytes.h"
#include "formats/Registry.h"

namespace vantor::test {
namespace {

const Bytes kType = isoBox("ftyp", Build().text("isom").be32(0).text("isom"));
const Bytes kIndex = isoBox("moov", isoBox("mvhd", Build().be32(0).be32(3'708'700'205).fill(92)));

TEST(IsoMedia, LargeSizeForm_IsHoppedOver) {
    Build whole;
    whole.add(kType).be32(1).text("mdat").be64(16 + 5000).fill(5000, 3).add(kIndex);
    EXPECT_EQ(walkBytes("MP4", Build().add(whole).fill(4000, 0xAB)).end, whole.size());
}

TEST(IsoMedia, IndexBeforeOrBehindTheData_IsAllTheSame) {
    const Bytes data = isoBox("mdat", Bytes(3000, 3));
    for (const Bytes& whole :
         {Bytes(Build().add(kType).add(kIndex).add(data)), Bytes(Build().add(kType).add(data).add(kIndex))}) {
        const Extent extent = walkBytes("MOV", Build().add(whole).add(noise(5000, 1)));
        EXPECT_EQ(extent.verdict, Verdict::Complete);
        EXPECT_EQ(extent.end, whole.size());
        EXPECT_TRUE(extent.facts.taken && extent.facts.taken->utc);
    }
}

TEST(IsoMedia, MovieWithoutIndex_IsDamaged) {
    const Bytes whole = Build().add(kType).add(isoBox("mdat", Bytes(3000, 3)));
    const Extent extent = walkBytes("MP4", Build().add(whole).fill(5000, 0xFF));
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, whole.size());
}

TEST(IsoMedia, NextFile_IsNotSwallowed) {
    const Bytes whole = Build().add(kType).add(isoBox("mdat", Bytes(452, 3))).add(kIndex);
    EXPECT_EQ(walkBytes("MP4", Build().add(whole).add(whole)).end, whole.size());
}

TEST(IsoMedia, DataToTheEndOfTheFile_CannotBeToldOnAMedium) {
    const Bytes open = Build().add(kType).add(kIndex).be32(0).text("mdat").fill(4000, 1);
    EXPECT_EQ(walkBytes("MP4", open).verdict, Verdict::Unknown);
}

TEST(IsoMedia, Fragments_AreAllTaken) {
    Build whole;
    whole.add(kType).add(kIndex);
    for (int i = 0; i < 5; ++i)
        whole.add(isoBox("moof", Bytes(30, 1))).add(isoBox("mdat", Bytes(300, 2)));
    EXPECT_EQ(walkBytes("MP4", Build().add(whole).fill(100, 0xEE)).end, whole.size());
}

TEST(IsoMedia, NothingButFillers_IsNotFollowed) {
    Build fillers;
    for (int i = 0; i < 7000; ++i)
        fillers.be32(512).text("free").fill(504);
    const Bytes whole = fillers;
    static const Bytes kNothing;
    JoinedSource source(whole, kNothing);
    ByteView view(source);
    EXPECT_EQ(kIsoMedia.walk(view).verdict, Verdict::Unknown);
    EXPECT_LT(source.bytesRead(), whole.size() / 8);
}

TEST(IsoMedia, LongMovie_CostsOnlyItsHeaders) {
    Build whole;
    whole.add(kType).add(isoBox("mdat", Bytes(8'000'000, 3))).add(kIndex);
    const Bytes bytes = whole, nothing;
    JoinedSource source(bytes, nothing);
    EXPECT_EQ(walk("MP4", source).end, bytes.size());
    EXPECT_LE(source.bytesRead(), 16U * 1024);
}

TEST(IsoMedia, PictureWithoutItsData_IsNotWhole) {
    const Bytes item = Build().be16(1).be16(0).be16(1).be32(100'000).be32(64);
    const Bytes place = isoBox("iloc", Build().be32(0).be16(0x4400).be16(1).add(item));
    const Bytes head = Build()
                           .add(isoBox("ftyp", Build().text("heic").be32(0)))
                           .add(isoBox("meta", Build().be32(0).add(place)));
    EXPECT_EQ(walkBytes("HEIC", Build().add(head).fill(200'000, 0xFF)).verdict, Verdict::Damaged);
}

TEST(Riff, FurtherOuterChunksOfAnAvi_BelongToIt) {
    const auto part = [](std::string_view form) {
        return riffChunk("RIFF",
                         Build().text(form).add(riffChunk("LIST", Build().text("movi").fill(200, 5))));
    };
    const Bytes whole = Build().add(part("AVI ")).add(part("AVIX")).add(part("AVIX"));
    EXPECT_EQ(walkBytes("AVI", Build().add(whole).fill(1000)).end, whole.size());
    const Bytes next = Build().add(part("AVI ")).add(part("AVI "));
    EXPECT_EQ(walkBytes("AVI", next).end, next.size() / 2);
}

TEST(Riff, SixtyFourBitSizes_AreUsed) {
    Build whole;
    whole.text("RF64").le32(0xFFFFFFFF).text("WAVE");
    whole.add(riffChunk("ds64", Build().le64(12 + 28 + 24 + 8 + 600 - 8).le64(600).le64(0).le32(0)));
    whole.add(riffChunk("fmt ", Bytes(16, 1))).text("data").le32(0xFFFFFFFF).fill(600, 1);
    const Extent extent = walkBytes("WAV", Build().add(whole).fill(5000, 0xEE));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, whole.size());
}

TEST(Riff, RecordingThatWasNeverClosed_IsUnknown) {
    const Bytes open =
        Build().text("RIFF").le32(0).text("AVI ").add(riffChunk("LIST", Build().text("movi").fill(100)));
    EXPECT_EQ(walkBytes("AVI", open).verdict, Verdict::Unknown);
}

TEST(Riff, Facts_AreRead) {
    const Bytes dated =
        Build()
            .text("hdrl")
            .add(riffChunk("avih", Build().fill(32).le32(320).le32(240).fill(16)))
            .add(riffChunk("IDIT",
                           Build().text("MON JUL 02 13:21:15 2001").put(0, Build().text("Mon Jul 02"))));
    const Bytes whole = riffChunk(
        "RIFF",
        Build().text("AVI ").add(riffChunk("LIST", dated)).add(riffChunk("LIST", Build().text("movi"))));
    const Extent extent = walkBytes("AVI", whole);
    EXPECT_EQ(extent.facts.width, 320U);
    EXPECT_EQ(extent.facts.height, 240U);
    EXPECT_EQ(extent.facts.taken, (CivilTime{2001, 7, 2, 13, 21, 15, false}));
}

Bytes transport(int packets, unsigned firstCounter) {
    Build out;
    for (int i = 0; i < packets; ++i)
        out.be32(0x47400010 | ((firstCounter + static_cast<unsigned>(i)) & 15)).fill(184, 0x20);
    return out;
}

TEST(MpegTs, NextRecordingInStep_IsToldByItsCounter) {
    const Bytes first = transport(128, 0);  // 47 sectors exactly
    ASSERT_EQ(first.size() % 512, 0U);
    EXPECT_EQ(walkBytes("TS", Build().add(first).add(transport(128, 9))).end, first.size());
    EXPECT_EQ(walkBytes("TS", Build().add(first).add(transport(128, 128))).end, 2 * first.size());
}

TEST(MpegPs, NextRecordingInStep_IsToldByItsClock) {
    const auto pack = [](std::uint64_t clock) {
        return Build()
            .be32(0x1BA)
            .u8(0x44)
            .u8(0)
            .u8(4 | clock)
            .u8(0)
            .u8(4)
            .u8(1)
            .fill(3, 1)
            .u8(0xF8)
            .be32(0x1E0)
            .be16(492)
            .fill(492, 3);
    };
    Build first;
    for (std::uint64_t clock = 0; clock < 3; ++clock)
        first.add(pack(clock << 4));
    ASSERT_EQ(first.size() % 512, 0U);
    EXPECT_EQ(walkBytes("MPG", Build().add(first).add(first)).end, first.size());
    EXPECT_EQ(walkBytes("MPG", Build().add(first).add(pack(3 << 4))).end, first.size() + 512);
}

TEST(Flv, TagThatDoesNotRepeatItsLength_IsTheBreak) {
    Build good;
    good.text("FLV").u8(1).u8(5).be32(9).be32(0).u8(9).be24(20).be32(0).be24(0).fill(20, 1).be32(31);
    const Bytes cut = Build().add(good).u8(9).be24(5000).be32(0).be24(0).fill(9000, 0x33);
    EXPECT_EQ(walkBytes("FLV", cut).verdict, Verdict::Damaged);
    EXPECT_EQ(walkBytes("FLV", cut).end, good.size());
}

TEST(Ogg, SpoiltPage_IsTheBreak) {
    Bytes whole;
    for (const auto& sample : soundSamples()) {
        if (sample.extension == "OGG")
            whole = sample.bytes;
    }
    ASSERT_EQ(whole.size() % 3, 0U);
    whole[whole.size() / 3 + 100] ^= 1;
    EXPECT_EQ(walkBytes("OGG", whole).verdict, Verdict::Damaged);
    EXPECT_EQ(walkBytes("OGG", whole).end, whole.size() / 3);
}

TEST(Flac, SpoiltFrame_IsTheBreak) {
    for (const auto& sample : soundSamples()) {
        if (sample.extension != "FLAC")
            continue;
        Bytes spoilt = sample.bytes;
        spoilt[spoilt.size() - 3] ^= 1;
        EXPECT_EQ(walkBytes("FLAC", spoilt).verdict, Verdict::Damaged);
    }
}

}  // namespace
}  // namespace vantor::test
