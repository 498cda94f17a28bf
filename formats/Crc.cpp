// Checksums by zlib, and by table where it has none.
#include "formats/Crc.h"

#include <zlib.h>

#include <algorithm>
#include <array>

#include "formats/ByteView.h"

namespace vantor {

namespace {

template <typename Word>
constexpr std::array<Word, 256> plainTable(Word polynomial) {
    constexpr int kBits = sizeof(Word) * 8;
    std::array<Word, 256> table{};
    for (unsigned i = 0; i < 256; ++i) {
        auto c = static_cast<Word>(static_cast<Word>(i) << (kBits - 8));
        for (int bit = 0; bit < 8; ++bit) {
            const bool top = (c >> (kBits - 1) & 1) != 0;
            c = static_cast<Word>(c << 1);
            if (top)
                c = static_cast<Word>(c ^ polynomial);
        }
        table[i] = c;
    }
    return table;
}

constexpr auto kOggTable = plainTable<std::uint32_t>(0x04C11DB7U);
constexpr auto kFlac16 = plainTable<std::uint16_t>(0x8005U);
constexpr auto kFlac8 = plainTable<std::uint8_t>(0x07U);

}  // namespace

std::uint32_t crc32(std::uint32_t crc, std::span<const std::uint8_t> bytes) {
    // zlib takes no bytes at no address for the wish to begin anew.
    return bytes.empty() ? crc : static_cast<std::uint32_t>(::crc32_z(crc, bytes.data(), bytes.size()));
}

std::uint32_t crc32(ByteView& view, std::uint64_t from, std::uint64_t to, bool& complete) {
    std::uint32_t crc = 0;
    while (from < to) {
        const auto bytes = view.window(from);
        if (bytes.empty()) {
            complete = false;
            return crc;
        }
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), to - from));
        crc = crc32(crc, bytes.first(count));
        from += count;
    }
    complete = true;
    return crc;
}

std::uint32_t crcOgg(std::uint32_t crc, std::span<const std::uint8_t> bytes) {
    for (const auto byte : bytes)
        crc = (crc << 8) ^ kOggTable[(crc >> 24 ^ byte) & 0xFF];
    return crc;
}

std::uint16_t crc16(std::uint16_t crc, std::uint8_t byte) {
    return static_cast<std::uint16_t>((crc << 8) ^ kFlac16[(crc >> 8 ^ byte) & 0xFF]);
}

std::uint8_t crc8(std::uint8_t crc, std::uint8_t byte) {
    return kFlac8[(crc ^ byte) & 0xFF];
}

}  // namespace vantor
