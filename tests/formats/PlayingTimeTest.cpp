// How long movies and sounds are, by what their heads tell.
#include <gtest/gtest.h>

#include <bit>

#include "Samples.h"
#include "WalkBytes.h"
#include "formats/Crc.h"
#include "formats/PlayingTime.h"

namespace vantor::test {
namespace {

std::uint64_t lengthOf(std::string_view extension, const Bytes& bytes) {
    return walkBytes(extension, bytes).facts.durationMs;
}

Bytes movie(const Bytes& header, const Bytes& more = {}) {
    return Build()
        .add(isoBox("ftyp", Build().text("isom").be32(0).text("isom")))
        .add(isoBox("moov", Build().add(isoBox("mvhd", header)).add(more)))
        .add(isoBox("mdat", Bytes(3000, 3)));
}

TEST(PlayingTime, Units_BecomeMilliseconds_UnlessTheyAreNonsense) {
    EXPECT_EQ(playingTimeMs(90'001, 90'000), 1000U);
    EXPECT_EQ(playingTimeMs(45, 90), 500U);
    EXPECT_EQ(playingTimeMs(1, 0), 0U);
    EXPECT_EQ(playingTimeMs(~std::uint64_t{0}, 1), 0U);
    EXPECT_EQ(playingTimeMs(~std::uint64_t{0}, ~std::uint64_t{0}), 0U);
    EXPECT_EQ(playingTimeMs(3'600'001, 1), 0U) << "no camera records for a thousand hours";
}

TEST(PlayingTime, OfAnIsoMovie_StandsInItsHeader_OrInThatOfItsFragments) {
    const Bytes narrow = Build().be32(0).be32(1).be32(1).be32(600).be32(39'000).fill(80);
    const Bytes wide = Build().be32(0x01000000).be64(1).be64(1).be32(600).be64(39'000).fill(80);
    const Bytes unset = Build().be32(0).be32(1).be32(1).be32(600).be32(0xFFFFFFFF).fill(80);
    EXPECT_EQ(lengthOf("MP4", movie(narrow)), 65'000U);
    EXPECT_EQ(lengthOf("MP4", movie(wide)), 65'000U);
    EXPECT_EQ(lengthOf("MP4", movie(unset)), 0U);
    const Bytes whole = isoBox("mvex", isoBox("mehd", Build().be32(0).be32(6000)));
    EXPECT_EQ(lengthOf("MP4", movie(unset, whole)), 10'000U);
}

TEST(PlayingTime, OfAnAvi_CountsTheFramesOfAllItsParts) {
    const auto avi = [](const Bytes& more) {
        const Bytes head = Build().le32(40'000).fill(12).le32(100).fill(12).le32(320).le32(240).fill(16);
        return riffChunk(
            "RIFF", Build()
                        .text("AVI ")
                        .add(riffChunk("LIST", Build().text("hdrl").add(riffChunk("avih", head)).add(more)))
                        .add(riffChunk("LIST", Build().text("movi"))));
    };
    EXPECT_EQ(lengthOf("AVI", avi({})), 4000U);
    EXPECT_EQ(lengthOf("AVI", avi(riffChunk("LIST",
                                            Build().text("odml").add(riffChunk("dmlh", Build().le32(250)))))),
              10'000U);
}

TEST(PlayingTime, OfWaves_FollowsFromTheirRate) {
    const Bytes format = Build().le16(1).le16(2).le32(44'100).le32(176'400).le16(4).le16(16);
    EXPECT_EQ(lengthOf("WAV", riffChunk("RIFF", Build()
                                                    .text("WAVE")
                                                    .add(riffChunk("fmt ", format))
                                                    .add(riffChunk("data", Bytes(88'200, 1))))),
              500U);
    const Bytes common = Build().be16(2).be32(66'150).be16(16).be16(0x400E).be64(0xAC44000000000000);
    const Bytes body =
        Build().text("AIFF").text("COMM").be32(18).add(common).text("SSND").be32(100).fill(100, 1);
    EXPECT_EQ(lengthOf("AIFF", Build().text("FORM").be32(body.size()).add(body)), 1500U);
}

TEST(PlayingTime, OfMatroska_IsAFractionOfUnitsThatItTells) {
    const auto told = [](const Bytes& length, std::uint64_t unit) {
        const Bytes inside = Build().be24(0x2AD7B1).u8(0x84).be32(unit).add(length);
        const Bytes segment = Build().be32(0x1549A966).u8(0x80 | inside.size()).add(inside);
        return Bytes(Build()
                         .be32(0x1A45DFA3)
                         .u8(0x80)
                         .be32(0x18538067)
                         .u8(0x80 | segment.size())
                         .add(segment)
                         .fill(20));
    };
    const Bytes narrow = Build().be16(0x4489).u8(0x84).be32(std::bit_cast<std::uint32_t>(2500.5F));
    const Bytes wide = Build().be16(0x4489).u8(0x88).be64(std::bit_cast<std::uint64_t>(65'000.0));
    const Bytes nonsense = Build().be16(0x4489).u8(0x88).be64(0x7FF0000000000001);  // no number
    EXPECT_EQ(lengthOf("MKV", told(narrow, 2'000'000)), 5001U);
    EXPECT_EQ(lengthOf("MKV", told(wide, 1'000'000)), 65'000U);
    EXPECT_EQ(lengthOf("MKV", told(nonsense, 1'000'000)), 0U);
}

TEST(PlayingTime, OfAsf_IsWithoutWhatIsReadAhead) {
    const auto told = [](std::uint32_t flags) {
        return Bytes(Build()
                         .text("\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C"_b)
                         .le64(134)
                         .fill(6)
                         .text("\xA1\xDC\xAB\x8C\x47\xA9\xCF\x11\x8E\xE4\x00\xC0\x0C\x20\x53\x65"_b)
                         .le64(104)
                         .fill(40)
                         .le64(680'000'000)  // a tenth of a microsecond each
                         .fill(8)
                         .le64(3000)
                         .le32(flags)
                         .fill(100));
    };
    EXPECT_EQ(lengthOf("WMV", told(0)), 65'000U);
    EXPECT_EQ(lengthOf("WMV", told(1)), 0U) << "a broadcast has none";
}

TEST(PlayingTime, OfFlac_CountsSamples) {
    Build head;
    head.text("fLaC").be32(0x80000022).fill(10).be64(std::uint64_t{48'000} << 44 | 96'000).fill(16);
    EXPECT_EQ(lengthOf("FLAC", head.fill(100, 1)), 2000U);
}

TEST(PlayingTime, OfRowsOfFrames_CountsThem) {
    Build mp3, low, aac, speech;
    speech.text("#!AMR\n");
    for (int i = 0; i < 50; ++i) {
        mp3.be32(0xFFFB9000).fill(413, 7);                // 1152 samples, 44100 a second
        low.be32(0xFFF38000).fill(204, 7);                // 576 samples, 22050 a second
        aac.be32(0xFFF14C80).be24(0x03FFFC).fill(24, 7);  // 1024 samples, 48000 a second
        speech.u8(0x3C).fill(31, 7);
    }
    EXPECT_EQ(lengthOf("MP3", mp3), 1306U);
    EXPECT_EQ(lengthOf("MP3", low), 1306U);
    EXPECT_EQ(lengthOf("AAC", aac), 1066U);
    EXPECT_EQ(lengthOf("AMR", speech), 1000U);
}

Bytes oggPage(std::uint8_t flags, std::uint32_t stream, std::uint64_t position, const Bytes& body) {
    Build out;
    out.text("OggS")
        .u8(0)
        .u8(flags)
        .le64(position)
        .le32(stream)
        .le32(0)
        .le32(0)
        .u8(1)
        .u8(body.size())
        .add(body);
    return out.put(22, Build().le32(crcOgg(0, out.bytes())));
}

TEST(PlayingTime, OfOgg_IsThePositionOfTheSoundsLastPage) {
    const Bytes vorbis = Build().u8(1).text("vorbis").le32(0).u8(2).le32(44'100).fill(14);
    const Bytes opus = Build().text("OpusHead").u8(1).u8(2).le16(312).le32(44'100).fill(3);
    const Bytes more(30, 1);
    const auto file = [&](const Bytes& head, std::uint64_t last) {
        return Bytes(Build()
                         .add(oggPage(2, 8, 0, Build().u8(0x80).text("theora").fill(30)))
                         .add(oggPage(2, 7, 0, head))
                         .add(oggPage(4, 7, last, more))
                         .add(oggPage(0, 8, 1 << 30, more))
                         .add(oggPage(4, 8, ~std::uint64_t{0}, more)));
    };
    EXPECT_EQ(lengthOf("OGG", file(vorbis, 88'200)), 2000U);
    EXPECT_EQ(lengthOf("OPUS", file(opus, 48'312)), 1000U);
    EXPECT_EQ(lengthOf("OPUS", file(opus, 100)), 0U);
}

TEST(PlayingTime, OfATransportStream_IsWhatItsClockPassed) {
    const auto packet = [](std::uint32_t stream, std::uint64_t clock) {
        return Bytes(Build()
                         .be32(0x47000030 | stream << 8)
                         .u8(7)
                         .u8(0x10)
                         .be32(clock >> 1)
                         .be16((clock & 1) << 15)
                         .fill(176, 1));
    };
    const std::uint64_t wrap = std::uint64_t{1} << 33;
    Build whole;
    whole.add(packet(256, wrap - 45'000));
    for (int i = 0; i < 6; ++i)
        whole.add(packet(257, 7)).add(Build().be32(0x47010010).fill(184, 2));
    whole.add(packet(256, 135'000));
    EXPECT_EQ(lengthOf("TS", whole), 2000U);
}

}  // namespace
}  // namespace vantor::test
