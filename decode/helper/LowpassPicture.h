// A small picture out of sensor data in the VC-5 compression, which no library here decodes.
#pragma once

#include <QByteArray>

#include "formats/ByteView.h"

namespace vantor::decode {

// The picture as a PPM file, a sixteenth of the sensor's width and height; empty where the bytes are no DNG
// with such data. The compression halves the picture three times and keeps the last half as plain numbers:
// they alone are read. Sources: SMPTE ST 2073-1, DNG 1.4.
QByteArray lowpassPicture(ByteView& view);

}  // namespace vantor::decode
