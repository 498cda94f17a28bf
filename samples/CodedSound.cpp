// The sound files that pack their samples into frames.
#include <QCryptographicHash>
#include <algorithm>

#include "samples/BitWriter.h"
#include "samples/Bytes.h"
#include "samples/Checksums.h"
#include "samples/Sound.h"

namespace vantor::samples {

namespace {

constexpr int kFlacBlock = 4096;
constexpr int kRiceLimit = 14;

std::uint32_t zigZag(int value) {
    return value < 0 ? static_cast<std::uint32_t>(-value) * 2 - 1 : static_cast<std::uint32_t>(value) * 2;
}

int bestRice(const std::vector<int>& residuals) {
    std::uint64_t sum = 0;
    for (const int value : residuals)
        sum += zigZag(value);
    int parameter = 0;
    while (parameter < kRiceLimit && (static_cast<std::uint64_t>(residuals.size()) << parameter) < sum)
        ++parameter;
    return std::max(0, parameter - 1);
}

// A frame whose samples are told as steps from the line through the two before (RFC 9639, 9.2.5).
QByteArray flacFrame(const Sound& sound, std::size_t first, std::size_t count, int number) {
    HighBitFirst out;
    out.put(0xFFF8, 16);
    out.put(0b0111, 4);  // the block size stands at the end of the header, in 16 bits
    out.put(0, 4);       // the rate is that of the stream
    out.put(0, 4);       // one channel
    out.put(0b1000, 4);  // 16 bits, and a reserved zero
    out.put(static_cast<std::uint32_t>(number), 8);  // below 128 it is its own code
    out.put(static_cast<std::uint32_t>(count - 1), 16);
    out.put(plainCrc(out.bytes(), 8, 0x07, 0), 8);
    out.put(0b00010100, 8);  // fixed prediction of the second order
    const auto sample = [&](std::size_t i) { return int{sound.samples[first + i]}; };
    out.put(static_cast<std::uint16_t>(sample(0)), 16);
    out.put(static_cast<std::uint16_t>(sample(1)), 16);
    std::vector<int> residuals;
    for (std::size_t i = 2; i < count; ++i)
        residuals.push_back(sample(i) - 2 * sample(i - 1) + sample(i - 2));
    const int parameter = bestRice(residuals);
    out.put(0, 2 + 4);  // Rice codes with four-bit parameters, one partition
    out.put(static_cast<std::uint32_t>(parameter), 4);
    for (const int residual : residuals) {
        const std::uint32_t folded = zigZag(residual);
        for (std::uint32_t i = 0; i < folded >> parameter; ++i)
            out.putBit(0);
        out.putBit(1);
        out.put(folded & ((1u << parameter) - 1), parameter);
    }
    out.align(0);
    out.put(plainCrc(out.bytes(), 16, 0x8005, 0), 16);
    return out.bytes();
}

std::vector<QByteArray> flacFrames(const Sound& sound) {
    std::vector<QByteArray> frames;
    for (std::size_t first = 0; first + 2 < sound.samples.size(); first += kFlacBlock)
        frames.push_back(flacFrame(sound, first,
                                   std::min<std::size_t>(kFlacBlock, sound.samples.size() - first),
                                   static_cast<int>(frames.size())));
    return frames;
}

QByteArray flacStreamInfo(const Sound& sound) {
    Bytes samples;
    for (const std::int16_t sample : sound.samples)
        samples.le16(static_cast<std::uint16_t>(sample));
    HighBitFirst out;
    out.put(kFlacBlock, 16);
    out.put(kFlacBlock, 16);
    out.put(0, 24);
    out.put(0, 24);
    out.put(static_cast<std::uint32_t>(sound.rate), 20);
    out.put(0, 3);
    out.put(15, 5);
    out.put(0, 4);
    out.put(static_cast<std::uint32_t>(sound.samples.size()), 32);
    return out.bytes() + QCryptographicHash::hash(samples.bytes(), QCryptographicHash::Md5);
}

QByteArray vorbisComment() {
    return Bytes().le32(6).text("vantor").le32(1).le32(10).text("TITLE=Tune").bytes();
}

QByteArray metadata(int type, const QByteArray& content) {
    return Bytes()
        .u8(static_cast<std::uint64_t>(type))
        .be24(static_cast<std::uint64_t>(content.size()))
        .raw(content)
        .bytes();
}

constexpr int kLastBlock = 0x80;
constexpr int kComment = 4;

// One page of an Ogg stream (RFC 3533) that holds one whole packet.
QByteArray oggPage(const QByteArray& packet, int flags, std::uint64_t position, int sequence) {
    Bytes page;
    page.text("OggS")
        .u8(0)
        .u8(static_cast<std::uint64_t>(flags))
        .le64(position)
        .le32(1)
        .le32(static_cast<std::uint64_t>(sequence))
        .le32(0);
    page.u8(static_cast<std::uint64_t>(packet.size() / 255 + 1));
    for (qsizetype i = 0; i < packet.size() / 255; ++i)
        page.u8(255);
    page.u8(static_cast<std::uint64_t>(packet.size() % 255)).raw(packet);
    page.setLe32(22, plainCrc(page.bytes(), 32, 0x04C11DB7, 0));
    return page.bytes();
}

}  // namespace

QByteArray flacFile(const Sound& sound) {
    QByteArray out =
        "fLaC" + metadata(0, flacStreamInfo(sound)) + metadata(kLastBlock | kComment, vorbisComment());
    for (const QByteArray& frame : flacFrames(sound))
        out += frame;
    return out;
}

QByteArray oggFlacFile(const Sound& sound) {
    constexpr int kFirstPage = 2;
    constexpr int kLastPage = 4;
    const Bytes first = Bytes().u8(0x7F).text("FLAC").u8(1).u8(0).be16(1).text("fLaC").raw(
        metadata(0, flacStreamInfo(sound)));
    QByteArray out = oggPage(first.bytes(), kFirstPage, 0, 0);
    out += oggPage(metadata(kLastBlock | kComment, vorbisComment()), 0, 0, 1);
    const std::vector<QByteArray> frames = flacFrames(sound);
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const std::uint64_t end = std::min<std::size_t>((i + 1) * kFlacBlock, sound.samples.size());
        out += oggPage(frames[i], i + 1 == frames.size() ? kLastPage : 0, end, static_cast<int>(i) + 2);
    }
    return out;
}

QByteArray mp3File(int frames) {
    constexpr int kFrameBytes = 417;  // MPEG-1 layer III, 128 kbit/s at 44.1 kHz, without padding
    const QByteArray title = Bytes().text("TIT2").be32(8).be16(0).u8(0).text("Silence").bytes();
    Bytes out;
    out.text("ID3").u8(3).u8(0).u8(0).be32(static_cast<std::uint64_t>(title.size())).raw(title);
    for (int i = 0; i < frames; ++i)
        out.be32(0xFFFB9064).zeros(kFrameBytes - 4);
    return out.bytes();
}

QByteArray aacFile(int frames) {
    // ADTS: low complexity, 44.1 kHz, one channel; the body is a channel element without any spectrum.
    const QByteArray body = QByteArray::fromHex("00000007");
    Bytes out;
    for (int i = 0; i < frames; ++i) {
        const auto size = static_cast<std::uint64_t>(body.size()) + 7;
        out.be16(0xFFF1)
            .u8(0x50)
            .u8(0x40 | size >> 11)
            .u8(size >> 3 & 0xFF)
            .u8((size & 7) << 5 | 0x1F)
            .u8(0xFC)
            .raw(body);
    }
    return out.bytes();
}

QByteArray amrFile(int frames) {
    constexpr int kLowestRate = 0x04;  // 4.75 kbit/s: twelve bytes a frame of 20 ms (RFC 4867)
    Bytes out;
    out.text("#!AMR\n");
    for (int i = 0; i < frames; ++i)
        out.u8(kLowestRate).zeros(12);
    return out.bytes();
}

QByteArray midiFile() {
    constexpr int kTicksPerNote = 192;
    Bytes track;
    track.u8(0).u8(0xFF).u8(3).u8(4).text("Tune").u8(0).u8(0xC0).u8(24);
    int wait = 0;
    const auto putWait = [&track](int ticks) {
        if (ticks > 127)
            track.u8(static_cast<std::uint64_t>(0x80 | ticks >> 7));
        track.u8(static_cast<std::uint64_t>(ticks & 127));
    };
    for (const int note : tuneNotes()) {
        if (note == 0) {
            wait += kTicksPerNote;
            continue;
        }
        putWait(wait);
        wait = 0;
        track.u8(0x90).u8(static_cast<std::uint64_t>(note)).u8(96);
        putWait(kTicksPerNote);
        track.u8(0x80).u8(static_cast<std::uint64_t>(note)).u8(64);
    }
    track.u8(0).u8(0xFF).u8(0x2F).u8(0);
    Bytes out;
    out.text("MThd").be32(6).be16(0).be16(1).be16(480).text("MTrk").be32(
        static_cast<std::uint64_t>(track.size()));
    return out.raw(track.bytes()).bytes();
}

}  // namespace vantor::samples
