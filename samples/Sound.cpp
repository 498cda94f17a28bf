// The tune, and the sound files that hold plain samples.
#include "samples/Sound.h"

#include "samples/Bytes.h"
#include "samples/Fixed.h"

namespace vantor::samples {

namespace {

// Hertz × 100 of the notes of the octave above middle C (MIDI 60..71, equal temperament).
constexpr int kHundredthsOfHertz[12] = {26163, 27718, 29366, 31113, 32963, 34923,
                                        36999, 39200, 41530, 44000, 46616, 49388};

int frequencyOf(int note) {
    const int octave = note / 12 - 5;
    const int base = kHundredthsOfHertz[note % 12];
    return octave >= 0 ? base << octave : base >> -octave;
}

QByteArray bigEndian(const Sound& sound) {
    Bytes out;
    for (const std::int16_t sample : sound.samples)
        out.be16(static_cast<std::uint16_t>(sample));
    return out.bytes();
}

// The rate as the 80-bit floating point number that AIFF wants.
QByteArray extended(int rate) {
    int shift = 0;
    std::uint64_t mantissa = static_cast<std::uint64_t>(rate);
    while ((mantissa >> 63) == 0) {
        mantissa <<= 1;
        ++shift;
    }
    return Bytes().be16(static_cast<std::uint64_t>(16383 + 63 - shift)).be64(mantissa).bytes();
}

}  // namespace

std::uint64_t bytesOf(const Sound& sound) {
    return sound.samples.size() * 2;
}

QByteArray littleEndian(const Sound& sound) {
    Bytes out;
    for (const std::int16_t sample : sound.samples)
        out.le16(static_cast<std::uint16_t>(sample));
    return out.bytes();
}

const std::vector<int>& tuneNotes() {
    static const std::vector<int> kNotes = {60, 64, 67, 72, 71, 67, 64, 67, 57, 60, 64, 69, 67, 64, 60, 0,
                                            65, 69, 72, 77, 76, 72, 69, 72, 67, 71, 74, 79, 76, 72, 67, 60};
    return kNotes;
}

Sound playTune(int rate, int tenths) {
    Sound sound{rate, {}};
    const std::int64_t total = std::int64_t{rate} * tenths / 10;
    const std::int64_t noteLength = std::int64_t{rate} * kTenthsPerNote / 10;
    sound.samples.reserve(static_cast<std::size_t>(total));
    for (std::int64_t i = 0; i < total; ++i) {
        std::int64_t level = 0;
        // Each note rings on under the next one.
        for (std::int64_t back = 0; back < 2; ++back) {
            const std::int64_t index = i / noteLength - back;
            if (index < 0)
                continue;
            const int note = tuneNotes()[static_cast<std::size_t>(index) % tuneNotes().size()];
            if (note == 0)
                continue;
            const std::int64_t since = i - index * noteLength;
            const std::int64_t left = 2 * noteLength - since;
            const std::int64_t attack = clampTo(since * 200 * 256 / rate, 0, 256);
            const std::int64_t fade = left * 256 / (2 * noteLength);
            const std::int64_t angle = since * frequencyOf(note) * (kFullTurn / 100) / rate;
            const std::int64_t tone = sine(angle) * 3 / 5 + sine(angle * 2) / 4 + sine(angle * 3) / 8;
            level += tone * attack / 256 * fade / 256 * fade / 256;
        }
        sound.samples.push_back(static_cast<std::int16_t>(clampTo(level / 3, -32768, 32767)));
    }
    return sound;
}

QByteArray wavFile(const Sound& sound) {
    const auto rate = static_cast<std::uint64_t>(sound.rate);
    Bytes out;
    out.text("RIFF")
        .le32(36 + bytesOf(sound))
        .text("WAVEfmt ")
        .le32(16)
        .le16(1)
        .le16(1)
        .le32(rate)
        .le32(rate * 2);
    return out.le16(2).le16(16).text("data").le32(bytesOf(sound)).raw(littleEndian(sound)).bytes();
}

QByteArray auFile(const Sound& sound) {
    constexpr int kLinear16 = 3;
    Bytes out;
    out.text(".snd")
        .be32(32)
        .be32(bytesOf(sound))
        .be32(kLinear16)
        .be32(static_cast<std::uint64_t>(sound.rate))
        .be32(1);
    return out.field("tune", 8).raw(bigEndian(sound)).bytes();
}

QByteArray aiffFile(const Sound& sound) {
    Bytes out;
    out.text("FORM")
        .be32(46 + bytesOf(sound))
        .text("AIFFCOMM")
        .be32(18)
        .be16(1)
        .be32(sound.samples.size())
        .be16(16);
    out.raw(extended(sound.rate)).text("SSND").be32(8 + bytesOf(sound)).be32(0).be32(0);
    return out.raw(bigEndian(sound)).bytes();
}

QByteArray cafFile(const Sound& sound) {
    // The rate as a double: whole numbers below 2^53 have an exact form.
    int exponent = 52;
    std::uint64_t mantissa = static_cast<std::uint64_t>(sound.rate);
    while ((mantissa >> 52) == 0) {
        mantissa <<= 1;
        --exponent;
    }
    const std::uint64_t rate =
        (static_cast<std::uint64_t>(1023 + exponent) << 52) | (mantissa & ((std::uint64_t{1} << 52) - 1));
    Bytes out;
    out.text("caff")
        .be16(1)
        .be16(0)
        .text("desc")
        .be64(32)
        .be64(rate)
        .text("lpcm")
        .be32(0)
        .be32(2)
        .be32(1)
        .be32(1)
        .be32(16);
    return out.text("data").be64(4 + bytesOf(sound)).be32(0).raw(bigEndian(sound)).bytes();
}

QByteArray vocFile(const Sound& sound) {
    Bytes out;
    out.text("Creative Voice File\x1A").le16(26).le16(0x010A).le16(0x1129);
    const std::uint64_t size = sound.samples.size() + 2;
    out.u8(1).le16(size).u8(size >> 16).u8(static_cast<std::uint64_t>(256 - 1000000 / sound.rate)).u8(0);
    for (const std::int16_t sample : sound.samples)
        out.u8(static_cast<std::uint64_t>((sample >> 8) + 128));
    return out.u8(0).bytes();
}

}  // namespace vantor::samples
