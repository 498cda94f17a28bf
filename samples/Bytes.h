// Writing numbers into a file's bytes in the order its format asks for.
#pragma once

#include <QByteArray>
#include <cstdint>

namespace vantor::samples {

// Appends to a byte array; "le" is least significant byte first, "be" most significant first.
class Bytes {
  public:
    Bytes& u8(std::int64_t value) { return le(value, 1); }
    Bytes& le16(std::int64_t value) { return le(value, 2); }
    Bytes& le32(std::int64_t value) { return le(value, 4); }
    Bytes& le64(std::int64_t value) { return le(value, 8); }
    Bytes& be16(std::int64_t value) { return be(value, 2); }
    Bytes& be32(std::int64_t value) { return be(value, 4); }
    Bytes& raw(const QByteArray& bytes) {
        m_bytes.append(bytes);
        return *this;
    }
    Bytes& zeros(qsizetype count) { return raw(QByteArray(count, '\0')); }
    // Text in a field of fixed width, filled up with `fill`.
    Bytes& field(const QByteArray& text, qsizetype width, char fill = '\0') {
        return raw(text.left(width).leftJustified(width, fill));
    }
    // Zeros up to the next multiple of `unit` bytes.
    Bytes& alignTo(qsizetype unit) { return zeros((unit - m_bytes.size() % unit) % unit); }

    qsizetype size() const { return m_bytes.size(); }
    operator QByteArray() const { return m_bytes; }

  private:
    Bytes& le(std::int64_t value, int count) {
        for (int i = 0; i < count; ++i)
            m_bytes.append(static_cast<char>(value >> (8 * i)));
        return *this;
    }
    Bytes& be(std::int64_t value, int count) {
        for (int i = count - 1; i >= 0; --i)
            m_bytes.append(static_cast<char>(value >> (8 * i)));
        return *this;
    }

    QByteArray m_bytes;
};

}  // namespace vantor::samples
