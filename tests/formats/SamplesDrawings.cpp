// Small whole drawings of the three generations of DWG.
#include "Samples.h"

namespace vantor::test {

namespace {

Build drawingHead(std::string_view version, std::uint64_t preview) {
    return Build().text("AC10").text(version).fill(6).u8(1).le32(preview).u8(30).u8(0).le16(30);
}

}  // namespace

Bytes placedDrawing() {
    constexpr std::uint64_t kSecondHeader = 460, kPreview = 560;
    Build out = drawingHead("15", kPreview);
    out.le32(3).u8(0).le32(80).le32(100).u8(1).le32(180).le32(60).u8(2).le32(400).le32(50);
    out.fill(28, 1).fill(kSecondHeader - 80, 3);
    out.text("\xD4\x7B\x21\xCE\x28\x93\x9F\xBF\x53\x24\x40\x09\x12\x3C\xAA\x01").le32(68).fill(64, 4);
    out.text("\x2B\x84\xDE\x31\xD7\x6C\x60\x40\xAC\xDB\xBF\xF6\xED\xC3\x55\xFE");
    out.text("\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B").le32(31).fill(31, 5);
    return out.text("\xE0\xDA\x92\xF8\x2B\xC9\xD7\xD7\x62\xA8\x35\xC0\x62\xBB\xEF\xD4");
}

Bytes maskedDrawing() {
    constexpr std::uint64_t kAgain = 700;
    Build block;
    block.text("AcFssFcAJMB\0"_b).le32(0).le32(0x6C).le32(4).fill(20, 6).le64(300).le64(kAgain).to(0x6C);
    Build masked;
    std::uint32_t state = 1;
    for (const std::uint8_t byte : block.bytes()) {
        state = state * 0x343FD + 0x269EC3;
        masked.u8(byte ^ (state >> 16 & 0xFF));
    }
    masked.fill(20, 0xA7);
    return drawingHead("27", 0).to(0x80).add(masked).fill(kAgain - 0x100, 7).add(masked);
}

Bytes packedDrawing() {
    const Bytes packed = Build()
                             .fill(24, 8)
                             .le32(14)
                             .le32(0)
                             .be32(0x20000002)  // two bytes as they are, six of what is there
                             .be32(0x00706002)
                             .be32(0x09006700)
                             .be16(0x0211);
    Build page;
    for (const std::uint8_t byte : packed)
        page.u8(byte).fill(2, 9);
    return drawingHead("21", 0).to(0x80).add(page).to(0x8FF).u8(1);
}

std::vector<Sample> drawingSamples() {
    return {{"DWG", placedDrawing()}, {"DWT", maskedDrawing()}};
}

}  // namespace vantor::test
