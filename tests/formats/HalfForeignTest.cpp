// Files of which a part is another's, where only following codes, sums or an index to its end tells; and what
// programs leave behind the end that a file tells.
#include <gtest/gtest.h>

#include <algorithm>

#include "ContentExpectations.h"
#include "Corpus.h"
#include "ExpectedEnd.h"
#include "Samples.h"
#include "formats/Crc.h"

namespace vantor::test {
namespace {

// A grey picture whose codes are one a pixel, eight bits wide, begun anew before they grow wider.
Bytes plainGif(std::uint64_t width, std::uint64_t height, std::uint64_t pixels) {
    constexpr std::size_t kAtOnce = 120, kBlock = 255;
    constexpr std::uint8_t kClear = 0x80, kEnd = 0x81;
    Build codes;
    for (std::uint64_t i = 0; i < pixels; ++i) {
        if (i % kAtOnce == 0)
            codes.u8(kClear);
        codes.u8(i * 7 % kClear);
    }
    codes.u8(kEnd);
    Build out;
    out.text("GIF89a").le16(width).le16(height).u8(0xE6).u8(0).u8(0).fill(std::size_t{3} * 128, 9);
    out.u8(0x2C).fill(4).le16(width).le16(height).u8(0).u8(7);
    const Bytes& all = codes.bytes();
    for (std::size_t at = 0; at < all.size(); at += kBlock) {
        const auto count = std::min(kBlock, all.size() - at);
        const auto from = all.begin() + static_cast<std::ptrdiff_t>(at);
        out.u8(count).add(Bytes(from, from + static_cast<std::ptrdiff_t>(count)));
    }
    return out.u8(0).u8(0x3B);
}

TEST(GifCodes, ThatMakeThePicture_AreFollowed) {
    expectWholeInside("GIF", plainGif(100, 60, 6000));
}

TEST(GifCodes, OfAnotherPicture_AreNotBelieved) {
    const Bytes whole = plainGif(100, 60, 6000);
    constexpr std::size_t kSecondBlock = 13 + 3 * 128 + 11 + 256 + 1;  // what its length counts
    const Extent extent = walkBytes("GIF", overwritten(whole, kSecondBlock, kSecondBlock + 255));
    EXPECT_EQ(extent.end, whole.size());
    EXPECT_FALSE(extent.checked);
    // As many pixels, but the first code behind the table's beginning stands for none yet.
    Bytes ahead = whole;
    ahead[13 + 3 * 128 + 11 + 2] = 0x90;
    expectWholeInside("GIF", ahead, false);
}

TEST(GifCodes, ThatMakeMoreOrFewerPixels_AreForgivenOnly) {
    for (const std::uint64_t pixels : {5999U, 6001U})
        expectWholeInside("GIF", plainGif(100, 60, pixels), false);
}

Bytes motionPhoto(const Bytes& movie) {
    const Bytes note =
        Build().text("http://ns.adobe.com/xap/1.0/").u8(0).text("<x:xmpmeta GCamera:MotionPhoto=\"1\"/>");
    return Build().add(jpeg(Build().be16(0xFFE1).be16(2 + note.size()).add(note))).add(movie);
}

const Bytes kPhoneMovie = Build()
                              .add(isoBox("ftyp", Build().text("isom").be32(0).text("isom")))
                              .add(isoBox("mdat", Bytes(400, 7)))
                              .add(isoBox("moov", isoBox("mvhd", Bytes(100, 0))));

TEST(MotionPhoto, WhoseMovieIsWhole_EndsBehindIt) {
    const Bytes whole = motionPhoto(kPhoneMovie);
    expectEnd("JPG", whole, whole.size());
}

TEST(MotionPhoto, WhoseMovieIsAnothersFromAPlaceOn_IsNotComplete) {
    const Bytes whole = motionPhoto(kPhoneMovie);
    const std::size_t movie = whole.size() - kPhoneMovie.size();
    // Behind the movie's type nothing is its own; and in place of its index stands something else.
    for (const std::size_t own : {std::size_t{20}, std::size_t{428}}) {
        const Bytes kept(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(movie + own));
        EXPECT_EQ(walkBytes("JPG", Build().add(kept).add(noise(3000, 4))).verdict, Verdict::Damaged) << own;
    }
}

// A recording of two tracks of plain sound in one run of data; nothing of the second is looked at but where
// its data stands.
Bytes twoTracks(bool even) {
    constexpr std::size_t kFrames = 60, kFrameBytes = 64;
    const Bytes type = isoBox("ftyp", Build().text("isom").be32(0).text("isom"));
    const auto versioned = [](std::string_view name, const Bytes& body) {
        return isoBox(name, Build().be32(0).add(body));
    };
    Build data, sizes;
    sizes.be32(0).be32(kFrames);
    for (std::size_t i = 0; i < kFrames; ++i) {
        data.be16(0xFFF8).fill(kFrameBytes - 2, static_cast<std::uint8_t>(i + 1));
        sizes.be32(kFrameBytes);
    }
    const Bytes entry = isoBox("fLaC", Build().fill(6).be16(1).fill(20));
    const Bytes table =
        isoBox("stbl", Build()
                           .add(versioned("stsd", Build().be32(1).add(entry)))
                           .add(versioned("stsc", Build().be32(1).be32(1).be32(kFrames).be32(1)))
                           .add(versioned("stsz", sizes))
                           .add(versioned("stco", Build().be32(1).be32(type.size() + 8))));
    const Bytes handler = versioned("hdlr", Build().be32(0).text("soun").fill(13));
    const Bytes track = isoBox("trak", isoBox("mdia", Build().add(handler).add(isoBox("minf", table))));
    Bytes second = track;
    if (!even)  // from its tables on another's
        second = overwritten(track, track.size() - 200, track.size());
    return Build().add(type).add(isoBox("mdat", data)).add(isoBox("moov", Build().add(track).add(second)));
}

TEST(MovieIndex, OfWhichTheRestIsAnothers_ProvesNothing) {
    expectWholeInside("MP4", twoTracks(true));
    EXPECT_FALSE(walkBytes("MP4", twoTracks(false)).checked);
}

TEST(MotionPhoto, IsCheckedWhereBothPartsAre) {
    const Bytes photo = readFile(foreignFolder() / "imagemagick-progressive.jpg");
    const Bytes movie = twoTracks(true);
    ASSERT_NE(photo.size() % 512, 0U);
    expectWholeInside("JPG", photo);
    expectWholeInside("JPG", Build().add(photo).add(movie));
    expectWholeInside("JPG", Build().add(photo).add(kPhoneMovie), false);
    // A part of the movie's sound is another's; its own end is known.
    const Bytes spoilt = overwritten(Build().add(photo).add(movie), photo.size() + 1000, photo.size() + 2500);
    expectSpoilt("JPG", Build().add(spoilt).add(noise(2000, 1)), spoilt.size());
}

Bytes wave() {
    const Bytes format = Build().le16(1).le16(1).le32(8000).le32(8000).le16(1).le16(8);
    const Bytes body =
        Build().text("WAVE").add(riffChunk("fmt ", format)).add(riffChunk("data", Bytes(700, 0x81)));
    return riffChunk("RIFF", body);
}

TEST(WaveTags, ThatTheOuterChunkLeavesOut_AreTheFiles) {
    const Bytes tags = Build()
                           .add(riffChunk("LIST", Build().text("INFOIART").le32(4).text("me\0\0"_b)))
                           .add(riffChunk("id3 ", Bytes(41, 3)));
    const Bytes whole = Build().add(wave()).add(tags);
    expectEnd("WAV", whole, whole.size());
    expectEnd("WAV", Build().add(whole).add(noise(900, 2)), whole.size());
    expectEnd("WAV", Build().add(wave()).add(riffChunk("fact", Bytes(4, 1))), wave().size());
}

TEST(WaveTags, AtASectorsStart_AreTheNextFile) {
    Bytes sound = wave();
    sound[4] = static_cast<std::uint8_t>(1024 - 8);
    sound[5] = (1024 - 8) >> 8;
    constexpr std::size_t kData = 36;  // where the samples' chunk tells its length
    const std::size_t samples = 1024 - kData - 8;
    sound.resize(1024, 0x81);
    sound[kData + 4] = static_cast<std::uint8_t>(samples);
    sound[kData + 5] = static_cast<std::uint8_t>(samples >> 8);
    expectEnd("WAV", Build().add(sound).add(riffChunk("id3 ", Bytes(40, 3))), 1024);
}

// One directory with a strip of an odd length behind it, and one of a photo's facts where `exif`.
Bytes oddTiff(bool exif) {
    const auto entry = [](std::uint64_t tag, std::uint64_t value) {
        return Build().le16(tag).le16(4).le32(1).le32(value);
    };
    constexpr std::uint64_t kFacts = 8 + 2 + 5 * 12 + 4, kStrip = kFacts + 2 + 12 + 4;
    Build out;
    out.text("II").le16(42).le32(8).le16(5);
    out.add(entry(256, 5)).add(entry(257, 3)).add(entry(273, kStrip)).add(entry(279, 15));
    out.add(exif ? entry(34665, kFacts) : entry(305, 0)).le32(0);
    return out.le16(1).add(entry(40962, 5)).le32(0).fill(15, 0x80);
}

TEST(TiffPadding, OfAPhoto_IsTheFiles) {
    const Bytes photo = oddTiff(true), drawing = oddTiff(false);
    ASSERT_EQ(photo.size() % 2, 1U);
    expectEnd("TIF", Build().add(photo).u8(0).add(noise(300, 5)), photo.size() + 1);
    expectEnd("TIF", Build().add(photo).u8(0x55).add(noise(300, 5)), photo.size());
    expectEnd("TIF", Build().add(drawing).u8(0).add(noise(300, 5)), drawing.size());
}

TEST(CompoundTable, FilledWithEndsOfChains_EndsWithTheLastSectorThatIsNamed) {
    const auto file = [](std::size_t chains, std::uint64_t rest) -> Bytes {
        Build out;
        out.add(compoundHead()).le32(1).le32(1).to(68).le32(0xFFFFFFFE).le32(0).le32(0).to(512);
        out.le32(0xFFFFFFFD).le32(0xFFFFFFFE).le32(3).le32(4).le32(0xFFFFFFFE);
        for (std::size_t i = 0; i < chains; ++i)
            out.le32(0xFFFFFFFE);
        while (out.size() < 1024)
            out.le32(rest);
        return out.fill((4 + chains) * 512, 0x44);
    };
    for (const Bytes& whole : {file(0, 0xFFFFFFFF), file(6, 0xFFFFFFFF), file(0, 0xFFFFFFFE)})
        expectEnd("XLS", Build().add(whole).add(noise(80'000, 8)), whole.size());
}

TEST(CompoundTable, ThatEndsWithShortChains_IsInUseToItsEnd) {
    constexpr std::uint64_t kEntries = 128, kShort = 6;
    Build out;
    out.add(compoundHead()).le32(1).le32(1).to(68).le32(0xFFFFFFFE).le32(0).le32(0).to(512);
    out.le32(0xFFFFFFFD).le32(0xFFFFFFFE);
    for (std::uint64_t i = 3; i < kEntries - kShort; ++i)
        out.le32(i);
    while (out.size() < 1024)
        out.le32(0xFFFFFFFE);
    const Bytes whole = out.fill((kEntries - 1) * 512, 0x44);
    expectEnd("XLS", Build().add(whole).add(noise(3000, 8)), whole.size());
}

Bytes losslessSound(std::size_t frameBytes) {
    constexpr std::size_t kFrames = 20;
    const Bytes type = isoBox("ftyp", Build().text("M4A ").be32(0).text("M4A "));
    const auto versioned = [](std::string_view name, const Bytes& body) {
        return isoBox(name, Build().be32(0).add(body));
    };
    Build data;
    for (std::size_t i = 0; i < kFrames; ++i)
        data.be32(0x20000000).fill(frameBytes - 4, static_cast<std::uint8_t>(i + 0x41));
    const Bytes entry = isoBox("alac", Build().fill(6).be16(1).fill(20));
    Build table;
    table.add(versioned("stsd", Build().be32(1).add(entry)));
    table.add(versioned("stsc", Build().be32(1).be32(1).be32(kFrames).be32(1)));
    table.add(versioned("stsz", Build().be32(frameBytes).be32(kFrames)));
    table.add(versioned("stco", Build().be32(1).be32(type.size() + 8)));
    const Bytes handler = versioned("hdlr", Build().be32(0).text("soun").fill(13));
    const Bytes media = Build().add(handler).add(isoBox("minf", isoBox("stbl", table)));
    return Build()
        .add(type)
        .add(isoBox("mdat", data))
        .add(isoBox("moov", isoBox("trak", isoBox("mdia", media))));
}

TEST(LosslessSound, WhoseFramesAreLongerThanACluster_OnlyEndsWhereItSays) {
    expectWholeInside("M4A", losslessSound(2000));
    expectWholeInside("M4A", losslessSound(9000), false);
}

// A frame of 32 kbit/s at 48 kHz whose last two bytes make its sum come out even.
Bytes provedFrame(std::uint8_t value) {
    Bytes frame = Build().be16(0x0B77).be16(0).u8(0).u8(0x40).fill(120, value).be16(0);
    for (unsigned sum = 0; sum < 0x10000; ++sum) {
        frame[126] = static_cast<std::uint8_t>(sum >> 8);
        frame[127] = static_cast<std::uint8_t>(sum);
        std::uint16_t crc = 0;
        for (std::size_t i = 2; i < frame.size(); ++i)
            crc = crc16(crc, frame[i]);
        if (crc == 0)
            break;
    }
    return frame;
}

TEST(DolbyFrames, TheLastOneMadeWholeByAnothersBytes_IsNoneOfTheFiles) {
    Build whole;
    for (std::uint8_t i = 1; i < 8; ++i)
        whole.add(provedFrame(i));
    expectEnd("AC3", Build().add(whole).add(noise(700, 6)), whole.size());
    const Bytes last = provedFrame(9);
    const Bytes torn = Build().add(whole).add(Bytes(last.begin(), last.begin() + 64)).add(noise(700, 6));
    const Extent extent = walkBytes("AC3", torn);
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, whole.size());
}

}  // namespace
}  // namespace vantor::test
