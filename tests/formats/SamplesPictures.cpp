// Small whole pictures.
#include "Samples.h"
#include "formats/Crc.h"

namespace vantor::test {

Bytes pngChunk(std::string_view name, const Bytes& body) {
    Build checked;
    checked.text(name).add(body);
    return Build().be32(body.size()).add(checked).be32(crc32(0, checked.bytes()));
}

Bytes jpeg(const Bytes& segments, const Bytes& entropy) {
    const Bytes frame = Build().be16(0xFFC0).be16(11).u8(8).be16(40).be16(60).u8(1).u8(1).u8(0x11).u8(0);
    const Bytes scan = Build().be16(0xFFDA).be16(8).u8(1).u8(1).u8(0).u8(0).u8(63).u8(0);
    return Build()
        .be16(0xFFD8)
        .add(segments)
        .be16(0xFFDB)
        .be16(67)
        .fill(65, 1)
        .add(frame)
        .add(scan)
        .add(entropy)
        .be16(0xFFD9);
}

Bytes tiff(bool little) {
    const auto u16 = [&](std::uint64_t v) { return little ? Build().le16(v) : Build().be16(v); };
    const auto u32 = [&](std::uint64_t v) { return little ? Build().le32(v) : Build().be32(v); };
    const auto entry = [&](std::uint64_t tag, std::uint64_t type, std::uint64_t count, std::uint64_t value) {
        return Build().add(u16(tag)).add(u16(type)).add(u32(count)).add(u32(value));
    };
    Build out;
    out.text(little ? "II" : "MM").add(u16(42)).add(u32(8)).add(u16(5));
    out.add(entry(256, 4, 1, 4)).add(entry(257, 4, 1, 4)).add(entry(306, 2, 20, 74));
    out.add(entry(273, 4, 1, 94)).add(entry(279, 4, 1, 16)).add(u32(0));
    return out.text(std::string_view("2021:07:09 18:30:05\0", 20)).fill(16, 0x80);
}

namespace {

Bytes png() {
    const Bytes head = Build().be32(3).be32(2).u8(8).u8(0).fill(3);
    return Build()
        .text("\x89PNG\r\n\x1A\n")
        .add(pngChunk("IHDR", head))
        .add(pngChunk("IDAT", {1, 2, 3}))
        .add(pngChunk("IEND", {}));
}

Bytes gif() {
    Build out;
    out.text("GIF89a").le16(2).le16(2).u8(0x80).u8(0).u8(0).fill(6, 9);
    out.u8(0x21).u8(0xFE).u8(3).text("abc").u8(0);
    return out.u8(0x2C).fill(4).le16(2).le16(2).u8(0).u8(2).u8(2).fill(2, 0x44).u8(0).u8(0x3B);
}

Bytes bmp() {
    const std::size_t pixels = 2 * 8;  // two rows of two pixels, padded to four bytes
    return Build()
        .text("BM")
        .le32(54 + pixels)
        .le32(0)
        .le32(54)
        .le32(40)
        .le32(2)
        .le32(2)
        .le16(1)
        .le16(24)
        .fill(24)
        .fill(pixels, 0x77);
}

Bytes psd() {
    return Build()
        .text("8BPS")
        .be16(1)
        .fill(6)
        .be16(1)
        .be32(2)
        .be32(3)
        .be16(8)
        .be16(1)
        .be32(0)
        .be32(0)
        .be32(0)
        .be16(0)
        .fill(6, 5);
}

Bytes jp2Stream(std::uint32_t tileBytes) {
    Build out;
    out.be16(0xFF4F).be16(0xFF51).be16(41).be16(0).be32(8).be32(8).fill(29);
    return out.be16(0xFF90).be16(10).be16(0).be32(tileBytes).be16(1).be16(0xFF93).fill(6, 0x11).be16(0xFFD9);
}

Bytes jp2() {
    Build out;
    out.be32(12).text("jP  \r\n\x87\n").add(isoBox("ftyp", Build().text("jp2 ").be32(0).text("jp2 ")));
    out.add(isoBox("jp2h", isoBox("ihdr", Build().be32(8).be32(8).fill(6))));
    return out.be32(0).text("jp2c").add(jp2Stream(20));
}

Bytes jxl() {
    return Build()
        .be32(12)
        .text("JXL \r\n\x87\n")
        .add(isoBox("ftyp", Build().text("jxl ").be32(0).text("jxl ")))
        .add(isoBox("jxlc", Bytes(20, 0x31)));
}

Bytes icon() {
    return Build().le16(0).le16(1).le16(1).u8(16).u8(16).u8(0).u8(0).le16(1).le16(32).le32(40).le32(22).fill(
        40, 3);
}

Bytes pcx() {
    Build out;
    out.u8(10).u8(5).u8(1).u8(8).le16(0).le16(0).le16(3).le16(1).fill(53).u8(1).le16(4).to(128);
    return out.u8(0xC4).u8(7).u8(0xC4).u8(9).u8(12).fill(768, 1);
}

Bytes tga() {
    Build out;
    out.u8(0).u8(0).u8(10).fill(9).le16(4).le16(2).u8(24).u8(0);
    return out.u8(0x87).fill(3, 1).fill(8).text(std::string_view("TRUEVISION-XFILE.\0", 18));
}

Bytes dds() {
    Build out;
    out.text("DDS ")
        .le32(124)
        .le32(0x1007)
        .le32(8)
        .le32(8)
        .le32(0)
        .le32(0)
        .le32(1)
        .fill(44)
        .le32(32)
        .le32(4)
        .text("DXT1");
    return out.to(128).fill(32, 4);
}

// One layer of 3 x 2 grey pixels in one tile of runs.
Bytes xcf() {
    Build out;
    out.text(std::string_view("gimp xcf v001\0", 14)).be32(3).be32(2).be32(1);
    out.be32(17).be32(1).u8(1).be32(0).be32(0).be32(55).be32(0).be32(0);  // runs; a layer at 55
    out.be32(3).be32(2).be32(2).be32(2).text(std::string_view("L\0", 2)).be32(0).be32(0).be32(97).be32(0);
    out.to(97).be32(3).be32(2).be32(1).be32(117).be32(0);  // levels
    return out.be32(3).be32(2).be32(133).be32(0).u8(3).u8(9).u8(254).u8(1).u8(2);
}

Bytes raf() {
    return Build()
        .text("FUJIFILMCCD-RAW ")
        .to(84)
        .be32(120)
        .be32(10)
        .be32(130)
        .be32(10)
        .be32(140)
        .be32(60)
        .to(120)
        .fill(80, 6);
}

Bytes mrw() {
    const Bytes body = Build().text("27820001").be16(4).be16(6).be16(4).be16(6).u8(12).u8(12).fill(6);
    return Build()
        .text(std::string_view("\0MRM", 4))
        .be32(8 + body.size())
        .text(std::string_view("\0PRD", 4))
        .be32(body.size())
        .add(body)
        .fill(4 * 6 * 12 / 8, 8);
}

Bytes crw() {
    Build out;
    out.text("II").le32(26).text("HEAPCCDR").to(26).fill(40, 0x5A);
    return out.le16(1).le16(0x2005).le32(40).le32(0).le32(40);
}

Bytes x3f() {
    Build out;
    out.text("FOVb").fill(36, 1).text("SECi").fill(30, 2);
    const std::size_t at = out.size();
    return out.text("SECd").le32(0x20000).le32(1).le32(40).le32(34).text("IMAG").le32(at);
}

// Two lines of ten pixels: one in runs and literals by channel, one in full with an old repetition.
Bytes radiance() {
    Build build;
    build.text("#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y 2 +X 10\n").be32(0x0202000A);
    for (int channel = 0; channel < 4; ++channel)
        build.u8(128 + 7).u8(90).u8(3).u8(7).u8(8).u8(9);
    return build.be32(0x50607080).be32(0x01010108).be32(0x11223344);
}

// Two packed rows, the second stored first.
Bytes sgi() {
    return Build()
        .be16(0x01DA)
        .u8(1)
        .u8(1)
        .be16(2)
        .be16(4)
        .be16(2)
        .be16(1)
        .to(512)
        .be32(531)
        .be32(528)
        .be32(3)
        .be32(3)
        .u8(4)
        .u8(7)
        .u8(0)
        .u8(4)
        .u8(9)
        .u8(0);
}

// 70 pixels: one in full, one by difference, one by two bytes, a run of 62, then five from the table.
Bytes qoi() {
    return Build()
        .text("qoif")
        .be32(70)
        .be32(1)
        .u8(3)
        .u8(0)
        .u8(0xFE)
        .fill(3, 9)
        .u8(0x6A)
        .u8(0xA0)
        .u8(0x88)
        .u8(0xFD)
        .fill(5, 0x01)
        .fill(7)
        .u8(1);
}

}  // namespace

Bytes xBitmap(int width, int height, std::string_view numbers) {
    return Build()
        .text("#define a_width ")
        .text(std::to_string(width))
        .text("\n#define a_height ")
        .text(std::to_string(height))
        .text("\nstatic unsigned char a_bits[] = {\n   ")
        .text(numbers)
        .text(" };\n");
}

std::vector<Sample> pictureSamples() {
    return {{"JPG", jpeg()},
            {"PNG", png()},
            {"GIF", gif()},
            {"BMP", bmp()},
            {"TIF", tiff(), false, true},
            {"TIFF", tiff(false), false, true},
            {"PSD", psd()},
            {"JP2", jp2()},
            {"J2K", jp2Stream(0)},
            {"JXL", jxl()},
            {"ICO", icon()},
            {"ICNS", Build().text("icns").be32(24).text("is32").be32(16).fill(8, 1)},
            {"PCX", pcx()},
            {"TGA", tga()},
            {"DDS", dds(), false, true},
            {"XCF", xcf()},
            {"RAF", raf()},
            {"MRW", mrw()},
            {"CRW", crw()},
            {"X3F", x3f()},
            {"PPM", Build().text("P6\n# by hand\n4 3\n255\n").fill(36, 0x55)},
            {"PFM", Build().text("PF\n4 3\n-1.0\n").fill(144, 0x55)},
            {"PBM", Build().text("P4 9 20 ").fill(40, 0x55)},
            {"HDR", radiance()},
            {"SGI", sgi()},
            {"QOI", qoi()},
            {"XBM", xBitmap(10, 2, "0x01, 0x02,\n   0x03, 0x04")},
            {"XPM", Build().text("/* XPM */\nstatic char *x[] = {\n\"1 1 1 1\",\n\"\\\" c };\"\n};\n")}};
}

}  // namespace vantor::test
