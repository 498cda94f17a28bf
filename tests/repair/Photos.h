// Photos as a camera would write them, all alike in size and tables, each with a picture of its own.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageWriter>
#include <cmath>
#include <random>

namespace vantor::test {

inline QImage makePicture(unsigned seed, int width, int height) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> any(0, 1);
    struct Wave {
        double across, down, phase, height;
    };
    std::vector<Wave> waves(12);
    for (Wave& wave : waves) {
        wave = {any(random) * 0.12 - 0.06, any(random) * 0.05, any(random) * 6, 8 + any(random) * 22};
    }
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            double light = 128 + any(random) * 14 - 7;
            for (const Wave& wave : waves) {
                light += wave.height * std::sin(x * wave.across + y * wave.down + wave.phase);
            }
            const int grey = std::clamp(static_cast<int>(light), 0, 255);
            image.setPixel(x, y, qRgb(grey, std::min(255, grey + 20), 255 - grey));
        }
    }
    return image;
}

enum class Scans { One, Progressive };

inline QByteArray makePhoto(unsigned seed, int width = 640, int height = 480, Scans scans = Scans::One) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "JPG");
    writer.setQuality(92);
    writer.setProgressiveScanWrite(scans == Scans::Progressive);
    writer.write(makePicture(seed, width, height));
    return buffer.data();
}

}  // namespace vantor::test
