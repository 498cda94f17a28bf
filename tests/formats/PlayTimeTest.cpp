// How long movies and sounds say that they play, each in its way.
#include <gtest/gtest.h>

#include "Samples.h"
#include "WalkBytes.h"
#include "formats/PlayTime.h"

namespace vantor::test {
namespace {

std::uint64_t playMsOf(std::string_view extension, const Bytes& file) {
    return walkBytes(extension, file).facts.playMs;
}
std::uint64_t playMsOfSample(std::string_view extension) {
    for (const Sample& sample : movieSamples()) {
        if (sample.extension == extension)
            return playMsOf(extension, sample.bytes);
    }
    for (const Sample& sample : soundSamples()) {
        if (sample.extension == extension)
            return playMsOf(extension, sample.bytes);
    }
    ADD_FAILURE() << "no sample of " << extension;
    return 0;
}

Bytes isoMovie(const Bytes& header, const Bytes& besides = {}) {
    return Build()
        .add(isoBox("ftyp", Build().text("isom").be32(0).text("isom")))
        .add(isoBox("mdat", Bytes(64, 7)))
        .add(isoBox("moov", Build().add(isoBox("mvhd", header)).add(besides)));
}
Bytes shortHeader(std::uint64_t scale, std::uint64_t units) {
    return Build().be32(0).be32(0).be32(0).be32(scale).be32(units).fill(80);
}
Bytes wideHeader(std::uint64_t scale, std::uint64_t units) {
    return Build().be32(0x01000000).be64(0).be64(0).be32(scale).be64(units).fill(80);
}

TEST(PlayTime, CountsInMilliseconds_UpToWhatARecordingLasts) {
    EXPECT_EQ(playTime(0, 600), 0U);
    EXPECT_EQ(playTime(600, 0), 0U);
    EXPECT_EQ(playTime(900, 600), 1500U);
    EXPECT_EQ(playTime(std::uint64_t{100} * 24 * 3600 * 600 - 1, 600),
              std::uint64_t{100} * 24 * 3600 * 1000 - 2);
    EXPECT_EQ(playTime(std::uint64_t{100} * 24 * 3600 * 600, 600), 0U);
    EXPECT_EQ(playTime(UINT64_MAX, 1), 0U);
    EXPECT_EQ(playTime(UINT64_MAX - 1, UINT64_MAX), 1000U);
    EXPECT_EQ(playTime(std::uint64_t{3} << 62, std::uint64_t{1} << 63), 1500U);
}

TEST(PlayTime, OfAnIsoMovie_StandsInItsHeader) {
    EXPECT_EQ(playMsOf("MP4", isoMovie(shortHeader(90'000, 1'350'000))), 15'000U);
    EXPECT_EQ(playMsOf("MP4", isoMovie(wideHeader(90'000, 1'350'000))), 15'000U);
    for (const Bytes& header : {shortHeader(600, 0xFFFFFFFF), wideHeader(600, UINT64_MAX), shortHeader(0, 5)})
        EXPECT_EQ(playMsOf("MP4", isoMovie(header)), 0U) << "it is not known";
}

TEST(PlayTime, OfFragments_StandsBesideTheirDefaults) {
    const Bytes shortOne = isoBox("mvex", isoBox("mehd", Build().be32(0).be32(2500)));
    const Bytes wideOne = isoBox("mvex", isoBox("mehd", Build().be32(0x01000000).be64(2500)));
    EXPECT_EQ(playMsOf("MP4", isoMovie(shortHeader(1000, 0), shortOne)), 2500U);
    EXPECT_EQ(playMsOf("MP4", isoMovie(shortHeader(1000, 0), wideOne)), 2500U);
    EXPECT_EQ(playMsOf("MP4", isoMovie(wideHeader(500, 0), shortOne)), 5000U);
    EXPECT_EQ(playMsOf("MP4", isoMovie(shortHeader(1000, 7000), shortOne)), 7000U);
}

// Its one picture has a time of its own in the same boxes.
TEST(PlayTime, OfARawPhoto_IsNone) {
    const Bytes canon =
        isoBox("uuid", Build().be64(0x85C0B687820F11E0).be64(0x8111F4CE462B6A48).add(isoBox("CMT1", tiff())));
    EXPECT_EQ(playMsOf("CR3", isoMovie(shortHeader(1, 1), canon)), 0U);
}

TEST(PlayTime, OfAnAvi_CountsItsPictures_AndThoseOfAllItsParts) {
    const auto movie = [](const Bytes& besides) {
        const Bytes head = Build().le32(40'000).fill(12).le32(50).fill(12).le32(320).le32(240).fill(16);
        const Bytes headers = Build().text("hdrl").add(riffChunk("avih", head)).add(besides);
        return riffChunk("RIFF", Build()
                                     .text("AVI ")
                                     .add(riffChunk("LIST", headers))
                                     .add(riffChunk("LIST", Build().text("movi"))));
    };
    EXPECT_EQ(playMsOf("AVI", movie({})), 2000U);
    const Bytes all =
        riffChunk("LIST", Build().text("odml").add(riffChunk("dmlh", Build().le32(500).fill(244))));
    EXPECT_EQ(playMsOf("AVI", movie(all)), 20'000U);
}

TEST(PlayTime, OfAWave_IsItsBytesAtItsRate) {
    const Bytes format =
        riffChunk("fmt ", Build().le16(1).le16(2).le32(44100).le32(176'400).le16(4).le16(16));
    const auto wave = [](const Bytes& chunks) { return riffChunk("RIFF", Build().text("WAVE").add(chunks)); };
    EXPECT_EQ(playMsOf("WAV", wave(Build().add(format).add(riffChunk("data", Bytes(88'200))))), 500U);
    EXPECT_EQ(playMsOf("WAV", wave(riffChunk("data", Bytes(88'200)))), 0U);
}

Bytes masterOf(std::uint64_t id, int idBytes, const Bytes& body) {
    Build out;
    for (int i = idBytes - 1; i >= 0; --i)
        out.u8(id >> (8 * i));
    return out.be32(0x10000000 | body.size()).add(body);
}
Bytes matroskaWith(const Bytes& info) {
    return Build()
        .add(masterOf(0x1A45DFA3, 4, masterOf(0x4282, 2, Build().text("webm"))))
        .add(masterOf(
            0x18538067, 4,
            Build().add(masterOf(0x1549A966, 4, info)).add(masterOf(0x1F43B675, 4, masterOf(0xE7, 1, {0})))));
}

TEST(PlayTime, OfMatroska_IsANumberOfStepsWithAFraction) {
    const Bytes wide = masterOf(0x4489, 2, Build().be64(0x40B3880000000000));  // 5000.0
    const Bytes narrow = masterOf(0x4489, 2, Build().be32(0x459C4000));        // 5000.0
    const Bytes scale = masterOf(0x2AD7B1, 3, Build().be32(100'000));          // nanoseconds
    EXPECT_EQ(playMsOf("MKV", matroskaWith(wide)), 5000U);
    EXPECT_EQ(playMsOf("MKV", matroskaWith(narrow)), 5000U);
    EXPECT_EQ(playMsOf("MKV", matroskaWith(Build().add(scale).add(wide))), 500U);
    EXPECT_EQ(playMsOf("MKV", matroskaWith(Build().add(wide).add(scale))), 500U);
    for (const std::uint64_t odd :
         std::initializer_list<std::uint64_t>{0x7FF0000000000000, 0x7FF8000000000000, 0xC0B3880000000000, 0})
        EXPECT_EQ(playMsOf("MKV", matroskaWith(masterOf(0x4489, 2, Build().be64(odd)))), 0U);
    EXPECT_EQ(playMsOf("MKV", matroskaWith(Build().add(masterOf(0x2AD7B1, 3, Build().be32(0))).add(wide))),
              0U);
}

TEST(PlayTime, OfAsf_IsWithoutTheTimeInWhichABufferIsFilled) {
    const auto movie = [](std::uint64_t ticks, std::uint64_t before) {
        const Bytes name = Build().be64(0x3026B2758E66CF11).be64(0xA6D900AA0062CE6C);
        Bytes data = name;
        data[0] = 0x36;
        const Bytes properties = Build()
                                     .be64(0xA1DCAB8C47A9CF11)
                                     .be64(0x8EE400C00C205365)
                                     .le64(104)
                                     .fill(16)
                                     .le64(208)
                                     .fill(16)
                                     .le64(ticks)
                                     .fill(8)
                                     .le64(before)
                                     .fill(16);
        return Build().add(name).le64(134).le32(1).le16(0x201).add(properties).add(data).le64(74).fill(50, 9);
    };
    EXPECT_EQ(playMsOf("WMV", movie(80'000'000, 3000)), 5000U);
    EXPECT_EQ(playMsOf("WMV", movie(80'000'000, 8000)), 0U);
    EXPECT_EQ(playMsOf("WMV", movie(0, 3000)), 0U);
}

TEST(PlayTime, OfFrames_IsTheirNumber) {
    EXPECT_EQ(playMsOfSample("MP3"), 4 * 1152 * 1000 / 44100U);
    EXPECT_EQ(playMsOfSample("AAC"), 4 * 1024 * 1000 / 44100U);
    EXPECT_EQ(playMsOfSample("AMR"), 5 * 20U);
    EXPECT_EQ(playMsOfSample("FLAC"), 192 * 1000 / 44100U);
    // Version 2 has half the rate, and its layer III half the samples a frame.
    Build slow;
    for (int i = 0; i < 4; ++i)
        slow.be32(0xFFF39000).fill(257, 0x2A);  // 80 kbit/s at 22,050 Hz: 261 bytes
    EXPECT_EQ(playMsOf("MP3", slow.text("TAG").fill(125, ' ')), 4 * 576 * 1000 / 22050U);
}

}  // namespace
}  // namespace vantor::test
