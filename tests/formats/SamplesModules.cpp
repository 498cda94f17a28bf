// Small whole modules of trackers, cartridges, camera movies and packed files.
#include "Samples.h"
#include "formats/Crc.h"

namespace vantor::test {

namespace {

// A plain sound of two bytes a sample, a packed one of one block, and a pattern.
Bytes impulseTracker() {
    constexpr std::size_t kPlaces = 194, kSounds = 206;
    Build out;
    out.text("IMPM").to(32).le16(2).le16(0).le16(2).le16(1).to(192).fill(2, 0xFF);
    out.to(kPlaces).le32(kSounds).le32(kSounds + 80).le32(kSounds + 160);
    const auto sound = [](std::uint64_t flags, std::uint64_t samples, std::uint64_t at) {
        return Build().text("IMPS").to(0x12).u8(flags).to(0x30).le32(samples).to(0x48).le32(at).to(80);
    };
    constexpr std::size_t kPattern = kSounds + 160, kData = kPattern + 8 + 5;
    out.add(sound(3, 10, kData)).add(sound(9, 100, kData + 20));
    out.le16(5).le16(64).le32(0).fill(5, 1);
    return out.fill(20, 4).le16(6).fill(6, 5);
}

Bytes screamTracker3() {
    Build out;
    out.text("name").to(28).u8(0x1A).u8(16).to(32).le16(2).le16(1).le16(1).to(44).text("SCRM").to(96).fill(2,
                                                                                                           0);
    out.le16(7).le16(12).to(112);
    out.u8(1).to(112 + 13).u8(0).le16(13).le32(48).to(112 + 80).le16(10).fill(8, 1);
    return out.to(208).fill(48, 3);
}

Bytes screamTracker2() {
    Build out;
    out.text("name").to(20).text("!Scream!").u8(0x1A).u8(2).u8(2).u8(21).u8(96).u8(1).to(48);
    constexpr std::size_t kData = 48 + 31 * 32 + 128 + 1024;
    out.text("sound").to(48 + 14).le16(kData / 16).le16(50).to(kData);
    return out.fill(50, 9);
}

Bytes multiTracker() {
    Build out;
    out.text("MTM\x10song").to(24).le16(1).u8(0).u8(0).le16(5).u8(1).to(66);
    return out.text("sound")
        .to(66 + 22)
        .le32(30)
        .to(66 + 37 + 128)
        .fill(192, 1)
        .fill(64, 2)
        .fill(5, 3)
        .fill(30, 4);
}

Bytes oktalyzer() {
    Build out;
    out.text("OKTASONG").text("SAMP").be32(64).text("one").to(16 + 20).be32(12).to(16 + 64);
    return out.text("SLEN").be32(2).be16(1).text("SBOD").be32(12).fill(12, 7);
}

// Of version 2, which can tell sizes as small as 32 bytes.
Bytes cartridge() {
    return Build().text("NES\x1A").u8(20).u8(0).u8(4).u8(8).u8(0).u8(15).fill(6).fill(512 + 32, 3);
}

Bytes ace() {
    const auto block = [](const Bytes& body) {
        const auto sum = ~crc32(0, body) & 0xFFFF;
        return Build().le16(sum).le16(body.size()).add(body);
    };
    Build out;
    out.add(block(Build().u8(0).le16(0).text("**ACE**").fill(20, 1)));
    return out.add(block(Build().u8(1).le16(1).le32(11).fill(10, 2))).fill(11, 9);
}

// Sixteen bytes unpacked: eight as they are, and eight repeated.
Bytes compressedFile() {
    Build out;
    out.text("SZDD").be32(0x88F02733).text("A").u8(0).le32(16);
    return out.u8(0xFF).fill(8, 5).u8(0).u8(0xF0).u8(0xF1).u8(0xF0).u8(0xF1);
}

Bytes snappy() {
    Build out;
    out.u8(0xFF).u8(6).le16(0).text("sNaPpY");
    return out.u8(1).u8(14).le16(0).fill(14, 3).u8(0).u8(9).le16(0).fill(9, 4);
}

Bytes redCode() {
    const auto block = [](std::string_view name, std::size_t bytes) {
        return Build().be32(bytes).text(name).fill(bytes - 8, 6);
    };
    return Build()
        .add(block("RED2", 40))
        .add(block("REDV", 60))
        .add(block("REDA", 20))
        .add(block("REOB", 30));
}

// Four pieces of sound, 40 samples apart, the time of which runs over.
Bytes trueHd() {
    Build out;
    for (const std::uint64_t time : {0xFFD8, 0x0000, 0x0028, 0x0050})
        out.be16(0x300A).be16(time).be32(time == 0xFFD8 ? 0xF8726FBA : 0x11223344).fill(12, 0x55);
    return out;
}

}  // namespace

std::vector<Sample> moduleSamples() {
    return {
        {"IT", impulseTracker()}, {"S3M", screamTracker3()},  {"STM", screamTracker2(), false, true},
        {"MTM", multiTracker()},  {"OKT", oktalyzer()},       {"NES", cartridge()},
        {"ACE", ace(), false},    {"SZDD", compressedFile()}, {"SZ", snappy(), false},
        {"R3D", redCode()},       {"THD", trueHd(), false},
    };
}

}  // namespace vantor::test
