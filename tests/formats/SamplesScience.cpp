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

// Two chunks of two streams each, then a sum; the first stream of the first has no block.
Bytes longRange() {
    const auto block = [](std::uint64_t packed, std::uint64_t next) {
        return Build().u8(3).le16(packed).le16(packed).le16(next).fill(packed, 8).bytes();
    };
    Build out;
    out.text("LRZI").u8(0).u8(6).le64(70).fill(7).u8(1).to(24);
    out.u8(2).u8(0).le16(70).add(block(0, 0)).add(block(0, 14)).add(block(20, 41)).add(block(0, 0));
    out.u8(2).u8(1).le16(9).add(block(0, 14)).add(block(0, 30)).add(block(9, 0)).add(block(5, 0));
    return out.fill(16, 0x77);
}

// Two signals of three and two numbers a record, four records.
Bytes bioSignals() {
    Build out;
    out.text("0       ").fill(176, ' ').text("768     ").fill(44, ' ').text("4       1       2   ");
    return out.fill(2 * 216, ' ').text("3       2       ").fill(64, ' ').fill(4 * 5 * 2, 7);
}

// Two frames, then their table.
Bytes monitorCapture() {
    Build out;
    out.text("GMBU").u8(0).u8(2).le16(1).fill(16).le32(180).le32(8).to(128);
    for (const std::uint64_t kept : {4, 16})
        out.le64(0).le32(60).le32(kept).fill(kept, 3);
    return out.le32(128).le32(148);
}

}  // namespace

Bytes redisValues() {
    Build out;
    out.text("REDIS0011").u8(0xFA).u8(1).text("v").u8(0xC0).u8(7).u8(0xFE).u8(0).u8(0xFB).u8(9).u8(1);
    const auto key = [&](std::uint64_t kind) -> Build& { return out.u8(kind).u8(1).text("k"); };
    out.u8(0xFC).le64(1'700'000'000'000);
    key(0).u8(0x40).u8(3).text("abc");
    out.u8(0xFD).le32(1'700'000'000);
    key(0).u8(0xC1).le16(300);
    key(1).u8(2).u8(1).text("x").be32(0xC2000000).u8(0);
    key(3).u8(2).u8(1).text("x").u8(254).u8(1).text("y").u8(3).text("1.5");
    key(5).u8(1).u8(1).text("x").le64(0x3FF8000000000000);
    key(4).u8(1).u8(1).text("f").u8(0xC3).u8(2).u8(9).le16(0x1111);
    key(11).u8(0x80).be32(4).le32(0);
    key(18).u8(2).u8(1).u8(1).text("p").u8(2).u8(2).text("qq");
    key(7).u8(0x81).be64(77).u8(2).u8(5).u8(4).le64(0).u8(5).u8(1).text("m").u8(3).le32(0).u8(0);
    key(21).u8(1).u8(2).text("id").u8(3).text("abc").fill(8, 1).u8(1);
    out.u8(1).text("g").u8(1).u8(1).u8(1).u8(1).fill(24, 2).u8(1);
    out.u8(1).u8(1).text("c").fill(16, 3).u8(1).fill(16, 2);
    return out.u8(0xFF);
}

Bytes rStore() {
    Build out;
    for (const std::string_view object : {"X\n first object", "X\n the second"}) {
        Bytes packed = zlibStored(object);
        packed[1] = 0x9C;
        out.be32(object.size()).add(packed);
    }
    return out;
}

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

// "abcabcabcabc hello hello\n", with an end mark.
Bytes lzma() {
    return Build()
        .be64(0x5D00008000FFFFFF)
        .be64(0xFFFFFFFFFF003098)
        .be64(0x88A7EA4BB19A5FCD)
        .be64(0xB6C124343E28E7FF)
        .be32(0xFFCB7F00)
        .u8(0);
}

// A pack of a text, a change of it told by how far back it stands, and one told by its name.
Bytes gitPack() {
    const Bytes text = zlibStored("twenty letters of it"), change = zlibStored("abc");
    Build out;
    out.text("PACK").be32(2).be32(3).u8(0xB4).u8(1).add(text);
    out.u8(0x63).u8(0x80).u8(0x20).add(change).u8(0x73).fill(20, 9).add(change);
    return out.fill(20, 7);
}

std::vector<Sample> scienceSamples() {
    return {{"SQSH", Build().add(squashfs()).to(4096), false},
            {"CRAM", cram()},
            {"2BIT", packedSequences()},
            {"BB", features()},
            {"DGN", Build().add(designFile()).to(2048), false},
            {"JBG", jbig()},
            {"XAR", xar()},
            {"LZMA", lzma()},
            {"LRZ", longRange()},
            {"EDF", bioSignals()},
            {"PSPPALETTE", Build().text("JASC-PAL\r\n0100\r\n3\r\n0 0 0\r\n255 0 255\r\n1 2 3\r\n")},
            {"CAP", monitorCapture()},
            {"RDB", Build().add(redisValues()).le64(0)},
            {"PACK", gitPack()}};
}

}  // namespace vantor::test
