// What is particular to the picture formats.
#include <gtest/gtest.h>

#include "Corpus.h"
#include "Samples.h"
#include "WalkBytes.h"
#include "formats/Registry.h"

namespace vantor::test {
namespace {

Bytes exifSegment() {
    const Bytes block = Build().text(std::string_view("Exif\0\0", 6)).add(tiff());
    return Build().be16(0xFFE1).be16(2 + block.size()).add(block);
}

TEST(Jpeg, Facts_AreSizeAndDate) {
    const Extent extent = walkBytes("JPG", jpeg(exifSegment()));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.facts.width, 60U);
    EXPECT_EQ(extent.facts.height, 40U);
    EXPECT_EQ(extent.facts.taken, (CivilTime{2021, 7, 9, 18, 30, 5, false}));
}

TEST(Jpeg, ThumbnailInASegment_IsNotTheEnd) {
    const Bytes inner = jpeg();
    const Bytes whole = jpeg(Build().be16(0xFFE1).be16(2 + inner.size()).add(inner));
    EXPECT_EQ(walkBytes("JPG", whole).end, whole.size());
}

TEST(Jpeg, AnotherPictureInsideTheScan_IsTheBreak) {
    Bytes cut = jpeg({}, noise(0, 0));
    cut.resize(cut.size() - 2);
    const auto good = cut.size() + 512;
    cut.insert(cut.end(), 512, 0x12);
    const Bytes next = jpeg();
    cut.insert(cut.end(), next.begin(), next.end());
    const Extent extent = walkBytes("JPG", cut);
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, good);
}

TEST(Jpeg, ForeignTextBehindACutScan_IsLeftOut) {
    Bytes cut = jpeg();
    cut.resize(cut.size() - 2);
    const auto good = cut.size();
    cut.insert(cut.end(), 20'000, 'a');
    cut.insert(cut.end(), {0xFF, 0xD8, 0xFF});
    const Extent extent = walkBytes("JPG", cut);
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_LE(extent.end, good);
}

TEST(Jpeg, BlankAreaInAScan_IsNoBreak) {
    EXPECT_EQ(walkBytes("JPG", jpeg({}, Bytes(20'000, 0))).verdict, Verdict::Complete);
}

TEST(Jpeg, RestartMarkers_MustCountOn) {
    const Bytes inTurn = {1, 0xFF, 0xD0, 2, 0xFF, 0xD1, 3}, leap = {1, 0xFF, 0xD0, 2, 0xFF, 0xD3, 3};
    EXPECT_EQ(walkBytes("JPG", jpeg({}, inTurn)).verdict, Verdict::Complete);
    EXPECT_EQ(walkBytes("JPG", jpeg({}, leap)).verdict, Verdict::Damaged);
}

// A picture whose index names a second one `gap` bytes behind its end.
Bytes multiPicture(std::size_t gap, bool present) {
    const auto index = [](std::uint64_t offset) {
        Build out;
        out.text(std::string_view("MPF\0", 4)).text("MM").be16(42).be32(8).be16(1);
        out.be16(0xB002).be16(7).be32(32).be32(26).be32(0);
        out.be32(0).be32(0).be32(0).be32(0);
        out.be32(0).be32(0).be32(offset).be32(0);
        return Build().be16(0xFFE2).be16(2 + out.size()).add(out);
    };
    const auto first = jpeg(index(0));
    constexpr std::size_t kIndexBase = 2 + 4 + 4;  // behind SOI, the segment's head and its name
    Build out;
    out.add(jpeg(index(first.size() + gap - kIndexBase))).fill(gap);
    return present ? out.add(jpeg()) : out;
}

TEST(Jpeg, FurtherPicturesOfTheIndex_BelongToTheFile) {
    const Bytes whole = multiPicture(64, true);
    EXPECT_EQ(walkBytes("MPO", whole).end, whole.size());
    EXPECT_EQ(walkBytes("MPO", whole).verdict, Verdict::Complete);
}

TEST(Jpeg, FurtherPictureThatWasStripped_IsNotMissed) {
    const Bytes whole = multiPicture(64, false);
    EXPECT_EQ(walkBytes("JPG", whole).verdict, Verdict::Complete);
    EXPECT_EQ(walkBytes("JPG", whole).end, whole.size() - 64);
}

TEST(Jpeg, FurtherPictureThatIsCut_CutsTheFile) {
    Bytes cut = multiPicture(64, true);
    cut.resize(cut.size() - 3);
    EXPECT_EQ(walkBytes("MPO", cut).verdict, Verdict::CutOff);
}

Bytes movie() {
    return Build()
        .add(isoBox("ftyp", Build().text("mp42").be32(0)))
        .add(isoBox("mdat", Bytes(40, 1)))
        .add(isoBox("moov", isoBox("mvhd", Bytes(100))));
}

TEST(Jpeg, NamedBlocksBehindThePicture_BelongToAPhonesPhoto) {
    const auto block = [](std::uint64_t kind, std::string_view name, const Bytes& data) {
        return Build().le16(0).le16(kind).le32(name.size()).text(name).add(data).bytes();
    };
    const Bytes time = block(0xA01, "Image_UTC_Data", Build().text("1715949802000"));
    const Bytes depth = block(0xAB1, "DualShot_DepthMap_1", Build().text("SEFH SEFT").fill(900, 7));
    const auto whole = [&](std::uint64_t back) {
        Build list;
        list.text("SEFH").le32(107).le32(2);
        list.le16(0).le16(0xA01).le32(back).le32(time.size());
        list.le16(0).le16(0xAB1).le32(depth.size()).le32(depth.size());
        return Build().add(jpeg()).add(time).add(depth).add(list).le32(list.size()).text("SEFT").bytes();
    };
    const Bytes photo = whole(time.size() + depth.size());
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 4), photo}) {
        const Extent extent = walkBytes("JPG", Build().add(photo).add(tail));
        EXPECT_EQ(extent.verdict, Verdict::Complete);
        EXPECT_EQ(extent.end, photo.size());
    }
    EXPECT_EQ(walkBytes("JPG", whole(time.size() + depth.size() + 1)).end, jpeg().size()) << "another's list";
    const Bytes cut(photo.begin(), photo.end() - 1);
    EXPECT_EQ(walkBytes("JPG", cut).end, jpeg().size());
}

TEST(Jpeg, MovieBehindThePicture_BelongsToAMotionPhoto) {
    const Bytes note =
        Build().text("http://ns.adobe.com/xap/1.0/").u8(0).text("<x:xmpmeta GCamera:MotionPhoto=\"1\"/>");
    const Bytes whole = Build().add(jpeg(Build().be16(0xFFE1).be16(2 + note.size()).add(note))).add(movie());
    EXPECT_EQ(walkBytes("JPG", whole).end, whole.size());
}

TEST(Jpeg, RecipeOfARawConverter_BelongsToTheFile) {
    const auto photo = [](std::uint64_t told) {
        const std::string sign("CANON OPTIONAL DATA\0", 20);
        Build out;
        out.add(jpeg()).text(sign).be32(0x10000).be32(told).fill(700, 0xE1);
        return out.text(sign).be32(told).fill(38, 1).be16(0xFFD9).bytes();
    };
    const Bytes whole = photo(700);
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 4)})
        EXPECT_EQ(walkBytes("JPG", Build().add(whole).add(tail)).end, whole.size());
    EXPECT_LT(walkBytes("JPG", photo(699)).end, 700U);
}

TEST(Jpeg, NotesOfAPhone_BelongToTheFile) {
    const Bytes notes = Build()
                            .add(jpeg())
                            .text("vivo{\"version\":1}")
                            .fill(700, 0xE1)
                            .text("\xFF\xFF\xFF\xFF\x1B*9HWfu\x84\x93\xA2\xB1");
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 4)})
        EXPECT_EQ(walkBytes("JPG", Build().add(notes).add(tail)).end, notes.size());
}

TEST(Jpeg, WordsBehindTheEnd_BelongToTheFile) {
    const Bytes picture = jpeg();
    for (const std::string_view words :
         {"\r\n", "\xFF\xD9", "\r\n--5D9144052FC54--", "\xFF\xD9 two words more\n"}) {
        const Bytes whole = Build().add(picture).text(words);
        EXPECT_EQ(walkBytes("JPG", Build().add(whole).fill(900, 0xA7)).end, whole.size());
        EXPECT_EQ(walkBytes("JPG", Build().add(whole).fill(900)).end, whole.size());
    }
    const Bytes line = Build().add(picture).text("a whole line\n");
    EXPECT_EQ(walkBytes("JPG", Build().add(line).text("xy").fill(900, 0xA7)).end, line.size());
    for (const std::string_view few : {"\n", "letters"})
        EXPECT_EQ(walkBytes("JPG", Build().add(picture).text(few).fill(900, 0xA7)).end, picture.size());
    // In the next sector they are another's.
    const Bytes note = Build().fill(512 - 4 - picture.size() % 512, 7);
    const Bytes full = jpeg(Build().be16(0xFFFE).be16(2 + note.size()).add(note));
    ASSERT_EQ(full.size() % 512, 0U);
    EXPECT_EQ(walkBytes("JPG", Build().add(full).text("letters of another file\n")).end, full.size());
}

TEST(IsoMedia, BoxOfAnActionCameraBehindTheMovie_BelongsToTheFile) {
    for (const char* const name : {"inst", "GPS "}) {
        const Bytes whole = Build().add(movie()).add(isoBox(name, Bytes(300, 0xA7)));
        EXPECT_EQ(walkBytes("MP4", Build().add(whole).fill(900, 0xA7)).end, whole.size());
    }
    EXPECT_EQ(walkBytes("MP4", Build().add(movie()).add(isoBox("xyza", Bytes(300)))).end, movie().size());
}

TEST(Jpeg, MovieInAMakersTrailer_BelongsToTheFile) {
    Build whole;
    whole.add(jpeg()).be32(0x0000300A).le32(16).text("MotionPhoto_Data").add(movie());
    whole.text("SEFH").fill(40).text("SEFT");
    const Bytes followed = Build().add(whole).fill(3000, 9);
    EXPECT_EQ(walkBytes("JPG", followed).end, whole.size());
}

TEST(Jpeg, TrailerOfACameraThatSeesAllAround_IsAsLongAsItSays) {
    const auto photo = [](std::string_view maker) {
        Build exif;
        exif.text("Exif\0\0II*\0"_b).le32(8).le16(1).le16(271).le16(2).le32(9).le32(26).le32(0).text(maker);
        return jpeg(Build().be16(0xFFE1).be16(2 + exif.size()).add(exif));
    };
    constexpr std::string_view kSign = "8db42d694ccc418790edff439fe026bf";
    const auto trailer = [&](std::size_t told) {
        return Build().add(noise(900, 3)).text(kSign).fill(100).le32(told).fill(4).text(kSign).bytes();
    };
    const std::size_t bytes = trailer(0).size();
    const Bytes own = photo("Insta360"), other = photo("Instax36");
    const auto end = [&](const Bytes& picture, std::size_t told) {
        const Bytes whole = Build().add(picture).add(trailer(told)).add(noise(2000, 8));
        return walkBytes("JPG", whole).end;
    };
    EXPECT_EQ(end(own, bytes), own.size() + bytes);
    EXPECT_FALSE(walkBytes("JPG", Build().add(own).add(trailer(bytes))).checked);
    EXPECT_EQ(end(own, bytes - 1), own.size());
    EXPECT_EQ(end(other, bytes), other.size());
}

TEST(Jpeg, NotesOfACataloguingProgram_BelongToTheFile) {
    for (const bool big : {true, false}) {
        const auto notes = [&](std::uint64_t begin) {
            const std::string_view sign = big ? "AXS!" : "AXS*";
            Build out;
            out.text(sign).be16(1).be16(1).be32(0).text("IPTC").fill(30, 'A').text(sign);
            return (big ? out.be32(begin) : out.le32(begin)).fill(4).bytes();
        };
        const auto end = [&](std::size_t begin) {
            const Bytes whole = Build().add(jpeg()).add(notes(begin)).add(noise(3000, 4));
            return walkBytes("JPG", whole).end;
        };
        EXPECT_EQ(end(jpeg().size()), jpeg().size() + notes(0).size());
        EXPECT_EQ(end(jpeg().size() + 1), jpeg().size());
    }
}

TEST(Jpeg, MovieAtTheNextSector_IsTheNextFile) {
    Bytes picture = jpeg({}, Bytes(512 - jpeg({}, {}).size() % 512, 0x31));
    ASSERT_EQ(picture.size() % 512, 0U);
    EXPECT_EQ(walkBytes("JPG", Build().add(picture).add(movie())).end, picture.size());
}

TEST(Png, SpoiltChunk_IsDamageButNotTheEnd) {
    const Bytes good = Build()
                           .text("\x89PNG\r\n\x1A\n")
                           .add(pngChunk("IHDR", Bytes(13, 1)))
                           .add(pngChunk("IDAT", Bytes(50, 2)))
                           .add(pngChunk("IEND", {}));
    EXPECT_EQ(walkBytes("PNG", good).verdict, Verdict::Complete);
    Bytes spoilt = good;
    spoilt[50] ^= 1;
    EXPECT_EQ(walkBytes("PNG", spoilt).verdict, Verdict::Damaged);
    EXPECT_EQ(walkBytes("PNG", spoilt).end, good.size());
}

TEST(Png, ForeignBytesInAChunk_EndBeforeTheChunk) {
    const Bytes head = Build().text("\x89PNG\r\n\x1A\n").add(pngChunk("IHDR", Bytes(13, 1)));
    const Bytes cut = Build().add(head).be32(5000).text("IDAT").add(noise(9000, 3));
    EXPECT_EQ(walkBytes("PNG", cut).verdict, Verdict::Damaged);
    EXPECT_EQ(walkBytes("PNG", cut).end, head.size());
}

TEST(Tiff, DirectoriesInACircle_ComeToAnEnd) {
    Bytes circle = tiff();
    circle[8 + 2 + 5 * 12] = 8;  // the link to the next directory names this one
    const Extent extent = walkBytes("TIF", circle);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, circle.size());
}

TEST(Tiff, Facts_AreSizeAndDate) {
    for (const bool little : {true, false}) {
        const Extent extent = walkBytes("TIF", tiff(little));
        EXPECT_EQ(extent.facts.width, 4U);
        EXPECT_EQ(extent.facts.height, 4U);
        EXPECT_EQ(extent.facts.taken, (CivilTime{2021, 7, 9, 18, 30, 5, false}));
    }
}

TEST(Tiff, PanasonicRaw_ReachesAsFarAsItsPixelsTake) {
    Build raw;
    raw.text("II").le16(0x55).le32(8).le16(5);
    for (const auto& [tag, value] : {std::pair{2, 140}, {3, 100}, {10, 12}, {273, -1}, {280, 512}})
        raw.le16(static_cast<std::uint64_t>(tag)).le16(4).le32(1).le32(static_cast<std::uint64_t>(value));
    raw.le32(0).to(20'000);
    const Extent extent = walkBytes("RW2", raw);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, 512U + 140 * 100 / 14 * 16);
    EXPECT_FALSE(extent.exactEnd);
}

TEST(Tiff, PaddingOfPhotoshop_BelongsToTheFile) {
    Bytes whole = tiff();
    whole[8 + 2 + 2 * 12] = 0x49;  // the date's place holds Photoshop's own tag
    whole[8 + 2 + 2 * 12 + 1] = 0x86;
    ASSERT_EQ(whole.size() % 4, 2U);
    EXPECT_EQ(walkBytes("TIF", Build().add(whole).fill(600)).end, whole.size() + 2);
    EXPECT_EQ(walkBytes("TIF", Build().add(whole).fill(600, 1)).end, whole.size());
    EXPECT_EQ(walkBytes("TIF", Build().add(tiff()).fill(600)).end, whole.size());
}

TEST(Tiff, StripBeyondTheMedium_IsCutOff) {
    Bytes cut = tiff();
    cut.resize(cut.size() - 1);
    EXPECT_EQ(walkBytes("DNG", cut).verdict, Verdict::CutOff);
}

// Some bytes, and zeros up to the end of a large medium.
class SparseSource final : public ByteSource {
  public:
    SparseSource(Bytes bytes, std::uint64_t size) : m_bytes(std::move(bytes)), m_size(size) {}

    std::uint64_t size() const override { return m_size; }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override {
        for (std::size_t i = 0; i < into.size(); ++i)
            into[i] = offset + i < m_bytes.size() ? m_bytes[static_cast<std::size_t>(offset + i)] : 0;
        return static_cast<std::size_t>(std::min<std::uint64_t>(into.size(), m_size - offset));
    }

  private:
    const Bytes m_bytes;
    const std::uint64_t m_size;
};

TEST(Tiff, StripFarBehindNothing_IsNotTheFiles) {
    const auto tag = [](std::uint16_t id, std::uint64_t value) {
        return Build().le16(id).le16(4).le32(1).le32(value).bytes();
    };
    constexpr std::uint64_t kFar = std::uint64_t{500} << 20;
    const Bytes head = Build()
                           .text(std::string_view("II*\0", 4))
                           .le32(8)
                           .le16(2)
                           .add(tag(273, kFar))
                           .add(tag(279, 4096))
                           .le32(0);
    SparseSource source(head, kFar + 8192);
    ByteView view(source);
    const Extent extent = kTiff.walk(view);
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, head.size());
}

TEST(Bmp, LengthField_IsBelievedOnlyNearThePixels) {
    Build bmp;
    bmp.text("BM").le32(1'000'000).le32(0).le32(54).le32(40).le32(2).le32(2).le16(1).le16(24).fill(24).fill(
        16, 1);
    EXPECT_EQ(walkBytes("BMP", Build().add(bmp).fill(2'000'000)).end, bmp.size());
}

TEST(Gif, ErasedSectorsInsteadOfData_AreNotWalked) {
    Build gif;
    gif.text("GIF89a")
        .le16(2)
        .le16(2)
        .u8(0)
        .u8(0)
        .u8(0)
        .u8(0x2C)
        .fill(4)
        .le16(2)
        .le16(2)
        .u8(0)
        .u8(2)
        .u8(3)
        .fill(3, 1);
    const Extent extent = walkBytes("GIF", Build().add(gif).fill(100'000, 0xFF));
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, gif.size());
}

}  // namespace
}  // namespace vantor::test
