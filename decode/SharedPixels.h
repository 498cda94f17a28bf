// From a helper's answer to an image of the program's own.
#pragma once

#include <QImage>
#include <QSize>
#include <algorithm>
#include <climits>

#include "decode/HelperProcess.h"

namespace vantor::decode {

// The helper could go on writing into the shared pixels, so they are copied before anybody looks at them.
inline QImage copyOfPixels(const HelperProcess& helper, const Answer& answer) {
    const auto format =
        (answer.flags & kHasAlpha) ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    const QImage shared(reinterpret_cast<const uchar*>(helper.pixels()), static_cast<int>(answer.width),
                        static_cast<int>(answer.height),
                        static_cast<qsizetype>(answer.width) * kBytesPerPixel, format);
    return shared.copy();
}

inline QSize fullSizeOf(const Answer& answer) {
    const auto side = [](std::uint32_t value) {
        return static_cast<int>(std::min<std::uint32_t>(value, INT_MAX));
    };
    return {side(answer.fullWidth), side(answer.fullHeight)};
}

}  // namespace vantor::decode
