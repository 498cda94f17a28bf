// The seam between the format walkers and whatever holds the bytes: a medium, an image file, memory.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace vantor {

// Random access to the bytes of one presumed file, counted from its first byte. Used by one thread at a time.
class ByteSource {
  public:
    virtual ~ByteSource() = default;

    // Bytes from the file's first byte to the end of the medium; constant.
    virtual std::uint64_t size() const = 0;

    // Copies bytes [offset, offset + into.size()) and returns how many arrived. Fewer than asked means that
    // the end of the medium or an unreadable place comes next; walkers treat both alike, as the end of the
    // view.
    virtual std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) = 0;

    // The bytes from the offset on that lie in memory already, and may be looked at there instead of being
    // copied; perhaps none. They stay there as long as the source does.
    virtual std::span<const std::uint8_t> atHand(std::uint64_t) { return {}; }
};

// Bytes that already lie in memory; borrows them.
class SpanSource final : public ByteSource {
  public:
    explicit SpanSource(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    std::uint64_t size() const override { return m_bytes.size(); }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override;
    std::span<const std::uint8_t> atHand(std::uint64_t offset) override {
        return m_bytes.subspan(static_cast<std::size_t>(std::min<std::uint64_t>(offset, m_bytes.size())));
    }

  private:
    std::span<const std::uint8_t> m_bytes;
};

}  // namespace vantor
