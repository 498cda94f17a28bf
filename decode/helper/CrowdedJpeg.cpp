// From marker to marker: segments by their lengths, what is compressed by the next mark in it.
#include "decode/helper/CrowdedJpeg.h"

#include <cstdint>

namespace vantor::decode {

namespace {

constexpr std::uint8_t kMark = 0xFF;
constexpr std::uint8_t kComment = 0xFE;
constexpr std::uint8_t kDescription = 0xE1;
constexpr std::uint8_t kColours = 0xE2;
// An application's segment that nobody reads.
constexpr std::uint8_t kPassedOver = 0xEF;
constexpr std::uint8_t kBegin = 0xD8;
constexpr std::uint8_t kEnd = 0xD9;

// Marks that stand alone: a compressed byte that looks like one, restarts, the picture's beginning.
bool standsAlone(std::uint8_t marker) {
    return marker <= 0x01 || (marker >= 0xD0 && marker <= kBegin);
}

bool isKept(std::uint8_t marker) {
    return marker == kComment || marker == kDescription || marker == kColours;
}

}  // namespace

QByteArray withoutCrowd(QByteArrayView jpeg) {
    QByteArray bytes = QByteArray::fromRawData(jpeg.data(), jpeg.size());
    const auto at = [&](qsizetype place) { return static_cast<std::uint8_t>(jpeg[place]); };
    int kept = 0;
    qsizetype place = 0;
    for (;;) {
        place = jpeg.indexOf(static_cast<char>(kMark), place);
        while (place >= 0 && place < jpeg.size() && at(place) == kMark) {
            ++place;
        }
        if (place < 0 || place >= jpeg.size() || at(place) == kEnd) {
            return bytes;
        }
        const std::uint8_t marker = at(place);
        if (isKept(marker) && ++kept > kMostKeptSegments) {
            bytes[place] = static_cast<char>(kPassedOver);
        }
        ++place;
        if (standsAlone(marker)) {
            continue;
        }
        if (jpeg.size() - place < 2) {
            return bytes;
        }
        place += (at(place) << 8) + at(place + 1);
        if (place >= jpeg.size()) {
            return bytes;
        }
    }
}

}  // namespace vantor::decode
