// A file inside a file, for the walk of its own format.
#pragma once

#include <algorithm>

#include "formats/ByteView.h"

namespace vantor {

// Bytes [at, at + bytes) of a view, which it borrows.
class PartOfView final : public ByteSource {
  public:
    PartOfView(ByteView& view, std::uint64_t at, std::uint64_t bytes)
        : m_view(view), m_at(at), m_bytes(view.holds(at, bytes) ? bytes : 0) {}

    std::uint64_t size() const override { return m_bytes; }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override {
        const auto wanted = std::min<std::uint64_t>(into.size(), m_bytes - std::min(offset, m_bytes));
        const auto piece = into.first(static_cast<std::size_t>(wanted));
        return m_view.copy(m_at + offset, piece) ? piece.size() : 0;
    }

  private:
    ByteView& m_view;
    const std::uint64_t m_at;
    const std::uint64_t m_bytes;
};

}  // namespace vantor
