// Heads of the formats that tell their length, grown to it.
#include "Samples.h"

namespace vantor::test {

namespace {

struct Piece {
    std::size_t at;
    Bytes bytes;
};

// Ends with a byte that is not zero, so that zeros behind it are told apart.
Bytes grown(std::size_t size, std::initializer_list<Piece> pieces) {
    Build out;
    for (const auto& piece : pieces)
        out.put(piece.at, piece.bytes);
    return out.to(size - 1).u8(1);
}

Bytes text(std::string_view value) {
    return Build().text(value);
}
Bytes le32(std::uint64_t value) {
    return Build().le32(value);
}
Bytes be32(std::uint64_t value) {
    return Build().be32(value);
}
Bytes le64(std::uint64_t value) {
    return Build().le64(value);
}

// Of a OneNote section that a computer wrote.
const Bytes kRevisionStore = Build().be64(0x3FDD9A101B91F549).be64(0xA5D01791EDC8AED8);

}  // namespace

std::vector<Sample> toldLengthSamples() {
    return {
        {"WOFF", grown(200, {{0, text("wOFFOTTO")}, {8, be32(200)}})},
        {"WOFF2", grown(200, {{0, text("wOF2\0\1\0\0"_b)}, {8, be32(200)}})},
        {"DEX", grown(150, {{0, text("dex\n035")}, {32, le32(150)}, {40, le32(0x12345678)}})},
        {"DTB", grown(90, {{0, be32(0xD00DFEED)}, {4, be32(90)}, {20, be32(17)}})},
        {"ICC", grown(140, {{0, be32(140)}, {36, text("acspAPPL")}})},
        {"GLB", grown(60, {{0, text("glTF")}, {4, le32(2)}, {8, le32(60)}})},
        {"MD2", grown(100, {{0, text("IDP2")}, {4, le32(8)}, {64, le32(100)}})},
        {"MD3", grown(150, {{0, text("IDP3")}, {4, le32(15)}, {104, le32(150)}})},
        {"EVTX", grown(4096 + 65536, {{0, text("ElfFile")}, {32, le32(128)}, {42, {1, 0}}})},
        {"HLP", grown(70, {{0, le32(0x00035F3F)}, {12, le32(70)}})},
        {"BRSTM", grown(90, {{0, text("RSTM\xFE\xFF")}, {8, be32(90)}})},
        {"MMF", grown(50, {{0, text("MMMD")}, {4, be32(42)}, {8, text("CNTI")}})},
        {"VGM", grown(80, {{0, text("Vgm ")}, {4, le32(76)}})},
        {"SBN", grown(120, {{0, Build().be32(9994).be32(0xFFFFFE70)}, {24, be32(60)}})},
        {"ADF", grown(120, {{0, Build().be32(9994).be32(0xFFFFFC14)}, {24, be32(60)}})},
        {"SHP", grown(120, {{0, be32(9994)}, {24, be32(60)}, {28, le32(1000)}})},
        {"EMF", grown(130, {{0, le32(1)}, {40, text(" EMF")}, {44, le32(0x10000)}, {48, le32(130)}})},
        {"WMF", Build()
                    .le32(0x9AC6CDD7)
                    .fill(18)
                    .le16(1)
                    .le16(9)
                    .fill(14)
                    .le32(4)
                    .le16(0x103)
                    .le16(7)
                    .le32(3)
                    .le16(0)},
        {"NPY",
         grown(10 + 57 + 48, {{0, text("\x93NUMPY\1")},
                              {8, {57, 0}},
                              {10, text("{'descr': '<f8', 'fortran_order': False, 'shape': (3, 2)}")}})},
        {"PLIST", Build()
                      .text("bplist00")
                      .be16(0x5051)
                      .u8(0x61)
                      .be16(0x0809)
                      .fill(6)
                      .be16(0x0101)
                      .be64(2)
                      .be64(0)
                      .be64(11)},
        {"JT",
         grown(
             192,
             {{0, text("Version 9.5")}, {85, le32(100)}, {100, le32(1)}, {120, le32(132)}, {124, le32(60)}})},
        {"SIT", grown(70, {{0, text("SIT!")}, {6, be32(70)}, {10, text("rLau")}})},
        {"PF", grown(100, {{0, le32(17)}, {4, text("SCCA")}, {12, le32(100)}})},
        {"MPQ", grown(70, {{0, text("MPQ\x1A")}, {4, le32(32)}, {8, le32(70)}})},
        {"WPD", grown(70, {{0, text("\xFFWPC")}, {8, {1, 10, 2, 1}}, {20, le32(70)}})},
        {"BIK", grown(70, {{0, text("BIKi")}, {4, le32(62)}})},
        {"BK2", grown(70, {{0, text("KB2j")}, {4, le32(62)}})},
        {"FLC", grown(150, {{0, le32(150)}, {4, {0x12, 0xAF}}, {12, {8}}})},
        {"FLI", grown(150, {{0, le32(150)}, {4, {0x11, 0xAF}}, {12, {8}}})},
        {"WRI", grown(384, {{0, be32(0x31BE0000)}, {5, {0xAB}}, {96, {3, 0}}})},
        {"VOX", grown(70, {{0, text("VOX ")}, {4, le32(150)}, {8, text("MAIN")}, {16, le32(50)}})},
        {"BLF", grown(200, {{0, text("LOGG")}, {4, le32(144)}, {16, le64(200)}})},
        {"MED", grown(70, {{0, text("MMD1")}, {4, be32(70)}})},
        {"IFO", grown(4096, {{0, text("DVDVIDEO-VTS")}, {28, be32(1)}})},
        {"FIT", grown(40, {{0, {14}}, {4, le32(24)}, {8, text(".FIT")}})},
        {"CRAMFS", grown(90, {{0, le32(0x28CD3D45)}, {4, le32(90)}, {16, text("Compressed ROMFS")}})},
        {"UIMAGE", grown(100, {{0, be32(0x27051956)}, {12, be32(36)}})},
        {"ONE", grown(1100, {{0, Build().be64(0xE4525C7B8CD8A74D).be64(0xAEB15378D02996D3)},
                             {48, kRevisionStore},
                             {196, le64(1100)}})},
        {"ONETOC2", grown(1100, {{0, Build().be64(0xA12FFF43D9EF764C).be64(0x9EE210EA5722765F)},
                                 {48, kRevisionStore},
                                 {196, le64(1100)}})},
        {"HDF5", grown(120, {{0, text("\x89HDF\r\n\x1A\n")}, {13, {8, 8}}, {40, le64(120)}})},
        {"E57", grown(1100, {{0, text("ASTM-E57")}, {16, le64(1100)}})},
        {"ROOT", grown(150, {{0, text("root")}, {4, be32(60000)}, {8, be32(100)}, {12, be32(150)}})},
        {"DSF", grown(130, {{0, text("DSD ")}, {4, le64(28)}, {12, le64(130)}, {28, text("fmt ")}})},
        {"DFF", grown(100, {{0, text("FRM8")}, {4, Build().be64(88)}, {12, text("DSD ")}})},
        {"SPH", Build()
                    .text("NIST_1A\n   1024\nsample_count -i 20\nsample_n_bytes -i 2\nchannel_count -i 2\n")
                    .text("sample_coding -s3 pcm\nend_head\n")
                    .to(1024)
                    .fill(80, 3)},
        {"W64", grown(140, {{0, Build().text("riff").be32(0x2E91CF11).be64(0xA5D628DB04C10000)},
                            {16, le64(140)},
                            {24, text("wave")}})}};
}

}  // namespace vantor::test
