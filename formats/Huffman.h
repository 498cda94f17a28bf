// Prefix codes of deflate streams, decoded by table.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace vantor {

constexpr unsigned kMostCodeBits = 15;

// Codes to symbols through one table indexed by the next `bits` bits of input.
class Huffman {
  public:
    // False when the lengths are no prefix code. A single code of one bit is allowed to be incomplete.
    bool build(std::span<const std::uint8_t> lengths);

    unsigned bits() const { return m_bits; }
    // Symbol and length of the code that `input` begins with; length 0 = none.
    unsigned symbol(unsigned input) const { return m_table[input] & 0x1FF; }
    unsigned length(unsigned input) const { return m_table[input] >> 9; }

  private:
    unsigned m_bits = 1;
    std::array<std::uint16_t, 1 << kMostCodeBits> m_table{};
};

}  // namespace vantor
