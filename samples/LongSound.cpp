// The sound files that few programs write: long waves, an Amiga's, a laboratory's, music in RIFF, wide
// speech.
#include "samples/Bytes.h"
#include "samples/Sound.h"

namespace vantor::samples {

namespace {

// One channel of 16-bit PCM as a wave's "fmt " describes it.
QByteArray waveFormat(const Sound& sound) {
    const auto rate = static_cast<std::uint64_t>(sound.rate);
    return Bytes().le16(1).le16(1).le32(rate).le32(rate * 2).le16(2).le16(16).bytes();
}

// A chunk's name in the long wave of Sony: four letters made a GUID.
QByteArray longName(const char* letters) {
    return Bytes().text(letters).raw(QByteArray::fromHex("F3ACD3118CD100C04F8EDB8A")).bytes();
}

}  // namespace

QByteArray rf64File(const Sound& sound) {
    constexpr std::uint64_t kToldInDs64 = 0xFFFFFFFF;
    Bytes out;
    out.text("RF64").le32(kToldInDs64).text("WAVEds64").le32(28).le64(72 + bytesOf(sound));
    out.le64(bytesOf(sound)).le64(sound.samples.size()).le32(0);
    out.text("fmt ").le32(16).raw(waveFormat(sound)).text("data").le32(kToldInDs64);
    return out.raw(littleEndian(sound)).bytes();
}

QByteArray w64File(const Sound& sound) {
    constexpr std::uint64_t kChunkHeader = 24;
    const QByteArray riff = Bytes().text("riff").raw(QByteArray::fromHex("2E91CF11A5D628DB04C10000")).bytes();
    Bytes chunks;
    chunks.raw(longName("wave")).raw(longName("fmt ")).le64(kChunkHeader + 16).raw(waveFormat(sound));
    chunks.raw(longName("data")).le64(kChunkHeader + bytesOf(sound)).raw(littleEndian(sound)).alignTo(8);
    Bytes out;
    return out.raw(riff)
        .le64(kChunkHeader + static_cast<std::uint64_t>(chunks.size()))
        .raw(chunks.bytes())
        .bytes();
}

QByteArray amigaSoundFile(const Sound& sound) {
    constexpr std::uint64_t kFullVolume = 0x10000;
    const std::uint64_t count = sound.samples.size() / 2 * 2;
    Bytes out;
    out.text("FORM").be32(count + 40).text("8SVXVHDR").be32(20).be32(count).be32(0).be32(0);
    out.be16(static_cast<std::uint64_t>(sound.rate)).u8(1).u8(0).be32(kFullVolume).text("BODY").be32(count);
    for (std::size_t i = 0; i < count; ++i)
        out.u8(static_cast<std::uint64_t>(sound.samples[i] >> 8));
    return out.bytes();
}

QByteArray sphereFile(const Sound& sound) {
    QByteArray header = "NIST_1A\n   1024\nchannel_count -i 1\nsample_count -i " +
                        QByteArray::number(sound.samples.size()) + "\nsample_rate -i " +
                        QByteArray::number(sound.rate) +
                        "\nsample_n_bytes -i 2\nsample_byte_format -s2 01\nsample_coding -s3 pcm\nend_head\n";
    return header.leftJustified(1024) + littleEndian(sound);
}

QByteArray rmiFile() {
    const QByteArray midi = midiFile();
    Bytes data;
    data.text("RMIDdata").le32(static_cast<std::uint64_t>(midi.size())).raw(midi).alignTo(2);
    return Bytes().text("RIFF").le32(static_cast<std::uint64_t>(data.size())).raw(data.bytes()).bytes();
}

QByteArray wideAmrFile(int frames) {
    constexpr int kLowestRate = 0x04;  // 6.6 kbit/s, whole
    constexpr int kSpeechBytes = 17;
    Bytes out;
    out.text("#!AMR-WB\n");
    for (int i = 0; i < frames; ++i)
        out.u8(kLowestRate).zeros(kSpeechBytes);
    return out.bytes();
}

}  // namespace vantor::samples
