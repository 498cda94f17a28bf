// Bits of a JPEG scan. Source: ITU-T T.81, annex F.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

#include "formats/ByteView.h"

namespace vantor {

// Bits of entropy-coded bytes, most significant first, without the stuffed zeros; ones behind a marker.
class JpegBits {
  public:
    JpegBits(ByteView& view, std::uint64_t at, std::uint64_t end) : m_view(view), m_at(at), m_end(end) {}

    // The next 16 bits.
    std::uint32_t peek() {
        if (m_count < 16)
            fill();
        return static_cast<std::uint32_t>(m_bits >> (m_count - 16)) & 0xFFFF;
    }
    // The next `bits` bits, up to 16, as a number.
    std::uint32_t take(unsigned bits) {
        const auto taken = peek() >> (16 - bits);
        skip(bits);
        return taken;
    }
    void skip(unsigned bits) {
        if (m_count < bits)
            fill();
        m_count -= bits;
    }
    // Whether more bits were used than there are.
    bool overrun() const { return m_padding > m_count; }
    // Goes behind the restart marker that should stand here.
    bool restart() {
        if (m_count < 16)
            fill();
        if (overrun() || m_count - m_padding >= 8 || !m_atMarker)
            return false;
        m_at += 2;
        m_bits = 0;
        m_count = m_padding = 0;
        m_atMarker = false;
        m_window = {};
        return true;
    }
    std::uint64_t bytesLeft() const {
        return m_end - std::min(m_at, m_end) + (m_count - std::min(m_padding, m_count)) / 8;
    }

  private:
    void fill() {
        while (m_count <= 48) {
            std::uint64_t byte = 0xFF;
            if (!m_atMarker)
                byte = next();
            if (m_atMarker)
                m_padding += 8;
            m_bits = m_bits << 8 | byte;
            m_count += 8;
        }
    }
    std::uint64_t next() {
        for (;;) {
            const std::uint64_t byte = peekByte(0);
            if (m_atMarker)
                return 0xFF;
            if (byte != 0xFF) {
                advance(1);
                return byte;
            }
            const std::uint64_t second = peekByte(1);
            if (second == 0) {
                advance(2);
                return 0xFF;
            }
            if (second != 0xFF || m_atMarker) {
                m_atMarker = true;
                return 0xFF;
            }
            advance(1);  // a fill byte
        }
    }
    // The byte so far ahead; a marker where the scan ends.
    std::uint64_t peekByte(std::uint64_t ahead) {
        if (m_at + ahead >= m_end) {
            m_atMarker = true;
            return 0xFF;
        }
        if (m_window.size() <= ahead)
            m_window = m_view.window(m_at, static_cast<std::size_t>(ahead) + 1);
        if (m_window.size() <= ahead) {
            m_atMarker = true;
            return 0xFF;
        }
        return m_window[static_cast<std::size_t>(ahead)];
    }
    void advance(std::size_t bytes) {
        m_at += bytes;
        m_window = m_window.subspan(std::min(bytes, m_window.size()));
    }

    ByteView& m_view;
    std::uint64_t m_at;
    const std::uint64_t m_end;
    std::span<const std::uint8_t> m_window;
    std::uint64_t m_bits = 0;
    unsigned m_count = 0;    // valid bits
    unsigned m_padding = 0;  // of them behind the marker
    bool m_atMarker = false;
};

}  // namespace vantor
