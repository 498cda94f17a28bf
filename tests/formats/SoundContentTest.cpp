// Sound in movies, and movies in fragments, that hold another file's bytes in the middle.
#include <gtest/gtest.h>

#include <algorithm>

#include "ContentExpectations.h"
#include "Corpus.h"
#include "Samples.h"

namespace vantor::test {
namespace {

Bytes versioned(std::string_view name, const Bytes& body) {
    return isoBox(name, Build().be32(0).add(body));
}

// A track whose only description is `entry`, with such tables besides.
Bytes trackOf(std::string_view handler, const Bytes& entry, const Bytes& tables) {
    const Bytes all = isoBox("stbl", Build().add(versioned("stsd", Build().be32(1).add(entry))).add(tables));
    const Bytes references =
        isoBox("dinf", versioned("dref", Build().be32(1).add(isoBox("url ", Build().be32(1)))));
    const Bytes media = isoBox("mdia", Build()
                                           .add(versioned("hdlr", Build().be32(0).text(handler).fill(13)))
                                           .add(isoBox("minf", Build().add(references).add(all))));
    return isoBox("trak",
                  Build().add(versioned("tkhd", Build().be32(0).be32(0).be32(1).fill(68))).add(media));
}

struct Sound {
    std::string_view name;
    Bytes configuration;
    Bytes head;  // with which each sample begins
};

// What tells the coding of MPEG-4 sound: an elementary stream, its decoder, and the coding's own kind.
Bytes elementaryStream(std::uint8_t kind, std::uint8_t object) {
    return versioned(
        "esds",
        Build().u8(3).u8(22).be16(1).u8(0).u8(4).u8(17).u8(kind).fill(12).u8(5).u8(2).u8(object << 3U).u8(0));
}

std::vector<Sound> sounds() {
    return {{"mp4a", elementaryStream(0x40, 2), {0x01, 0x00}},  // one channel of AAC
            {"mp4a", elementaryStream(0x40, 2), {0x20, 0x80}},  // two
            {"mp4a", elementaryStream(0x6B, 0), {0xFF, 0xFB}},  // layer III
            {".mp3", {}, {0xFF, 0xFB}},
            {"fLaC", {}, {0xFF, 0xF8}},
            {"alac", {}, {0x20, 0x00, 0x00, 0x12}}};
}

constexpr std::size_t kSamples = 60;
constexpr std::size_t kSampleBytes = 400;

Bytes samplesOf(const Bytes& head) {
    Build samples;
    for (std::size_t i = 0; i < kSamples; ++i)
        samples.add(head).fill(kSampleBytes - head.size(), static_cast<std::uint8_t>(i));
    return samples;
}

struct SoundMovie {
    Bytes bytes;
    std::size_t data = 0;  // where the samples begin
};

// All samples in one chunk.
SoundMovie soundMovie(const Sound& sound) {
    const Bytes type = isoBox("ftyp", Build().text("M4A ").be32(0).text("M4A "));
    Build sizes;
    sizes.be32(0).be32(kSamples);
    for (std::size_t i = 0; i < kSamples; ++i)
        sizes.be32(kSampleBytes);
    const Bytes tables = Build()
                             .add(versioned("stsc", Build().be32(1).be32(1).be32(kSamples).be32(1)))
                             .add(versioned("stsz", sizes))
                             .add(versioned("stco", Build().be32(1).be32(type.size() + 8)));
    const Bytes entry = isoBox(sound.name, Build().fill(6).be16(1).fill(20).add(sound.configuration));
    return {Build()
                .add(type)
                .add(isoBox("mdat", samplesOf(sound.head)))
                .add(isoBox("moov", trackOf("soun", entry, tables))),
            type.size() + 8};
}

TEST(MovieSound, IsLookedAtWhereItsCodingIsKnown) {
    for (const Sound& sound : sounds()) {
        SCOPED_TRACE(std::string(sound.name) + " " + std::to_string(sound.head[0]));
        const SoundMovie whole = soundMovie(sound);
        expectWholeInside("M4A", whole.bytes);
        const std::size_t middle = whole.data + kSamples / 2 * kSampleBytes;
        expectSpoilt("M4A", overwritten(whole.bytes, middle, middle + 5000), whole.bytes.size());
        // Nothing of the coding's own in any of them: then it was not understood.
        Bytes other = whole.bytes;
        std::fill_n(other.begin() + static_cast<std::ptrdiff_t>(whole.data), kSamples * kSampleBytes, 0xE0);
        expectWholeInside("M4A", other, false);
    }
}

TEST(MovieSound, OfAnotherKindOfMpeg4_OnlyEndsWhereItSays) {
    for (const Bytes& configuration : {elementaryStream(0x40, 39), elementaryStream(0xDD, 2), Bytes()}) {
        const SoundMovie whole = soundMovie({"mp4a", configuration, {0x01, 0x00}});
        expectWholeInside("M4A", whole.bytes, false);
        expectWholeInside("M4A", overwritten(whole.bytes, whole.data + 4000, whole.data + 9000), false);
    }
}

// Their number is a word of the tables; without a bound these would be looked at for weeks.
TEST(MovieSound, OfSamplesBeyondNumber_IsLookedAtInFewPlaces) {
    constexpr std::size_t kChunks = 4096;
    const Bytes type = isoBox("ftyp", Build().text("M4A ").be32(0).text("M4A "));
    Build chunks;
    chunks.be32(kChunks);
    for (std::size_t i = 0; i < kChunks; ++i)
        chunks.be32(type.size() + 8);
    const Bytes tables = Build()
                             .add(versioned("stsc", Build().be32(1).be32(1).be32(0xFFFFFFFF).be32(1)))
                             .add(versioned("stsz", Build().be32(1).be32(0xFFFFFFFF)))
                             .add(versioned("stco", chunks));
    const Sound sound = sounds().front();
    const Bytes entry = isoBox(sound.name, Build().fill(6).be16(1).fill(20).add(sound.configuration));
    const Bytes track = trackOf("soun", entry, tables);
    const Bytes file = Build()
                           .add(type)
                           .add(isoBox("mdat", samplesOf(sound.head)))
                           .add(isoBox("moov", Build().add(track).add(track)));
    expectSpoilt("M4A", file, file.size());  // most lie outside the media data
}

TEST(MovieSound, OfSamplesBeyondNumberInFragments_IsLookedAtInFewPlaces) {
    constexpr std::size_t kMostChildren = 256;
    constexpr std::size_t kMostInRun = 65536;
    const Sound sound = sounds().front();
    const Bytes entry = isoBox(sound.name, Build().fill(6).be16(1).fill(20).add(sound.configuration));
    const Bytes forAll = versioned("trex", Build().be32(1).be32(1).be32(0).be32(0).be32(0));
    Build runs;
    for (std::size_t i = 0; i + 1 < kMostChildren; ++i)
        runs.add(isoBox("trun", Build().be32(0).be32(kMostInRun)));
    const Bytes part = isoBox(
        "traf", Build().add(isoBox("tfhd", Build().be32(0x020000).be32(1))).add(static_cast<Bytes>(runs)));
    Build parts;
    parts.add(versioned("mfhd", Build().be32(1)));
    for (std::size_t i = 0; i + 1 < kMostChildren; ++i)
        parts.add(part);
    const Bytes fragment = isoBox("moof", static_cast<Bytes>(parts));
    Build file;
    file.add(isoBox("ftyp", Build().text("iso5").be32(0).text("iso5")));
    file.add(isoBox("moov", Build().add(trackOf("soun", entry, {})).add(isoBox("mvex", forAll))));
    for (int i = 0; i < 4; ++i)
        file.add(fragment).add(isoBox("mdat", samplesOf(sound.head)));
    expectWholeInside("M4A", file, false);
}

enum class SizesIn { Runs, Fragments, Movie };

const Bytes kIndexBody(16, 0);  // of the box behind the last fragment

// A movie in so many fragments of five pictures each, whose sizes stand in the runs or apply to all.
Bytes fragmentedMovie(std::size_t fragments, SizesIn sizes, std::size_t picture = 900) {
    constexpr std::size_t kInFragment = 5;
    const Bytes configuration = isoBox("avcC", Build().u8(1).u8(66).u8(0).u8(30).u8(0xFF).u8(0xE0).u8(0));
    const Bytes entry = isoBox("avc1", Build().fill(6).be16(1).fill(70).add(configuration));
    const Bytes forAll = versioned(
        "trex", Build().be32(1).be32(1).be32(0).be32(sizes == SizesIn::Movie ? picture : 1).be32(0));
    Build file;
    file.add(isoBox("ftyp", Build().text("iso5").be32(0).text("iso5")));
    file.add(isoBox("moov", Build().add(trackOf("vide", entry, {})).add(isoBox("mvex", forAll))));
    for (std::size_t i = 0; i < fragments; ++i) {
        const auto heads = [&](std::size_t dataAt) {
            Build head, run;
            head.be32(sizes == SizesIn::Fragments ? 0x020010 : 0x020000).be32(1);
            if (sizes == SizesIn::Fragments)
                head.be32(picture);
            run.be32(sizes == SizesIn::Runs ? 0x201 : 1).be32(kInFragment).be32(dataAt);
            for (std::size_t n = 0; n < kInFragment && sizes == SizesIn::Runs; ++n)
                run.be32(picture);
            const Bytes part = isoBox("traf", Build().add(isoBox("tfhd", head)).add(isoBox("trun", run)));
            return isoBox("moof", Build().add(versioned("mfhd", Build().be32(i + 1))).add(part));
        };
        file.add(heads(heads(0).size() + 8));
        Build data;
        for (std::size_t n = 0; n < kInFragment; ++n)
            data.be32(picture - 4).u8(0x65).fill(picture - 5, static_cast<std::uint8_t>(0x41 + (i + n) % 7));
        file.add(isoBox("mdat", data));
    }
    return file.add(isoBox("mfra", kIndexBody));
}

class Fragments : public testing::TestWithParam<SizesIn> {};
INSTANTIATE_TEST_SUITE_P(Sizes, Fragments,
                         testing::Values(SizesIn::Runs, SizesIn::Fragments, SizesIn::Movie));

TEST_P(Fragments, WholeOnes_AreChecked) {
    expectWholeInside("MP4", fragmentedMovie(12, GetParam()));
}

TEST_P(Fragments, ForeignBytesInTheDataOfOne_AreDamage) {
    const Bytes whole = fragmentedMovie(12, GetParam());
    // The boxes stay as they are: only pictures of the last fragment are another's.
    expectSpoilt("MP4", overwritten(whole, whole.size() - 3000, whole.size() - 500), whole.size());
}

TEST_P(Fragments, OfALongMovie_AreLookedAtInFewPlaces) {
    const Bytes whole = fragmentedMovie(1000, GetParam(), 4000);
    const Bytes nothing;
    JoinedSource source(whole, nothing);
    EXPECT_TRUE(walk("MP4", source).checked);
    EXPECT_LT(source.bytesRead(), whole.size() / 2);
}

TEST(Fragments, PicturesOutsideTheMediaData_AreDamage) {
    const Bytes whole = fragmentedMovie(12, SizesIn::Runs);
    // The last run's data lie behind the file's end, as the place says that precedes its five sizes.
    const std::size_t place = whole.size() - 8 - kIndexBody.size() - 5 * 900 - 8 - 5 * 4 - 4;
    Bytes astray = whole;
    astray[place] = 0x10;
    expectSpoilt("MP4", astray, astray.size());
}

}  // namespace
}  // namespace vantor::test
