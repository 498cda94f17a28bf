// The window logic: big reads on good ground, single sectors around a failure.
#include "media/WindowedReader.h"

#include <algorithm>
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
    if (m_gone) {
        return false;
    }
    if (position() < m_singleUntil) {
        return fetchSingle();
    }
    m_windowWasFirstAttempt = false;
    const auto wanted = static_cast<std::size_t>(
        std::min<std::uint64_t>(kWindowSectors, m_refused.firstFrom(position()) - position()));
    if (wanted == 0) {
        return false;
    }
    const std::int64_t bytes = m_source->readAt(position(), {m_back, wanted * kSectorBytes});
    const auto sectors = bytes < 0 ? 0 : static_cast<std::size_t>(bytes) / kSectorBytes;
    if (sectors < wanted) {
        m_windowWasFirstAttempt = true;
        goSingle(position() + sectors);
    }
    if (sectors == 0) {
        return fetchSingle();
    }
    std::swap(m_front, m_back);
    handOver(m_front, sectors);
    return true;
}

bool WindowedReader::fetchSingle() {
    if (m_refused.contains(position()) || noteWhetherGone()) {
        return false;
    }
    if (!readSingle()) {
        const bool secondAttempt = std::exchange(m_windowWasFirstAttempt, false);
        if (secondAttempt || noteWhetherGone() || !readSingle()) {
            m_refused.add(position());
            goSingle(position());
            return false;
        }
    }
    std::swap(m_front, m_back);
    handOver(m_front, 1);
    return true;
}

bool WindowedReader::readSingle() {
    return m_source->readAt(position(), {m_back, kSectorBytes}) == static_cast<std::int64_t>(kSectorBytes);
}

void WindowedReader::goSingle(std::uint64_t from) {
    m_singleUntil = std::max(m_singleUntil, from + kWindowSectors);
}

// Millions of reads and seeks may follow; none of them needs to go further than the flag.
bool WindowedReader::noteWhetherGone() {
    m_gone = m_gone || !m_source->usable();
    return m_gone;
}

bool WindowedReader::moveTo(std::uint64_t) {
    return !noteWhetherGone();
}

}  // namespace vantor
