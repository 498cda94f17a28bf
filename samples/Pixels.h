// What the picture writers ask of a finished picture's pixels.
#pragma once

#include <QByteArray>

#include "samples/Canvas.h"

namespace vantor::samples {

// All pixels as they stand: red, green, blue, rows from the top.
inline QByteArray rgbBytes(const Picture& picture) {
    return {reinterpret_cast<const char*>(picture.rgb.data()), static_cast<qsizetype>(picture.rgb.size())};
}

// The brightness of a pixel, 0..255.
inline int greyOf(const std::uint8_t* pixel) {
    return (pixel[0] * 77 + pixel[1] * 150 + pixel[2] * 29) >> 8;
}

// Threshold of ordered dithering at a place, 0..15.
inline int ditherAt(int x, int y) {
    static constexpr int kBayer[16] = {0, 8, 2, 10, 12, 4, 14, 6, 3, 11, 1, 9, 15, 7, 13, 5};
    return kBayer[(y & 3) * 4 + (x & 3)];
}

}  // namespace vantor::samples
