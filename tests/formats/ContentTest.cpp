// What only looks whole: files whose lengths are right and whose content is another's.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "ContentExpectations.h"
#include "Corpus.h"
#include "Samples.h"

namespace vantor::test {
namespace {

Bytes full(std::string_view name, const Bytes& body) {
    return isoBox(name, Build().be32(0).add(body));
}

// One coded picture of two units, the first of which names a parameter set.
Bytes avcSample(std::size_t bytes, std::uint8_t value) {
    return Build().be32(2).u8(0x09).u8(0xF0).be32(bytes).u8(0x65).fill(bytes - 1, value);
}

struct Movie {
    Bytes bytes;
    std::vector<std::size_t> samples;  // where they begin
    std::size_t data = 0;              // where the media data's body begins
};

// A movie of `count` pictures, three to a chunk, its index in front or behind.
Movie movie(int count, std::size_t bytes, std::string_view coding = "avc1", bool indexFirst = false) {
    constexpr int kInChunk = 3;
    const Bytes type = isoBox("ftyp", Build().text("isom").be32(0).text("isom"));
    Build data;
    std::vector<std::size_t> places;
    for (int i = 0; i < count; ++i) {
        places.push_back(data.size());
        data.add(avcSample(bytes, static_cast<std::uint8_t>(0x41 + i % 7)));
    }
    const auto index = [&](std::size_t dataAt) {
        Build offsets;
        offsets.be32((places.size() + kInChunk - 1) / kInChunk);
        for (std::size_t i = 0; i < places.size(); i += kInChunk)
            offsets.be32(dataAt + places[i]);
        Build sizes;
        sizes.be32(0).be32(places.size());
        for (std::size_t i = 0; i < places.size(); ++i)
            sizes.be32(data.size() / places.size());
        const Bytes configuration = isoBox("avcC", Build().u8(1).u8(66).u8(0).u8(30).u8(0xFF).u8(0xE0).u8(0));
        const Bytes entry = isoBox(coding, Build().fill(6).be16(1).fill(70).add(configuration));
        const Bytes tables =
            isoBox("stbl", Build()
                               .add(full("stsd", Build().be32(1).add(entry)))
                               .add(full("stsc", Build().be32(1).be32(1).be32(kInChunk).be32(1)))
                               .add(full("stsz", sizes))
                               .add(full("stco", offsets)));
        const Bytes references =
            isoBox("dinf", full("dref", Build().be32(1).add(isoBox("url ", Build().be32(1)))));
        const Bytes media = isoBox("mdia", Build()
                                               .add(full("hdlr", Build().be32(0).text("vide").fill(13)))
                                               .add(isoBox("minf", Build().add(references).add(tables))));
        return isoBox("moov", isoBox("trak", media));
    };
    Movie movie;
    const std::size_t head = type.size() + (indexFirst ? index(0).size() : 0);
    movie.data = head + 8;
    const Bytes boxed = isoBox("mdat", data);
    movie.bytes = indexFirst ? Build().add(type).add(index(movie.data)).add(boxed)
                             : Build().add(type).add(boxed).add(index(movie.data));
    for (const auto place : places)
        movie.samples.push_back(movie.data + place);
    return movie;
}

class Movies : public testing::TestWithParam<bool> {};  // the index in front?
INSTANTIATE_TEST_SUITE_P(Index, Movies, testing::Bool());

TEST_P(Movies, WholeOnes_AreChecked) {
    expectWholeInside("MP4", movie(30, 900, "avc1", GetParam()).bytes);
    expectWholeInside("MP4", movie(4000, 1500, "avc1", GetParam()).bytes);
}

TEST_P(Movies, HalfOnesWithForeignBytesBehind_AreDamaged) {
    for (const int pictures : {30, 4000}) {
        const Movie whole = movie(pictures, 1500, "avc1", GetParam());
        const auto half = (whole.data + whole.samples.back()) / 2;
        // The index, where it stands behind, is still the movie's: only its pictures are lost.
        expectSpoilt("MP4", overwritten(whole.bytes, half, whole.samples.back() + 1000), whole.bytes.size());
    }
}

TEST_P(Movies, ForeignMiddleThirds_AreDamaged) {
    for (const int pictures : {30, 4000}) {
        const Movie whole = movie(pictures, 1500, "avc1", GetParam());
        const auto media = whole.samples.back() - whole.data;
        expectSpoilt("MP4", overwritten(whole.bytes, whole.data + media / 3, whole.data + 2 * media / 3),
                     whole.bytes.size());
        Bytes zeroed = whole.bytes;
        std::fill_n(zeroed.begin() + static_cast<std::ptrdiff_t>(whole.data + media / 3), media / 3, 0);
        expectSpoilt("MP4", zeroed, whole.bytes.size());
    }
}

TEST(Movies, SamplesOutsideTheMediaData_AreDamage) {
    Movie whole = movie(30, 900);
    Bytes& bytes = whole.bytes;
    // The last chunk's place, at the index's end, points into the index itself.
    const Bytes astray = Build().be32(bytes.size() - 100);
    std::copy(astray.begin(), astray.end(), bytes.end() - 4);
    expectSpoilt("MP4", bytes, bytes.size());
}

TEST(Movies, OfACodingNobodyKnows_OnlyEndWhereTheySay) {
    const Movie whole = movie(30, 900, "zzzz");
    expectWholeInside("MP4", whole.bytes, false);
    expectWholeInside("MP4", overwritten(whole.bytes, whole.data + 3000, whole.data + 9000), false);
}

TEST(Movies, SamplesThatAllReadOtherwise_AreNotJudged) {
    const Movie whole = movie(30, 900);
    expectWholeInside("MP4", overwritten(whole.bytes, whole.data, whole.samples.back() + 800), false);
}

TEST(Movies, LongOnes_AreLookedAtInFewPlaces) {
    const Movie whole = movie(20'000, 4000);
    const Bytes nothing;
    JoinedSource source(whole.bytes, nothing);
    EXPECT_TRUE(walk("MP4", source).checked);
    EXPECT_LT(source.bytesRead(), 4U << 20);
    EXPECT_GT(whole.bytes.size(), 64U << 20);
}

TEST(Movies, IndexesWithoutMedia_EndAtTheirLastBox) {
    const Bytes type = isoBox("ftyp", Build().text("isom").be32(0).text("isom"));
    const Bytes index = isoBox("moov", isoBox("mvhd", Build().fill(101)));
    const Bytes alone = Build().add(type).add(index);
    ASSERT_NE(alone.size() % kSector, 0U);
    for (const Bytes& behind : {noise(5000, 4), Bytes(5000, 0)}) {
        SCOPED_TRACE(behind[0]);
        expectSpoilt("MP4", Build().add(alone).add(behind), alone.size());
    }
    // Behind a filled sector the media may have been there.
    const Bytes filled = Build().add(type).add(isoBox("moov", Build().fill(kSector - 8 - type.size())));
    ASSERT_EQ(filled.size() % kSector, 0U);
    EXPECT_FALSE(walkBytes("MP4", Build().add(filled).add(noise(5000, 4))).endFound);
}

// A HEIF picture of nine tiles, each of one unit, whose data box is the last.
Bytes heif(std::uint32_t dataSize = 1, const Bytes& behind = {}) {
    constexpr int kTiles = 9;
    constexpr std::size_t kTile = 500;
    const Bytes type = isoBox("ftyp", Build().text("heic").be32(0).text("mif1heic"));
    const auto meta = [&](std::size_t dataAt) {
        Build info, places;
        info.be16(kTiles);
        places.u8(0x44).u8(0).be16(kTiles);
        for (int i = 0; i < kTiles; ++i) {
            const auto number = static_cast<std::uint64_t>(i) + 1;
            info.add(isoBox("infe", Build().be32(0x02000000).be16(number).be16(0).text("hvc1").u8(0)));
            places.be16(number)
                .be16(0)
                .be16(1)
                .be32(dataAt + static_cast<std::size_t>(i) * kTile)
                .be32(kTile);
        }
        return full("meta", Build().add(full("iinf", info)).add(full("iloc", places)));
    };
    const std::size_t dataAt = type.size() + meta(0).size() + 8;
    Build file;
    file.add(type).add(meta(dataAt));
    Build data;
    for (int i = 0; i < kTiles; ++i)
        data.be32(kTile - 4).u8(0x28).u8(0x01).fill(kTile - 6, static_cast<std::uint8_t>(i + 1));
    file.be32(dataSize == 0 ? 0 : data.size() + 8).text("mdat").add(data);
    return file.add(behind);
}

TEST(Heif, TilesAreLookedAt) {
    const Bytes whole = heif();
    expectWholeInside("HEIC", whole);
    EXPECT_TRUE(walkBytes("HEIC", whole).framesOnly) << "and not decoded";
    expectSpoilt("HEIC", overwritten(whole, whole.size() - 3000, whole.size() - 1500), whole.size());
}

TEST(Heif, DataToTheEndOfTheFile_EndsBehindItsItems) {
    const Bytes whole = heif(0);
    for (const Bytes& tail : {Bytes(), noise(3000, 5), Bytes(3000, 0)}) {
        const Extent extent = walkBytes("AVIF", Build().add(whole).add(tail));
        EXPECT_EQ(extent.verdict, Verdict::Complete);
        EXPECT_EQ(extent.end, whole.size());
    }
    const Bytes part(whole.begin(), whole.end() - 700);
    EXPECT_EQ(walkBytes("AVIF", part).verdict, Verdict::CutOff);
}

TEST(Heif, NotesBehindThePicture_BelongToIt) {
    for (const std::string_view name : {"sefd", "mpvd"}) {
        const Bytes whole = heif(1, isoBox(name, Build().fill(777, 3)));
        expectWholeInside("HEIC", whole);
        EXPECT_EQ(walkBytes("HEIC", Build().add(whole).add(noise(3000, 5))).end, whole.size());
    }
}

TEST(Texts, ForeignBytesBehind_AreNotSwallowed) {
    const std::string lines = "v 1.0 2.0 3.0\nv 4.0 5.0 6.0\n";
    const Bytes text = Build().text(lines);
    // Foreign bytes that begin like letters, ended by a control byte.
    for (const std::string_view foreign : {"ab\1", "\xC3\1", "x\xFE\x81\2", "\1"}) {
        const Bytes file = Build().add(text).text(foreign).add(noise(3000, 5));
        EXPECT_EQ(walkBytes("OBJ", file).end, text.size()) << foreign;
    }
    // A last line without an end stays.
    const Bytes open = Build().text(lines + "f 1 2 3");
    for (const std::string_view foreign : {"\1", "\xFE\xFE\1", ""})
        EXPECT_EQ(walkBytes("OBJ", Build().add(open).text(foreign).fill(300)).end, open.size()) << foreign;
    // Letters of another encoding are letters.
    const Bytes latin = Build().text(
        "stra\xDF"
        "e\nM\xFCnchen\n\xC4ste");
    EXPECT_EQ(walkBytes("TXT", Build().add(latin).text("\1")).end, latin.size());
}

TEST(Texts, EndMarks_AreTheEnd) {
    const Bytes step =
        Build().text("ISO-10303-21;\nDATA;\n#1=X('END-ISO-10303-21;');\nENDSEC;\nEND-ISO-10303-21;\n");
    const Bytes drawing = Build().text("  0\nSECTION\n  1\nNOEOF\n  0\nENDSEC\n  0\nEOF\n");
    const Bytes more = Build().text("other text behind\n");
    EXPECT_EQ(walkBytes("STEP", Build().add(step).add(more)).end, step.size());
    EXPECT_EQ(walkBytes("IFC", Build().add(step).add(more)).end, step.size());
    EXPECT_EQ(walkBytes("DXF", Build().add(drawing).add(more)).end, drawing.size());
}

TEST(Texts, BlanksBehindTheRoot_BelongToTheFile) {
    const Bytes map = Build().text("<?xml version='1.0'?>\n<kml>\n</kml>\n \t\r\n\n");
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 7)})
        EXPECT_EQ(walkBytes("KML", Build().add(map).add(tail)).end, map.size());
}

TEST(Texts, BlanksInFrontOfForeignBytes_AreForeignToo) {
    const Bytes map = Build().text("<?xml version='1.0'?>\n<kml>\n</kml>\n");
    for (const std::string_view blanks : {" ", "\t", "\r", "\t "}) {
        const auto end = [&](const Bytes& tail) {
            return walkBytes("KML", Build().add(map).text(blanks).add(tail)).end;
        };
        EXPECT_EQ(end(Build().fill(900, 0xA7)), map.size());
        EXPECT_EQ(end(Bytes(900, 0)), map.size() + blanks.size());
    }
}

}  // namespace
}  // namespace vantor::test
