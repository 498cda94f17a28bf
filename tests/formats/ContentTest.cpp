// What only looks whole: files whose lengths are right and whose content is another's.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "Corpus.h"
#include "Samples.h"
#include "WalkBytes.h"

namespace vantor::test {
namespace {

constexpr std::size_t kSector = 512;

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

Bytes overwritten(Bytes bytes, std::size_t from, std::size_t to, std::uint32_t seed = 3) {
    const Bytes foreign = noise(to - from, seed);
    std::copy(foreign.begin(), foreign.end(), bytes.begin() + static_cast<std::ptrdiff_t>(from));
    return bytes;
}

void expectWhole(std::string_view type, const Bytes& bytes, bool checked = true) {
    const Extent extent = walkBytes(type, bytes);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, bytes.size());
    EXPECT_EQ(extent.checked, checked);
}

void expectSpoilt(std::string_view type, const Bytes& bytes, std::size_t end) {
    const Extent extent = walkBytes(type, bytes);
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, end);
    EXPECT_TRUE(extent.endFound);
    EXPECT_FALSE(extent.checked);
}

class Movies : public testing::TestWithParam<bool> {};  // the index in front?
INSTANTIATE_TEST_SUITE_P(Index, Movies, testing::Bool());

TEST_P(Movies, WholeOnes_AreChecked) {
    expectWhole("MP4", movie(30, 900, "avc1", GetParam()).bytes);
    expectWhole("MP4", movie(4000, 1500, "avc1", GetParam()).bytes);
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
    expectWhole("MP4", whole.bytes, false);
    expectWhole("MP4", overwritten(whole.bytes, whole.data + 3000, whole.data + 9000), false);
}

TEST(Movies, SamplesThatAllReadOtherwise_AreNotJudged) {
    const Movie whole = movie(30, 900);
    expectWhole("MP4", overwritten(whole.bytes, whole.data, whole.samples.back() + 800), false);
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

// Bits, most significant first, with a zero stuffed behind each byte of ones.
class BitWriter {
  public:
    void put(unsigned value, unsigned bits) {
        while (bits-- > 0) {
            m_byte = static_cast<std::uint8_t>(m_byte << 1 | (value >> bits & 1));
            if (++m_used == 8)
                flush();
        }
    }
    Bytes done() {
        while (m_used != 0)
            put(1, 1);
        return m_bytes;
    }

  private:
    void flush() {
        m_bytes.push_back(m_byte);
        if (m_byte == 0xFF)
            m_bytes.push_back(0);
        m_byte = 0;
        m_used = 0;
    }
    Bytes m_bytes;
    std::uint8_t m_byte = 0;
    int m_used = 0;
};

// A baseline picture of 512 x 512 grey pixels; `interval` blocks between restart markers, 0: none.
Bytes photo(std::uint32_t seed, unsigned interval = 0) {
    constexpr unsigned kSide = 512, kBlocks = kSide / 8 * kSide / 8;
    constexpr int kCoefficients = 6;
    const auto table = [](int kind, int longer) {  // codes 0 and 10
        return Build()
            .be16(0xFFC4)
            .be16(21)
            .u8(static_cast<std::uint64_t>(kind))
            .u8(1)
            .u8(1)
            .fill(14)
            .u8(0)
            .u8(static_cast<std::uint64_t>(longer));
    };
    const Bytes random = noise(std::size_t{kBlocks} * (kCoefficients + 1), seed);
    Build file;
    file.be16(0xFFD8).be16(0xFFE0).be16(16).text("JFIF").fill(10);
    file.be16(0xFFDB).be16(67).fill(65, 1);
    file.be16(0xFFC0).be16(11).u8(8).be16(kSide).be16(kSide).u8(1).u8(1).u8(0x11).u8(0);
    file.add(table(0, 4)).add(table(0x10, 8));
    if (interval != 0)
        file.be16(0xFFDD).be16(4).be16(interval);
    file.be16(0xFFDA).be16(8).u8(1).u8(1).u8(0).u8(0).u8(63).u8(0);
    BitWriter bits;
    std::size_t next = 0;
    for (unsigned block = 0; block < kBlocks; ++block) {
        if (interval != 0 && block != 0 && block % interval == 0) {
            file.add(bits.done()).be16(0xFFD0 + (block / interval - 1) % 8);
            bits = {};
        }
        bits.put(2, 2);
        bits.put(random[next++] & 15U, 4);
        for (int i = 0; i < kCoefficients; ++i) {
            bits.put(2, 2);
            bits.put(random[next++], 8);
        }
        bits.put(0, 1);
    }
    return file.add(bits.done()).be16(0xFFD9);
}

TEST(Photos, WholeOnes_AreChecked) {
    for (const unsigned interval : {0U, 1U, 64U, 100U}) {
        expectWhole("JPG", photo(1, interval));
        EXPECT_GT(photo(1, interval).size(), 30'000U);
    }
}

TEST(Photos, SectorsOfAnotherPhoto_DoNotComeOutEven) {
    const Bytes other = photo(2);
    for (const unsigned interval : {0U, 64U}) {
        const Bytes whole = photo(1, interval);
        Bytes spoilt = whole;
        std::copy_n(other.begin() + 40 * kSector, kSector, spoilt.begin() + 20 * kSector);
        EXPECT_EQ(walkBytes("JPG", spoilt).verdict, Verdict::Damaged);
        std::fill_n(spoilt.begin() + 20 * kSector, kSector, 0);
        EXPECT_EQ(walkBytes("JPG", spoilt).verdict, Verdict::Damaged);
    }
}

TEST(Photos, DamagedInside_EndAtTheirOwnEnd) {
    const Bytes whole = photo(1);
    Bytes spoilt = whole;
    std::fill_n(spoilt.begin() + 20 * kSector, kSector, 0);
    const Extent extent = walkBytes("JPG", Build().add(spoilt).add(noise(5000, 4)));
    EXPECT_TRUE(extent.endFound);
    EXPECT_EQ(extent.end, whole.size());
}

TEST(Photos, MissingAndRepeatedUnits_AreDamage) {
    const Bytes whole = photo(1, 64);
    // From one restart marker to the next but seven: the markers still count on.
    std::vector<std::size_t> first;
    for (std::size_t i = 0; i + 1 < whole.size(); ++i) {
        if (whole[i] == 0xFF && whole[i + 1] == 0xD3)
            first.push_back(i);
    }
    ASSERT_GE(first.size(), 2U);
    Bytes shorter = whole;
    shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(first[0]),
                  shorter.begin() + static_cast<std::ptrdiff_t>(first[1]));
    expectSpoilt("JPG", shorter, shorter.size());
    Bytes longer = whole;
    longer.insert(longer.begin() + static_cast<std::ptrdiff_t>(first[1]),
                  whole.begin() + static_cast<std::ptrdiff_t>(first[0]),
                  whole.begin() + static_cast<std::ptrdiff_t>(first[1]));
    expectSpoilt("JPG", longer, longer.size());
}

TEST(Photos, ProgressiveOnesWithASectorOfAnother_AreNotComplete) {
    const Bytes whole = readFile(foreignFolder() / "imagemagick-progressive.jpg");
    expectWhole("JPG", whole);
    ASSERT_GT(whole.size(), 16 * kSector);
    // Behind the tables of the first scan, up to the last whole sector; in every kind of scan. The scan with
    // the last bits of the mean values has no codes, so anything may stand in it; here it fills one sector.
    int unnoticed = 0;
    for (std::size_t at = 2 * kSector; at + kSector < whole.size(); at += kSector) {
        Bytes zeroed = whole;
        std::fill_n(zeroed.begin() + static_cast<std::ptrdiff_t>(at), kSector, 0);
        for (const Bytes& spoilt : {overwritten(whole, at, at + kSector), zeroed})
            unnoticed += walkBytes("JPG", spoilt).verdict == Verdict::Complete ? 1 : 0;
    }
    EXPECT_LE(unnoticed, 1);
}

TEST(Photos, OfACodingThatIsNotFollowed_OnlyEndWhereTheySay) {
    // Of the sequential pictures those with arithmetic codes are not.
    Bytes arithmetic = photo(1);
    const std::array<std::uint8_t, 2> frame = {0xFF, 0xC0};
    const auto at = std::search(arithmetic.begin(), arithmetic.end(), frame.begin(), frame.end());
    ASSERT_NE(at, arithmetic.end());
    at[1] = 0xC9;
    expectWhole("JPG", arithmetic, false);
}

TEST(Photos, SecondOnesDirectlyBehind_BelongToTheFile) {
    Bytes first = photo(1);
    if (first.size() % kSector == 0)
        first = photo(3);
    ASSERT_NE(first.size() % kSector, 0U);
    const Bytes both = Build().add(first).add(photo(2));
    expectWhole("JPG", both);
    for (const Bytes& tail : {noise(3000, 5), Bytes(3000, 0)})
        EXPECT_EQ(walkBytes("JPG", Build().add(both).add(tail)).end, both.size());
    // In the next sector stands the next file.
    const Bytes apart = Build().add(first).to((first.size() / kSector + 1) * kSector).add(photo(2));
    EXPECT_EQ(walkBytes("JPG", apart).end, first.size());
    EXPECT_EQ(walkBytes("JPG", overwritten(both, both.size() - 9000, both.size() - 8000)).verdict,
              Verdict::Damaged);
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
    expectWhole("HEIC", whole);
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
        expectWhole("HEIC", whole);
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

}  // namespace
}  // namespace vantor::test
