// A short tune and the sound files that hold it.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

namespace vantor::samples {

// One channel of 16-bit samples.
struct Sound {
    int rate = 0;  // samples a second
    std::vector<std::int16_t> samples;
};

// The samples as plain PCM: how many bytes they take, and those bytes, low byte first.
std::uint64_t bytesOf(const Sound& sound);
QByteArray littleEndian(const Sound& sound);

// A tune of plucked notes, the given number of tenths of a second long.
Sound playTune(int rate, int tenths);

QByteArray wavFile(const Sound& sound);   // RIFF, PCM
QByteArray auFile(const Sound& sound);    // 16-bit linear
QByteArray aiffFile(const Sound& sound);  // AIFF 1.3
QByteArray cafFile(const Sound& sound);   // Apple Core Audio Format, PCM
QByteArray vocFile(const Sound& sound);   // 8 bits, version 1.10
QByteArray flacFile(const Sound& sound);  // second-order prediction, RFC 9639
QByteArray oggFlacFile(const Sound& sound);
QByteArray mp3File(int frames);  // an ID3v2.3 tag and frames of silence
QByteArray aacFile(int frames);  // ADTS frames of silence
QByteArray amrFile(int frames);  // frames of zeros at the lowest rate
QByteArray midiFile();           // the tune as notes

QByteArray rf64File(const Sound& sound);        // EBU Tech 3306
QByteArray w64File(const Sound& sound);         // Sony's wave of 64-bit sizes
QByteArray amigaSoundFile(const Sound& sound);  // 8SVX, 8 bits
QByteArray sphereFile(const Sound& sound);      // NIST SPHERE, PCM
QByteArray rmiFile();                           // the notes in RIFF
QByteArray wideAmrFile(int frames);             // AMR-WB frames of zeros at the lowest rate

// The notes of the tune: MIDI note numbers, 0 for a rest, each `kTenthsPerNote` long.
const std::vector<int>& tuneNotes();
constexpr int kTenthsPerNote = 2;

}  // namespace vantor::samples
