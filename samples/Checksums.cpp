// Checksums computed bit by bit or by one table: the card is small, exactness is all that counts.
#include "samples/Checksums.h"

#include <array>

namespace vantor::samples {

namespace {

constexpr std::array<std::uint32_t, 256> makeTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t crc = i;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) ? (crc >> 1) ^ 0xEDB88320u : crc >> 1;
        table[i] = crc;
    }
    return table;
}

constexpr std::array<std::uint32_t, 256> kCrcTable = makeTable();

}  // namespace

std::uint32_t crc32(const QByteArray& bytes) {
    std::uint32_t crc = 0xFFFFFFFFu;
    for (const char c : bytes)
        crc = (crc >> 8) ^ kCrcTable[(crc ^ static_cast<std::uint8_t>(c)) & 0xFF];
    return ~crc;
}

std::uint32_t adler32(const QByteArray& bytes) {
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const char c : bytes) {
        a = (a + static_cast<std::uint8_t>(c)) % 65521;
        b = (b + a) % 65521;
    }
    return (b << 16) | a;
}

std::uint32_t plainCrc(const QByteArray& bytes, int bits, std::uint32_t polynomial, std::uint32_t start) {
    const std::uint64_t top = std::uint64_t{1} << (bits - 1);
    const std::uint64_t mask = (top << 1) - 1;
    std::uint64_t crc = start;
    for (const char c : bytes) {
        crc ^= static_cast<std::uint64_t>(static_cast<std::uint8_t>(c)) << (bits - 8);
        for (int bit = 0; bit < 8; ++bit)
            crc = ((crc & top) ? (crc << 1) ^ polynomial : crc << 1) & mask;
    }
    return static_cast<std::uint32_t>(crc);
}

}  // namespace vantor::samples
