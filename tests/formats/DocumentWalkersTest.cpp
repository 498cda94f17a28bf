// What is particular to archives and documents.
#include <gtest/gtest.h>

#include "Corpus.h"
#include "Samples.h"
#include "WalkBytes.h"
#include "formats/Crc.h"
#include "formats/Registry.h"

namespace vantor::test {
namespace {

const Bytes kContent = Build().text("hello hello hello hello");
const Bytes kPacked = {0xCB, 0x48, 0xCD, 0xC9, 0xC9, 0x57, 0xC8, 0x40, 0x27, 0x01};

// An entry whose sizes follow its data, as streaming writers make it.
Bytes streamedZip(std::uint32_t crc) {
    Build out;
    out.text("PK\x03\x04")
        .le16(20)
        .le16(8)
        .le16(8)
        .le32(0)
        .le32(0)
        .le32(0)
        .le32(0)
        .le16(1)
        .le16(0)
        .text("a")
        .add(kPacked);
    out.text("PK\x07\x08").le32(crc).le32(kPacked.size()).le32(kContent.size());
    const auto directory = out.size();
    out.text("PK\x01\x02")
        .le16(20)
        .le16(20)
        .le16(8)
        .le16(8)
        .le32(0)
        .le32(crc)
        .le32(kPacked.size())
        .le32(kContent.size());
    out.le16(1).le16(0).le16(0).le16(0).le16(0).le32(0).le32(0).text("a");
    const auto bytes = out.size() - directory;
    return out.text("PK\x05\x06").le32(0).le16(1).le16(1).le32(bytes).le32(directory).le16(0);
}

TEST(Zip, SizesBehindTheData_AreFoundByUnpacking) {
    const Bytes whole = streamedZip(crc32(0, kContent));
    const Extent extent = walkBytes("DOCX", Build().add(whole).fill(1000, 0xDD));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, whole.size());
    EXPECT_EQ(walkBytes("DOCX", streamedZip(1)).verdict, Verdict::Damaged);
}

TEST(Zip, PackedContent_IsProvedByItsChecksum) {
    const auto make = [](std::uint32_t crc) {
        Build out;
        out.text("PK\x03\x04")
            .le16(20)
            .le16(0)
            .le16(8)
            .le32(0)
            .le32(crc)
            .le32(kPacked.size())
            .le32(kContent.size());
        out.le16(1).le16(0).text("a").add(kPacked);
        const auto directory = out.size();
        out.text("PK\x01\x02").le16(20).le16(20).le16(0).le16(8).le32(0).le32(crc).le32(kPacked.size());
        out.le32(kContent.size()).le16(1).le16(0).le16(0).le16(0).le16(0).le32(0).le32(0).text("a");
        const auto bytes = out.size() - directory;
        return out.text("PK\x05\x06").le32(0).le16(1).le16(1).le32(bytes).le32(directory).le16(0);
    };
    EXPECT_EQ(walkBytes("ZIP", make(crc32(0, kContent))).verdict, Verdict::Complete);
    EXPECT_EQ(walkBytes("ZIP", make(7)).verdict, Verdict::Damaged);
}

TEST(Zip, SpoiltContent_IsDamageButAllIsKept) {
    Bytes spoilt = zip("a", kContent);
    spoilt[40] ^= 1;
    EXPECT_EQ(walkBytes("ZIP", spoilt).verdict, Verdict::Damaged);
    EXPECT_EQ(walkBytes("ZIP", spoilt).end, spoilt.size());
}

TEST(Zip, ArchiveInsideAnArchive_IsNotTheEnd) {
    const Bytes whole = zip("inner.zip", zip("a", kContent));
    EXPECT_EQ(walkBytes("ZIP", Build().add(whole).fill(99)).end, whole.size());
}

TEST(Zip, Comment_BelongsToTheArchive) {
    const Bytes whole = zip("a", kContent, "a comment");
    EXPECT_EQ(walkBytes("ZIP", Build().add(whole).fill(99, 'x')).end, whole.size());
}

TEST(Gzip, JoinedMembers_AreOneFile) {
    const Bytes member =
        Build().be24(0x1F8B08).u8(0).fill(6).add(kPacked).le32(crc32(0, kContent)).le32(kContent.size());
    const Bytes whole = Build().add(member).add(member);
    EXPECT_EQ(walkBytes("GZ", Build().add(whole).fill(700, 0x1F)).end, whole.size());
    Bytes spoilt = member;
    spoilt[spoilt.size() - 6] ^= 1;
    EXPECT_EQ(walkBytes("GZ", spoilt).verdict, Verdict::Damaged);
}

std::string pdf(std::string_view middle) {
    const std::string body = "%PDF-1.4\n1 0 obj\n<<>>\nendobj\n" + std::string(middle);
    return body + "xref\n0 1\ntrailer\n<<>>\nstartxref\n" + std::to_string(body.size()) + "\n%%EOF\n";
}

std::string update(const std::string& before) {
    const std::string body = before + "2 0 obj\n<<>>\nendobj\n";
    return body + "xref\n0 1\ntrailer\n<<>>\nstartxref\n" + std::to_string(body.size()) + "\n%%EOF\n";
}

TEST(Pdf, IncrementalUpdates_BelongToTheFile) {
    const std::string whole = update(update(pdf("")));
    const Extent extent = walkBytes("PDF", Build().text(whole).fill(5000, 0xC3));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, whole.size());
}

TEST(Pdf, EndMarkOfAnEmbeddedFile_IsNotTheEnd) {
    const std::string whole = pdf("3 0 obj\nstream\n" + pdf("9 0 obj\nendobj\n") + "endstream\nendobj\n");
    EXPECT_EQ(walkBytes("PDF", Build().text(whole).fill(800)).end, whole.size());
}

TEST(Pdf, LinearizedFile_EndsAtItsToldLength) {
    // The first end mark stands near the beginning and points to the first section.
    const auto make = [](std::size_t length) {
        std::string text =
            "%PDF-1.4\n1 0 obj\n<</Linearized 1/L " + std::to_string(length) + "/O 3>>\nendobj\n";
        const auto section = text.size();
        text += "xref\n0 1\ntrailer\n<<>>\nstartxref\n0\n%%EOF\n" + std::string(3000, ' ');
        return text + "2 0 obj\n<<>>\nendobj\nstartxref\n" + std::to_string(section) + "\n%%EOF\n";
    };
    const auto whole = make(make(10000).size() - 1);
    const auto told = make(whole.size());
    const Extent extent = walkBytes("PDF", Build().text(told).fill(9000, 0xC3));
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, told.size());
}

TEST(Pdf, LinearizedFileThatIsCut_DoesNotEndAtItsFirstMark) {
    std::string cut = "%PDF-1.4\n1 0 obj\n<</Linearized 1/L 90000/O 3>>\nendobj\n";
    const auto section = cut.size();
    cut += "xref\n0 1\ntrailer\n<<>>\nstartxref\n" + std::to_string(section) + "\n%%EOF\n" +
           std::string(3000, ' ');
    EXPECT_EQ(walkBytes("PDF", Build().text(cut)).verdict, Verdict::CutOff);
}

TEST(Pdf, NextDocumentAtASector_IsNotSwallowedByACutOne) {
    std::string cut = pdf("").substr(0, 60);
    cut.resize(1024, ' ');
    const Extent extent = walkBytes("PDF", Build().text(cut).text(pdf("")));
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_LE(extent.end, 1024U);
}

TEST(Tar, PaddingToTheRecord_BelongsToTheFileWhileItIsZero) {
    Bytes whole = tar();
    ASSERT_EQ(whole.size(), 10240U);
    whole[3000] = 1;  // foreign already behind the two closing blocks
    EXPECT_EQ(walkBytes("TAR", whole).end, 2048U);
}

TEST(Tar, SpoiltHeader_IsTheBreak) {
    Bytes whole = tar();
    whole[1024] = 'x';
    EXPECT_EQ(walkBytes("TAR", whole).verdict, Verdict::Damaged);
    EXPECT_EQ(walkBytes("TAR", whole).end, 1024U);
}

TEST(Text, Plain_EndsAtTheFirstByteThatIsNone) {
    const Bytes text = Build().text("Grüße,\r\n\tfine.\n");
    for (const Bytes& whole : {Bytes(Build().add(text).fill(100)), Bytes(Build().add(text).fill(100, 0xFF)),
                               Bytes(Build().add(text).u8(7).text("more"))}) {
        EXPECT_EQ(walkBytes("TXT", whole).end, text.size());
        EXPECT_FALSE(walkBytes("TXT", whole).exactEnd);
    }
}

TEST(Text, SixteenBits_EndAtTheFirstControlUnit) {
    Build text;
    text.u8(0xFF).u8(0xFE);
    for (const char letter : std::string_view("Some text"))
        text.le16(static_cast<std::uint8_t>(letter));
    EXPECT_EQ(walkBytes("TXT", Build().add(text).fill(100)).end, text.size());
}

TEST(Xml, RootElement_EndsTheDocument) {
    const Bytes whole = Build().text(
        "\xEF\xBB\xBF<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY a \"<b>\">]>\n<svg><svg/><g "
        "a='</svg>'></g></svg>\r\n");
    EXPECT_EQ(walkBytes("SVG", Build().add(whole).text("<svg></svg>")).end, whole.size());
}

TEST(Xml, ForeignBytesInTheDocument_AreTheBreak) {
    const Bytes cut = Build().text("<svg><g>");
    const Extent extent = walkBytes("SVG", Build().add(cut).fill(500));
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, cut.size());
}

TEST(CompoundFile, TableBeyondTheMedium_IsCutOff) {
    Build out;
    out.add(compoundHead()).le32(1).to(68);
    out.le32(0xFFFFFFFE).le32(0).le32(5000).to(4096);
    EXPECT_EQ(walkBytes("XLS", out).verdict, Verdict::CutOff);
}

TEST(CompoundFile, TableThatDoesNotKnowItsOwnSectors_TellsNoLength) {
    Build out;
    out.add(compoundHead()).le32(1).to(68);
    out.le32(0xFFFFFFFE).le32(0).le32(100).to(512 * 102);
    const Bytes sparse = out.to(512 * 200);
    EXPECT_EQ(walkBytes("XLS", sparse).verdict, Verdict::Damaged);
    EXPECT_EQ(walkBytes("XLS", sparse).end, 512U);
}

}  // namespace
}  // namespace vantor::test
