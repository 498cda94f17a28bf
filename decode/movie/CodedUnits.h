// The coded units of an H.264 picture: what no encoder writes into them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

namespace vantor::decode {

// Whether 00 00 00, 00 00 01 or 00 00 02 stands within the unit, where an encoder has to put 03 in between
// (ITU-T H.264, 7.4.1); zeros at its end apart. With `startCodes` it may be several units, parted by these.
inline bool unitHasForbiddenZeros(std::span<const std::uint8_t> unit, bool startCodes) {
    while (!unit.empty() && unit.back() == 0) {
        unit = unit.first(unit.size() - 1);
    }
    std::size_t zeros = 0;
    for (const std::uint8_t byte : unit) {
        if (byte == 0) {
            ++zeros;
            continue;
        }
        const bool isCode = startCodes && byte == 1 && zeros >= 2;
        if (!isCode && (zeros >= 3 || (zeros == 2 && byte <= 2))) {
            return true;
        }
        zeros = 0;
    }
    return false;
}

// The same of a picture's units, before which stand lengths of `lengthBytes` bytes, or with 0 start codes
// (annex B). A decoder may go on over zeros in place of a picture as if they were one.
inline bool hasForbiddenZeros(std::span<const std::uint8_t> picture, unsigned lengthBytes) {
    if (lengthBytes == 0) {
        return unitHasForbiddenZeros(picture, true);
    }
    while (picture.size() > lengthBytes) {
        std::size_t length = 0;
        for (unsigned i = 0; i < lengthBytes; ++i) {
            length = length << 8 | picture[i];
        }
        picture = picture.subspan(lengthBytes);
        const std::size_t here = std::min(length, picture.size());
        if (unitHasForbiddenZeros(picture.first(here), false)) {
            return true;
        }
        picture = picture.subspan(here);
    }
    return false;
}

}  // namespace vantor::decode
