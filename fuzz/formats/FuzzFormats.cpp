// Hands an input to each format of the group that the harness is built for, and holds the walk to its
// promises.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "formats/Registry.h"

namespace vantor::fuzz {

namespace {

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

void walkAs(const Format& format, std::span<const std::uint8_t> data) {
    constexpr std::uint64_t kAllowance = 32 * 1024 * 1024;
    CountingSource source(data);
    ByteView view(source);
    const Extent extent = walkAs(format, view);
    const bool bounded = extent.end <= data.size() && source.bytesRead() <= 3 * data.size() + kAllowance;
    if (extent.checked && (extent.verdict != Verdict::Complete || !extent.exactEnd))
        std::abort();
    // Frames may miss behind a tag.
    if (!bounded || (extent.verdict == Verdict::Unknown && extent.end != 0 && !format.frameStream))
        std::abort();
}

}  // namespace

}  // namespace vantor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const vantor::Format* format : vantor::allFormats()) {
        if (format->group == vantor::Group::VANTOR_FUZZ_GROUP)
            vantor::fuzz::walkAs(*format, {data, size});
    }
    return 0;
}
