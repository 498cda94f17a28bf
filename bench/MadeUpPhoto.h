// A picture that costs a decoder what a camera's does.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <cmath>
#include <cstdint>

namespace vantor {

// Detail and grain as a camera's picture has them.
inline QByteArray madeUpPhoto(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    std::uint32_t noise = 1;
    for (int y = 0; y < height; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            noise = noise * 1664525 + 1013904223;
            const int grain = static_cast<int>(noise >> 28);
            const int wave = static_cast<int>(100 + 80 * std::sin(x / 37.0) * std::cos(y / 23.0));
            row[x] = qRgb(wave + grain, (wave + x / 40) % 240 + grain, (255 - wave) / 2 + grain);
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 92);
    return bytes;
}

}  // namespace vantor
