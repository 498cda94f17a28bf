// Small whole files of tables, stores, disks and keys.
#include "Samples.h"

namespace vantor::test {

namespace {

// One value of metadata, the mark, and a block of two records.
Bytes avro() {
    const Bytes mark = Build().fill(16, 0x5A);
    Build out;
    out.text("Obj\1").u8(2).u8(22).text("avro.schema").u8(10).text("\"int\"").u8(0).add(mark);
    return out.u8(4).u8(4).u8(2).u8(6).add(mark);
}

// A picture of 8 x 4 bytes behind its header.
Bytes viff() {
    Build out;
    out.be32(0xAB010103).u8(2).to(520).be32(8).be32(4).to(556).be32(1).be32(1).be32(1).be32(0);
    return out.to(1024).fill(32, 9);
}

// A root with one file.
Bytes qtResources() {
    Build out;
    out.text("qres").be32(1).be32(52).be32(20).be32(40).be32(16).fill(16, 3).be16(2).fill(10, 4);
    return out.be32(0).be16(2).be32(1).be32(1).be32(0).be16(0).be32(0).be32(0x10001);
}

Bytes keyStore() {
    Build out;
    out.be32(0xFEEDFEED).be32(2).be32(2);
    out.be32(1).be16(1).text("a").be64(7).be32(9).fill(9, 1);
    out.be32(1).be16(5).text("X.509").be32(6).fill(6, 2);
    out.be32(2).be16(1).text("b").be64(7).be16(5).text("X.509").be32(4).fill(4, 3);
    return out.fill(20, 4);
}

Bytes sasTable() {
    Build out;
    out.fill(12).be64(0xC2EA8160B31411CF).be64(0xBD92080009C7318C).to(37).u8(1).to(196);
    return out.le32(1024).le32(512).le32(2).to(2047).u8(1);
}

Bytes stataTable() {
    constexpr std::string_view kHeader =
                                   "<stata_dta><header><release>118</release><byteorder>LSF</byteorder>"
                                   "</header><map>",
                               kRest = "</map><data>12345678</data></stata_dta>";
    Build out;
    out.text(kHeader).fill(13 * 8, 1).le64(kHeader.size() + 14 * 8 + kRest.size());
    return out.text(kRest);
}

// Two columns, of which one row is in the short codes and ends with their end mark.
Bytes spssTable() {
    Build out;
    out.text("$FL2@(#) SPSS DATA FILE").to(64).le32(2).le32(2).le32(1).le32(0).le32(1).to(176);
    out.le32(2).le32(0).le32(1).le32(0).le32(0).le32(0).text("A       ").le32(5).text("Label\0\0\0"_b);
    out.le32(2).le32(0).le32(0).le32(1).le32(0).le32(0).text("B       ").le64(0);
    out.le32(3).le32(1).le64(0).u8(3).text("yes\0\0\0\0"_b).le32(4).le32(1).le32(1);
    out.le32(7).le32(3).le32(4).le32(2).le64(5).le32(999).le32(0);
    return out.u8(101).u8(253).u8(252).fill(5).fill(8, 6);
}

Bytes idlVariables() {
    Build out;
    out.text("SR\0\4"_b).be32(10).be32(60).be32(0).be32(0).to(60);
    return out.be32(6).be32(0).be32(0).be32(0);
}

Bytes spaceData() {
    Build out;
    out.be64(0xCDF300010000FFFF).be64(40).be32(1).be64(48).to(48);
    return out.be64(84).be32(2).be64(0).be64(0).be64(0).be64(200).to(199).u8(1);
}

// Header, table of counts, counts, table of tables, one table, and data of one cluster.
Bytes qemuDisk() {
    constexpr std::size_t kCluster = 512;
    Build out;
    out.text("QFI\xFB").be32(2).be64(0).be32(0).be32(9).be64(4096).be32(0).be32(1).be64(3 * kCluster);
    out.be64(kCluster).be32(1).be32(0).be64(0).to(kCluster).be64(2 * kCluster);
    out.to(3 * kCluster).be64(1ULL << 63 | 4 * kCluster).to(4 * kCluster).be64(1ULL << 63 | 5 * kCluster);
    return out.to(6 * kCluster - 1).u8(1);
}

// One table of four grains, of which one is there.
Bytes vmwareDisk() {
    Build out;
    out.text("KDMV").le32(1).le32(3).le64(32).le64(8).le64(1).le64(1).le32(512).le64(0).le64(2).le64(8);
    return out.to(1024).le32(3).to(3 * 512).le32(8).to(16 * 512 - 1).u8(1);
}

// A public key with its user and a signature.
Bytes publicKey() {
    Build out;
    out.be32(0x98090459).fill(7, 1).be16(0xB404).text("a@b.");
    return out.be24(0x880404).fill(3, 2);
}

// One pattern and one sample of eight bytes.
Bytes module() {
    Build out;
    out.text("title").to(20 + 22).be16(4).u8(0).u8(64).be16(0).be16(1).to(950).u8(1).u8(0x7F);
    return out.to(1080).text("M.K.").fill(1024, 5).fill(8, 6);
}

// One instrument of one layer with two samples.
Bytes instrumentPatch() {
    Build out;
    out.text("GF1PATCH110").to(82).u8(1).to(129 + 22).u8(1).to(129 + 63 + 6).u8(2).to(129 + 63 + 47);
    for (const std::size_t wave : {10, 20}) {
        Build sample;
        out.add(sample.text("sample").to(8).le32(wave).to(96).fill(wave, 3));
    }
    return out;
}

Bytes qtTranslations() {
    Build out;
    out.be64(0x3CB86418CAEF9C95).be64(0xCD211CBF60A1BDDD);
    return out.u8(0x42).be32(8).fill(8, 1).u8(0x69).be32(12).fill(12, 2).u8(0x88).be32(2).fill(2, 5);
}

}  // namespace

std::vector<Sample> tableSamples() {
    return {{"AVRO", avro(), false},
            {"PVR",
             Build().le32(52).le32(4).le32(4).le32(0).le32(0x219).le32(32).to(44).text("PVR!").le32(1).fill(
                 32, 7)},
            {"VIFF", viff()},
            {"RCC", qtResources()},
            {"MAR", Build().text("MAR1").be32(30).to(30).be32(18).fill(18, 2)},
            {"JKS", keyStore()},
            {"SAS7BDAT", sasTable()},
            {"DTA", stataTable()},
            {"SAV", spssTable()},
            {"IDL", idlVariables()},
            {"CDF", spaceData()},
            {"QCOW2", qemuDisk()},
            {"VMDK", vmwareDisk()},
            {"PGP", publicKey(), false},
            {"NST", module()},
            {"GF1", instrumentPatch()},
            {"QM", qtTranslations(), false},
            {"WPFM", Build().le16(0x100).le32(200).text("Copyright (c) 1").to(199).u8(1)}};
}

}  // namespace vantor::test
