// Bits of a coded unit's head, with the bytes that only keep start codes out of it passed over.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vantor {

// Source of the coding: ISO/IEC 14496-10, 7.3.1 and 9.1; 23008-2 alike. Behind the end every bit is 0 and
// ok() false.
class BitReader {
  public:
    explicit BitReader(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    bool ok() const { return m_ok; }

    std::uint32_t bit() {
        if (m_left == 0) {
            load();
        }
        if (!m_ok) {
            return 0;
        }
        --m_left;
        return m_byte >> m_left & 1U;
    }

    // Up to 32.
    std::uint32_t bits(unsigned count) {
        std::uint32_t value = 0;
        for (unsigned i = 0; i < count; ++i) {
            value = value << 1 | bit();
        }
        return value;
    }

    // An unsigned number in Exponential-Golomb coding.
    std::uint32_t golomb() {
        unsigned zeros = 0;
        while (m_ok && bit() == 0) {
            if (++zeros > 31) {
                m_ok = false;
            }
        }
        return m_ok ? (std::uint32_t{1} << zeros) - 1 + bits(zeros) : 0;
    }

  private:
    void load() {
        if (m_zeros >= 2 && m_at < m_bytes.size() && m_bytes[m_at] == 3) {
            ++m_at;
            m_zeros = 0;
        }
        if (m_at >= m_bytes.size()) {
            m_ok = false;
            return;
        }
        m_byte = m_bytes[m_at++];
        m_zeros = m_byte == 0 ? m_zeros + 1 : 0;
        m_left = 8;
    }

    std::span<const std::uint8_t> m_bytes;
    std::size_t m_at = 0;
    unsigned m_zeros = 0;
    unsigned m_left = 0;
    std::uint8_t m_byte = 0;
    bool m_ok = true;
};

}  // namespace vantor
