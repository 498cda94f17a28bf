// Reading from memory through the same seam as from a medium.
#include "formats/ByteSource.h"

#include <algorithm>

namespace vantor {

std::size_t SpanSource::read(std::uint64_t offset, std::span<std::uint8_t> into) {
    if (offset >= m_bytes.size())
        return 0;
    const auto count = std::min<std::uint64_t>(into.size(), m_bytes.size() - offset);
    std::copy_n(m_bytes.begin() + static_cast<std::ptrdiff_t>(offset), count, into.begin());
    return static_cast<std::size_t>(count);
}

}  // namespace vantor
