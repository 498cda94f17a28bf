// From a helper's answer to an image of the program's own.
#pragma once

#include <QImage>
#include <QSize>
#include <algorithm>

#include "decode/HelperProcess.h"

namespace vantor::decode {

// No colour of a premultiplied pixel is stronger than its alpha; what is drawn with relies on it.
inline void holdColoursBelowAlpha(QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(row, row + image.width(), row, [](QRgb pixel) {
            const int most = qAlpha(pixel);
            return qRgba(std::min(qRed(pixel), most), std::min(qGreen(pixel), most),
                         std::min(qBlue(pixel), most), most);
        });
    }
}

// The helper could go on writing into the shared pixels, so they are copied before anybody looks at them.
inline QImage copyOfPixels(const HelperProcess& helper, const Answer& answer) {
    const bool alpha = (answer.flags & kHasAlpha) != 0;
    const QImage shared(reinterpret_cast<const uchar*>(helper.pixels()), static_cast<int>(answer.width),
                        static_cast<int>(answer.height),
                        static_cast<qsizetype>(answer.width) * kBytesPerPixel,
                        alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    QImage copy = shared.copy();
    if (alpha) {
        holdColoursBelowAlpha(copy);
    }
    return copy;
}

inline QSize fullSizeOf(const Answer& answer) {
    return {static_cast<int>(answer.fullWidth), static_cast<int>(answer.fullHeight)};
}

}  // namespace vantor::decode
