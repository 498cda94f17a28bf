// How large a picture may claim to be, whichever library decodes it.
#pragma once

#include <cstdint>

namespace vantor::decode {

// No camera's pictures are larger, those of phones with 200 megapixels included; in four bytes a pixel two
// of them fit the memory that a helper may have.
constexpr std::uint64_t kMostPictureSide = 65535;
constexpr std::uint64_t kMostPicturePixels = std::uint64_t{220} * 1000 * 1000;
// Of movies, whose decoders hold several frames at a time.
constexpr std::uint64_t kMostFramePixels = std::uint64_t{150} * 1000 * 1000;

constexpr bool isReasonableSize(std::uint64_t width, std::uint64_t height) {
    return width > 0 && height > 0 && width <= kMostPictureSide && height <= kMostPictureSide &&
           width * height <= kMostPicturePixels;
}

}  // namespace vantor::decode
