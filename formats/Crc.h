// The checksums by which several formats prove their own soundness.
#pragma once

#include <cstdint>
#include <span>

namespace vantor {

class ByteView;

// CRC-32 as ZIP, gzip, PNG and others use it (reflected 0x04C11DB7); `crc` is the result so far, 0 to begin.
std::uint32_t crc32(std::uint32_t crc, std::span<const std::uint8_t> bytes);
// The same over [from, to) of a view; `complete` turns false when not all of it could be read.
std::uint32_t crc32(ByteView& view, std::uint64_t from, std::uint64_t to, bool& complete);

// CRC-32 of Ogg pages: 0x04C11DB7, not reflected, starting at 0.
std::uint32_t crcOgg(std::uint32_t crc, std::span<const std::uint8_t> bytes);
// CRC-16 (0x8005, not reflected, from 0) of FLAC and AC-3 frames, CRC-8 (0x07) of FLAC frame headers.
std::uint16_t crc16(std::uint16_t crc, std::uint8_t byte);
std::uint8_t crc8(std::uint8_t crc, std::uint8_t byte);

}  // namespace vantor
