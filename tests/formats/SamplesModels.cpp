// Small whole files of models, tables of data and game textures.
#include "Samples.h"
#include "formats/ByteView.h"
#include "formats/Crc.h"

namespace vantor::test {

namespace {

// One record with nothing in it, the empty record, and the closing mark.
Bytes fbx() {
    Build out;
    out.text("Kaydara FBX Binary  \0\x1A\0"_b).le32(7400);
    out.le32(27 + 13 + 4).le32(0).le32(0).u8(4).text("Node").fill(13);
    out.fill(16, 0xFA).fill(4).le32(7400).fill(120);
    return out.text("\xF8\x5A\x8C\x6A\xDE\xF5\xD9\x7E\xEC\xE9\x0C\xE3\x75\x8F\x29\x0B");
}

Bytes studioMesh() {
    const Bytes inner = Build().le16(2).le32(10).le32(3).le16(0x3D3D).le32(16).fill(10, 7);
    return Build().le16(0x4D4D).le32(6 + inner.size()).add(inner);
}

// One vertex, triangle, group and joint; comments and weights behind them.
Bytes milkShape() {
    Build out;
    out.text("MS3D000000").le32(4).le16(1).fill(15, 1).le16(1).fill(70, 2);
    out.le16(1).fill(33, 3).le16(1).le16(0).u8(0).le16(0).fill(12, 4);
    out.le16(1).fill(89, 5).le16(1).le16(1).fill(32, 6);
    out.le32(1).le32(1).le32(0).le32(5).text("hello").le32(0).le32(0).le32(0);
    return out.le32(1).fill(6, 7).le32(1).fill(12, 8).le32(1).fill(12, 9);
}

Bytes blitz() {
    return Build().text("BB3D").le32(40).le32(1).fill(36, 3);
}

Bytes gameModel() {
    return Build().text("IDST").le32(10).fill(64, 0x20).le32(100).fill(24, 5);
}

Bytes ply() {
    return Build()
        .text(
            "ply\nformat binary_little_endian 1.0\nelement vertex 2\nproperty float x\nproperty uchar c\n"
            "element face 2\nproperty list uchar int vertex_indices\nend_header\n")
        .fill(10, 0x11)
        .u8(3)
        .fill(12, 1)
        .u8(1)
        .fill(4, 2);
}

Bytes stl() {
    return Build().text("made by hand").to(80).le32(2).fill(100, 0);
}

Bytes usd() {
    Build out;
    out.text("PXR-USDC").fill(8).le64(100).to(100).le64(1).text("TOKENS").to(124).le64(88).le64(12);
    return out;
}

Bytes swatches() {
    return Build().text("ASEF").be32(0x10000).be32(2).be16(0xC001).be32(4).fill(4, 1).be16(1).be32(3).fill(3,
                                                                                                           2);
}

Bytes embeddedFont() {
    return Build().le32(120).le32(20).le32(0x20001).fill(22, 0).text("LP").fill(83, 0).u8(1);
}

Bytes compiledFont() {
    return Build().text("\1fcp").le32(1).le32(1).le32(0).le32(12).le32(24).fill(12, 4);
}

// Three descriptors, one of them unused, the data of two, and the zero that the library writes last.
Bytes hdf4() {
    Build out;
    out.be32(0x0E031301).be16(3).be32(0);
    out.be16(30).be16(1).be32(46).be32(20).be16(1).be16(0).be32(0xFFFFFFFF).be32(0xFFFFFFFF);
    return out.be16(31).be16(1).be32(66).be32(10).fill(30, 6).u8(0);
}

// A variable of four numbers, and one that grows by three bytes a record.
Bytes netCdf() {
    Build out;
    out.text("CDF\1")
        .be32(2)
        .be32(10)
        .be32(2)
        .be32(1)
        .text("x")
        .fill(3)
        .be32(4)
        .be32(1)
        .text("t")
        .fill(3)
        .be32(0);
    out.be32(12).be32(1).be32(1).text("a").fill(3).be32(2).be32(2).text("hi").fill(2);
    out.be32(11).be32(2);
    constexpr std::size_t kBegin = 152;
    out.be32(1).text("v").fill(3).be32(1).be32(0).be32(0).be32(0).be32(4).be32(16).be32(kBegin);
    out.be32(1).text("w").fill(3).be32(1).be32(1).be32(0).be32(0).be32(3).be32(2).be32(kBegin + 16);
    return out.to(kBegin).fill(16, 1).fill(4, 2);
}

Bytes matlab() {
    Build out;
    out.text("MATLAB 5.0 MAT-file").to(124).le16(0x100).text("IM");
    return out.le32(14).le32(24).le32(6).le32(8).fill(8, 4).fill(8, 5);
}

Bytes parquet() {
    return Build().text("PAR1").fill(30, 9).u8(0x15).u8(2).u8(0x19).fill(9, 1).le32(12).text("PAR1");
}

// One frame that holds a packet of its own.
Bytes aseprite() {
    return Build().le32(128 + 32).le16(0xA5E0).le16(1).le16(4).le16(4).to(128).le32(32).le16(0xF1FA).fill(26,
                                                                                                          3);
}

Bytes blp() {
    Build out;
    out.text("BLP2").le32(1).le32(0x01000801).le32(4).le32(4);
    return out.le32(148).fill(60).le32(16).fill(60).fill(16, 7);
}

Bytes gimpBrush() {
    return Build().be32(32).be32(2).be32(3).be32(2).be32(1).text("GIMP").be32(10).text("dot").u8(0).fill(6,
                                                                                                         9);
}

Bytes xwd() {
    Build out;
    out.be32(104).be32(7).be32(2).be32(24).be32(2).be32(3).be32(0).be32(0).be32(32).be32(0).be32(32).be32(32);
    return out.be32(8).to(76).be32(1).to(104).fill(12, 1).fill(24, 2);
}

Bytes miff() {
    return Build()
        .text(
            "id=ImageMagick  version=1.0\nclass=PseudoClass  colors=2  matte=False\n"
            "columns=3  rows=2  depth=8\ncolorspace=sRGB\n\f\n:\x1A")
        .fill(6, 5)
        .fill(6, 1);
}

Bytes pict() {
    return Build().be16(60).fill(8, 1).be16(0x11).be16(0x02FF).be16(0x0C00).fill(42, 2).be16(0xFF);
}

// Two pages, the second of two rows.
Bytes dcx() {
    const auto page = [](std::uint64_t rows) {
        Build out;
        out.u8(10).u8(5).u8(1).u8(1).le32(0).le16(7).le16(rows - 1).to(65).u8(1).le16(2).to(128);
        for (std::uint64_t i = 0; i < rows; ++i)
            out.u8(0xC2).u8(0x55);
        return out;
    };
    const Bytes first = page(1), second = page(2);
    return Build().le32(0x3ADE68B1).le32(16).le32(16 + first.size()).le32(0).add(first).add(second);
}

// Two master pages, the second the later one, a page of the database, metadata.
Bytes inDesign() {
    const auto master = [](std::uint64_t sequence, std::uint64_t pages) {
        return Build()
            .be64(0x0606EDF5D81D46E5)
            .be64(0xBD31EFE7FE74B71D)
            .text("DOCUMENT")
            .to(264)
            .le64(sequence)
            .to(280)
            .le32(pages)
            .to(4096)
            .bytes();
    };
    Build out;
    out.add(master(4, 900)).add(master(5, 3)).fill(4096, 7);
    out.be64(0xDE39397951884B6C).be64(0x8E63EEF8AEE0DD38).le32(1).le32(2).le32(300).le32(0).fill(300, 'x');
    out.be64(0xFDCEDB70F7864B4F).be64(0xA4D3C728B3417106).fill(16, 1);
    return out.to(4 * 4096);
}

// A page without anything, the postamble, and where that is.
Bytes texOutput() {
    Build out;
    out.u8(247).u8(2).be32(25400000).be32(473628672).be32(1000).u8(2).text("of");
    out.u8(139).fill(40).be32(0xFFFFFFFF).u8(140).u8(249).be32(8).u8(2);
    const auto postamble = out.size();
    out.u8(248).be32(17).be32(25400000).be32(473628672).be32(1000).fill(12);
    out.u8(249).be32(postamble).u8(2).fill(4, 223);
    return out.fill((4 - out.size() % 4) % 4, 223);
}

}  // namespace

std::vector<Sample> modelSamples() {
    return {
        {"FBX", fbx()},
        {"3DS", studioMesh()},
        {"MS3D", milkShape(), false},
        {"B3D", blitz()},
        {"MDL", gameModel()},
        {"PLY", ply()},
        {"STL", stl()},
        {"USDC", usd()},
        {"ASE", swatches()},
        {"EOT", embeddedFont()},
        {"PCF", compiledFont()},
        {"HDF", hdf4(), false},
        {"NC", netCdf()},
        {"MAT", matlab(), false, true},
        {"PARQUET", parquet()},
        {"ASEPRITE", aseprite()},
        {"BLP", blp()},
        {"GBR", gimpBrush()},
        {"XWD", xwd()},
        {"MIFF", miff()},
        {"PICT", pict(), false},
        {"DCX", dcx()},
        {"INDD", inDesign()},
        {"DVI", texOutput()},
    };
}

}  // namespace vantor::test
