// From an image of the helper's to the memory that the program reads.
#pragma once

#include <QImage>
#include <QSize>
#include <cstddef>
#include <cstring>
#include <span>

#include "decode/DecodeProtocol.h"

namespace vantor::decode {

// Copies an image of four bytes a pixel and fills status, size and alpha of the answer; false when it is null
// or outside the bound.
inline bool copyPixels(const QImage& image, QSize bound, std::span<std::byte> pixels, Answer& answer) {
    const auto rowBytes = static_cast<std::size_t>(image.width()) * kBytesPerPixel;
    if (image.isNull() || image.depth() != 32 || image.width() > bound.width() ||
        image.height() > bound.height() ||
        rowBytes * static_cast<std::size_t>(image.height()) > pixels.size()) {
        return false;
    }
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(pixels.data() + rowBytes * static_cast<std::size_t>(y), image.constScanLine(y), rowBytes);
    }
    answer.status = AnswerStatus::Ok;
    answer.width = static_cast<std::uint32_t>(image.width());
    answer.height = static_cast<std::uint32_t>(image.height());
    answer.flags |= image.hasAlphaChannel() ? kHasAlpha : 0U;
    return true;
}

}  // namespace vantor::decode
