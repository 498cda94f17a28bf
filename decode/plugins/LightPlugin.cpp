// Pictures that store light as it falls: Radiance pictures, after Greg Ward's description of the format, and
// portable float maps.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

#include "decode/helper/HandlerNames.h"
#include "decode/plugins/PluginBytes.h"

namespace vantor::decode {

namespace {

// Longer heads are damage.
constexpr qsizetype kMostHeadBytes = 64 * 1024;

// A line of text at a time from the beginning of the bytes, then what follows.
class Lines {
  public:
    explicit Lines(QByteArrayView bytes) : m_bytes(bytes) {}

    std::optional<QByteArray> next() {
        const qsizetype end = m_bytes.first(std::min(m_bytes.size(), kMostHeadBytes)).indexOf('\n', m_at);
        if (end < 0) {
            return std::nullopt;
        }
        const QByteArray line = m_bytes.sliced(m_at, end - m_at).toByteArray();
        m_at = end + 1;
        return line;
    }
    QByteArrayView rest() const { return m_bytes.sliced(m_at); }

  private:
    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

// Black, or null where the sides are none that a picture has.
QImage blankOf(const QByteArray& width, const QByteArray& height) {
    const std::uint64_t columns = width.toULongLong(), rows = height.toULongLong();
    if (!isReasonableSize(columns, rows)) {
        return {};
    }
    QImage image(static_cast<int>(columns), static_cast<int>(rows), QImage::Format_RGB32);
    if (!image.isNull()) {
        image.fill(Qt::black);
    }
    return image;
}

// From light, 1 being white, to the brightness that a screen wants for it.
int onScreen(float light) {
    if (!(light > 0)) {
        return 0;
    }
    const float curved = light <= 0.0031308F ? 12.92F * light : 1.055F * std::pow(light, 1 / 2.4F) - 0.055F;
    return static_cast<int>(std::lround(std::min(curved, 1.0F) * 255));
}

using Shared = std::array<std::uint8_t, 4>;  // red, green, blue and their common exponent

QRgb onScreen(const Shared& pixel) {
    constexpr int kExponentOfOne = 128 + 8;
    const auto part = [&](std::uint8_t mantissa) {
        return onScreen(std::ldexp(static_cast<float>(mantissa) + 0.5F, pixel[3] - kExponentOfOne));
    };
    return pixel[3] == 0 ? qRgb(0, 0, 0) : qRgb(part(pixel[0]), part(pixel[1]), part(pixel[2]));
}

// Takes Radiance rows off the bytes, one after the other.
class RadianceRows {
  public:
    explicit RadianceRows(QByteArrayView bytes) : m_bytes(bytes) {}

    // False when the bytes end within the row.
    bool take(std::vector<Shared>& row) {
        constexpr std::size_t kLeastPacked = 8, kMostPacked = 0x7fff;
        const bool packed = row.size() >= kLeastPacked && row.size() <= kMostPacked && left() >= 4 &&
                            byteAt(0) == 2 && byteAt(1) == 2 && byteAt(2) < 128;
        return packed ? takePacked(row) : takePlain(row);
    }

  private:
    qsizetype left() const { return m_bytes.size() - m_at; }
    std::uint8_t byteAt(qsizetype offset) const { return static_cast<std::uint8_t>(m_bytes[m_at + offset]); }

    // Each of the four parts by itself: runs of one byte, or bytes as they are.
    bool takePacked(std::vector<Shared>& row) {
        m_at += 4;
        for (std::size_t part = 0; part < 4; ++part) {
            for (std::size_t x = 0; x < row.size();) {
                if (left() < 2) {
                    return false;
                }
                const bool run = byteAt(0) > 128;
                std::size_t count = run ? byteAt(0) - 128U : byteAt(0);
                count = std::min(count, row.size() - x);
                if (count == 0 || (!run && std::cmp_less(left() - 1, count))) {
                    return false;
                }
                for (std::size_t i = 0; i < count; ++i) {
                    row[x + i][part] = byteAt(run ? 1 : 1 + static_cast<qsizetype>(i));
                }
                x += count;
                m_at += run ? 2 : 1 + static_cast<qsizetype>(count);
            }
        }
        return true;
    }

    bool takePlain(std::vector<Shared>& row) {
        for (Shared& pixel : row) {
            if (left() < 4) {
                return false;
            }
            for (std::size_t part = 0; part < 4; ++part) {
                pixel[part] = byteAt(static_cast<qsizetype>(part));
            }
            m_at += 4;
        }
        return true;
    }

    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

// The usual order of pixels only: from the top, from the left.
QImage decodeRadiance(QByteArrayView bytes) {
    Lines lines(bytes);
    std::optional<QByteArray> line = lines.next();
    while (line && !line->isEmpty()) {
        line = lines.next();
    }
    const QList<QByteArray> size = lines.next().value_or(QByteArray()).split(' ');
    if (size.size() != 4 || size[0] != "-Y" || size[2] != "+X") {
        return {};
    }
    QImage image = blankOf(size[3], size[1]);
    std::vector<Shared> row(static_cast<std::size_t>(image.width()));
    RadianceRows rows(lines.rest());
    for (int y = 0; y < image.height(); ++y) {
        if (!rows.take(row)) {
            return y > 0 ? image : QImage();
        }
        std::ranges::transform(row, reinterpret_cast<QRgb*>(image.scanLine(y)),
                               [](const Shared& pixel) { return onScreen(pixel); });
    }
    return image;
}

float floatAt(const char* bytes, bool littleEndian) {
    std::array<char, sizeof(float)> raw;
    std::copy_n(bytes, raw.size(), raw.begin());
    if (littleEndian != (Q_BYTE_ORDER == Q_LITTLE_ENDIAN)) {
        std::ranges::reverse(raw);
    }
    float value;
    std::memcpy(&value, raw.data(), sizeof value);
    return value;
}

// Rows from the bottom up; "PF" has three parts a pixel, "Pf" one. The scale's sign is the order of bytes.
QImage decodeFloatMap(QByteArrayView bytes) {
    Lines lines(bytes);
    const QByteArray mark = lines.next().value_or(QByteArray());
    const QList<QByteArray> size = lines.next().value_or(QByteArray()).split(' ');
    const double scale = lines.next().value_or(QByteArray()).toDouble();
    if (size.size() != 2 || scale == 0 || (mark != "PF" && mark != "Pf")) {
        return {};
    }
    QImage image = blankOf(size[0], size[1]);
    const qsizetype parts = mark == "PF" ? 3 : 1;
    const auto pixelBytes = parts * static_cast<qsizetype>(sizeof(float));
    const QByteArrayView values = lines.rest();
    const qsizetype there = std::min(values.size() / pixelBytes, qsizetype{image.width()} * image.height());
    for (qsizetype i = 0; i < there; ++i) {
        const auto part = [&](qsizetype index) {
            return onScreen(
                floatAt(values.data() + i * pixelBytes + std::min(index, parts - 1) * 4, scale < 0));
        };
        const auto y = static_cast<int>(i / image.width());
        reinterpret_cast<QRgb*>(image.scanLine(image.height() - 1 - y))[i % image.width()] =
            qRgb(part(0), part(1), part(2));
    }
    return there > 0 ? image : QImage();
}

}  // namespace

class LightHandler : public WholePictureHandler {
  protected:
    QImage decode(const QByteArray& bytes) override {
        return format() == kFloatMapFormat ? decodeFloatMap(bytes) : decodeRadiance(bytes);
    }
};

class LightPlugin : public QImageIOPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "light.json")

  public:
    Capabilities capabilities(QIODevice*, const QByteArray& format) const override {
        return format == kFloatMapFormat || format == kRadianceFormat ? Capabilities(CanRead)
                                                                      : Capabilities();
    }
    QImageIOHandler* create(QIODevice* device, const QByteArray& format) const override {
        auto* handler = new LightHandler;
        handler->setDevice(device);
        handler->setFormat(format);
        return handler;
    }
};

}  // namespace vantor::decode

#include "LightPlugin.moc"
