// Files whose own numbers mislead: sums that would wrap round, tables that invite endless hops, signs that
// are none, and places that cannot be read.
#include <gtest/gtest.h>

#include "Corpus.h"
#include "Samples.h"
#include "WalkBytes.h"
#include "formats/AudioTags.h"
#include "formats/Crc.h"

namespace vantor::test {
namespace {

// What a walker may need around one unreadable sector: far fewer than a read for each of its bytes.
constexpr std::uint64_t kFewReads = 64;

// Reads that the walker of `extension` needs when the sector at `hole` is unreadable.
std::uint64_t readsAround(std::string_view extension, const Bytes& bytes, std::uint64_t hole) {
    HoledSource source(bytes, hole);
    ByteView view(source);
    const Extent extent = formatFor(extension)->walk(view);
    EXPECT_NE(extent.verdict, Verdict::Complete);
    EXPECT_LE(extent.end, bytes.size());
    return source.reads();
}

const Bytes kStreamInfo = Build()
                              .be16(192)
                              .be16(192)
                              .be24(0)
                              .be24(0)
                              .be64(std::uint64_t{44100} << 44 | std::uint64_t{15} << 36)
                              .fill(16);

Bytes flacBlock(unsigned head, const Bytes& body) {
    return Build().u8(head).be24(body.size()).add(body);
}

TEST(Flac, MetadataThatTurnsIntoZeros_IsTheBreak) {
    const Bytes good = Build().text("fLaC").add(flacBlock(0, kStreamInfo)).add(flacBlock(4, Bytes(60, 'x')));
    const Extent extent = walkBytes("FLAC", Build().add(good).fill(2'000'000));
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, good.size());
}

// A block of a reserved type may be one of tomorrow's; it is believed when sound follows.
TEST(Flac, ReservedBlockTypeWithoutSoundBehind_IsTheBreak) {
    const Bytes good = Build().text("fLaC").add(flacBlock(0, kStreamInfo));
    for (const unsigned type : {7U, 126U, 127U}) {
        const Extent extent = walkBytes("FLAC", Build().add(good).add(flacBlock(type, Bytes(9))).fill(5000));
        EXPECT_EQ(extent.verdict, Verdict::Damaged) << type;
        EXPECT_EQ(extent.end, good.size()) << type;
    }
}

TEST(Flac, OtherBlockBeforeTheStreamInfo_IsTheBreak) {
    const Bytes padding = flacBlock(1, Bytes(34)), small = flacBlock(0, Bytes(33));
    for (const Bytes& first : {padding, small}) {
        const Extent extent =
            walkBytes("FLAC", Build().text("fLaC").add(first).add(flacBlock(0x80, kStreamInfo)));
        EXPECT_EQ(extent.verdict, Verdict::Damaged);
        EXPECT_EQ(extent.end, 4U);
    }
}

TEST(Flac, UnreadablePlaceInAFrame_IsReadOnce) {
    Build frame;
    frame.be16(0xFFF8).u8(0x19).u8(0x08).u8(0);  // 192 samples, mono, 16 bits
    std::uint8_t check = 0;
    for (const auto byte : frame.bytes())
        check = crc8(check, byte);
    frame.u8(check).u8(0x10).fill(1000);  // a fixed subframe of endless zero bits
    const Bytes cut = Build().text("fLaC").add(flacBlock(0x80, kStreamInfo)).add(frame).fill(4000);
    EXPECT_LE(readsAround("FLAC", cut, kSector), kFewReads);
}

// One picture whose only tile lies at `tile`, with pointers of eight bytes.
Bytes farTile(std::uint64_t tile) {
    Build out;
    out.text(std::string_view("gimp xcf v011\0", 14)).be32(64).be32(64).be32(1).be32(150);
    out.be32(0).be32(0).be64(62).be64(0).be64(0);  // no properties, one layer
    out.to(62).be32(64).be32(64).be32(0).be32(0).be32(0).be32(0).be64(110).be64(0);
    out.to(110).be32(64).be32(64).be32(1).be64(140).be64(0);
    return out.to(140).be32(64).be32(64).be64(tile).be64(0).to(8000);
}

TEST(Xcf, PlainTile_EndsTheFile) {
    const Extent extent = walkBytes("XCF", farTile(1000));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, 1000U + 64 * 64);
}

TEST(Xcf, TileAtTheEndOfAllNumbers_DoesNotWrapRound) {
    EXPECT_EQ(walkBytes("XCF", farTile(~std::uint64_t{0} - 255)).verdict, Verdict::CutOff);
}

Bytes volumeTexture(std::uint32_t side, std::uint32_t depth, std::uint32_t levels, std::uint32_t bits) {
    Build out;
    out.text("DDS ").le32(124).le32(0x801007).le32(side).le32(side).le32(0).le32(depth).le32(levels).fill(44);
    out.le32(32).le32(0x41).le32(0).le32(bits).to(112).le32(0x200000);
    return out.to(128);
}

TEST(Dds, VolumeBeyondAllNumbers_DoesNotWrapRound) {
    EXPECT_EQ(walkBytes("DDS", volumeTexture(1 << 16, 0xFFFFFFFF, 1, 128)).verdict, Verdict::CutOff);
}

TEST(Dds, SmallerLevelsOfAVolume_AreShallowerToo) {
    const std::size_t pixels = 8 * 8 * 8 + 4 * 4 * 4 + 2 * 2 * 2 + 1;
    const Extent extent = walkBytes("DDS", Build().add(volumeTexture(8, 8, 4, 32)).fill(8000, 5));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, 128 + pixels * 4);
}

TEST(Crw, SignOfADirectoryThatIsNone_DoesNotHideTheTrueOne) {
    Build out;
    out.text("II").le32(26).text("HEAPCCDR").to(26).fill(40, 0x5A);
    const auto heap = [&] { return out.size() - 26; };
    const auto entry = [](std::size_t bytes, std::size_t at) {
        return Build().le16(0x2005).le32(bytes).le32(at);
    };
    out.le16(1).add(entry(1 << 20, 0)).le32(heap() - 12);  // closed by its own place, but reaches beyond it
    out.fill(1000, 0x5A);
    const auto directory = heap();
    out.le16(1).add(entry(40, 0)).le32(directory);
    const Extent extent = walkBytes("CRW", Build().add(out).add(noise(9000, 4)));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, out.size());
}

TEST(Sgi, LongTablesOfRows_AreReadInRuns) {
    constexpr std::size_t kRows = 4000 * 4, kPixels = 512 + 2 * kRows * 4;
    Build out;
    out.be16(0x01DA).u8(1).u8(1).be16(3).be16(4).be16(4000).be16(4).to(512);
    for (std::size_t row = 0; row < kRows; ++row)
        out.be32(kPixels + row * 3);
    for (std::size_t row = 0; row < kRows; ++row)
        out.be32(3);
    const Bytes whole = out.fill(kRows * 3, 7), nothing;
    JoinedSource source(whole, nothing);
    const Extent extent = walk("SGI", source);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, whole.size());
    EXPECT_LE(source.bytesRead(), 1024U * 1024);
}

TEST(Radiance, MorePixelsThanAnyPictureHas_AreNotBelieved) {
    const Bytes huge = Build().text("#?RADIANCE\n\n-Y 1048576 +X 1048576\n").fill(5000);
    EXPECT_EQ(walkBytes("HDR", huge).verdict, Verdict::Unknown);
}

TEST(Pdf, EndMarksWithoutNumber_CostNoMoreThanOtherBytes) {
    std::string marks;
    while (marks.size() < 1'000'000)
        marks += "%%EOF";
    const std::string body = "%PDF-1.4\n1 0 obj\nstream\n" + marks + "endstream\nendobj\n";
    const Bytes whole = Build().text(body).text("xref\n0 1\ntrailer\n<<>>\nstartxref\n" +
                                                std::to_string(body.size()) + "\n%%EOF\n");
    const Bytes nothing;
    JoinedSource source(whole, nothing);
    const Extent extent = walk("PDF", source);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, whole.size());
    EXPECT_LE(source.bytesRead(), 4 * whole.size());
}

// A sign of the file just before a seam of the windows it is read in must be remembered rightly.
TEST(Pdf, ObjectEndAtAnyPlace_IsSeen) {
    for (const std::size_t seam : {4 << 10, 8 << 10, 32 << 10, 64 << 10}) {
        for (std::size_t at = seam - 64; at < seam + 16; ++at) {
            std::string body = "%PDF-1.4\n1 0 obj\n";
            body.append(at - body.size(), ' ').append("endobj\n2 0 obj\n").append(200'000, ' ');
            body += "endobj\n";
            const std::string tail = "xref\n0 1\nstartxref\n" + std::to_string(body.size()) + "\n%%EOF\n";
            const Extent extent = walkBytes("PDF", Build().text(body).text(tail));
            ASSERT_EQ(extent.verdict, Verdict::Complete) << at;
            ASSERT_EQ(extent.end, body.size() + tail.size()) << at;
        }
    }
}

// A HEIF picture of `tiles` coded items and, behind them, one with a TIFF block.
Bytes tiledPicture(std::size_t tiles) {
    const auto info = [](std::size_t item, std::string_view kind) {
        return isoBox("infe", Build().be32(0x02000000).be16(item).be16(0).text(kind).u8(0));
    };
    const auto make = [&](std::size_t dataAt) {
        const Bytes block = Build().be32(0).add(tiff());
        Build infos, places;
        infos.be32(0).be16(tiles + 1);
        places.be32(0).be16(0x4400).be16(tiles + 1);
        for (std::size_t item = 1; item <= tiles + 1; ++item) {
            const bool last = item == tiles + 1;
            infos.add(info(item, last ? "Exif" : "hvc1"));
            places.be16(item)
                .be16(0)
                .be16(1)
                .be32(last ? dataAt + tiles : dataAt + item - 1)
                .be32(last ? block.size() : 1);
        }
        const Bytes meta = Build().be32(0).add(isoBox("iinf", infos)).add(isoBox("iloc", places));
        return std::pair(
            Bytes(Build().add(isoBox("ftyp", Build().text("heic").be32(0))).add(isoBox("meta", meta))),
            isoBox("mdat", Build().fill(tiles, 0x41).add(block)));
    };
    const auto headBytes = make(0).first.size();
    const auto [head, data] = make(headBytes + 8);
    return Build().add(head).add(data);
}

TEST(IsoMedia, DateOfAPictureOfManyTiles_IsFound) {
    for (const std::size_t tiles : {1, 48, 300}) {
        const Bytes whole = tiledPicture(tiles);
        const Extent extent = walkBytes("HEIC", whole);
        EXPECT_EQ(extent.verdict, Verdict::Complete) << tiles;
        EXPECT_EQ(extent.end, whole.size()) << tiles;
        EXPECT_EQ(extent.facts.taken, (CivilTime{2021, 7, 9, 18, 30, 5, false})) << tiles;
    }
}

TEST(Searches, UnreadablePlace_EndsTheSearch) {
    constexpr std::uint64_t kHole = 16 * kSector;
    const Bytes filler = Bytes(40'000, 0x20);
    Build movie;
    movie.be32(0x1B3).be32(0x16012013);
    for (int slice = 1; slice < 8; ++slice)
        movie.be32(0x100 + slice).fill(100, 0x20);
    const Bytes zip = Build().text("PK\x03\x04").le16(20).le16(8).fill(20).le16(1).le16(0).text("a");
    EXPECT_LE(readsAround("X3F", Build().text("FOVb").add(filler), kHole), kFewReads);
    EXPECT_LE(readsAround("ZIP", Build().add(zip).add(filler), kHole), kFewReads);
    EXPECT_LE(readsAround("M2V", Build().add(movie).add(filler), kHole), kFewReads);
    EXPECT_LE(readsAround("HDR", Build().text("#?RADIANCE\n").add(filler), kHole), kFewReads);
    EXPECT_LE(readsAround("PS", Build().text("%!PS\n").add(filler), kHole), kFewReads);
    EXPECT_LE(readsAround("JPG", jpeg({}, filler), kHole), kFewReads);
    EXPECT_LE(readsAround("J2K",
                          Build()
                              .be32(0xFF4FFF51)
                              .be16(41)
                              .be16(0)
                              .be32(8)
                              .be32(8)
                              .fill(29)
                              .be16(0xFF90)
                              .be16(10)
                              .be16(0)
                              .be32(0)
                              .be16(1)
                              .be16(0xFF93)
                              .add(filler),
                          kHole),
              kFewReads);
}

TEST(Searches, UnreadablePlaceInATag_EndsTheSearch) {
    const Bytes filler = Bytes(20'000, 0x20);
    const Bytes item = Build().le32(9).le32(0).text("Title").u8(0).add(filler),
                lyrics = Build().text("LYRICSBEGIN").add(filler);
    for (const Bytes& tag : {item, lyrics}) {
        HoledSource source(tag, 16 * kSector);
        ByteView view(source);
        EXPECT_EQ(skipTrailingTags(view, 0), 0U);
        EXPECT_LE(source.reads(), kFewReads);
    }
}

}  // namespace
}  // namespace vantor::test
