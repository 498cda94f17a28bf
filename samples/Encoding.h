// Sounds, movies and pictures by the libraries' encoders: any codec in any container.
#pragma once

#include <QByteArray>
#include <QImage>
#include <cstdint>
#include <vector>

namespace vantor::samples {

// One channel of 16-bit samples.
struct Sound {
    int rate = 0;  // samples a second
    std::vector<std::int16_t> samples;
};

// How a file is made, in the names that libav gives to containers, codecs and pixels.
struct Recipe {
    const char* container;
    const char* videoCodec = nullptr;  // null for no pictures
    const char* pixels = nullptr;
    const char* soundCodec = nullptr;   // null for no sound
    const char* containerOptions = "";  // name=value, separated by colons
    const char* videoOptions = "";
    int framesPerSecond = 10;
};

// Throws std::runtime_error when a library refuses.
QByteArray encoded(const Recipe& recipe, const std::vector<QImage>& frames, const Sound& sound = {});

// A still picture as this codec writes it.
QByteArray encodedPicture(const char* codec, const char* pixels, const QImage& picture,
                          const char* options = "");

// By Qt's writers.
QByteArray writtenByQt(const char* format, const QImage& picture, int quality = -1,
                       bool isProgressive = false);

// A tune of plucked notes.
Sound playTune(int rate, double seconds);

QByteArray midiFile();                          // the tune as notes
QByteArray rmiFile();                           // the same in RIFF
QByteArray amigaSoundFile(const Sound& sound);  // 8SVX, 8 bits
QByteArray sphereFile(const Sound& sound);      // NIST SPHERE, PCM
// Frames of zeros at the lowest rate, of 20 ms each (RFC 4867).
QByteArray amrFile(bool isWide, int frames);

}  // namespace vantor::samples
