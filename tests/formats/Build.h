// Putting together small files of every format, field by field.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vantor::test {

using Bytes = std::vector<std::uint8_t>;

// Text with its zeros.
constexpr std::string_view operator""_b(const char* text, std::size_t length) {
    return {text, length};
}

class Build {
  public:
    Build& text(std::string_view value) {
        m_bytes.insert(m_bytes.end(), value.begin(), value.end());
        return *this;
    }
    Build& add(const Bytes& value) {
        m_bytes.insert(m_bytes.end(), value.begin(), value.end());
        return *this;
    }
    Build& fill(std::size_t count, std::uint8_t value = 0) {
        m_bytes.insert(m_bytes.end(), count, value);
        return *this;
    }
    Build& u8(std::uint64_t value) { return big(value, 1); }
    Build& be16(std::uint64_t value) { return big(value, 2); }
    Build& be24(std::uint64_t value) { return big(value, 3); }
    Build& be32(std::uint64_t value) { return big(value, 4); }
    Build& be64(std::uint64_t value) { return big(value, 8); }
    Build& le16(std::uint64_t value) { return little(value, 2); }
    Build& le32(std::uint64_t value) { return little(value, 4); }
    Build& le64(std::uint64_t value) { return little(value, 8); }
    // Grows with zeros to `size`.
    Build& to(std::size_t size) {
        m_bytes.resize(size > m_bytes.size() ? size : m_bytes.size());
        return *this;
    }
    // Overwrites from `at`.
    Build& put(std::size_t at, const Bytes& value) {
        to(at + value.size());
        std::copy(value.begin(), value.end(), m_bytes.begin() + static_cast<std::ptrdiff_t>(at));
        return *this;
    }

    std::size_t size() const { return m_bytes.size(); }
    const Bytes& bytes() const { return m_bytes; }
    operator Bytes() const { return m_bytes; }

  private:
    Build& big(std::uint64_t value, int count) {
        for (int i = count - 1; i >= 0; --i)
            m_bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
        return *this;
    }
    Build& little(std::uint64_t value, int count) {
        for (int i = 0; i < count; ++i)
            m_bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
        return *this;
    }

    Bytes m_bytes;
};

}  // namespace vantor::test
