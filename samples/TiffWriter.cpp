// TIFF 6.0 in both byte orders, and DNG, which is a TIFF that holds a sensor's raw values.
#include <algorithm>

#include "samples/Bytes.h"
#include "samples/PictureWriters.h"

namespace vantor::samples {

namespace {

constexpr int kByte = 1;
constexpr int kAscii = 2;
constexpr int kShort = 3;
constexpr int kLong = 4;
constexpr int kRational = 5;
constexpr int kSignedRational = 10;

enum class Order { Little, Big };

struct Field {
    int tag;
    int type;
    std::vector<std::int64_t> values;  // of rationals, numerator and denominator in turn
};

class TiffBuilder {
  public:
    TiffBuilder(Order order, std::vector<Field> fields, QByteArray pixels)
        : m_order(order), m_fields(std::move(fields)), m_pixels(std::move(pixels)) {
        std::sort(m_fields.begin(), m_fields.end(),
                  [](const Field& a, const Field& b) { return a.tag < b.tag; });
    }

    QByteArray build() {
        m_out.text(m_order == Order::Little ? "II" : "MM");
        put(42, 2);
        put(8, 4);
        const qsizetype valuesAt = 8 + 2 + 12 * static_cast<qsizetype>(m_fields.size()) + 4;
        const qsizetype pixelsAt = valuesAt + sizeOfValues();
        put(static_cast<std::int64_t>(m_fields.size()), 2);
        qsizetype nextValue = valuesAt;
        for (Field& field : m_fields) {
            if (field.tag == 0x0111)
                field.values = {pixelsAt};
            putEntry(field, nextValue);
        }
        put(0, 4);
        for (const Field& field : m_fields) {
            if (bytesOf(field) > 4)
                putValues(field);
        }
        return m_out.alignTo(2).raw(m_pixels).bytes();
    }

  private:
    static int unit(const Field& field) {
        if (field.type == kShort)
            return 2;
        return field.type == kByte || field.type == kAscii ? 1 : 4;
    }
    static qsizetype bytesOf(const Field& field) {
        return unit(field) * static_cast<qsizetype>(field.values.size());
    }
    static qsizetype evenBytesOf(const Field& field) { return (bytesOf(field) + 1) & ~qsizetype{1}; }
    static bool isRational(const Field& field) {
        return field.type == kRational || field.type == kSignedRational;
    }

    qsizetype sizeOfValues() const {
        qsizetype size = 0;
        for (const Field& field : m_fields)
            size += bytesOf(field) > 4 ? evenBytesOf(field) : 0;
        return size;
    }

    void put(std::int64_t value, int bytes) {
        for (int i = 0; i < bytes; ++i) {
            const int shift = 8 * (m_order == Order::Little ? i : bytes - 1 - i);
            m_out.u8(static_cast<std::uint64_t>(value >> shift) & 0xFF);
        }
    }

    void putEntry(const Field& field, qsizetype& nextValue) {
        put(field.tag, 2);
        put(field.type, 2);
        put(static_cast<std::int64_t>(field.values.size()) / (isRational(field) ? 2 : 1), 4);
        if (bytesOf(field) > 4) {
            put(nextValue, 4);
            nextValue += evenBytesOf(field);
            return;
        }
        putValues(field);
        m_out.zeros(4 - evenBytesOf(field));
    }

    void putValues(const Field& field) {
        for (const std::int64_t value : field.values)
            put(value, unit(field));
        m_out.alignTo(2);
    }

    Order m_order;
    std::vector<Field> m_fields;
    QByteArray m_pixels;
    Bytes m_out;
};

std::vector<std::int64_t> ascii(const QByteArray& text) {
    std::vector<std::int64_t> values(text.begin(), text.end());
    values.push_back(0);
    return values;
}

QByteArray colourTiff(const Picture& picture, Order order) {
    const QByteArray pixels(reinterpret_cast<const char*>(picture.rgb.data()),
                            static_cast<qsizetype>(picture.rgb.size()));
    return TiffBuilder(order,
                       {{0x0100, kLong, {picture.width}},
                        {0x0101, kLong, {picture.height}},
                        {0x0102, kShort, {8, 8, 8}},
                        {0x0103, kShort, {1}},
                        {0x0106, kShort, {2}},
                        {0x0111, kLong, {0}},
                        {0x0115, kShort, {3}},
                        {0x0116, kLong, {picture.height}},
                        {0x0117, kLong, {pixels.size()}},
                        {0x011A, kRational, {72, 1}},
                        {0x011B, kRational, {72, 1}},
                        {0x0128, kShort, {2}}},
                       pixels)
        .build();
}

// What a sensor with red, green / green, blue filters would have seen, roughly undoing the display's gamma.
QByteArray sensorValues(const Picture& picture) {
    Bytes out;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::uint64_t value = picture.pixel(x, y)[(y & 1) + (x & 1)];
            out.le16(value * value);
        }
    }
    return out.bytes();
}

}  // namespace

QByteArray tiffFile(const Picture& picture) {
    return colourTiff(picture, Order::Little);
}

QByteArray bigEndianTiffFile(const Picture& picture) {
    return colourTiff(picture, Order::Big);
}

QByteArray dngFile(const Picture& picture) {
    constexpr int kColourFilterArray = 32803;
    const QByteArray pixels = sensorValues(picture);
    return TiffBuilder(Order::Little,
                       {{0x00FE, kLong, {0}},
                        {0x0100, kLong, {picture.width}},
                        {0x0101, kLong, {picture.height}},
                        {0x0102, kShort, {16}},
                        {0x0103, kShort, {1}},
                        {0x0106, kShort, {kColourFilterArray}},
                        {0x010F, kAscii, ascii("VANTOR")},
                        {0x0110, kAscii, ascii("SAMPLE 100")},
                        {0x0111, kLong, {0}},
                        {0x0112, kShort, {1}},
                        {0x0115, kShort, {1}},
                        {0x0116, kLong, {picture.height}},
                        {0x0117, kLong, {pixels.size()}},
                        {0x011C, kShort, {1}},
                        {0x828D, kShort, {2, 2}},
                        {0x828E, kByte, {0, 1, 1, 2}},
                        {0xC612, kByte, {1, 1, 0, 0}},
                        {0xC613, kByte, {1, 1, 0, 0}},
                        {0xC614, kAscii, ascii("VANTOR SAMPLE 100")},
                        {0xC61D, kLong, {65025}},
                        // From the standard observer's colours to linear sRGB.
                        {0xC621,
                         kSignedRational,
                         {32405, 10000, -15371, 10000, -4985, 10000, -9693, 10000, 18760, 10000, 416, 10000,
                          556, 10000, -2040, 10000, 10572, 10000}},
                        {0xC628, kRational, {1, 1, 1, 1, 1, 1}},
                        {0xC65A, kShort, {21}}},
                       pixels)
        .build();
}

}  // namespace vantor::samples
