// Writing fields of single bits, in either of the two orders that formats use.
#pragma once

#include <QByteArray>
#include <cstdint>

namespace vantor::samples {

// The first bit written is the highest of its byte (JPEG, H.264, FLAC).
class HighBitFirst {
  public:
    void put(std::uint32_t value, int bits) {
        for (int i = bits - 1; i >= 0; --i)
            putBit((value >> i) & 1);
    }
    void putBit(std::uint32_t bit) {
        m_last = static_cast<std::uint8_t>((m_last << 1) | bit);
        if (++m_count == 8)
            flushByte();
    }
    // Fills the last byte up with the given bit.
    void align(std::uint32_t bit) {
        while (m_count != 0)
            putBit(bit);
    }
    QByteArray& bytes() { return m_bytes; }

  private:
    void flushByte() {
        m_bytes.append(static_cast<char>(m_last));
        m_last = 0;
        m_count = 0;
    }

    QByteArray m_bytes;
    std::uint8_t m_last = 0;
    int m_count = 0;
};

// The first bit written is the lowest of its byte (deflate, GIF, WebP).
class LowBitFirst {
  public:
    void put(std::uint32_t value, int bits) {
        m_pending |= static_cast<std::uint64_t>(value) << m_count;
        m_count += bits;
        while (m_count >= 8) {
            m_bytes.append(static_cast<char>(m_pending));
            m_pending >>= 8;
            m_count -= 8;
        }
    }
    // Huffman codes of deflate come with their highest bit first.
    void putReversed(std::uint32_t code, int bits) {
        std::uint32_t turned = 0;
        for (int i = 0; i < bits; ++i)
            turned |= ((code >> i) & 1) << (bits - 1 - i);
        put(turned, bits);
    }
    void align() {
        if (m_count > 0)
            put(0, 8 - m_count);
    }
    QByteArray& bytes() { return m_bytes; }

  private:
    QByteArray m_bytes;
    std::uint64_t m_pending = 0;
    int m_count = 0;
};

}  // namespace vantor::samples
