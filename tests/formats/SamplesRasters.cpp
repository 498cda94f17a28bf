// Small whole pictures, volumes and movies whose length follows from their headers.
#include "Samples.h"

namespace vantor::test {

namespace {}  // namespace

Bytes exrAttribute(std::string_view name, std::string_view type, const Bytes& value) {
    return Build().text(name).u8(0).text(type).u8(0).le32(value.size()).add(value);
}

namespace {

// Two chunks of lines; the second of the table lies first.
Bytes openExr() {
    Build out;
    out.be32(0x762F3101).le32(2);
    out.add(exrAttribute("dataWindow", "box2i", Build().le32(0).le32(0).le32(3).le32(1))).u8(0);
    const auto table = out.size(), first = table + 16;
    const Bytes chunk = Build().le32(0).le32(10).fill(10, 7);
    return out.le64(first + chunk.size()).le64(first).add(chunk).add(chunk);
}

Bytes dpx() {
    Build out;
    out.text("SDPX").be32(2048).text("V2.0").fill(4).be32(2048 + 12 * 2).to(770).be16(1).be32(3).be32(2);
    return out.to(800).u8(50).u8(2).u8(2).u8(10).be16(1).be16(0).to(2048).fill(24, 9);
}

Bytes cineon() {
    Build out;
    out.be32(0x802A5FD7)
        .be32(1024)
        .fill(12)
        .be32(1024 + 24)
        .to(193)
        .u8(3)
        .to(198)
        .u8(10)
        .u8(0)
        .be32(3)
        .be32(2);
    return out.to(1024).fill(24, 9);
}

Bytes ktx() {
    Build out;
    out.text("\xABKTX 11\xBB\r\n\x1A\n")
        .le32(0x04030201)
        .to(36)
        .le32(2)
        .le32(2)
        .le32(0)
        .le32(0)
        .le32(6)
        .le32(1);
    return out.le32(4).fill(4, 1).le32(5).fill(6 * 8, 3);
}

Bytes ktx2() {
    Build out;
    out.text("\xABKTX 20\xBB\r\n\x1A\n").fill(8, 1).le32(4).le32(4).fill(12).le32(2).le32(0);
    out.le32(128).le32(8).le32(0).le32(0).le64(0).le64(0);
    return out.le64(140).le64(16).le64(16).le64(136).le64(4).le64(4).to(156).put(155, {5});
}

Bytes paintShopPro() {
    Build out;
    out.text(std::string_view("Paint Shop Pro Image File\n\x1A\0\0\0\0\0", 32)).le16(5).le16(0);
    for (const std::uint64_t bytes : {20, 7})
        out.text(std::string_view("~BK\0", 4)).le16(0).le32(bytes).fill(static_cast<std::size_t>(bytes), 4);
    return out;
}

}  // namespace

Bytes fitsCards(std::initializer_list<std::string_view> cards) {
    Build out;
    std::size_t end = 0;
    for (const auto card : cards)
        out.text(card).text(std::string((end += 80) - out.size(), ' '));
    return out.text(std::string(2880 - out.size(), ' '));
}

namespace {

Bytes fits() {
    return Build()
        .add(fitsCards({"SIMPLE  =                    T", "BITPIX  =                  -32",
                        "NAXIS   =                    2", "NAXIS1  =                   30",
                        "NAXIS2  =                   25 / rows", "END"}))
        .fill(2880 * 2, 6);
}

Bytes nifti() {
    Build out;
    out.le32(348).to(40).le16(3).le16(4).le16(3).le16(2).to(72).le16(16).to(108).be32(0x0000B043);  // 352.0
    return out.to(344).text(std::string_view("n+1\0", 4)).to(352).fill(48, 2);
}

Bytes mrc() {
    Build out;
    out.le32(5).le32(3).le32(2).le32(2).to(92).le32(80).to(208).text("MAP DD");
    return out.to(1104).fill(120, 1);
}

// An explicit value, a sequence of unknown length with an item in it, and pixels.
Bytes dicom() {
    Build out;
    out.to(128).text("DICM").le16(2).le16(0x10).text("UI").le16(4).text("1.2").u8(0);
    out.le16(8).le16(0x1140).text("SQ").le16(0).le32(0xFFFFFFFF);
    out.le16(0xFFFE).le16(0xE000).le32(0xFFFFFFFF).le16(8).le16(0x1150).text("UI").le16(2).text("1").u8(0);
    out.le16(0xFFFE).le16(0xE00D).le32(0).le16(0xFFFE).le16(0xE0DD).le32(0);
    out.le16(0x28).le16(0x10).text("US").le16(2).le16(4).le16(0x28).le16(0x11).text("US").le16(2).le16(5);
    return out.le16(0x7FE0).le16(0x10).text("OW").le16(0).le32(20).fill(20, 8);
}

Bytes nitf() {
    return Build().text("NITF02.10").to(342).text("000000000500").to(499).u8(1);
}

Bytes ivf() {
    Build out;
    out.text("DKIF").le16(0).le16(32).text("VP80").le16(64).le16(48).to(32);
    return out.le32(10).le64(0).fill(10, 1).le32(7).le64(1).fill(7, 1);
}

Bytes yuv() {
    Build out;
    out.text("YUV4MPEG2 W5 H3 F25:1 Ip A1:1 C420jpeg\n");
    return out.text("FRAME\n").fill(15 + 12, 1).text("FRAME Ip\n").fill(15 + 12, 2);
}

Bytes dv() {
    Build out;
    for (unsigned sequence = 0; sequence < 10; ++sequence)
        out.u8(0x1F).u8(sequence << 4 | 7).u8(0).u8(0x3F).fill(12000 - 4, 0x55);
    return out;
}

Bytes amv() {
    Build out;
    out.text("RIFF")
        .le32(0)
        .text("AMV LIST")
        .le32(0)
        .text("hdrlamvh")
        .le32(8)
        .fill(8, 1)
        .text("LIST")
        .le32(0)
        .text("movi");
    return out.text("00dc")
        .le32(9)
        .fill(9, 7)
        .u8(0)
        .text("00dc")
        .le32(3)
        .fill(3, 7)
        .text("01wb")
        .le32(4)
        .fill(4, 8)
        .text("AMV_END_");
}

Bytes gxf() {
    Build out;
    for (const std::uint64_t kind : {0xBC, 0xBF, 0xFB})
        out.fill(4).u8(1).u8(kind).be32(20).fill(4).be16(0xE1E2).fill(4, 3);
    return out;
}

Bytes smacker() {
    Build out;
    out.text("SMK2").le32(8).le32(6).le32(2).le32(100).le32(1).to(52).le32(9).to(104);
    return out.le32(9).le32(4).le32(8).fill(3).fill(9 + 8 + 4 + 8, 5);
}

}  // namespace

std::vector<Sample> rasterSamples() {
    return {
        {"EXR", openExr()},
        {"DPX", dpx()},
        {"CIN", cineon()},
        {"KTX", ktx()},
        {"KTX2", ktx2()},
        {"ASTC",
         Build().be32(0x13ABA15C).u8(4).u8(4).u8(1).be24(0x090000).be24(0x040000).be24(0x010000).fill(48, 2)},
        {"PSP", paintShopPro(), false},
        {"RAS",
         Build().be32(0x59A66A95).be32(5).be32(2).be32(8).be32(12).be32(1).be32(1).be32(6).fill(18, 3)},
        {"PAM",
         Build().text("P7\nWIDTH 3\nHEIGHT 2\n# by hand\nDEPTH 4\nMAXVAL 65535\nENDHDR\n").fill(48, 7)},
        {"FITS", fits()},
        {"NII", nifti()},
        {"MRC", mrc()},
        {"DCM", dicom(), false},
        {"NTF", nitf()},
        {"IVF", ivf(), false},
        {"Y4M", yuv(), false},
        {"DV", dv(), false},
        {"AMV", amv()},
        {"GXF", gxf()},
        {"SMK", smacker()}};
}

}  // namespace vantor::test
