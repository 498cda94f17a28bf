// A file inside a file, for the walk of its own format.
#pragma once

#include <algorithm>

#include "formats/ByteView.h"

namespace vantor {

// Bytes [from, to) of a view, which it borrows, as far as there are any.
class PartOfView final : public ByteSource {
  public:
    PartOfView(ByteView& view, std::uint64_t from, std::uint64_t to)
        : m_view(view), m_from(from), m_to(std::max(from, std::min(to, view.size()))) {}

    std::uint64_t size() const override { return m_to - m_from; }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override {
        const std::uint64_t left = size() - std::min(offset, size());
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(into.size(), left));
        return m_view.copy(m_from + offset, into.first(count)) ? count : 0;
    }

  private:
    ByteView& m_view;
    const std::uint64_t m_from;
    const std::uint64_t m_to;
};

}  // namespace vantor
