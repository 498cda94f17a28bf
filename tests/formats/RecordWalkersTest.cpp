// What is particular to files of records, frames and told lengths.
#include <gtest/gtest.h>

#include "Corpus.h"
#include "Samples.h"
#include "WalkBytes.h"

namespace vantor::test {
namespace {

Bytes sampleOf(std::string_view extension) {
    for (const auto& sample : allSamples()) {
        if (sample.extension == extension)
            return sample.bytes;
    }
    ADD_FAILURE() << "no sample " << extension;
    return {};
}

void expectWhole(std::string_view extension, const Bytes& whole) {
    const Bytes followed = Build().add(whole).add(noise(3000, 9));
    for (const Bytes& bytes : {whole, followed}) {
        const Extent extent = walkBytes(extension, bytes);
        EXPECT_EQ(extent.verdict, Verdict::Complete) << extension;
        EXPECT_EQ(extent.end, whole.size()) << extension;
    }
}

TEST(Frames, OneBehindAnother_AreOneFile) {
    const Bytes skipped = Build().be32(0x522A4D18).le32(5).fill(5, 1);
    for (const std::string_view extension : {"LZ4", "ZST"}) {
        const Bytes frame = sampleOf(extension);
        expectWhole(extension, Build().add(skipped).add(frame).add(frame));
    }
    for (const std::string_view extension : {"LZ", "LZO"})
        expectWhole(extension, Build().add(sampleOf(extension)).add(sampleOf(extension)));
}

TEST(Frames, BlockLargerThanTheFormatAllows_IsDamage) {
    const Bytes lz4 = Build().be32(0x04224D18).u8(0x60).u8(0x40).u8(9).le32(0x10001).fill(0x10001);
    EXPECT_EQ(walkBytes("LZ4", lz4).verdict, Verdict::Damaged);
    const Bytes zstandard = Build().be32(0x28B52FFD).u8(0).u8(0x50).be24(0x09FFFF).fill(200'000);
    EXPECT_EQ(walkBytes("ZST", zstandard).verdict, Verdict::Damaged);
}

TEST(Fits, TableBehindThePicture_BelongsToTheFile) {
    const Bytes table =
        fitsCards({"XTENSION= 'BINTABLE'", "BITPIX  =                    8", "NAXIS   =                    2",
                   "NAXIS1  =                  100", "NAXIS2  =                   28",
                   "PCOUNT  =                  100", "GCOUNT  =                    1", "END"});
    expectWhole("FITS", Build().add(sampleOf("FITS")).add(table).fill(2880 * 2, 7));
}

TEST(Fits, HeaderWithoutData_EndsWithItsBlock) {
    expectWhole("FITS", fitsCards({"SIMPLE  =                    T", "BITPIX  =                   16",
                                   "NAXIS   =                    0", "END"}));
}

TEST(Fits, HeaderThatIsNoTextAnyMore_EndsThere) {
    const Bytes head =
        Build().add(fitsCards({"SIMPLE  =                    T", "BITPIX  =                   16",
                               "NAXIS   =                    0"}));
    const Bytes bytes =
        Build().add(head).fill(80, 'x').fill(160, 0x80).fill(8000, ' ').add(fitsCards({"END"}));
    const Extent extent = walkBytes("FITS", bytes);
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, head.size() + 80);
}

TEST(Exr, ChunksOfEveryKind_AreMeasured) {
    const auto file = [](std::uint64_t flags, const Bytes& chunk) {
        Build out;
        out.be32(0x762F3101).le32(2 | flags).add(exrAttribute("tiles", "tiledesc", Bytes(9, 1))).u8(0);
        return Build().add(out).le64(out.size() + 8).add(chunk);
    };
    expectWhole("EXR", file(0x200, Build().fill(16).le32(10).fill(10, 1)));
    expectWhole("EXR", file(0x800, Build().fill(4).le64(5).le64(10).le64(99).fill(15, 1)));
}

TEST(Exr, ChunkOfAPart_IsMeasuredByThePartsKind) {
    Build out;
    out.be32(0x762F3101).le32(2 | 0x1000);
    for (const std::string_view kind : {"scanlineimage", "tiledimage"})
        out.add(exrAttribute("type", "string", Build().text(kind))).u8(0);
    out.u8(0);
    const auto first = out.size() + 16;
    out.le64(first).le64(first + 22);
    out.le32(0).le32(0).le32(10).fill(10, 1);
    expectWhole("EXR", out.le32(1).fill(16).le32(7).fill(7, 2));
}

TEST(Exr, TableThatWasNeverWritten_IsDamage) {
    Bytes broken = sampleOf("EXR");
    std::fill(broken.end() - 52, broken.end() - 36, 0);
    EXPECT_EQ(walkBytes("EXR", broken).verdict, Verdict::Damaged);
}

TEST(Film, LengthOfSmallerSamplesThanWritten_IsNotBelieved) {
    Bytes frame = sampleOf("DPX");
    frame[19] = 1;  // the told length; the pixels take 24 bytes
    expectWhole("DPX", frame);
}

TEST(Pcap, PacketsOfAnotherYear_AreAnotherCapture) {
    const Bytes whole = sampleOf("PCAP");
    const Bytes old = Build().le32(1'500'000'000).le32(9).le32(8).le32(8).fill(8, 2);
    EXPECT_EQ(walkBytes("PCAP", Build().add(whole).add(old)).end, whole.size());
}

TEST(WavPack, EndBetweenBlocks_IsACut) {
    const Bytes whole = sampleOf("WV");
    const Bytes half(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(whole.size() / 2));
    EXPECT_EQ(walkBytes("WV", half).verdict, Verdict::CutOff);
    EXPECT_EQ(walkBytes("WV", Build().add(half).fill(500)).verdict, Verdict::Damaged);
}

TEST(ConsoleSound, NotesBehindTheMemory_BelongToIt) {
    expectWhole("SPC", Build().add(sampleOf("SPC")).text("xid6").le32(8).fill(8, 1));
}

TEST(Certificate, InText_EndsWithTheText) {
    const Bytes text = Build().text("-----BEGIN CERTIFICATE-----\nMIIB\n-----END CERTIFICATE-----\n");
    EXPECT_EQ(walkBytes("CER", Build().add(text).fill(400)).end, text.size());
}

TEST(MarkedText, OtherFormsOfTheType_AreUnknown) {
    const Bytes drawing = Build().text("AutoCAD Binary DXF\r\n\x1A").fill(100);
    EXPECT_EQ(walkBytes("DXF", drawing).verdict, Verdict::Unknown);
    const Bytes index = Build().text("DIRC").be32(2).fill(100, 1);
    EXPECT_EQ(walkBytes("IDX", index).verdict, Verdict::Unknown);
    const Bytes text = Build().text("  0\nSECTION\n  0\nEOF\n");
    EXPECT_EQ(walkBytes("DXF", Build().add(text).fill(100)).end, text.size());
}

TEST(UntoldLengths, AreUnknown) {
    Bytes old = sampleOf("KDBX");
    old[10] = 3;  // one encrypted stream
    EXPECT_EQ(walkBytes("KDBX", old).verdict, Verdict::Unknown);
    Bytes packed = sampleOf("LAS");
    packed[104] = 0x81;
    EXPECT_EQ(walkBytes("LAS", packed).verdict, Verdict::Unknown);
}

struct Told {
    const char* extension;
    std::size_t size;
    std::vector<std::pair<std::size_t, Bytes>> pieces;
};

Bytes built(const Told& told) {
    Build out;
    for (const auto& [at, bytes] : told.pieces)
        out.put(at, bytes);
    return out.to(told.size - 1).u8(1);
}

TEST(ToldLength, FurtherForms_EndWhereTheySay) {
    const Bytes hdf = Build().text("\x89HDF\r\n\x1A\n");
    const std::vector<Told> forms = {
        {"WOFF", 99, {{0, Build().text("wOFF").be32(0x00010000).be32(99)}}},
        {"WOFF2", 99, {{0, Build().text("wOF2OTTO").be32(99)}}},
        {"SIT", 150, {{0, Build().text("StuffIt (c)1997-1998")}, {84, Build().be32(150)}}},
        {"DOC", 500, {{0, Build().be32(0xDBA52D00)}, {32, Build().le32(500)}}},  // Word 2
        {"WRI", 256, {{0, Build().be32(0x32BE0000)}, {5, {0xAB}}, {96, {2, 0}}}},
        {"MED", 70, {{0, Build().text("MMD0").be32(70)}}},
        {"MED", 70, {{0, Build().text("MMD2").be32(70)}}},
        {"FIT", 40, {{0, {12}}, {4, Build().le32(26)}, {8, Build().text(".FIT")}}},
        {"HDF5", 120, {{0, hdf}, {8, {1}}, {13, {8, 8}}, {44, Build().le64(120)}}},
        {"HDF5", 120, {{0, hdf}, {8, {2, 8}}, {28, Build().le64(120)}}},
        {"HDF5", 120, {{0, hdf}, {8, {3, 8}}, {28, Build().le64(120)}}}};
    for (const Told& told : forms)
        expectWhole(told.extension, built(told));
}

TEST(ToldLength, NumberThatIsNone_IsUnknown) {
    for (const std::uint64_t length : {std::uint64_t{0}, std::uint64_t{20}, std::uint64_t{0xFFFFFFFF}}) {
        const Told told{"WOFF", 99, {{0, Build().text("wOFFOTTO").be32(length)}}};
        EXPECT_EQ(walkBytes("WOFF", built(told)).verdict, Verdict::Unknown) << length;
    }
}

}  // namespace
}  // namespace vantor::test
