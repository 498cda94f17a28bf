// Small whole files of records, sections and frames: packed files, disk images, programs, fonts, captures.
#include "Samples.h"

namespace vantor::test {

namespace {

// Two blocks with checksums, the second not packed.
Bytes lz4() {
    return Build()
        .be32(0x04224D18)
        .u8(0x7C)
        .u8(0x40)
        .le64(20)
        .u8(9)
        .le32(8)
        .fill(8, 2)
        .le32(1)
        .le32(0x80000003)
        .fill(3, 4)
        .le32(1)
        .le32(0)
        .le32(7);
}

Bytes zstandard() {
    const auto block = [](std::uint64_t bytes, std::uint64_t kind, std::uint64_t last) {
        return Build().u8((bytes << 3 | kind << 1 | last) & 0xFF).u8(bytes >> 5).u8(bytes >> 13);
    };
    return Build()
        .be32(0x28B52FFD)
        .u8(0x04)
        .u8(0x50)
        .add(block(300, 0, 0))
        .fill(300, 6)
        .add(block(100, 1, 0))
        .u8(7)
        .add(block(4, 2, 1))
        .fill(4, 5)
        .le32(0x12345678);
}

Bytes lzip() {
    constexpr std::size_t kData = 40;
    return Build().text("LZIP\1").u8(12).fill(kData, 3).le32(9).le64(100).le64(kData + 26);
}

Bytes lzop() {
    Build out;
    out.text("\x89LZO\0\r\n\x1A\n"_b).be16(0x1030).be16(0x20A0).be16(0x0940).u8(1).u8(5).be32(0x03000001);
    out.be32(0644).be32(1).be32(0).u8(1).text("a").be32(99);
    return out.be32(50).be32(20).be32(1).fill(20, 8).be32(10).be32(10).be32(1).fill(10, 7).be32(0);
}

Bytes rpm() {
    Build out;
    out.be32(0xEDABEEDB).be16(0x0300).to(96).be32(0x8EADE801).be32(0).be32(2).be32(12);
    out.be32(62).be32(7).be32(4).be32(1).be32(1000).be32(4).be32(8).be32(1);
    return out.fill(8, 1).be32(60).to(160).fill(60, 4);
}

Bytes repairData() {
    Build out;
    for (const std::size_t bytes : {64, 100})
        out.text("PAR2\0PKT"_b).le64(bytes).fill(bytes - 16, 3);
    return out;
}

// The volume record of a disc of twenty blocks, beginning with its first sector.
Bytes disc() {
    Build out;
    out.to(32768)
        .text("\1CD001\1\0"_b)
        .to(32768 + 80)
        .le32(20)
        .be32(20)
        .to(32768 + 128)
        .le16(2048)
        .be16(2048);
    return out.to(20 * 2048 - 1).u8(1);
}

Bytes appleImage() {
    Build out;
    out.fill(300, 9).text("koly").fill(100, 1);  // one that is no trailer
    const auto list = out.size();
    out.fill(50, 'x');
    const auto trailer = out.size();
    out.text("koly")
        .be32(4)
        .be32(512)
        .to(trailer + 24)
        .be64(0)
        .be64(list)
        .to(trailer + 216)
        .be64(list)
        .be64(50);
    return out.to(trailer + 511).u8(1);
}

Bytes windowsImage() {
    Build out;
    out.text("MSWIM\0\0\0"_b).le32(208).to(48).le64(20).le64(300).to(72).le64(30).le64(320);
    return out.to(349).u8(1);
}

Bytes sparseImage() {
    Build out;
    out.le32(0xED26FF3A).le16(1).le16(0).le16(28).le16(12).le32(512).le32(4).le32(2).le32(0);
    out.le16(0xCAC1).le16(0).le32(1).le32(12 + 512).fill(512, 2);
    return out.le16(0xCAC2).le16(0).le32(3).le32(16).le32(0xABCD);
}

Bytes evidence() {
    const auto section = [](std::string_view name, std::size_t next) {
        return Build().text(name).to(16).le64(next).le64(0).to(76);
    };
    Build out;
    out.text("EVF\x09\r\n\xFF\0"_b).u8(1).le16(1).le16(0);
    return out.add(section("header", 120)).to(120).add(section("done", 120)).put(195, {1});
}

Bytes packedDisc() {
    Build out;
    out.text("CISO").le32(24).le64(4000).le32(2048).u8(1).u8(2).le16(0);
    return out.le32(9).le32(0x80000000 | 14).le32(20).to(79).u8(1);
}

Bytes virtualBoxDisk() {
    Build out;
    out.to(64).be32(0x7F10DABE).le32(0x00010001).to(0x158).le32(1024).to(0x178).le32(512).to(0x184).le32(2);
    return out.to(1024).fill(1024, 6);
}

// Two of three blocks are stored, the second one first.
Bytes virtualPcDisk() {
    Build out;
    out.text("conectix")
        .to(16)
        .be64(512)
        .to(512)
        .text("cxsparse")
        .to(528)
        .be64(1536)
        .to(540)
        .be32(3)
        .be32(1024);
    out.to(1536).be32(7).be32(0xFFFFFFFF).be32(4).to(2048).fill(6 * 512, 3);
    return out.text("conectix").to(11 * 512 - 1).u8(1);
}

// Three frames of the core stream, the second with an extension.
Bytes dts() {
    const auto core = [](std::uint64_t bytes) {
        return Build()
            .be32(0x7FFE8001)
            .u8(0xFC)
            .u8(0x3C)
            .u8((bytes - 1) >> 4)
            .u8((bytes - 1) << 4 & 0xF0)
            .fill(bytes - 8, 5);
    };
    const Bytes extension = Build().be32(0x64582025).fill(3).u8(2).u8(0x60).fill(11, 6);  // 20 bytes
    return Build().add(core(100)).add(core(100)).add(extension).add(core(101));
}

Bytes machO(std::uint64_t end) {
    Build out;
    out.be32(0xCFFAEDFE).le32(0x01000007).le32(3).le32(2).le32(2).le32(72 + 24).le64(0);
    out.le32(0x19).le32(72).fill(16, 'S').le64(0).le64(200).le64(130).le64(50).fill(16);
    return out.le32(2).le32(24).le32(180).le32(1).le32(196).le32(end - 196).to(end - 1).u8(1);
}

Bytes processors() {
    const Bytes one = machO(220);
    Build out;
    out.be32(0xCAFEBABE).be32(2);
    for (const std::uint64_t at : {256, 512})
        out.be32(7).be32(3).be32(at).be32(one.size()).be32(8);
    return out.put(256, one).put(512, one);
}

Bytes webAssembly() {
    Build out;
    out.text("\0asm\1\0\0\0"_b).u8(1).u8(4).fill(4, 1).u8(12).u8(1).u8(1).u8(10).u8(0x82).u8(1).fill(130, 2);
    return out.u8(0).u8(5).u8(4).text("name");
}

Bytes javaClass() {
    Build out;
    out.be32(0xCAFEBABE).be16(0).be16(65).be16(7);
    out.u8(1).be16(1).text("T").u8(7).be16(1).u8(5).be64(77).u8(10).be32(0).u8(15).fill(3);
    out.be16(0x21).be16(2).be16(0).be16(1).be16(2);  // access, itself, parent, interfaces
    out.be16(1).be16(0).be16(1).be16(1).be16(1).be16(1).be32(2).be16(9);  // a field with an attribute
    return out.be16(0).be16(1).be16(1).be32(3).fill(3, 1);
}

Bytes translations() {
    Build out;
    out.le32(0x950412DE).le32(0).le32(1).le32(28).le32(36).le32(0).le32(44);
    return out.le32(2).le32(44).le32(3).le32(47).text("ja\0yes\0"_b);
}

Bytes font(std::uint64_t offset) {
    Build out;
    out.be32(0x00010000).be16(2).fill(6);
    out.text("cmap").be32(1).be32(offset + 44).be32(8).text("glyf").be32(1).be32(offset + 52).be32(9);
    return out.fill(17, 6).fill(3);
}

Bytes collection() {
    return Build().text("ttcf").be32(0x00010000).be32(2).be32(20).be32(84).add(font(20)).add(font(84));
}

Bytes packedType1() {
    return Build()
        .be16(0x8001)
        .le32(16)
        .text("%!PS-AdobeFont-1")
        .be16(0x8002)
        .le32(9)
        .fill(9, 3)
        .be16(0x8003);
}

Bytes pcap() {
    Build out;
    out.le32(0xA1B2C3D4).le16(2).le16(4).le64(0).le32(65535).le32(1);
    out.le32(1'600'000'000).le32(5).le32(20).le32(60).fill(20, 1);
    return out.le32(1'600'000'001).le32(9).le32(30).le32(30).fill(30, 2);
}

Bytes pcapNg() {
    Build out;
    out.be32(0x0A0D0D0A).le32(28).le32(0x1A2B3C4D).le32(1).le64(~std::uint64_t{0}).le32(28);
    return out.le32(1).le32(20).le32(1).le32(0).le32(20).le32(6).le32(36).fill(24, 4).le32(36);
}

Bytes weather() {
    Build out;
    out.text("GRIB").be16(0).u8(0).u8(2).be64(40).fill(20, 1).text("7777");
    return out.text("GRIB").be24(30).u8(1).fill(18, 2).text("7777");
}

Bytes laserScan() {
    Build out;
    out.text("LASF").to(24).u8(1).u8(2).to(94).le16(227).le32(300).le32(1).u8(0).le16(20).le32(4);
    return out.to(300).fill(80, 9);
}

Bytes passwordSafe() {
    Build out;
    out.be32(0x03D9A29A)
        .be32(0x67FB4BB5)
        .le16(0)
        .le16(4)
        .u8(2)
        .le32(16)
        .fill(16, 1)
        .u8(0)
        .le32(4)
        .be32(0x0D0A0D0A);
    return out.fill(64, 5).fill(32, 6).le32(70).fill(70, 7).fill(32, 8).le32(0);
}

Bytes blend() {
    Build out;
    out.text("BLENDER-v279").text("REND").le32(10).le64(1).le32(0).le32(1).fill(10, 3);
    return out.text("ENDB").le32(0).le64(0).le32(0).le32(0);
}

Bytes chipLayout() {
    return Build().be32(0x00060002).be16(600).be32(0x000A0206).fill(6, 'L').be32(0x00040700).be32(0x00040400);
}

Bytes unityData() {
    Build out;
    out.text("UnityFS\0"_b).be32(6).text("5.x.x\0"_b).text("2018.4\0"_b).be64(120).fill(12);
    return out.to(119).u8(1);
}

Bytes trueAudio() {
    Build out;
    out.text("TTA1").le16(1).le16(2).le16(16).le32(44100).le32(60000).le32(0);
    return out.le32(30).le32(12).le32(0).fill(42, 6);
}

Bytes wavPack() {
    Build out;
    for (const std::uint64_t index : {0, 100})
        out.text("wvpk")
            .le32(24 + 40)
            .le16(0x410)
            .le16(0)
            .le32(150)
            .le32(index)
            .le32(100 - index / 2)
            .le32(0x1800)
            .le32(0)
            .fill(40, 2);
    return out;
}

Bytes extendedModule() {
    Build out;
    out.text("Extended Module: ")
        .to(37)
        .u8(0x1A)
        .to(58)
        .le16(0x104)
        .le32(276)
        .le16(1)
        .le16(0)
        .le16(4)
        .le16(1)
        .le16(1);
    out.to(60 + 276).le32(9).u8(0).le16(64).le16(20).fill(20, 1);
    const auto instrument = out.size();
    out.le32(263).to(instrument + 27).le16(2).le32(40).to(instrument + 263);
    for (const std::uint64_t bytes : {30, 12})
        out.le32(bytes).fill(36, 1);
    return out.fill(42, 7);
}

Bytes consoleSound() {
    return Build().text("SNES-SPC700 Sound File Data v0.30").to(66047).u8(1);
}

Bytes televisionSound() {
    Build stream;
    for (const std::uint64_t bytes : {20, 31, 18})
        stream.be24(0x56E000 + bytes).be32(0x20001190).fill(bytes - 4, 0x55);
    return stream;
}

Bytes rawMovie() {
    return Build()
        .text("MLVI")
        .le32(52)
        .text("v2.0")
        .to(52)
        .text("RAWI")
        .le32(180)
        .to(232)
        .text("VIDF")
        .le32(300)
        .to(532);
}

}  // namespace

Bytes dbaseTable() {
    const Bytes field = Build().text("NAME").to(11).text("C").to(16).u8(5).to(32);
    return Build().u8(3).u8(126).u8(11).u8(23).le32(2).le16(65).le16(6).to(32).add(field).text(
        "\r alpha*omega\x1A");
}

std::vector<Sample> recordSamples() {
    return {{"LZ4", lz4()},
            {"ZST", zstandard()},
            {"LZ", lzip()},
            {"LZO", lzop()},
            {"RPM", rpm()},
            {"PAR2", repairData(), false},
            {"ISO", disc(), false},
            {"DMG", appleImage()},
            {"WIM", windowsImage()},
            {"SIMG", sparseImage()},
            {"E01", evidence()},
            {"CSO", packedDisc()},
            {"VDI", virtualBoxDisk()},
            {"VHD", virtualPcDisk()},
            {"DTS", dts(), false},
            {"BDF", Build().text("STARTFONT 2.1\nENDFONT\n"), false},
            {"MACHO", machO(230), false},
            {"DYLIB", processors(), false},
            {"WASM", webAssembly(), false},
            {"CLASS", javaClass()},
            {"MO", translations()},
            {"TTF", font(0), false},
            {"TTC", collection(), false},
            {"PFB", packedType1()},
            {"PCAP", pcap(), false},
            {"PCAPNG", pcapNg(), false},
            {"GRIB", weather(), false},
            {"LAS", laserScan()},
            {"KDBX", passwordSafe()},
            {"CER", Build().be16(0x3082).be16(200).u8(0x30).fill(199, 1)},
            {"TORRENT", Build().text("d8:announce3:url4:infod5:filesl3:a:be6:lengthi1234eee")},
            {"WK1", Build().le16(0).le16(2).le16(0x406).le16(13).le16(5).fill(5, 1).le16(1).le16(0)},
            {"BLEND", blend()},
            {"GDS", chipLayout()},
            {"UNITY3D", unityData()},
            {"DBF", dbaseTable()},
            {"LATM", televisionSound(), false},
            {"MLV", rawMovie(), false},
            {"TTA", trueAudio()},
            {"WV", wavPack()},
            {"XM", extendedModule()},
            {"SPC", consoleSound()}};
}

}  // namespace vantor::test
