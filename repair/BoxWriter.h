// Writes boxes of the ISO base media family, one within the other.
#pragma once

#include <QByteArray>
#include <cstdint>

namespace vantor {

// Numbers are written with their highest byte first. Source: ISO/IEC 14496-12, 4.2.
class BoxWriter {
  public:
    // An open box; its size is filled in when it goes.
    class Box {
      public:
        Box(BoxWriter& out, const char* name) : m_out(out), m_at(out.m_bytes.size()) {
            out.u32(0).bytes(QByteArrayView(name, 4));
        }
        Box(const Box&) = delete;
        Box& operator=(const Box&) = delete;
        ~Box() { m_out.put(m_at, static_cast<std::uint32_t>(m_out.m_bytes.size() - m_at)); }

      private:
        BoxWriter& m_out;
        const qsizetype m_at;
    };

    // `name` has four letters.
    [[nodiscard]] Box box(const char* name) { return Box(*this, name); }

    BoxWriter& u16(std::uint16_t value) { return number(value, 2); }
    BoxWriter& u32(std::uint32_t value) { return number(value, 4); }
    BoxWriter& u64(std::uint64_t value) { return number(value, 8); }
    BoxWriter& bytes(QByteArrayView bytes) {
        m_bytes.append(bytes);
        return *this;
    }

    // A 32-bit number that count() makes one larger.
    struct Counter {
        qsizetype at = 0;
        std::uint32_t value = 0;
    };
    Counter counter() {
        u32(0);
        return {m_bytes.size() - 4, 0};
    }
    void count(Counter& counter) { put(counter.at, ++counter.value); }

    QByteArray taken() { return std::move(m_bytes); }

  private:
    BoxWriter& number(std::uint64_t value, int bytes) {
        for (int i = bytes - 1; i >= 0; --i) {
            m_bytes.append(static_cast<char>(value >> 8 * i));
        }
        return *this;
    }
    void put(qsizetype at, std::uint32_t value) {
        for (int i = 0; i < 4; ++i) {
            m_bytes[at + i] = static_cast<char>(value >> 8 * (3 - i));
        }
    }

    QByteArray m_bytes;
};

}  // namespace vantor
