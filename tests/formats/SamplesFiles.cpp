// Small whole archives and documents.
#include "Samples.h"
#include "formats/Crc.h"

namespace vantor::test {

Bytes zipEntry(std::string_view name, const Bytes& content) {
    Build out;
    out.text("PK\x03\x04").le16(20).le16(0).le16(0).le32(0).le32(crc32(0, content));
    return out.le32(content.size()).le32(content.size()).le16(name.size()).le16(0).text(name).add(content);
}

Bytes zip(std::string_view name, const Bytes& content, std::string_view comment) {
    Build out;
    out.add(zipEntry(name, content));
    const std::size_t directory = out.size();
    out.text("PK\x01\x02")
        .le16(20)
        .le16(20)
        .le16(0)
        .le16(0)
        .le32(0)
        .le32(crc32(0, content))
        .le32(content.size());
    out.le32(content.size()).le16(name.size()).le16(0).le16(0).le16(0).le16(0).le32(0).le32(0).text(name);
    const std::size_t bytes = out.size() - directory;
    return out.text("PK\x05\x06")
        .le32(0)
        .le16(1)
        .le16(1)
        .le32(bytes)
        .le32(directory)
        .le16(comment.size())
        .text(comment);
}

Bytes compoundHead() {
    return Build().be64(0xD0CF11E0A1B11AE1).fill(16).le16(0x3E).le16(3).le16(0xFFFE).le16(9).le16(6).to(44);
}

namespace {

const Bytes kContent = Build().text("Some content that is long enough to be cut in its middle.");

Bytes gzip() {
    return Build()
        .be24(0x1F8B08)
        .u8(8)
        .fill(6)
        .text(std::string_view("a.txt\0", 6))
        .u8(1)
        .le16(kContent.size())
        .le16(~kContent.size())
        .add(kContent)
        .le32(crc32(0, kContent))
        .le32(kContent.size());
}

// One block mark with an arbitrary body: only the marks and the checksums matter to the end.
Bytes bzip2() {
    return Build()
        .text("BZh9")
        .be24(0x314159)
        .be24(0x265359)
        .be32(0xCAFEBABE)
        .fill(20, 0x5B)
        .be24(0x177245)
        .be24(0x385090)
        .be32(0xCAFEBABE);
}

Bytes checked(const Bytes& bytes) {
    return Build().add(bytes).le32(crc32(0, bytes));
}

Bytes xz() {
    const Bytes flags = Build().u8(0).u8(1);  // check: CRC-32
    Build out;
    out.u8(0xFD).text("7zXZ").u8(0).add(checked(flags));
    out.add(checked(Build().u8(2).u8(0).u8(0x21).u8(1).u8(0x16).fill(3)));
    Build chunks;
    chunks.u8(1).be16(9).fill(10, 0x41).u8(0);
    const auto unpadded = 12 + chunks.size() + 4;
    out.add(chunks).fill((4 - chunks.size() % 4) % 4).le32(crc32(0, Bytes(10, 0x41)));
    const Bytes index = checked(Build().u8(0).u8(1).u8(unpadded).u8(10));
    const Bytes footer = Build().le32(index.size() / 4 - 1).add(flags);
    return out.add(index).le32(crc32(0, footer)).add(footer).text("YZ");
}

Bytes rar4() {
    const auto block = [](const Bytes& rest) { return Build().le16(crc32(0, rest) & 0xFFFF).add(rest); };
    Build out;
    out.text(std::string_view("Rar!\x1A\x07\0", 7)).add(block(Build().u8(0x73).le16(0).le16(13).fill(6)));
    out.add(block(Build()
                      .u8(0x74)
                      .le16(0x8000)
                      .le16(33)
                      .le32(kContent.size())
                      .le32(0)
                      .fill(11)
                      .le16(1)
                      .le32(0)
                      .text("a")));
    return out.add(kContent).add(block(Build().u8(0x7B).le16(0x4000).le16(7)));
}

Bytes rar5() {
    const auto block = [](const Bytes& rest) {
        const Bytes sized = Build().u8(rest.size()).add(rest);
        return Build().le32(crc32(0, sized)).add(sized);
    };
    Build out;
    out.text(std::string_view("Rar!\x1A\x07\x01\0", 8)).add(block({1, 0, 0}));
    out.add(block({2, 2, static_cast<std::uint8_t>(kContent.size()), 0, 0})).add(kContent);
    return out.add(block({5, 0, 0}));
}

Bytes sevenZip() {
    const Bytes tail = Build().u8(1).fill(10, 4);
    const Bytes start = Build().le64(kContent.size()).le64(tail.size()).le32(crc32(0, tail));
    return Build()
        .text("7z\xBC\xAF\x27\x1C")
        .le16(0x400)
        .le32(crc32(0, start))
        .add(start)
        .add(kContent)
        .add(tail);
}

}  // namespace

Bytes tar() {
    Build head;
    head.text("a.txt").to(124).text("00000000071").to(148).text("        0").to(257).text("ustar").to(512);
    unsigned sum = 0;
    for (const auto byte : head.bytes())
        sum += byte;
    std::string digits = "000000";
    for (std::size_t i = 6; i-- > 0; sum /= 8)
        digits[i] = static_cast<char>('0' + sum % 8);
    head.put(148, Build().text(digits).u8(0).u8(' '));
    return head.add(kContent).to(10240);
}

namespace {

Bytes arj() {
    const auto head = [](const Bytes& body) {
        return Build().le16(0xEA60).le16(body.size()).add(checked(body)).le16(0);
    };
    return Build()
        .add(head(Bytes(30, 1)))
        .add(head(Build().fill(12, 2).le32(kContent.size()).fill(14)))
        .add(kContent)
        .le16(0xEA60)
        .le16(0);
}

Bytes lzh() {
    return Build()
        .u8(27)
        .u8(0)
        .text("-lh0-")
        .le32(kContent.size())
        .le32(kContent.size())
        .fill(4)
        .u8(0x20)
        .u8(0)
        .u8(5)
        .text("a.txt")
        .le16(0)
        .add(kContent)
        .u8(0);
}

Bytes compound() {
    Build out;
    out.add(compoundHead()).le32(1).le32(1);
    out.to(68).le32(0xFFFFFFFE).le32(0).le32(0).to(512);
    out.le32(0xFFFFFFFD)
        .le32(0xFFFFFFFE)
        .le32(3)
        .le32(0xFFFFFFFE);  // table, directory, a stream of two sectors
    while (out.size() < 1024)
        out.le32(0xFFFFFFFF);
    return out.fill(3 * 512, 0x44);
}

// A table of one row, the end of which lies on a page of its own.
Bytes sqlite() {
    const Bytes schema = Build().u8(14).u8(1).u8(6).u8(23).u8(15).u8(15).u8(1).u8(0).text("tableaa").u8(2);
    const Bytes row = Build().u8(0x84).u8(0x58).u8(1).fill(92, 0x31).be32(3);
    const auto leaf = [](std::size_t at) { return Build().u8(13).be16(0).be16(1).be16(at).u8(0).be16(at); };
    return Build()
        .text(std::string_view("SQLite format 3\0", 16))
        .be16(512)
        .to(24)
        .be32(7)
        .be32(3)
        .to(92)
        .be32(7)
        .put(100, leaf(512 - schema.size()))
        .put(512 - schema.size(), schema)
        .put(512, leaf(512 - row.size()))
        .put(1024 - row.size(), row)
        .to(1536);
}

Bytes jet() {
    Build out;
    out.be32(0x00010000).text(std::string_view("Standard Jet DB\0", 16)).u8(1).to(4096);
    for (const std::uint64_t kind : {1, 2, 9})
        out.u8(kind).u8(1).fill(4094, 6);
    return out;
}

Bytes mobi() {
    return Build()
        .to(60)
        .text("BOOKMOBI")
        .to(76)
        .be16(2)
        .be32(100)
        .be32(0)
        .be32(140)
        .be32(0)
        .to(140)
        .be32(0xE98E0D0A);
}

Bytes executable() {
    Build out;
    out.text("MZ")
        .to(60)
        .le32(64)
        .text(std::string_view("PE\0\0", 4))
        .le16(0x14C)
        .le16(1)
        .fill(12)
        .le16(96)
        .le16(0x102);
    out.le16(0x10B).fill(94).text(".text").fill(11).le32(64).le32(320);
    return out.to(384);
}

Bytes elf() {
    Build out;
    out.be32(0x7F454C46)
        .u8(2)
        .u8(1)
        .u8(1)
        .to(40)
        .le64(64)
        .to(52)
        .le16(64)
        .le16(56)
        .le16(0)
        .le16(64)
        .le16(1)
        .le16(0);
    return out.to(64).le32(0).le32(1).fill(16).le64(128).le64(50).to(178);
}

Bytes chm() {
    return Build()
        .text("ITSF")
        .le32(3)
        .le32(0x60)
        .to(0x38)
        .le64(0x60)
        .le64(0x18)
        .to(0x60)
        .le64(0x1FE)
        .le64(200)
        .to(200);
}

Bytes shellLink() {
    return Build()
        .text(std::string_view("L\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 20))
        .le32(0x81 | 4)
        .to(76)
        .le16(6)
        .fill(6)
        .le16(3)
        .fill(6, 'n')
        .le32(12)
        .fill(8)
        .le32(0);
}

std::string pdfText() {
    const std::string body = "%PDF-1.4\n1 0 obj\n<<>>\nendobj\n";
    return body + "xref\n0 1\n0000000000 65535 f \ntrailer\n<<>>\nstartxref\n" + std::to_string(body.size()) +
           "\n%%EOF\n";
}

Bytes ar() {
    const auto member = [](std::string_view bytes) {
        return "name/           0           0     0     644     " + std::string(bytes) + "`\n";
    };
    return Build()
        .text("!<arch>\n")
        .text(member("3         "))
        .text("abc\n")
        .text(member("4         "))
        .text("abcd");
}

Bytes cpio() {
    const auto head = [](std::string_view size, std::string_view name) {
        return "070701" + std::string(48, '0') + std::string(size) + std::string(32, '0') +
               std::string(name) + std::string(8, '0');
    };
    return Build()
        .text(head("00000114", "00000002"))
        .text("a")
        .to(112)
        .text("hello")
        .to(388)
        .text(head("00000000", "0000000B"))
        .text("TRAILER!!!")
        .to(512);
}

}  // namespace

std::vector<Sample> archiveSamples() {
    return {{"ZIP", zip("a.txt", kContent, "a comment")},
            {"GZ", gzip()},
            {"BZ2", bzip2()},
            {"XZ", xz()},
            {"RAR", rar4()},
            {"CBR", rar5()},
            {"7Z", sevenZip()},
            {"TAR", tar(), false},
            {"AR", ar(), false},
            {"CPIO", cpio(), false, true},
            {"CAB", Build().text("MSCF").le32(0).le32(80).le32(0).le32(44).le32(0).u8(3).u8(1).to(80)},
            {"ARJ", arj()},
            {"LZH", lzh()},
            {"SQLITE", sqlite()},
            {"MDB", jet(), false},
            {"EXE", executable(), false, true},
            {"ELF", elf(), false, true},
            {"PST", Build().text("!BDN").to(10).le16(23).to(0xB8).le64(1024).to(1024)}};
}

std::vector<Sample> documentSamples() {
    return {
        {"PDF", Build().text(pdfText())},
        {"DOC", compound(), false, true},
        {"MOBI", mobi()},
        {"CHM", chm()},
        {"DJVU", Build().text("AT&TFORM").be32(40).text("DJVU").fill(36, 1)},
        {"FFT",
         Build().be32(0x0005E103).u8(0).be16(32).be32(0xE2050001).fill(26, 7).be32(0x0006E807).be16(12),
         false},
        {"LNK", shellLink()},
        {"PS", Build().text("%!PS-Adobe-3.0\n%%BeginDocument: x\n%%EOF\n%%EndDocument\nshowpage\n%%EOF\n")},
        {"EPS", Build().be32(0xC5D0D3C6).le32(30).le32(50).fill(18).to(80)},
        {"RTF", Build().text("{\\rtf1 a \\{ {\\b bold} \\bin3 }}} end}\r\n")},
        {"SVG", Build().text(
                    "<?xml version=\"1.0\"?>\n<!-- <svg> -->\n<svg a=\">\"><g/><![CDATA[</svg>]]></svg>\n")},
        {"HTML", Build().text("<!DOCTYPE html><html><p>Text<br></html>\n")},
        {"VCF", Build().text("BEGIN:VCARD\r\nFN:A\r\nEND:VCARD\r\nBEGIN:VCARD\r\nFN:B\r\nEND:VCARD\r\n"),
         false},
        {"ICS", Build().text("BEGIN:VCALENDAR\nX:1\nEND:VCALENDAR\n")},
        {"TXT", Build().text("Plain text, nothing more.\n"), false}};
}

std::vector<Sample> allSamples() {
    std::vector<Sample> all;
    for (const auto& part :
         {pictureSamples(), movieSamples(), soundSamples(), archiveSamples(), documentSamples(),
          rasterSamples(), recordSamples(), toldLengthSamples(), drawingSamples(), modelSamples(),
          moduleSamples(), tableSamples(), scienceSamples()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace vantor::test
