// The window logic: big reads on good ground, single sectors around a failure.
#include "media/WindowedReader.h"

#include <cstdint>
#include <utility>

namespace vantor {

namespace {

constexpr std::size_t kWindowBytes = WindowedReader::kWindowSectors * kSectorBytes;
// Unbuffered descriptors ask for aligned memory; a page satisfies all of them.
constexpr std::size_t kAlignment = 4096;

std::uint8_t* alignUp(std::uint8_t* p) {
    const auto address = reinterpret_cast<std::uintptr_t>(p);
    return p + (kAlignment - address % kAlignment) % kAlignment;
}

}  // namespace

WindowedReader::WindowedReader(std::unique_ptr<BlockSource> source)
    : m_source(std::move(source)),
      m_storage(new std::uint8_t[2 * kWindowBytes + kAlignment]),
      m_front(alignUp(m_storage.get())),
      m_back(m_front + kWindowBytes) {}

WindowedReader::~WindowedReader() = default;

bool WindowedReader::fetch() {
    if (position() < m_singleUntil) {
        return fetchSingle();
    }
    const std::int64_t bytes = m_source->readAt(position(), {m_back, kWindowBytes});
    const auto sectors = bytes < 0 ? 0 : static_cast<std::size_t>(bytes) / kSectorBytes;
    if (sectors == 0) {
        m_singleUntil = position() + kWindowSectors;
        return fetchSingle();
    }
    if (sectors < kWindowSectors) {
        m_singleUntil = position() + kWindowSectors;
    }
    std::swap(m_front, m_back);
    handOver(m_front, sectors);
    return true;
}

bool WindowedReader::fetchSingle() {
    const std::int64_t bytes = m_source->readAt(position(), {m_back, kSectorBytes});
    if (bytes != static_cast<std::int64_t>(kSectorBytes)) {
        return false;
    }
    std::swap(m_front, m_back);
    handOver(m_front, 1);
    return true;
}

bool WindowedReader::moveTo(std::uint64_t) {
    return m_source->usable();
}

}  // namespace vantor
