// How large a picture may claim to be, whichever library decodes it.
#pragma once

#include <cstdint>

namespace vantor::decode {

// No camera's pictures are larger, and a few at a time still fit the memory.
constexpr std::uint64_t kMostPictureSide = 65535;
constexpr std::uint64_t kMostPicturePixels = std::uint64_t{150} * 1000 * 1000;

constexpr bool isReasonableSize(std::uint64_t width, std::uint64_t height) {
    return width > 0 && height > 0 && width <= kMostPictureSide && height <= kMostPictureSide &&
           width * height <= kMostPicturePixels;
}

}  // namespace vantor::decode
