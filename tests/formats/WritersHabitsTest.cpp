// What writers do that no description of their format says, and what must not be taken for it.
#include <gtest/gtest.h>

#include <string>

#include "Corpus.h"
#include "ExpectedEnd.h"
#include "Samples.h"

namespace vantor::test {
namespace {

TEST(PostScriptHabits, EndNamedInsideALine_IsNoEnd) {
    const Bytes file = Build().text(
        "%!PS-Adobe-3.0\n%%BeginProlog\ncurrentfile 1(%%EOF)/SubFileDecode filter\n"
        "%%EndProlog\nshowpage\n%%EOF\n");
    expectEnd("PS", Build().add(file).add(noise(3000, 31)), file.size());
}

TEST(PostScriptHabits, LinesEndedByReturns_AreLines) {
    const Bytes file = Build().text("%!PS-Adobe-3.0\rshowpage\r%%EOF\r");
    expectEnd("PS", Build().add(file).fill(3000), file.size());
}

TEST(PostScriptHabits, TrailerWithoutEnd_EndsBehindItsLines) {
    const Bytes file = Build().text("%!PS-Adobe-3.0\nshowpage\n%%Trailer\n%%Pages: 1\n");
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), Build().text("ab").fill(3000, 1).bytes()}) {
        expectEnd("PS", Build().add(file).add(tail), file.size());
        EXPECT_FALSE(walkBytes("PS", Build().add(file).add(tail)).exactEnd);
    }
    // The trailer of a document inside is not the whole's.
    const Bytes outer = Build().text(
        "%!PS-Adobe-3.0\n%%BeginDocument: a\n%%Trailer\n%%EndDocument\n\1binary\nshowpage\n%%EOF\n");
    expectEnd("PS", Build().add(outer).add(noise(3000, 5)), outer.size());
}

TEST(XmlHabits, InstructionBehindTheRoot_BelongsToTheFile) {
    const std::string packet = "<?xpacket begin=''?>\n<x:xmpmeta>\n</x:xmpmeta>\n";
    const Bytes file = Build().text(packet + std::string(300, ' ') + "<?xpacket end='w'?>");
    const Bytes plain = Build().text(packet);
    const Bytes commented = Build().text(packet + "<!-- done -->\n");
    for (const Bytes& whole : {file, plain, commented}) {
        for (const Bytes& tail : {Bytes(3000, 0), Build().text("\1<?more?>").bytes()})
            expectEnd("XMP", Build().add(whole).add(tail), whole.size());
    }
    expectEnd("XMP", file, file.size());
    // Without its last line the packet is cut, unless others' bytes show that it never had one.
    for (const std::size_t cut : {plain.size(), file.size() - 19, file.size() - 18, file.size() - 1}) {
        const Bytes part(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(cut));
        EXPECT_EQ(walkBytes("XMP", part).verdict, Verdict::CutOff) << cut;
    }
    // What another file begins with does not.
    expectEnd("XMP", Build().add(plain).text("<?xml version='1.0'?><a/>"), plain.size());
    const Bytes filled = Build().text("<a>").fill(505, 'x').text("</a>");
    ASSERT_EQ(filled.size(), 512U);
    expectEnd("XML", Build().add(filled).text("<!-- next --><b/>"), filled.size());
}

TEST(PdfHabits, UpdateNamedInAComment_BelongsToTheFile) {
    const std::string first = "%PDF-1.4\n1 0 obj\nendobj\nxref\n0 1\nstartxref\n24\n%%EOF\n";
    ASSERT_EQ(first.find("xref"), 24U);
    const std::string update = "%BeginUpdate\n1 0 obj\nendobj\n";
    const std::string section = "xref\n0 1\n%EndUpdate\nstartxref\n";
    const auto at = std::to_string(first.size() + update.size());
    const Bytes file = Build().text(first + update + section + at + "\n%%EOF\n");
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 9)})
        expectEnd("PDF", Build().add(file).add(tail), file.size());
    const Bytes alone = Build().text(first);
    expectEnd("PDF", Build().add(alone).text("%PDF-1.4\n1 0 obj\n"), alone.size());
    // Words that a server or a mail program left behind are kept.
    const Bytes words = Build().add(alone).text("<!-- made in 0.2 seconds -->\n");
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 7)})
        expectEnd("PDF", Build().add(words).add(tail), words.size());
}

TEST(PdfHabits, EmptyLineOrLineOfBlanksBehindTheEnd_BelongsToTheFile) {
    const std::string first = "%PDF-1.4\n1 0 obj\nendobj\nxref\n0 1\nstartxref\n24\n%%EOF";
    for (const std::string end : {"\n\n", "\r\n\r\n", "\n \t  \t \n", " \t  \t \n", "\n"}) {
        const Bytes file = Build().text(first + end);
        for (const Bytes& tail : {Bytes(), Bytes(3000, 0), Build().text("x ").fill(3000, 9).bytes()})
            expectEnd("PDF", Build().add(file).add(tail), file.size());
    }
    // Blanks that no line end closes, or another one, may be others' bytes.
    for (const std::string foreign : {"     x", "\r\n", " \n"}) {
        const Bytes file = Build().text(first + "\n");
        expectEnd("PDF", Build().add(file).text(foreign).fill(3000, 9), file.size());
    }
    // Those of the next sector are.
    const Bytes full = Build()
                           .text("%PDF-1.4\n")
                           .fill(512 - 54, '%')
                           .text("\n1 0 obj\nendobj\nxref\n0 1\nstartxref\n483\n%%EOF\n");
    ASSERT_EQ(full.size(), 512U);
    expectEnd("PDF", Build().add(full).text("\n"), full.size());
}

TEST(TextHabits, FontMetrics_EndWithTheirLastLineOrAnEmptyOne) {
    const std::string text = "StartFontMetrics 2.0\nComment EndFontMetrics\nFontName A\nEndFontMetrics";
    for (const std::string end : {"\n", "\n\n", "\r\n\r\n"}) {
        const Bytes file = Build().text(text + end);
        for (const Bytes& tail : {Bytes(3000, 0), Build().text("Another text follows.\n").bytes()}) {
            const Extent extent = walkBytes("AFM", Build().add(file).add(tail));
            EXPECT_EQ(extent.verdict, Verdict::Complete);
            EXPECT_EQ(extent.end, file.size());
        }
    }
}

// Apache POI up to 3.7.
TEST(CompoundFileHabits, TableMarkedAsEndsOfChains_IsATable) {
    Build out;
    out.add(compoundHead()).le32(1).le32(1);
    out.to(68).le32(0xFFFFFFFE).le32(0).le32(2);
    while (out.size() < 512)
        out.le32(0xFFFFFFFF);
    out.fill(1024, 0x44).le32(1).le32(0xFFFFFFFE).le32(0xFFFFFFFE);
    while (out.size() < 2048)
        out.le32(0xFFFFFFFF);
    const Bytes file = out;
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 3)})
        expectEnd("XLS", Build().add(file).add(tail), file.size());
    // Ends of other chains mark no table.
    Bytes other = file;
    other[1536 + 2 * 4] = 0xFF;
    EXPECT_EQ(walkBytes("XLS", other).verdict, Verdict::Damaged);
}

// zipflinger, which packs Android programs.
TEST(ZipHabits, EntryWithoutAName_IsNotInTheDirectory) {
    const Bytes content = Build().text("content");
    const Bytes nameless = Build().text("PK\3\4").fill(22).le16(0).le16(14).fill(14);
    ASSERT_EQ(nameless.size(), 44U);
    const Bytes file = Build().add(nameless).add(zip("a", content));
    expectEnd("APK", Build().add(file).add(noise(2000, 8)), file.size());
    // One with a name that the directory does not know is.
    Bytes named = Build().text("PK\3\4").fill(22).le16(1).le16(13).text("b").fill(13);
    named.insert(named.end(), file.begin() + 44, file.end());
    EXPECT_EQ(walkBytes("APK", named).verdict, Verdict::Damaged);
}

// Video without an end code, as many slices as a short film has.
Bytes openVideo() {
    Build out;
    out.be32(0x000001B3).be32(0x14000F13).fill(8, 5);
    for (std::uint64_t slice = 1; slice < 12; ++slice)
        out.be32(0x00000100 | slice).fill(200, 6);
    return out.be32(0x00000101).fill(90, 6);
}

TEST(MpegVideoHabits, NoEndCode_EndsBeforeZeros) {
    const Bytes file = openVideo();
    expectEnd("M2V", Build().add(file).fill(5000), file.size());
    expectEnd("M2V", Build().add(file).fill(700).add(noise(5000, 4)), file.size());
}

TEST(MpegVideoHabits, SequenceBehindAFilledSector_IsTheNextFile) {
    const Bytes file = openVideo();
    ASSERT_NE(file.size() % 512, 0U);
    const std::size_t sector = (file.size() + 511) / 512 * 512;
    expectEnd("M2V", Build().add(file).to(sector).add(file), file.size());
    // Elsewhere zeros may stand between sequences of one file.
    const Extent joined = walkBytes("M2V", Build().add(file).to(sector - 7).add(file));
    EXPECT_EQ(joined.end, sector - 7 + file.size());
}

Bytes dicomMeta(std::string_view syntax) {
    Build out;
    out.to(128).text("DICM").le16(2).le16(0x10).text("UI").le16(syntax.size()).text(syntax);
    return out;
}

TEST(DicomHabits, ElementsWithoutTheirKind_EndBehindThePicture) {
    Build file;
    file.add(dicomMeta("1.2.840.10008.1.2.")).le16(8).le16(0x60).le32(2).text("OT");
    file.le16(0x7FE0).le16(0x10).le32(20).fill(20, 8);
    for (std::uint32_t seed = 0; seed < 40; ++seed)
        expectEnd("DCM", Build().add(file).add(noise(4000, seed)), file.size());
    // A maker's own group, then what fills the file up.
    file.le16(0x7FE1).le16(0x10).le32(4).text("MINE").le16(0xFFFC).le16(0xFFFC).le32(6).fill(6);
    expectEnd("DCM", Build().add(file).fill(4000), file.size());
}

TEST(DicomHabits, PackedElements_EndWithTheirStream) {
    const Bytes meta = dicomMeta("1.2.840.10008.1.2.1.99");
    const Build stream = Build().u8(1).le16(4).le16(0xFFFB).text("data");
    const Bytes file = Build().add(meta).add(stream).u8(0);
    ASSERT_EQ(file.size() % 2, 0U);
    expectEnd("DCM", Build().add(file).add(noise(3000, 8)), file.size());
    const Bytes cut(file.begin(), file.end() - 4);
    EXPECT_EQ(walkBytes("DCM", cut).verdict, Verdict::CutOff);
    const Bytes broken = Build().add(meta).fill(100, 0xFF);
    EXPECT_EQ(walkBytes("DCM", broken).verdict, Verdict::Damaged);
}

Bytes realMedia(std::uint64_t told) {
    Build out;
    out.text(".RMF").be32(18).fill(10).text("DATA").be32(told).be16(0).be32(2).be32(0);
    for (int i = 0; i < 2; ++i)
        out.be16(0).be16(40).fill(36, 7);
    return out;
}

TEST(RealMediaHabits, HeadOfTheDataCountedTwice_IsSeenThrough) {
    constexpr std::uint64_t kData = 18 + 2 * 40;
    const Bytes counted = Build().add(realMedia(kData + 18)).fill(8);
    for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 2)})
        expectEnd("RM", Build().add(counted).add(tail), counted.size());
    const Bytes right = realMedia(kData);
    expectEnd("RM", Build().add(right).fill(3000), right.size());
    // Packets that are not what the head counts prove nothing.
    Bytes other = Build().add(realMedia(kData + 18)).fill(18);
    other[18 + 13] = 1;
    expectEnd("RM", Build().add(other).fill(3000), other.size());
}

// A text of 4100 bytes in two pieces, the second of 4.
Bytes palmText(std::uint64_t packing, const Bytes& second, std::uint64_t bookmarks = 0) {
    const std::size_t head = 78 + 8 * (3 + bookmarks) + 2;
    Build out;
    out.text("T").to(60).text("TEXtREAd").fill(8).be16(3 + bookmarks);
    out.be32(head).be32(0).be32(head + 16).be32(0).be32(head + 116).be32(0);
    for (std::uint64_t i = 0; i < bookmarks; ++i)
        out.be32(head + 116 + second.size() + 20 * i).be32(0);
    out.fill(2).be16(packing).be16(0).be32(4100).be16(2).be16(4096).be32(0).fill(100, 'x').add(second);
    return out.fill(20 * bookmarks, 'm');
}

TEST(PalmText, LastPiece_IsMeasured) {
    const Bytes plain = palmText(1, Build().text("abcd"));
    const Bytes packed = palmText(2, Build().u8(0xE5).u8(1).u8(0xFF).text("d"));  // blank and e, a byte, d
    const Bytes earlier = palmText(2, Build().text("a").u8(0x80).u8(0x08));       // a, three of before
    const Bytes marked = palmText(2, Build().text("abcd"), 2);
    for (const Bytes& file : {plain, packed, earlier, marked}) {
        for (const Bytes& tail : {Bytes(), Bytes(3000, 0), noise(3000, 3)})
            expectEnd("PDB", Build().add(file).add(tail), file.size());
        const Bytes cut(file.begin(), file.end() - 1);
        EXPECT_EQ(walkBytes("PDB", cut).verdict, Verdict::CutOff);
    }
}

TEST(CpioHabits, OnlyZerosFillTheLastBlock) {
    Build file;
    const auto head = [](std::string_view name) {
        return "070701" + std::string(88, '0') + std::string(name) + "00000000";
    };
    file.text(head("0000000B")).text("TRAILER!!!").fill(4);
    expectEnd("CPIO", Build().add(file).fill(3000), 512);
    expectEnd("CPIO", Build().add(file).add(noise(3000, 6)), file.size());
    expectEnd("CPIO", file, file.size());
}

TEST(TiffHabits, LastBytesWrittenTwice_AreKeptWhereTheFileSaysSo) {
    Bytes plain = tiff();
    const Bytes last(plain.end() - 4, plain.end());
    expectEnd("TIF", Build().add(plain).add(last).add(noise(3000, 6)), plain.size());
}

TEST(SoundHabits, TagThatMp3Bears_StandsBeforeOtherSoundToo) {
    const Bytes tag = Build().text("ID3\4").u8(0).u8(0).be32(20).fill(20, 0);
    for (const auto& sample : allSamples()) {
        if (sample.extension != "AAC" && sample.extension != "TTA" && sample.extension != "APE")
            continue;
        const Bytes file = Build().add(tag).add(sample.bytes);
        for (const Bytes& tail : {Bytes(3000, 0), Bytes()})
            expectEnd("MP3", Build().add(file).add(tail), file.size());
    }
}

TEST(IffHabits, PaddingBehindTheLastChunk_IsOfTheFile) {
    const Bytes odd = Build()
                          .text("FORM")
                          .be32(4 + 8 + 18 + 8 + 3)
                          .text("AIFFCOMM")
                          .be32(18)
                          .fill(18, 1)
                          .text("SSND")
                          .be32(3)
                          .fill(3, 2);
    expectEnd("AIFF", Build().add(odd).u8(0).fill(900, 7), odd.size() + 1);
    expectEnd("AIFF", Build().add(odd).fill(900, 7), odd.size());
}

TEST(WebAssemblyHabits, DataBehindCode_AndTagsBehindMemories_AreSections) {
    const Bytes file =
        Build().text(std::string("\0asm\1\0\0\0", 8)).add({1, 1,  0, 5, 1,  0, 13, 1,  0, 6, 1,
                                                           0, 12, 1, 0, 10, 1, 0,  11, 2, 0, 0});
    expectEnd("WASM", Build().add(file).fill(900, 0xEE), file.size());
    // The kinds stand in one order.
    expectEnd("WASM", Build().add(file).add({10, 1, 0}), file.size());
}

TEST(EventLogHabits, LogThatWasNotClosed_HoldsMoreThanItCounts) {
    Build log;
    log.text(std::string("ElfFile\0", 8)).to(32).le32(128).to(42).le16(1).to(4096);
    for (int chunk = 0; chunk < 3; ++chunk)
        log.text(std::string("ElfChnk\0", 8)).fill(65536 - 8, 3);
    expectEnd("EVTX", Build().add(log).fill(900, 0), log.size());
}

TEST(CabinetHabits, SignatureBehind_BelongsToTheFile) {
    Build file;
    file.text(std::string("MSCF\0\0\0\0", 8)).le32(100).le32(0).le32(60).le32(0).u8(3).u8(1);
    file.le16(1)
        .le16(1)
        .le16(4)
        .le16(7)
        .le16(0)
        .le16(20)
        .le16(0)
        .le32(0x100000)
        .le32(100)
        .le32(50)
        .to(100)
        .fill(50, 9);
    expectEnd("CAB", Build().add(file).fill(900, 0), file.size());
}

TEST(SegmentHabits, PieceOfAMovieAlone_IsAWholeFile) {
    const Bytes piece = Build()
                            .add(isoBox("styp", Build().text("msdh").be32(0).text("msdhmsix")))
                            .add(isoBox("moof", Build().fill(40, 1)))
                            .add(isoBox("mdat", Build().fill(60, 2)));
    expectEnd("MP4", Build().add(piece).fill(900, 0), piece.size());
    // Pieces may be joined, but one that begins at a sector is the next file.
    Bytes filled = piece;
    filled.resize(512);
    expectEnd("MP4", Build().add(piece).add(piece), 2 * piece.size());
    expectEnd("MP4", Build().add(filled).add(piece), piece.size());
    // The head of a movie in pieces has no data.
    const Bytes head = Build()
                           .add(isoBox("ftyp", Build().text("iso5").be32(0)))
                           .add(isoBox("moov", isoBox("mvex", Build().fill(16))));
    expectEnd("MP4", Build().add(head).fill(900, 0), head.size());
    EXPECT_FALSE(walkBytes("MP4", Build().add(head).fill(900, 0)).exactEnd);
}

TEST(PostScriptHabits, NoCommentBehindForeignBytes_EndsBeforeThem) {
    const Bytes file = Build().text("%!PS-Adobe-3.0 EPSF-3.0\n%%Page: 1 1\nshowpage\n");
    const Bytes later = Build().text("\n%%EOF\n");
    expectEnd("EPS", Build().add(file).fill(9000, 1).add(later), file.size());
    const Bytes announced =
        Build().text("%!PS-Adobe-3.0 EPSF-3.0\n%%BeginBinary: 9000\nimage\n").fill(9000, 1);
    expectEnd("EPS", Build().add(announced).add(later), announced.size() + later.size());
}

TEST(LzhHabits, ArchiveOfCpm_FillsItsRecord_AndTheOldestHasNoMark) {
    const auto member = [](std::string_view method) {
        return Build()
            .u8(23)
            .u8(0)
            .text(method)
            .le32(10)
            .le32(10)
            .le32(0)
            .u8(0x20)
            .u8(0)
            .u8(1)
            .text("a")
            .le16(0)
            .fill(10, 5);
    };
    expectEnd("LZH", Build().add(member("-pm0-")).fill(900, 0), 128);
    expectEnd("LZH", Build().add(member("-lh0-")).fill(900, 0), member("-lh0-").size() + 1);
    expectEnd("LZH", Build().add(member("-lz4-")).fill(900, 0), member("-lz4-").size());
}

TEST(CartridgeHabits, OldHeaderCountsBanks) {
    const Bytes file = Build().text("NES\x1A").u8(2).u8(1).fill(10).fill(2 * 16384 + 8192, 3);
    expectEnd("NES", Build().add(file).fill(900, 0), file.size());
}

}  // namespace
}  // namespace vantor::test
