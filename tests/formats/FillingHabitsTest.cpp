// Sizes that writers count in their own way, leave out or never fill in, and what they leave between parts.
#include <gtest/gtest.h>

#include <string>

#include "Corpus.h"
#include "ExpectedEnd.h"
#include "Samples.h"

namespace vantor::test {
namespace {

// A sound of `bytes` bytes whose outer chunk tells `told`.
Bytes sound(std::size_t bytes, std::size_t told) {
    return Build()
        .text("RIFF")
        .le32(told)
        .text("WAVE")
        .add(riffChunk("fmt ", Bytes(16, 1)))
        .text("data")
        .le32(bytes)
        .fill(bytes, 0x80);
}

TEST(RiffHabits, PaddingBeyondTheToldEnd_IsNotTheFiles) {
    for (const std::size_t told : {std::size_t{36}, std::size_t{36 + 51}}) {
        const Bytes file = sound(51, told);
        for (const Bytes& tail : {Bytes(3000, 0), noise(3000, 3)})
            expectEnd("WAV", Build().add(file).add(tail), file.size());
    }
}

TEST(RiffHabits, ZerosBehindTheLastChunk_BelongToTheFile) {
    const Bytes file = Build().add(sound(50, 36 + 50 + 84)).fill(84);
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 3)})
        expectEnd("WAV", Build().add(file).add(tail), file.size());
    Bytes spoilt = file;
    spoilt.back() = 1;
    EXPECT_EQ(walkBytes("WAV", spoilt).verdict, Verdict::Damaged);
}

TEST(RiffHabits, ASoundThatTellsALittleTooMuch_EndsBehindItsSamples) {
    const std::size_t head = 8, most = 64;
    for (const std::size_t surplus : {head, head + 22, most}) {
        const Bytes file = sound(50, 36 + 50 + surplus);
        const Bytes joined = Build().add(file).fill(3000, 3);
        expectEnd("WAV", joined, file.size());
        EXPECT_FALSE(walkBytes("WAV", joined).exactEnd);
    }
    // Its own head, counted as well; more than that may be zeros of its own.
    const Bytes counted = sound(50, 36 + 50 + head), filled = sound(50, 36 + 50 + head + 2);
    expectEnd("WAV", Build().add(counted).fill(3000), counted.size());
    expectEnd("WAV", Build().add(filled).fill(3000), filled.size() + head + 2);
    EXPECT_EQ(walkBytes("WAV", Build().add(sound(50, 36 + 50 + most + 2)).fill(3000, 3)).verdict,
              Verdict::Damaged);
    // Without samples so far, what is missing may be all of them.
    const Bytes silent =
        Build().text("RIFF").le32(4 + 24 + 30).text("WAVE").add(riffChunk("fmt ", Bytes(16, 1)));
    EXPECT_EQ(walkBytes("WAV", Build().add(silent).fill(3000, 3)).verdict, Verdict::Damaged);
}

TEST(RiffHabits, AFileThatCountsItsOwnHead_EndsBehindItsLastChunk) {
    const Bytes chunks = Build().text("ACON").add(riffChunk("anih", Bytes(36, 4)));
    const auto told = [&](std::size_t bytes) { return Build().text("RIFF").le32(bytes).add(chunks).bytes(); };
    const Bytes file = told(chunks.size() + 8);
    for (const Bytes& tail : {Bytes(3000, 0), noise(3000, 3)}) {
        expectEnd("ANI", Build().add(file).add(tail), file.size());
        EXPECT_FALSE(walkBytes("ANI", Build().add(file).add(tail)).exactEnd);
    }
    EXPECT_EQ(walkBytes("ANI", Build().add(told(chunks.size() + 10)).fill(3000, 3)).verdict,
              Verdict::Damaged);
}

TEST(RiffHabits, ListsOfSamplesAreContent) {
    const Bytes info = riffChunk("LIST", Build().text("INFO").add(riffChunk("ifil", Bytes(4, 2))));
    const Bytes samples = riffChunk("LIST", Build().text("sdta").add(riffChunk("smpl", Bytes(80, 3))));
    const Bytes bank = riffChunk("RIFF", Build().text("sfbk").add(info).add(samples));
    expectEnd("SF2", Build().add(bank).fill(900), bank.size());
    // Notes alone are none.
    EXPECT_EQ(walkBytes("SF2", riffChunk("RIFF", Build().text("sfbk").add(info))).verdict, Verdict::Damaged);
}

TEST(ZipHabits, UntoldSizeOfTheTypesName_IsPassed) {
    const Bytes rest = zip("maindoc.xml", Bytes(300, 'x'));
    const Bytes file = Build()
                           .text("PK\3\4")
                           .le16(20)
                           .fill(8)
                           .text("CRCqCSIZUSIZ")
                           .le16(8)
                           .le16(0)
                           .text("mimetypeapplication/x-krita");
    ASSERT_EQ(std::string(file.begin() + 14, file.begin() + 26), "CRCqCSIZUSIZ");
    const std::size_t end = file.size() + rest.size();
    expectEnd("KRA", Build().add(file).add(rest).add(noise(3000, 4)), end);
    EXPECT_FALSE(walkBytes("KRA", Build().add(file).add(rest)).checked);
}

// A program stream of packs that begin every so many bytes; the last is short of that by 20.
Bytes programStream(std::size_t sector) {
    Build out;
    for (unsigned pack = 0; pack < 4; ++pack) {
        const std::size_t left = sector - 12 - 6 - (pack == 3 ? 20 : 0);
        out.be32(0x1BA).u8(0x21).be32(0x10001 + 2 * pack).be24(0x800001);
        out.be32(0x1E0).be16(left).fill(left, 0x55);
    }
    return out;
}

TEST(ProgramStreams, OfAVideoDisc_FillTheirLastSector) {
    constexpr std::size_t kVideoDisc = 2324;
    for (const std::size_t sector : {kVideoDisc, kVideoDisc - 20}) {
        const Bytes stream = programStream(sector);
        const std::size_t filling = sector == kVideoDisc ? 20 : 0;
        expectEnd("MPG", Build().add(stream).fill(20).add(noise(3000, 5)), stream.size() + filling);
        expectEnd("MPG", Build().add(stream).fill(3000), stream.size() + filling);
        expectEnd("MPG", Build().add(stream).fill(19).fill(3000, 7), stream.size());
    }
}

// A metafile of three records, the last of which ends it, and whose header tells `words`.
Bytes metafile(std::size_t words, bool placeable = true) {
    return (placeable ? Build().le32(0x9AC6CDD7).fill(18) : Build())
        .le16(1)
        .le16(9)
        .le16(0x300)
        .le32(words)
        .fill(8)
        .le32(5)
        .le16(0x103)
        .fill(4)
        .le32(4)
        .le16(0x104)
        .fill(2)
        .le32(3)
        .le16(0);
}

TEST(MetafileHabits, SizeWithOrWithoutThePlaceableHeader_EndsAtTheLastRecord) {
    const std::size_t bytes = metafile(0).size();
    for (const std::size_t told : {bytes / 2, (bytes - 22) / 2, std::size_t{0}}) {
        for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 3)})
            expectEnd("WMF", Build().add(metafile(told)).add(tail), bytes);
    }
    const Bytes bare = metafile(bytes, false);
    expectEnd("WMF", Build().add(bare).add(noise(3000, 3)), bare.size());
    // A word of padding that is counted, and an office suite's mark that is not.
    const Bytes padded = Build().add(metafile((bytes - 22) / 2 + 1)).fill(2);
    const Bytes marked = Build().add(metafile((bytes - 22) / 2)).text("NANI").fill(4);
    for (const Bytes& file : {padded, marked})
        expectEnd("WMF", Build().add(file).add(noise(3000, 3)), file.size());
    Bytes spoilt = metafile(bytes / 2);
    std::fill(spoilt.begin() + 40, spoilt.begin() + 44, 0);
    EXPECT_EQ(walkBytes("WMF", spoilt).verdict, Verdict::Damaged);
}

TEST(PhotoshopHabits, RowsLongerThanPackingMakesThem_AreForeign) {
    const auto document = [](std::size_t row) {
        return Build()
            .text("8BPS")
            .be16(1)
            .fill(6)
            .be16(1)
            .be32(2)
            .be32(30)
            .be16(8)
            .be16(1)
            .fill(12)
            .be16(1)
            .be16(row)
            .be16(row)
            .fill(2 * row, 9)
            .bytes();
    };
    expectEnd("PSD", Build().add(document(31)).add(noise(3000, 3)), document(31).size());
    EXPECT_EQ(walkBytes("PSD", document(900)).verdict, Verdict::Damaged);
}

TEST(FlacHabits, ReservedBlocks_ArePassedOver) {
    const Sample flac = [] {
        for (const Sample& sample : soundSamples()) {
            if (sample.extension == "FLAC")
                return sample;
        }
        return Sample{};
    }();
    ASSERT_GT(flac.bytes.size(), 100U);
    Bytes file = flac.bytes;
    const Bytes block = Build().u8(126).be24(5).fill(5, 7);
    file.insert(file.begin() + 4 + 38, block.begin(), block.end());
    expectEnd("FLAC", Build().add(file).add(noise(3000, 4)), file.size());
    file[4 + 38] = 127;
    EXPECT_EQ(walkBytes("FLAC", file).verdict, Verdict::Damaged);
}

TEST(TextHabits, EmptyLineBehindAPixmap_BelongsToTheFile) {
    const Bytes file = Build().text("/* XPM */\nstatic char *x[] = {\n\"1 1 1 1\"};\n\n");
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 3)})
        expectEnd("XPM", Build().add(file).add(tail), file.size());
}

TEST(TextHabits, RemarksBehindAPixmap_BelongToTheFile) {
    const std::string pixmap = "/* XPM */\nstatic char *x[] = {\n\"1 1 1 1\"};";
    for (const std::string more : {"\n/* by me */\n", "/* one */\r\n/* and\ntwo */", "\n"}) {
        const Bytes file = Build().text(pixmap + more);
        for (const Bytes& tail : {Bytes(), Bytes(3000, 0), Build().text("/* no end\1*/").bytes()})
            expectEnd("XPM", Build().add(file).add(tail), file.size());
    }
    // One that begins in the next sector is another's.
    const Bytes next = Build().text(pixmap).fill(512 - pixmap.size(), '\n');
    expectEnd("XPM", Build().add(next).text("/* a */"), pixmap.size() + 2);
}

TEST(TextHabits, SchematicsEndAtTheirLastLine) {
    const Bytes file = Build().text("EESchema Schematic File Version 4\nEELAYER 30 0\n$EndSCHEMATC\n");
    for (const Bytes& tail : {Bytes(3000, 0), Build().text("ab\ncd ").fill(3000, 1).bytes()})
        expectEnd("SCH", Build().add(file).add(tail), file.size());
}

TEST(NumberArrayHabits, ShapesOfAnyKindAreCounted) {
    const auto array = [](const std::string& type, const std::string& shape, std::size_t bytes) {
        const std::string text =
            "{'descr': '" + type + "', 'fortran_order': False, 'shape': " + shape + ", }\n";
        return Build().text("\x93NUMPY\1").u8(0).le16(text.size()).text(text).fill(bytes, 5).bytes();
    };
    for (const Bytes& file : {array("<f8", "()", 8), array("|u1", "(4, 5, 2)", 40), array("<U3", "(2,)", 24),
                              array(">c16", "(3,)", 48)})
        expectEnd("NPY", Build().add(file).add(noise(3000, 4)), file.size());
    // Objects are packed otherwise: their end is not told.
    EXPECT_EQ(walkBytes("NPY", array("|O", "(3,)", 48)).verdict, Verdict::Unknown);
}

// A dictionary of no entries and a text, whose table stands at 10.
TEST(PropertyListHabits, BinaryOnesEndBehindTheirTrailer) {
    const Bytes file =
        Build().text("bplist00").u8(0xD0).u8(0x50).u8(8).u8(9).fill(6).u8(1).u8(1).be64(2).be64(0).be64(10);
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 3)})
        expectEnd("PLIST", Build().add(file).add(tail), file.size());
    Bytes astray = file;
    astray.back() = 11;
    EXPECT_NE(walkBytes("PLIST", Build().add(astray).add(noise(3000, 3))).verdict, Verdict::Complete);
}

TEST(PdfHabits, WrongTableOfPlaces_EndsAtTheLastMark) {
    const Bytes file =
        Build().text("%PDF-1.4\n1 0 obj\n<<>>\n\1endobj\ntrailer\n<<>>\nstartxref\n5\n%%EOF\n");
    for (const Bytes& tail : {Bytes(3000, 0), noise(3000, 3)}) {
        const Extent extent = walkBytes("PDF", Build().add(file).add(tail));
        EXPECT_EQ(extent.verdict, Verdict::Damaged);
        EXPECT_EQ(extent.end, file.size());
        EXPECT_TRUE(extent.endFound);
    }
    // What goes on behind it shows that the file did not end there.
    EXPECT_FALSE(walkBytes("PDF", Build().add(file).fill(900, 1).text("\nendobj\n").fill(900, 1)).endFound);
}

TEST(PdfHabits, WrongTableOfPlaces_BehindARowOfObjectsIsNoBreak) {
    const auto file = [](int length) {
        return Build().text(
            "%PDF-1.4\n1 0 obj\n<</Length " + std::to_string(length) +
            ">>\nstream\n(hello) Tj\nendstream\nendobj\ntrailer\n<<>>\nstartxref\n5\n%%EOF\n");
    };
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 3)}) {
        const Bytes whole = file(10);
        const Extent extent = walkBytes("PDF", Build().add(whole).add(tail));
        EXPECT_EQ(extent.verdict, Verdict::Complete);
        EXPECT_FALSE(extent.checked);
        EXPECT_EQ(extent.end, whole.size());
        // A stream that is shorter than it says has lost a piece.
        EXPECT_NE(walkBytes("PDF", Build().add(file(700)).add(tail)).verdict, Verdict::Complete);
    }
}

TEST(PdfHabits, CarriageReturnOfAnother_IsNoLineEndOfThisFile) {
    const Bytes file = Build().text("%PDF-1.4\n1 0 obj\nendobj\nxref\n0 1\nstartxref\n24\n%%EOF");
    expectEnd("PDF", Build().add(file).text("\r").add(noise(3000, 3)), file.size());
    const Bytes old = Build().text("%PDF-1.4\r1 0 obj\rendobj\rxref\r0 1\rstartxref\r24\r%%EOF\r");
    expectEnd("PDF", Build().add(old).add(noise(3000, 3)), old.size());
}

TEST(PdfHabits, LineEndsOrAMarkInFrontOfTheHead_BelongToTheFile) {
    for (const std::string lead : {"\n", "\r\n", "\xEF\xBB\xBF", " "}) {
        for (const std::size_t place : {std::size_t{9}, lead.size() + 9}) {
            const Bytes file = Build().text(lead + "%PDF-1.4\n1 0 obj\nendobj\ntrailer\nstartxref\n" +
                                            std::to_string(place) + "\n%%EOF\n");
            expectEnd("PDF", Build().add(file).add(noise(3000, 3)), file.size());
        }
    }
}

TEST(GifHabits, ZerosBehindALoadingSign_BelongToTheFile) {
    const auto sign = [](std::string_view remark) {
        Build out;
        out.text("GIF89a").le16(2).le16(2).u8(0x80).u8(0).u8(0).fill(6, 9);
        out.u8(0x21).u8(0xFE).u8(static_cast<std::uint8_t>(remark.size())).text(remark).u8(0);
        return out.u8(0x2C).fill(4).le16(2).le16(2).u8(0).u8(2).u8(2).fill(2, 0x44).u8(0).u8(0x3B).bytes();
    };
    const Bytes file = sign("Created with ajaxload.info");
    expectEnd("GIF", Build().add(file).fill(9).add(noise(900, 3)), file.size() + 9);
    expectEnd("GIF", Build().add(file).fill(5).add(noise(900, 3)), file.size());
    const Bytes other = sign("Created by hand");
    expectEnd("GIF", Build().add(other).fill(900), other.size());
}

TEST(FrameHabits, TagsOfJoinedSounds_AreNoEnd) {
    const auto frames = [](int count) {
        Build out;
        for (int i = 0; i < count; ++i)
            out.be32(0xFFFB9064).fill(413, 3);
        return out.bytes();
    };
    const Bytes tag = Build().text("ID3").u8(4).fill(5).u8(12).fill(12);
    const Bytes file = Build().add(frames(4)).add(tag).add(frames(5));
    expectEnd("MP3", Build().add(file).add(noise(3000, 4)), file.size());
    // At a sector's start the tag is the next file's.
    const Bytes alone = frames(4);
    ASSERT_NE(alone.size() % 512, 0U);
    expectEnd("MP3", Build().add(alone).to(2048).add(tag).add(frames(5)), alone.size());
}

TEST(FlashHabits, TagsAreFollowedToTheEndMark) {
    Build tags;
    tags.u8(0).le16(12 << 8).le16(1);
    tags.le16(9 << 6 | 3).fill(3, 0x40).le16(2 << 6 | 63).le32(80).fill(80, 2).le16(1 << 6).le16(0);
    const Bytes file = Build().text("FWS").u8(6).le32(tags.size() + 8).add(tags);
    expectEnd("SWF", Build().add(file).add(noise(3000, 4)), file.size());
    // A mark of three letters that noise holds is no movie.
    int movies = 0;
    for (std::uint32_t seed = 0; seed < 200; ++seed)
        movies += walkBytes("SWF", Build().text("FWS").u8(6).le32(500).add(noise(900, seed))).verdict !=
                          Verdict::Unknown
                      ? 1
                      : 0;
    EXPECT_LE(movies, 2);
}

}  // namespace
}  // namespace vantor::test
