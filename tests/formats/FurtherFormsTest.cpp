// Forms of formats that have another one beside: each ends where it says.
#include <gtest/gtest.h>
#include <zlib.h>

#include "Corpus.h"
#include "Samples.h"
#include "WalkBytes.h"

namespace vantor::test {
namespace {

void expectEndsItself(std::string_view extension, const Bytes& whole) {
    for (const Bytes& behind : {Bytes(), Bytes(3000, 0), noise(3000, 9)}) {
        const Extent extent = walkBytes(extension, Build().add(whole).add(behind));
        EXPECT_EQ(extent.verdict, Verdict::Complete) << extension;
        EXPECT_EQ(extent.end, whole.size()) << extension << " before " << behind.size();
    }
}

TEST(FurtherForms, FirstFormOfLz4_EndsBehindItsLastBlock) {
    expectEndsItself("LZ4", Build().be32(0x02214C18).le32(20).fill(20, 7).le32(9).fill(9, 8));
}

TEST(FurtherForms, SecondVersionOfAVolume_CountsItsValues) {
    Build out;
    out.le32(540).text("n+2\0\r\n\x1A\n"_b).le16(4).le16(16).le64(3).le64(2).le64(3).le64(4);
    expectEndsItself("NII", out.to(168).le64(544).to(544).fill(2 * 3 * 4 * 2, 5));
}

TEST(FurtherForms, MatlabDataBehindALineOfText_TellTheirLengthWithIt) {
    Build out;
    out.text("MATLAB 7.3 MAT-file").to(512).text("\x89HDF\r\n\x1A\n\0"_b).to(525).u8(8).u8(8).to(552);
    expectEndsItself("MAT", out.le64(700).to(699).u8(1));
}

TEST(FurtherForms, MedicalPictureWithoutPreamble_IsFollowedByItsElements) {
    Build out;
    out.be32(0x08000500).text("CS").le16(10).text("ISO_IR 100").be32(0x28001000).text("US").le16(2).le16(4);
    expectEndsItself("DCM", out.be32(0xE07F1000).text("OW\0\0"_b).le32(32).fill(32, 3));
}

TEST(FurtherForms, PackedSpaceData_EndBehindWhatTellsTheirPacking) {
    Build out;
    out.be64(0xCDF30001CCCC0001).be64(92).be32(10).be64(100).to(100);
    expectEndsItself("CDF", out.be64(28).be32(11).be32(5).fill(12, 1));
}

TEST(FurtherForms, DiskPackedForAStream_EndsWithTheMarkOfItsEnd) {
    Build out;
    out.text("KDMV").le32(3).le32(0x30001).le64(32).le64(8).le64(1).le64(1).le32(512).le64(0);
    out.le64(~0ULL).le64(2).to(1024).le64(0).le32(30).fill(30, 5).to(1536);
    out.le64(2).le32(0).le32(1).to(3072).le64(1).le32(0).le32(3).to(4096);
    expectEndsItself("VMDK", out.to(4608 - 1).u8(0));
}

TEST(FurtherForms, PackedDataOfADisk_ReachAsFarAsTheirSectors) {
    constexpr std::size_t kCluster = 512;
    Build out;
    out.text("QFI\xFB").be32(2).be64(0).be32(0).be32(9).be64(4096).be32(0).be32(1).be64(3 * kCluster);
    out.be64(kCluster).be32(1).be32(0).be64(0).to(kCluster).be64(2 * kCluster);
    out.to(3 * kCluster).be64(4 * kCluster).to(4 * kCluster);
    out.be64(1ULL << 62 | 1ULL << 61 | (5 * kCluster + 100));
    expectEndsItself("QCOW2", out.to(7 * kCluster - 1).u8(1));
}

TEST(FurtherForms, TableOfStatisticsInPlainOrDeflatedForm_TellsItsLength) {
    const auto head = [](std::string_view mark, std::uint64_t packing) {
        Build out;
        out.text(mark).to(64).le32(2).le32(1).le32(packing).le32(0).le32(3).to(176);
        out.le32(2).le32(0).le32(0).le32(0).le32(0).le32(0).text("A       ").le32(999).le32(0);
        return out;
    };
    expectEndsItself("SAV", head("$FL2@(#)", 0).fill(3 * 8, 4));
    Build deflated = head("$FL3@(#)", 2);
    const auto start = deflated.size();
    expectEndsItself("SAV", deflated.le64(start).le64(start + 60).le64(30).fill(66, 5));
}

TEST(FurtherForms, TextOfGenes_EndsWithItsLastLine) {
    for (const std::string_view first : {"@HD\tVN:1.6\n", "##fileformat=VCFv4.2\n"}) {
        const Bytes whole = Build().text(first).text("chr1\t1\t.\tA\tC\n");
        const std::string_view type = first.starts_with('@') ? "SAM" : "VCF";
        expectEnd(type, Build().add(whole).fill(600), whole.size());
    }
}

TEST(FurtherForms, SpeechThatIsPacked_TellsNoLength) {
    const auto speech = [](std::string_view coding) {
        return Build()
            .text("NIST_1A\n   1024\nsample_count -i 20\nsample_n_bytes -i 2\nsample_coding -s3 ")
            .text(coding)
            .text("\nend_head\n")
            .to(1024)
            .fill(100, 3)
            .bytes();
    };
    EXPECT_EQ(walkBytes("SPH", speech("pcm")).end, 1064U);
    EXPECT_EQ(walkBytes("SPH", speech("pcm,embedded-shorten-v2.00")).verdict, Verdict::Unknown);
}

TEST(FurtherForms, PieceOfSoundOutOfItsTime_IsAnothers) {
    Build out;
    for (const std::uint64_t time : {10, 50, 90, 130, 171})
        out.be16(0x300A).be16(time).be32(time == 10 ? 0xF8726FBB : 0x11223344).fill(12, 0x55);
    expectEnd("MLP", out, 80);
}

// Files of many streams, none of which unpacks to too much by itself.
TEST(FurtherForms, ManyStreamsThatUnpackToFarMoreThanTheFile_AreGivenUp) {
    constexpr std::size_t kBytes = 1 << 20;
    const Bytes zeros(kBytes, 0);
    Bytes stream(::compressBound(kBytes));
    uLongf packed = stream.size();
    ASSERT_EQ(::compress(stream.data(), &packed, zeros.data(), zeros.size()), Z_OK);
    stream.resize(packed);
    const Bytes bare(stream.begin() + 2, stream.end() - 4);
    const auto sum = static_cast<std::uint32_t>(::crc32(0, zeros.data(), zeros.size()));
    const Bytes object = Build().be32(0xB0808004).add(stream);  // a blob of kBytes
    const Bytes member = Build().be32(0x1F8B0800).be32(0).be16(3).add(bare).le32(sum).le32(kBytes);
    const auto times = [](int count, const Bytes& part) {
        Build out;
        for (int i = 0; i < count; ++i) {
            out.add(part);
        }
        return out;
    };
    const auto packOf = [&](int count) {
        Build out;
        return out.text("PACK"_b).be32(2).be32(static_cast<std::uint32_t>(count)).add(times(count, object));
    };
    EXPECT_EQ(walkBytes("PACK", packOf(200).fill(20, 0)).verdict, Verdict::Complete);
    EXPECT_EQ(walkBytes("PACK", packOf(400).fill(20, 0)).verdict, Verdict::Unknown);
    EXPECT_EQ(walkBytes("GZ", times(200, member)).verdict, Verdict::Complete);
    EXPECT_EQ(walkBytes("GZ", times(400, member)).verdict, Verdict::Unknown);
}

TEST(FurtherForms, PackedObjectOfAnotherLength_IsDamage) {
    Bytes pack = readFile(foreignFolder() / "git.pack");
    ASSERT_EQ(walkBytes("PACK", pack).verdict, Verdict::Complete);
    pack[12] ^= 1;  // the length of the first
    EXPECT_EQ(walkBytes("PACK", pack).verdict, Verdict::Damaged);
}

TEST(FurtherForms, LzmaOfAToldLength_EndsThere_AndALargeDictionaryIsNotTried) {
    Bytes file = readFile(foreignFolder() / "xz.lzma");
    const auto told = [&](std::uint64_t bytes) {
        return Build().add(file).put(5, Build().le64(bytes)).bytes();
    };
    constexpr std::uint64_t kUnpacked = 1092;  // the numbers up to 300, each on a line
    EXPECT_EQ(walkBytes("LZMA", told(kUnpacked)).verdict, Verdict::Complete);
    EXPECT_EQ(walkBytes("LZMA", told(kUnpacked + 1)).verdict, Verdict::Damaged);
    Bytes spoilt = file;
    spoilt[file.size() / 2] ^= 0x10;
    EXPECT_NE(walkBytes("LZMA", spoilt).verdict, Verdict::Complete);
    file[4] = 0x7F;
    EXPECT_EQ(walkBytes("LZMA", file).verdict, Verdict::Unknown);
}

TEST(FurtherForms, KeysInLetters_EndWithTheirLastClosingLine) {
    const std::string_view one = "-----BEGIN X-----\nAAAA\n-----END X-----\n";
    for (const std::string_view noise : {"ab", "ab cd e", "q"}) {
        const Bytes two = Build().text(one).text("\n").text(one);
        EXPECT_EQ(walkBytes("PEM", Build().add(two).text(noise).u8(3)).end, two.size());
    }
    // Without a line end, and with whole lines behind.
    EXPECT_EQ(walkBytes("PEM", Build().text("-----BEGIN X-----\nAA\n-----END X-----").text("zz").u8(1)).end,
              36U);
    const Bytes noted = Build().text(one).text("A remark of the owner\n");
    EXPECT_EQ(walkBytes("PEM", Build().add(noted).fill(100)).end, noted.size());
}

TEST(FurtherForms, KeysBehindTheirDescription_EndWithTheirClosingLine) {
    for (const std::string_view first : {"X.509 Certificate Information:\n", "Public Key Info:\n"}) {
        const Bytes text = Build().text(first).text("\tVersion: 3\n-----BEGIN X-----\nAA\n-----END X-----\n");
        EXPECT_EQ(walkBytes("PEM", Build().add(text).text("ab cd e").u8(1)).end, text.size()) << first;
    }
}

TEST(FurtherForms, CertificatesBehindOneAnother_AreOneFile) {
    Build one;
    one.be32(0x308200C8).be32(0x308200A0).be32(0xA0030201).u8(2).to(204);
    expectEndsItself("CER", Build().add(one).add(one));
}

TEST(FurtherForms, OlderTableOfStata_EndsBehindItsRowsAndNames) {
    for (const std::size_t format : {49, 12}) {
        Build out;
        out.u8(format == 12 ? 113 : 114).u8(2).le16(1).le16(2).le32(3).to(109).u8(255).u8(10);
        out.fill(2 * 33 + 2 * 3 + 2 * format + 2 * 33 + 2 * 81).u8(1).le32(6).fill(6, 1).fill(5);
        out.fill(3 * 18, 7).le32(8 + 8 + 4).text("name").fill(32).le32(1).le32(4).le32(0).le32(5).text(
            "yes\0"_b);
        const Extent extent = walkBytes("DTA", Build().add(out).add(noise(3000, 9)));
        EXPECT_EQ(extent.verdict, Verdict::Complete);
        EXPECT_EQ(extent.end, out.size()) << format;
    }
}

TEST(FurtherForms, PatchOfAnInstrument_IsNoPatternAndNoText) {
    Build out;
    out.text("GF1PATCH110").to(82).u8(1).to(129 + 22).u8(1).to(129 + 63 + 6).u8(1).to(129 + 63 + 47 + 8);
    expectEndsItself("PAT", out.le32(40).to(129 + 63 + 47 + 96).fill(40, 3));
}

TEST(FurtherForms, PictureWithASmallOneBehind_EndsWithTheFooterThatTellsOfIt) {
    constexpr std::size_t kPixels = 18 + 8, kFar = 9000;
    const auto picture = [](std::size_t extension) {
        Build out;
        out.be24(0x000003).to(12).le16(4).le16(2).u8(8).u8(0).fill(8, 5).fill(kFar, 6);
        return out.le32(extension).le32(0).text("TRUEVISION-XFILE.\0"_b);
    };
    const Bytes own = picture(kPixels + 100), others = picture(18);
    EXPECT_EQ(walkBytes("TGA", Build().add(own).add(noise(3000, 9))).end, own.size());
    EXPECT_EQ(walkBytes("TGA", others).end, kPixels);
}

TEST(FurtherForms, Solution_EndsWithItsGlobalPart) {
    const Bytes text = Build().text(
        "Microsoft Visual Studio Solution File, Format Version "
        "8.00\nGlobal\n\tEndGlobalSection\nEndGlobal\n");
    EXPECT_EQ(walkBytes("SLN", Build().add(text).text("zx yw").u8(1)).end, text.size());
}

TEST(FurtherForms, EncryptedFile_EndsWithItsPacketsInParts) {
    Build out;
    out.be16(0x8C0D).be32(0x04090308).fill(9, 1);           // a passphrase's packet of 13 bytes
    out.be16(0xD2E4).u8(1).fill(15, 3).u8(20).fill(20, 9);  // 16 bytes and 20
    EXPECT_EQ(walkBytes("PGP", Build().add(out).fill(600)).end, out.size());
    EXPECT_EQ(walkBytes("PGP", Build().be32(0xA3020102).fill(60, 1)).verdict, Verdict::Unknown);
}

}  // namespace
}  // namespace vantor::test
