// The card's tune, and the sound files that no library at hand writes.
#pragma once

#include <QByteArray>

#include "samples/Encoding.h"

namespace vantor::samples {

// A tune of plucked notes.
Sound playTune(int rate, double seconds);

QByteArray midiFile();                          // the tune as notes
QByteArray rmiFile();                           // the same in RIFF
QByteArray amigaSoundFile(const Sound& sound);  // 8SVX, 8 bits
QByteArray sphereFile(const Sound& sound);      // NIST SPHERE, PCM
// Frames of zeros at the lowest rate, of 20 ms each (RFC 4867).
QByteArray amrFile(bool isWide, int frames);

}  // namespace vantor::samples
