// Small files of what laboratories, maps and firmware are kept in.
#include "Samples.h"
#include "formats/Crc.h"

namespace vantor::test {

namespace {

// Two sequences, the first with runs of unknown bases.
Bytes packedSequences() {
    Build out;
    out.le32(0x1A412743).le32(0).le32(2).le32(0);
    out.u8(2).text("c1").le32(31).u8(3).text("c22").le32(31 + 27);
    out.le32(10).le32(1).le32(4).le32(2).le32(0).le32(0).fill(3, 0x1B);
    return out.le32(6).le32(0).le32(0).le32(0).fill(2, 0xE4);
}

// Two zoom levels, the mark by chance in the data of the second, and behind its index to end the file.
Bytes features() {
    Build out;
    out.le32(0x8789F2EB).le16(4).le16(2).le64(112).le64(150).le64(200).le16(3).le16(3).le64(0).le64(0);
    out.to(64);
    for (const std::uint64_t at : {250, 300})
        out.le32(10).le32(0).le64(at).le64(at + 20);
    return out.to(305).le32(0x8789F2EB).to(400).le32(0x8789F2EB);
}

// Two stripes, with a comment between them.
Bytes jbig() {
    Build out;
    out.u8(0).u8(0).u8(1).u8(0).be32(16).be32(20).be32(10).u8(8).u8(0).u8(3).u8(0x1C);
    out.be16(0x1234).be16(0xFF00).be16(0xFF02).be16(0xFF07).be32(4).be32(0xFF02FF02);
    return out.be16(0x5678).be16(0xFF02);
}

Bytes zlibStored(std::string_view text) {
    std::uint32_t a = 1, b = 0;
    for (const char c : text) {
        a = (a + static_cast<std::uint8_t>(c)) % 65521;
        b = (b + a) % 65521;
    }
    Build out;
    out.u8(0x78).u8(0x01).u8(1).le16(text.size()).le16(~text.size() & 0xFFFF).text(text);
    return out.be32(b << 16 | a);
}

// A table with a file of 30 packed bytes before the sum.
Bytes xar() {
    const Bytes table = zlibStored(
        "<?xml version=\"1.0\"?><xar><toc><checksum "
        "style=\"sha1\"><size>20</size><offset>30</offset></checksum>"
        "<file id=\"1\"><data><length>30</length><offset>0</offset><size>9000</size></data></file></toc></"
        "xar>");
    return Build().text("xar!").be16(28).be16(1).be64(table.size()).be64(220).be32(1).add(table).fill(50, 7);
}

}  // namespace

Bytes squashfs() {
    Build out;
    out.text("hsqs").le32(1).le32(0).le32(131072).le32(0).le16(1).le16(17).le16(0).le16(1).le16(4).le16(0);
    return out.le64(0).le64(300).to(96).fill(204, 5);
}

Bytes cramContainer(std::uint64_t records, const Bytes& landmarks, std::size_t bytes) {
    Build head;
    head.le32(bytes).u8(0).u8(1).u8(100).u8(records).u8(0).u8(60).u8(2).add(landmarks);
    return Build().add(head).le32(crc32(0, head.bytes())).fill(bytes, 9);
}

Bytes cram() {
    Build last;
    last.le32(15).be32(0xFFFFFFFF).u8(0x0F).be32(0xE0454F46).u8(0).u8(0).u8(0).u8(0).u8(1).u8(0);
    Build out;
    out.text("CRAM\3").u8(0).to(26).add(cramContainer(3, {2, 10, 0x80, 90}, 120));
    return out.add(last).le32(crc32(0, last.bytes())).fill(15, 6);
}

Bytes designFile() {
    Build out;
    out.u8(0x08).u8(9).le16(766).fill(766 * 2, 1);
    return out.u8(1).u8(3).le16(24).fill(48, 2).le16(0xFFFF);
}

std::vector<Sample> scienceSamples() {
    return {{"SQSH", Build().add(squashfs()).to(4096), false},
            {"CRAM", cram()},
            {"2BIT", packedSequences()},
            {"BB", features()},
            {"DGN", Build().add(designFile()).to(2048), false},
            {"JBG", jbig()},
            {"XAR", xar()}};
}

}  // namespace vantor::test
