// The checksums that the card's file formats carry.
#pragma once

#include <QByteArray>
#include <cstdint>

namespace vantor::samples {

// CRC-32 of ISO 3309, as in PNG, ZIP, GZIP, XZ and 7z.
std::uint32_t crc32(const QByteArray& bytes);
// Adler-32 of RFC 1950.
std::uint32_t adler32(const QByteArray& bytes);
// A CRC of up to 32 bits with the highest bit first and no reflection, as in FLAC, Ogg and transport streams.
std::uint32_t plainCrc(const QByteArray& bytes, int bits, std::uint32_t polynomial, std::uint32_t start);

}  // namespace vantor::samples
