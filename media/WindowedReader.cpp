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

WindowedReader::WindowedReader(std::unique_ptr<BlockSource> source, Fetching fetching)
    : m_source(std::move(source)),
      m_storage(new std::uint8_t[2 * kWindowBytes + kAlignment]),
      m_front(alignUp(m_storage.get())),
      m_back(m_front + kWindowBytes) {
    // On a single processor two threads would only take turns.
    if (fetching == Fetching::Ahead && std::thread::hardware_concurrency() > 1) {
        m_ahead = std::make_unique<ReadAhead>(*m_source, kWindowBytes);
    }
}

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
    return wanted != 0 && fetchWindow(wanted);
}

bool WindowedReader::fetchWindow(std::size_t wanted) {
    ReadAhead::Window window;
    if (m_ahead && m_ahead->isAt(position())) {
        window = m_ahead->take();
    } else {
        stopReadingAhead();
        window = {m_back, m_source->readAt(position(), {m_back, wanted * kSectorBytes}), nullptr};
    }
    const auto sectors = window.length < 0 ? 0 : static_cast<std::size_t>(window.length) / kSectorBytes;
    if (sectors < wanted) {
        m_windowWasFirstAttempt = true;
        goSingle(position() + sectors);
    }
    if (sectors == 0) {
        return fetchSingle();
    }
    if (window.bytes == m_back) {
        std::swap(m_front, m_back);
    }
    // One window alone is read by many a copy; the second in a row is the sign of a scan. Refusals end the
    // reading ahead, which knows nothing of them.
    const bool sequential = std::exchange(m_windowEnd, position() + sectors) == position();
    if (m_ahead && sequential && sectors == kWindowSectors && m_refused.runs() == 0 &&
        !m_ahead->isAt(m_windowEnd)) {
        stopReadingAhead();
        m_ahead->start(m_windowEnd, m_screen);
    }
    handOver(window.bytes, sectors, window.looks);
    return true;
}

bool WindowedReader::fetchSingle() {
    stopReadingAhead();
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

void WindowedReader::setScreen(std::shared_ptr<const SectorScreen> screen) {
    stopReadingAhead();
    m_screen = std::move(screen);
}

void WindowedReader::stopReadingAhead() {
    if (m_ahead) {
        m_ahead->pause();
    }
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
    stopReadingAhead();
    return !noteWhetherGone();
}

}  // namespace vantor
