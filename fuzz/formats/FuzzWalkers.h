// What every harness does with an input: hands it to each walker of a group and holds the walker to its
// promises.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <span>
#include <string_view>

#include "formats/Registry.h"

namespace vantor::fuzz {

// Memory that counts what is read of it.
class CountingSource final : public ByteSource {
  public:
    explicit CountingSource(std::span<const std::uint8_t> bytes) : m_source(bytes), m_size(bytes.size()) {}

    std::uint64_t size() const override { return m_size; }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override {
        const auto count = m_source.read(offset, into);
        m_bytesRead += count;
        return count;
    }
    std::uint64_t bytesRead() const { return m_bytesRead; }

  private:
    SpanSource m_source;
    std::uint64_t m_size;
    std::uint64_t m_bytesRead = 0;
};

inline int walkWith(std::initializer_list<std::string_view> extensions, const std::uint8_t* data,
                    std::size_t size) {
    constexpr std::uint64_t kAllowance = 32 * 1024 * 1024;
    for (const auto extension : extensions) {
        const Walker* walker = walkerFor(extension);
        if (walker == nullptr)
            std::abort();
        CountingSource source({data, size});
        ByteView view(source);
        const Extent extent = walker->walk(view);
        const bool bounded = extent.end <= size && source.bytesRead() <= 3 * size + kAllowance;
        if (!bounded || (extent.verdict == Verdict::Unknown && extent.end != 0))
            std::abort();
    }
    return 0;
}

}  // namespace vantor::fuzz
