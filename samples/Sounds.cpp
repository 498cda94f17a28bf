// The tune as samples and as notes.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "samples/Bytes.h"
#include "samples/Encoding.h"

namespace vantor::samples {

namespace {

constexpr double kSecondsPerNote = 0.2;
// MIDI note numbers, 0 for a rest.
constexpr int kNotes[] = {60, 64, 67, 72, 71, 67, 64, 67, 57, 60, 64, 69, 67, 64, 60, 0,
                          65, 69, 72, 77, 76, 72, 69, 72, 67, 71, 74, 79, 76, 72, 67, 60};

// How a string plucked `since` seconds ago sounds: it rings on under the next note.
double plucked(int note, double since) {
    const double turn = since * 440 * std::exp2((note - 69) / 12.0) * 2 * std::numbers::pi;
    const double tone = std::sin(turn) * 0.6 + std::sin(turn * 2) * 0.25 + std::sin(turn * 3) * 0.125;
    const double fade = 1 - since / (2 * kSecondsPerNote);
    return tone * std::min(1.0, since * 200) * fade * fade;
}

}  // namespace

Sound playTune(int rate, double seconds) {
    Sound sound{rate, {}};
    for (int i = 0; i < seconds * rate; ++i) {
        double level = 0;
        const double time = double(i) / rate;
        const int now = int(time / kSecondsPerNote);
        for (int note = std::max(0, now - 1); note <= now; ++note)
            if (const int pitch = kNotes[size_t(note) % std::size(kNotes)]; pitch != 0)
                level += plucked(pitch, time - note * kSecondsPerNote);
        sound.samples.push_back(std::int16_t(level * 32767 / 3));
    }
    return sound;
}

QByteArray midiFile() {
    constexpr int kTicksPerNote = 192;
    Bytes track;
    track.u8(0).u8(0xFF).u8(3).u8(4).raw("Tune").u8(0).u8(0xC0).u8(24);
    int wait = 0;
    const auto putWait = [&track](int ticks) {
        if (ticks > 127)
            track.u8(0x80 | ticks >> 7);
        track.u8(ticks & 127);
    };
    for (const int note : kNotes) {
        if (note == 0) {
            wait += kTicksPerNote;
            continue;
        }
        putWait(wait);
        wait = 0;
        track.u8(0x90).u8(note).u8(96);
        putWait(kTicksPerNote);
        track.u8(0x80).u8(note).u8(64);
    }
    track.u8(0).u8(0xFF).u8(0x2F).u8(0);
    Bytes out;
    out.raw("MThd").be32(6).be16(0).be16(1).be16(480).raw("MTrk").be32(track.size());
    return out.raw(track);
}

QByteArray rmiFile() {
    const QByteArray midi = midiFile();
    const Bytes data = Bytes().raw("RMIDdata").le32(midi.size()).raw(midi).alignTo(2);
    return Bytes().raw("RIFF").le32(data.size()).raw(data);
}

QByteArray amigaSoundFile(const Sound& sound) {
    constexpr int kFullVolume = 0x10000;
    const auto count = qint64(sound.samples.size() / 2 * 2);
    Bytes out;
    out.raw("FORM").be32(count + 40).raw("8SVXVHDR").be32(20).be32(count).be32(0).be32(0);
    out.be16(sound.rate).u8(1).u8(0).be32(kFullVolume).raw("BODY").be32(count);
    for (qint64 i = 0; i < count; ++i)
        out.u8(sound.samples[size_t(i)] >> 8);
    return out;
}

QByteArray sphereFile(const Sound& sound) {
    const QByteArray header =
        "NIST_1A\n   1024\nchannel_count -i 1\nsample_count -i " +
        QByteArray::number(qint64(sound.samples.size())) + "\nsample_rate -i " +
        QByteArray::number(sound.rate) +
        "\nsample_n_bytes -i 2\nsample_byte_format -s2 01\nsample_coding -s3 pcm\nend_head\n";
    Bytes out;
    out.field(header, 1024, ' ');
    for (const std::int16_t sample : sound.samples)
        out.le16(sample);
    return out;
}

QByteArray amrFile(bool isWide, int frames) {
    constexpr char kLowestRate = 0x04;
    const QByteArray frame = kLowestRate + QByteArray(isWide ? 17 : 12, '\0');
    return (isWide ? "#!AMR-WB\n" : "#!AMR\n") + frame.repeated(frames);
}

}  // namespace vantor::samples
