// Building of the decoding table from code lengths. Source: RFC 1951, 3.2.2.
#include "formats/Huffman.h"

#include <algorithm>

namespace vantor {

bool Huffman::build(std::span<const std::uint8_t> lengths) {
    std::array<unsigned, kMostCodeBits + 1> count{};
    for (const auto length : lengths)
        ++count[length];
    count[0] = 0;
    m_bits = 1;
    int left = 1;
    unsigned codes = 0;
    for (unsigned bits = 1; bits <= kMostCodeBits; ++bits) {
        left = left * 2 - static_cast<int>(count[bits]);
        if (left < 0)
            return false;
        codes += count[bits];
        if (count[bits] != 0)
            m_bits = bits;
    }
    if (left > 0 && codes > 1)
        return false;
    std::array<unsigned, kMostCodeBits + 2> next{};
    for (unsigned bits = 1; bits <= kMostCodeBits; ++bits)
        next[bits + 1] = (next[bits] + count[bits]) << 1;
    std::fill_n(m_table.begin(), std::size_t{1} << m_bits, std::uint16_t{0});
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
        const unsigned length = lengths[symbol];
        if (length == 0)
            continue;
        const unsigned code = next[length]++;
        unsigned reversed = 0;
        for (unsigned bit = 0; bit < length; ++bit)
            reversed |= (code >> bit & 1) << (length - 1 - bit);
        for (unsigned slot = reversed; slot < (1U << m_bits); slot += 1U << length)
            m_table[slot] = static_cast<std::uint16_t>(length << 9 | symbol);
    }
    return true;
}

}  // namespace vantor
