// From the directory to the stream, from the stream to four planes, and from those to colours.
#include "decode/helper/LowpassPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <vector>

#include "decode/helper/RawDirectories.h"

namespace vantor::decode {

namespace {

// Mean of the two greens, red and blue less that mean, difference of the greens.
constexpr std::size_t kPlanes = 4;
constexpr int kHalvings = 3;

struct Sensor {
    std::uint64_t compression = 0;
    std::uint64_t at = 0;     // of the stream
    std::uint64_t bytes = 0;  // of the stream
    std::array<double, 3> neutral{1, 1, 1};
};

Sensor sensorOf(ByteView& view, const TiffHeader& header) {
    constexpr std::uint16_t kCompression = 259, kTileAt = 324, kTileBytes = 325, kNeutral = 50728;
    Sensor sensor;
    const auto see = [&](std::size_t directory, const TiffEntry& entry) {
        const std::uint64_t number = readTiffNumber(view, header, entry, 0).value_or(0);
        if (entry.tag == kCompression) {
            sensor.compression = number;
        } else if (entry.tag == kTileAt) {
            sensor.at = number;
        } else if (entry.tag == kTileBytes) {
            sensor.bytes = number;
        } else if (entry.tag == kNeutral && entry.count == sensor.neutral.size()) {
            for (std::size_t i = 0; i < sensor.neutral.size(); ++i) {
                const std::uint64_t at = entry.valueAt + 8 * i;
                const double share = view.number(at, 4, header.endian).value_or(0) /
                                     std::max(1.0, double(view.number(at + 4, 4, header.endian).value_or(0)));
                sensor.neutral[i] = std::clamp(share, 0.1, 10.0);
            }
        }
        return directory == 0;
    };
    visitDirectories(view, header, DirectoryScope::FirstAndBelow, see);
    return sensor;
}

// Takes what a stream's pairs of tag and value tell, until all planes are there.
class Lowpass {
  public:
    enum Tag : std::uint16_t {
        kWidth = 20,
        kHeight = 21,
        kPrecision = 35,
        kBand = 48,
        kPlane = 62,
        kSampleBits = 102,
        kPrescale = 109,
        kBlock = 0x6000,  // the low byte belongs to the length
    };

    void take(std::uint16_t tag, std::uint16_t value);
    // A block of so many bytes at `at`; false when it is one that we want but no such thing.
    bool takeBlock(ByteView& view, std::uint64_t at, std::uint64_t bytes);
    bool isComplete() const {
        return std::ranges::all_of(m_planes, [&](const auto& one) { return one.size() == planeBytes(); }) &&
               planeBytes() > 0 && m_bits >= 8 && m_bits <= 16;
    }

    // Of a plane.
    std::uint64_t width() const { return m_width; }
    std::uint64_t height() const { return m_height; }
    // Bits of a sample as the sensor gave it.
    int bits() const { return m_bits; }
    double sample(std::size_t plane, std::uint64_t index) const {
        const auto& bytes = m_planes[plane];
        return std::ldexp(bytes[2 * index] << 8 | bytes[2 * index + 1], -m_scaleBits);
    }

  private:
    std::uint64_t planeBytes() const { return m_width * m_height * 2; }

    std::uint64_t m_width = 0;
    std::uint64_t m_height = 0;
    int m_bits = 0;
    int m_scaleBits = 0;  // by which the halvings made the numbers larger
    std::uint16_t m_precision = 0;
    std::uint16_t m_plane = 0;
    std::uint16_t m_band = 0;
    std::array<std::vector<std::uint8_t>, kPlanes> m_planes;  // big-endian words, row by row
};

// Of a plane, which has half the sensor's, after the halvings.
std::uint64_t halvedSide(std::uint64_t side) {
    for (int i = 0; i < 1 + kHalvings; ++i) {
        side = (side + 1) / 2;
    }
    return side;
}

void Lowpass::take(std::uint16_t tag, std::uint16_t value) {
    switch (tag) {
        case kWidth:
            m_width = halvedSide(value);
            break;
        case kHeight:
            m_height = halvedSide(value);
            break;
        case kPrecision:
            m_precision = value;
            break;
        case kBand:
            m_band = value;
            break;
        case kPlane:
            m_plane = value;
            break;
        case kSampleBits:
            m_bits = value;
            break;
        case kPrescale:
            // Each halving makes the numbers four times as large, less what is shifted out before it.
            m_scaleBits = 2 * kHalvings;
            for (int i = 0; i < kHalvings; ++i) {
                m_scaleBits -= value >> (14 - 2 * i) & 3;
            }
            break;
        default:
            break;
    }
}

bool Lowpass::takeBlock(ByteView& view, std::uint64_t at, std::uint64_t bytes) {
    constexpr std::uint16_t kWholeWords = 16;
    if (m_band != 0 || m_plane >= kPlanes) {
        return true;
    }
    if (m_precision != kWholeWords || bytes < planeBytes() || !view.holds(at, planeBytes())) {
        return false;
    }
    m_planes[m_plane].resize(planeBytes());
    return view.copy(at, m_planes[m_plane]);
}

// An optional tag is stored as its negative.
std::optional<Lowpass> readLowpass(ByteView& view, const Sensor& sensor) {
    Lowpass lowpass;
    const std::uint64_t end = std::min(view.size(), addClamped(sensor.at, sensor.bytes));
    for (std::uint64_t at = sensor.at + 4; at + 4 <= end; at += 4) {
        const auto stored = view.be16(at), value = view.be16(at + 2);
        if (!stored || !value) {
            return std::nullopt;
        }
        const auto tag = static_cast<std::uint16_t>(*stored & 0x8000 ? 0x10000 - *stored : *stored);
        if ((tag & 0xff00) != Lowpass::kBlock) {
            lowpass.take(tag, *value);
            continue;
        }
        const std::uint64_t bytes = (std::uint64_t{tag & 0xffU} << 16 | *value) * 4;
        if (!lowpass.takeBlock(view, at + 4, bytes)) {
            return std::nullopt;
        }
        if (lowpass.isComplete()) {
            return lowpass;
        }
        at += bytes;
    }
    return std::nullopt;
}

// The sensor's numbers are stored as their logarithms; 113 is the curve's own base.
double lightOf(double share) {
    return (std::pow(113, std::clamp(share, 0.0, 1.0)) - 1) / 112;
}

char onScreen(double light) {
    return static_cast<char>(std::lround(255 * std::pow(std::clamp(light, 0.0, 1.0), 1 / 2.2)));
}

}  // namespace

QByteArray lowpassPicture(ByteView& view) {
    constexpr std::uint64_t kVc5 = 9;
    const auto header = readTiffHeader(view, 0);
    const Sensor sensor = header ? sensorOf(view, *header) : Sensor();
    if (sensor.compression != kVc5 || !view.matches(sensor.at, "VC-5")) {
        return {};
    }
    const auto lowpass = readLowpass(view, sensor);
    if (!lowpass) {
        return {};
    }
    const double middle = std::ldexp(1, lowpass->bits() - 1), most = 2 * middle - 1;
    QByteArray picture = "P6\n" + QByteArray::number(static_cast<qulonglong>(lowpass->width())) + ' ' +
                         QByteArray::number(static_cast<qulonglong>(lowpass->height())) + "\n255\n";
    for (std::uint64_t i = 0; i < lowpass->width() * lowpass->height(); ++i) {
        const double green = lowpass->sample(0, i);
        const double red = 2 * (lowpass->sample(1, i) - middle) + green;
        const double blue = 2 * (lowpass->sample(2, i) - middle) + green;
        picture += onScreen(lightOf(red / most) / sensor.neutral[0]);
        picture += onScreen(lightOf(green / most) / sensor.neutral[1]);
        picture += onScreen(lightOf(blue / most) / sensor.neutral[2]);
    }
    return picture;
}

}  // namespace vantor::decode
