// A small uncompressed DNG: red to the left, blue to the right, as a colour-filter array sees it.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

namespace vantor::test {

class TiffWriter {
  public:
    void shortTag(std::uint16_t tag, std::uint16_t value) { add(tag, 3, 1, value); }
    void longTag(std::uint16_t tag, std::uint32_t value) { add(tag, 4, 1, value); }
    void bytesTag(std::uint16_t tag, std::uint16_t type, const QByteArray& values) {
        QByteArray four = values.leftJustified(4, '\0');
        const auto count = static_cast<std::uint32_t>(type == 3 ? values.size() / 2 : values.size());
        if (values.size() > 4) {
            four = littleEndian(kValuesAt + static_cast<std::uint32_t>(m_values.size()), 4);
            m_values += values.size() % 2 ? values + '\0' : values;
        }
        m_entries.push_back(littleEndian(tag, 2) + littleEndian(type, 2) + littleEndian(count, 4) + four);
    }
    QByteArray finish(const QByteArray& pixels) const {
        QByteArray bytes("II*\0\x08\0\0\0", 8);
        bytes += littleEndian(static_cast<std::uint32_t>(m_entries.size()), 2);
        for (const QByteArray& entry : m_entries) {
            bytes += entry;
        }
        bytes.resize(kValuesAt, '\0');
        bytes += m_values;
        bytes.resize(kPixelsAt, '\0');
        return bytes + pixels;
    }
    static QByteArray littleEndian(std::uint32_t value, int bytes) {
        QByteArray text;
        for (int i = 0; i < bytes; ++i) {
            text.append(static_cast<char>(value >> (8 * i)));
        }
        return text;
    }

    static constexpr std::uint32_t kValuesAt = 512;
    static constexpr std::uint32_t kPixelsAt = 1024;

  private:
    void add(std::uint16_t tag, std::uint16_t type, std::uint32_t count, std::uint32_t value) {
        m_entries.push_back(littleEndian(tag, 2) + littleEndian(type, 2) + littleEndian(count, 4) +
                            littleEndian(value, 4));
    }
    std::vector<QByteArray> m_entries;
    QByteArray m_values;
};

// Tags after the DNG 1.4 specification. `orientation` as in TIFF: 1 upright, 6 to be turned right by 90
// degrees.
inline QByteArray sensorPicture(int width, int height, std::uint16_t orientation) {
    QByteArray pixels;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool left = x < width / 2;
            const bool redPixel = x % 2 == 0 && y % 2 == 0, bluePixel = x % 2 == 1 && y % 2 == 1;
            const bool lit = left ? redPixel : bluePixel;
            pixels += TiffWriter::littleEndian(lit ? 50000 : 2000, 2);
        }
    }
    const auto side = [](int value) { return static_cast<std::uint32_t>(value); };
    TiffWriter tiff;
    tiff.longTag(0x00fe, 0);
    tiff.longTag(0x0100, side(width));
    tiff.longTag(0x0101, side(height));
    tiff.shortTag(0x0102, 16);
    tiff.shortTag(0x0103, 1);
    tiff.shortTag(0x0106, 32803);
    tiff.bytesTag(0x010f, 2, QByteArray("Vantor\0", 7));
    tiff.bytesTag(0x0110, 2, QByteArray("Test sensor\0", 12));
    tiff.longTag(0x0111, TiffWriter::kPixelsAt);
    tiff.shortTag(0x0112, orientation);
    tiff.shortTag(0x0115, 1);
    tiff.longTag(0x0116, side(height));
    tiff.longTag(0x0117, static_cast<std::uint32_t>(pixels.size()));
    tiff.bytesTag(0x828d, 3, QByteArray("\2\0\2\0", 4));
    tiff.bytesTag(0x828e, 1, QByteArray("\0\1\1\2", 4));
    tiff.bytesTag(0xc612, 1, QByteArray("\1\4\0\0", 4));
    tiff.bytesTag(0xc614, 2, QByteArray("Vantor Test sensor\0", 19));
    return tiff.finish(pixels);
}

}  // namespace vantor::test
