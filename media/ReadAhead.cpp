// A ring of windows between the reading thread and its owner.
#include "media/ReadAhead.h"

#include <span>

#include "media/SectorReader.h"

namespace vantor {

ReadAhead::ReadAhead(BlockSource& source, std::size_t windowBytes)
    : m_source(source),
      m_windowBytes(windowBytes),
      m_storage(new std::uint8_t[kSlots * windowBytes]),
      m_thread([this] { run(); }) {}

ReadAhead::~ReadAhead() {
    {
        const std::lock_guard lock(m_mutex);
        m_quit = true;
    }
    m_wanted.notify_one();
    m_thread.join();
}

std::uint8_t* ReadAhead::slot(std::uint64_t window) const {
    return m_storage.get() + window % kSlots * m_windowBytes;
}

void ReadAhead::start(std::uint64_t sector) {
    {
        const std::lock_guard lock(m_mutex);
        m_nextFetched = sector;
        m_windowsFetched = m_windowsGivenBack = m_windowsTaken = 0;
        m_go = true;
    }
    m_wanted.notify_one();
    m_nextTaken = sector;
    m_running = true;
}

void ReadAhead::pause() {
    if (!m_running) {
        return;
    }
    m_running = false;
    std::unique_lock lock(m_mutex);
    m_go = false;
    m_fetched.wait(lock, [this] { return !m_reading; });
}

ReadAhead::Window ReadAhead::take() {
    std::unique_lock lock(m_mutex);
    m_windowsGivenBack = m_windowsTaken;
    if (kSlots - (m_windowsFetched - m_windowsGivenBack) >= kWakeAtFree) {
        m_wanted.notify_one();
    }
    m_fetched.wait(lock, [this] { return m_windowsFetched > m_windowsTaken; });
    const Window window{slot(m_windowsTaken), m_lengths[m_windowsTaken % kSlots]};
    ++m_windowsTaken;
    m_nextTaken += m_windowBytes / kSectorBytes;
    return window;
}

void ReadAhead::run() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wanted.wait(lock,
                      [this] { return m_quit || (m_go && m_windowsFetched - m_windowsGivenBack < kSlots); });
        if (m_quit) {
            return;
        }
        const std::span<std::uint8_t> into(slot(m_windowsFetched), m_windowBytes);
        const std::uint64_t sector = m_nextFetched;
        m_reading = true;
        lock.unlock();
        const std::int64_t length = m_source.readAt(sector, into);
        lock.lock();
        m_reading = false;
        m_lengths[m_windowsFetched % kSlots] = length;
        ++m_windowsFetched;
        m_nextFetched += m_windowBytes / kSectorBytes;
        if (length != static_cast<std::int64_t>(m_windowBytes)) {
            m_go = false;
        }
        m_fetched.notify_one();
    }
}

}  // namespace vantor
