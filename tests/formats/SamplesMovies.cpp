// Small whole movies and sounds.
#include "Samples.h"
#include "formats/Crc.h"

namespace vantor::test {

Bytes isoBox(std::string_view name, const Bytes& body) {
    return Build().be32(8 + body.size()).text(name).add(body);
}

Bytes riffChunk(std::string_view name, const Bytes& body) {
    return Build().text(name).le32(body.size()).add(body).fill(body.size() % 2);
}

namespace {

Bytes mp4() {
    const Bytes head = isoBox("mvhd", Build().be32(0).be32(3'700'000'000).fill(92));
    return Build()
        .add(isoBox("ftyp", Build().text("isom").be32(0).text("isom")))
        .add(isoBox("mdat", Bytes(100, 0x6D)))
        .add(isoBox("moov", head));
}

Bytes heic() {
    const Bytes size = isoBox("ispe", Build().be32(0).be32(640).be32(480));
    const Bytes item = Build().be16(1).be16(0).be16(1).be32(106).be32(64);
    const Bytes place = isoBox("iloc", Build().be32(0).be16(0x4400).be16(1).add(item));
    const Bytes meta = Build().be32(0).add(place).add(isoBox("iprp", isoBox("ipco", size)));
    return Build()
        .add(isoBox("ftyp", Build().text("heic").be32(0).text("mif1")))
        .add(isoBox("meta", meta))
        .add(isoBox("mdat", Bytes(64, 0x41)));
}

Bytes avi() {
    const Bytes headers =
        Build().text("hdrl").add(riffChunk("avih", Build().fill(32).le32(320).le32(240).fill(16)));
    const Bytes first =
        Build()
            .text("AVI ")
            .add(riffChunk("LIST", headers))
            .add(riffChunk("LIST", Build().text("movi").add(riffChunk("00dc", Bytes(30, 2)))));
    return riffChunk("RIFF", first);
}

Bytes wav() {
    return riffChunk(
        "RIFF",
        Build().text("WAVE").add(riffChunk("fmt ", Bytes(16, 1))).add(riffChunk("data", Bytes(50, 0x80))));
}

Bytes webp() {
    const Bytes extended = Build().fill(4).u8(99).fill(2).u8(49).fill(2);
    return riffChunk(
        "RIFF", Build().text("WEBP").add(riffChunk("VP8X", extended)).add(riffChunk("VP8 ", Bytes(20, 5))));
}

Bytes aiff() {
    const Bytes body = Build().text("AIFFCOMM").be32(18).fill(18).text("SSND").be32(20).fill(20, 4);
    return Build().text("FORM").be32(body.size()).add(body);
}

Bytes element(std::uint64_t id, int idBytes, const Bytes& body) {
    Build out;
    for (int i = idBytes - 1; i >= 0; --i)
        out.u8(id >> (8 * i));
    return out.be32(0x10000000 | body.size()).add(body);
}

Bytes matroska(bool open) {
    const Bytes cluster = Build()
                              .add(element(0xE7, 1, {0}))
                              .add(element(0xA3, 1, Build().u8(0x81).be16(0).u8(0x80).fill(36, 7)));
    Build inner;
    inner.add(element(0x1549A966, 4, element(0x4461, 2, Build().be64(0))));
    inner.add(element(
        0x1654AE6B, 4,
        element(
            0xAE, 1,
            element(
                0xE0, 1,
                Build().add(element(0xB0, 1, Build().be16(320))).add(element(0xBA, 1, Build().be16(200)))))));
    Build out;
    out.add(element(0x1A45DFA3, 4, element(0x4282, 2, Build().text("webm"))));
    if (!open)
        return out.add(element(0x18538067, 4, inner.add(element(0x1F43B675, 4, cluster))));
    inner.be32(0x1F43B675).be64(0x01FFFFFFFFFFFFFF).add(cluster);
    return out.be32(0x18538067).be64(0x01FFFFFFFFFFFFFF).add(inner);
}

Bytes asf() {
    const Bytes header = Build().be64(0x3026B2758E66CF11).be64(0xA6D900AA0062CE6C);
    Bytes data = header;
    data[0] = 0x36;
    return Build().add(header).le64(30).le32(0).le16(0x201).add(data).le64(74).fill(50, 9);
}

Bytes flv() {
    Build out;
    out.text("FLV").u8(1).u8(5).be32(9).be32(0);
    for (const std::uint64_t kind : {18, 9, 8})
        out.u8(kind).be24(20).be32(0).be24(0).fill(20, 0x0C).be32(31);
    return out;
}

Bytes mxf() {
    const auto key = [](std::uint64_t kind) {
        return Build().be32(0x060E2B34).be32(0x02050101).be32(0x0D010201).u8(1).be24(kind);
    };
    return Build()
        .add(key(0x020400))
        .u8(20)
        .fill(20)
        .add(key(0x030400))
        .u8(0x81)
        .u8(30)
        .fill(30)
        .add(key(0x110100))
        .u8(8)
        .fill(8);
}

Bytes realMedia() {
    return Build().text(".RMF").be32(18).fill(10).text("PROP").be32(50).fill(42).text("DATA").be32(60).fill(
        52, 2);
}

Bytes transport(std::size_t lead) {
    Build out;
    for (int i = 0; i < 12; ++i)
        out.fill(lead, 0x11).be32(0x47010010 | static_cast<unsigned>(i)).fill(184, 0x20);
    return out;
}

Bytes program() {
    Build out;
    for (int i = 0; i < 3; ++i)
        out.be32(0x1BA).u8(0x44).fill(8).u8(0xF8).be32(0x1E0).be16(40).fill(40, 3);
    return out.be32(0x1B9);
}

Bytes video() {
    Build out;
    out.be32(0x1B3).be24(0x0140F0).u8(0x13).fill(4, 0xF0);
    for (std::uint64_t code : {0x1B8, 0x100, 0x101, 0x102, 0x103})
        out.be32(code).fill(30, 0x55);
    return out.be32(0x1B7);
}

Bytes mpegAudio() {
    Build out;
    out.text("ID3").u8(4).u8(0).u8(0).be32(10).fill(10, 'x');
    for (int i = 0; i < 4; ++i)
        out.be32(0xFFFB9000).fill(413, 0x2A);  // 128 kbit/s at 44.1 kHz: 417 bytes
    return out.text("TAG").fill(125, ' ');
}

Bytes adtsFrames() {
    Build out;
    for (int i = 0; i < 4; ++i) {
        const std::uint64_t bytes = 57;
        out.be16(0xFFF1)
            .u8(0x50)
            .u8(0x80 | bytes >> 11)
            .u8(bytes >> 3)
            .u8((bytes & 7) << 5 | 0x1F)
            .u8(0xFC)
            .fill(50, 0x21);
    }
    return out;
}

Bytes ac3() {
    Build out;
    for (int i = 0; i < 4; ++i)
        out.be16(0x0B77).be16(0).u8(0).u8(0x40).fill(122, 0x19);  // 32 kbit/s at 48 kHz: 128 bytes
    return out;
}

Bytes amr() {
    Build out;
    out.text("#!AMR\n");
    for (int i = 0; i < 5; ++i)
        out.u8(0x3C).fill(31, 0xAA);
    return out;
}

// A mono stream with comments and one frame with a constant subframe.
Bytes flac() {
    Build out;
    out.text("fLaC").u8(0).be24(34).be16(192).be16(192).be24(0).be24(0);
    out.be64(std::uint64_t{44100} << 44 | std::uint64_t{15} << 36 | 192).fill(16);
    out.u8(0x84).be24(200).fill(200, 'x');  // comments
    Build frame;
    frame.be16(0xFFF8).u8(0x19).u8(0x08).u8(0);  // 192 samples, 44.1 kHz, mono, 16 bits, frame 0
    std::uint8_t check8 = 0;
    for (const auto byte : frame.bytes())
        check8 = crc8(check8, byte);
    frame.u8(check8).u8(0).be16(0x1234);
    std::uint16_t check16 = 0;
    for (const auto byte : frame.bytes())
        check16 = crc16(check16, byte);
    return out.add(frame.be16(check16));
}

Bytes oggPage(std::uint64_t flags, std::uint64_t number) {
    Build out;
    out.text("OggS").u8(0).u8(flags).le64(0).le32(77).le32(number).le32(0).u8(2).u8(255).u8(10).fill(265,
                                                                                                     0x66);
    return out.put(22, Build().le32(crcOgg(0, out.bytes())));
}

Bytes midi() {
    return Build()
        .text("MThd")
        .be32(6)
        .be16(1)
        .be16(2)
        .be16(96)
        .text("MTrk")
        .be32(10)
        .fill(10)
        .text("MTrk")
        .be32(4)
        .fill(4);
}

Bytes monkeys() {
    return Build()
        .text("MAC ")
        .le16(3990)
        .le16(0)
        .le32(52)
        .le32(24)
        .le32(4)
        .le32(44)
        .le64(100)
        .le32(6)
        .fill(16)
        .fill(24 + 4 + 44 + 100 + 6, 1);
}

Bytes musepack8() {
    return Build().text("MPCKSH").u8(10).fill(7).text("AP").u8(0x81).u8(0x04).fill(128, 3).text("SE").u8(3);
}

Bytes musepack7() {
    // One frame of 100 bits from bit 200 on, then eleven bits: up to byte 44.
    return Build().text("MP+").u8(7).le32(1).fill(16).le32(100 << 4).fill(16);
}

// Rectangle of no bits, rate, count; a colour, a long tag of a shape, one picture, the end mark.
Bytes flash() {
    constexpr std::uint64_t kColour = 9, kShape = 2, kPicture = 1;
    Build tags;
    tags.u8(0).le16(12 << 8).le16(1);
    tags.le16(kColour << 6 | 3).fill(3, 0x40).le16(kShape << 6 | 63).le32(80).fill(80, 2);
    tags.le16(kPicture << 6).le16(0);
    return Build().text("FWS").u8(6).le32(tags.size() + 8).add(tags);
}

}  // namespace

Bytes codedUnits(std::initializer_list<std::uint64_t> heads, int headBytes) {
    Build out;
    for (const std::uint64_t head : heads) {
        out.be32(1);
        headBytes == 1 ? out.u8(head) : out.be16(head);
        out.fill(300, 0x5A).be32(0x00000301).fill(20, 0x5A).u8(0x80);
    }
    return out;
}

std::vector<Sample> movieSamples() {
    return {{"MP4", mp4()},
            {"HEIC", heic()},
            {"AVI", avi()},
            {"WEBP", webp()},
            {"MKV", matroska(false)},
            {"WEBM", matroska(true), false},
            {"WMV", asf()},
            {"FLV", flv(), false},
            {"SWF", flash()},
            {"MXF", mxf()},
            {"RM", realMedia()},
            {"TS", transport(0), false},
            {"MTS", transport(4), false},
            {"MPG", program()},
            {"M2V", video()},
            {"H264", codedUnits({0x67, 0x68, 0x65, 0x41, 0x01, 0x41}, 1), false},
            {"H265", codedUnits({0x4001, 0x4201, 0x4401, 0x2601, 0x0201, 0x0202}, 2), false}};
}

std::vector<Sample> soundSamples() {
    return {
        {"WAV", wav()},
        {"AIFF", aiff()},
        {"MP3", mpegAudio()},
        {"AAC", adtsFrames(), false},
        {"AC3", ac3(), false},
        {"AMR", amr(), false},
        {"FLAC", flac()},
        {"OGG", Build().add(oggPage(2, 0)).add(oggPage(0, 1)).add(oggPage(4, 2))},
        {"AU", Build().text(".snd").be32(24).be32(40).be32(1).be32(8000).be32(1).fill(40, 0x7F)},
        {"MID", midi()},
        {"APE", monkeys()},
        {"MPC", musepack8()},
        {"MP+", musepack7(), false, true},
        {"CAF",
         Build().text("caff").be16(1).be16(0).text("desc").be64(32).fill(32, 1).text("data").be64(20).fill(
             20, 2)},
        {"VOC", Build()
                    .text("Creative Voice File\x1A")
                    .le16(26)
                    .le16(0x010A)
                    .le16(0x1129)
                    .u8(1)
                    .u8(9)
                    .u8(0)
                    .u8(0)
                    .fill(9, 3)
                    .u8(0)}};
}

}  // namespace vantor::test
