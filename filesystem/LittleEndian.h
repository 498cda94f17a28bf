// Numbers as FAT, exFAT and NTFS store them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vantor {

// The number of `bytes` bytes at `at`, lowest first; 0 where they are not all there.
constexpr std::uint64_t littleEndian(std::span<const std::uint8_t> from, std::size_t at, std::size_t bytes) {
    if (at > from.size() || bytes > from.size() - at) {
        return 0;
    }
    std::uint64_t number = 0;
    for (std::size_t i = bytes; i-- > 0;) {
        number = number << 8 | from[at + i];
    }
    return number;
}

constexpr std::uint16_t le16(std::span<const std::uint8_t> from, std::size_t at) {
    return static_cast<std::uint16_t>(littleEndian(from, at, 2));
}
constexpr std::uint32_t le32(std::span<const std::uint8_t> from, std::size_t at) {
    return static_cast<std::uint32_t>(littleEndian(from, at, 4));
}
constexpr std::uint64_t le64(std::span<const std::uint8_t> from, std::size_t at) {
    return littleEndian(from, at, 8);
}

}  // namespace vantor
