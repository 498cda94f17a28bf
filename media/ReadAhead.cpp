// A ring of windows between the reading threads and their owner.
#include "media/ReadAhead.h"

#include <algorithm>
#include <span>
#include <utility>

#include "media/SectorReader.h"

namespace vantor {

namespace {

// The owner fetches too, so that with it every processor has work; more would wait for memory.
constexpr unsigned kMostThreads = 2;
constexpr std::size_t kSlotsPerThread = 4;

std::size_t threadsToUse() {
    return std::clamp(std::thread::hardware_concurrency() - 1, 1U, kMostThreads);
}

// Windows that were taken and stay in place.
constexpr std::uint64_t kKept = 2;

std::size_t slotsToUse() {
    return threadsToUse() * kSlotsPerThread + kKept;
}

}  // namespace

ReadAhead::ReadAhead(BlockSource& source, std::size_t windowBytes)
    : m_source(source),
      m_windowBytes(windowBytes),
      m_storage(new std::uint8_t[slotsToUse() * windowBytes]),
      m_slots(slotsToUse()) {
    for (std::size_t n = 0; n < m_slots.size(); ++n) {
        m_slots[n].bytes = m_storage.get() + n * windowBytes;
        m_slots[n].looks.resize(windowBytes / kSectorBytes);
    }
    for (std::size_t n = 0; n < threadsToUse(); ++n) {
        m_threads.emplace_back([this] { run(); });
    }
}

ReadAhead::~ReadAhead() {
    {
        const std::lock_guard lock(m_mutex);
        m_quit = true;
    }
    m_wanted.notify_all();
    for (std::thread& thread : m_threads) {
        thread.join();
    }
}

void ReadAhead::start(std::uint64_t sector, std::shared_ptr<const SectorScreen> screen) {
    {
        const std::lock_guard lock(m_mutex);
        m_firstSector = sector;
        m_windowsBegun = m_windowsGivenBack = m_windowsTaken = 0;
        for (Slot& slot : m_slots) {
            slot.fetched = false;
        }
        m_screen = std::move(screen);
        m_go = true;
    }
    m_wanted.notify_all();
    m_nextTaken = sector;
    m_running = true;
}

std::vector<SectorRun> ReadAhead::pause() {
    std::vector<SectorRun> refused;
    if (!m_running) {
        return refused;
    }
    m_running = false;
    std::unique_lock lock(m_mutex);
    m_go = false;
    m_arrived.wait(lock, [this] { return m_busy == 0; });
    const std::uint64_t sectors = m_windowBytes / kSectorBytes;
    const std::uint64_t end = m_source.sectors() != 0 ? m_source.sectors() : ~std::uint64_t{0};
    for (std::uint64_t window = m_windowsTaken; window < m_windowsBegun; ++window) {
        const std::int64_t length = m_slots[window % m_slots.size()].length;
        const std::uint64_t first = m_firstSector + window * sectors;
        const std::uint64_t good = length > 0 ? static_cast<std::uint64_t>(length) / kSectorBytes : 0;
        if (good < sectors && first + good < end) {
            refused.push_back({first + good, good == 0 ? std::min(first + sectors, end) : first + good + 1});
        }
    }
    return refused;
}

bool ReadAhead::goOnTo(std::uint64_t sector) {
    if (!m_running || sector < m_nextTaken) {
        return false;
    }
    if (sector == m_nextTaken) {
        return true;
    }
    const std::uint64_t sectors = m_windowBytes / kSectorBytes;
    const std::uint64_t passed = (sector - m_nextTaken) / sectors;
    std::unique_lock lock(m_mutex);
    const std::uint64_t wanted = m_windowsTaken + passed;
    if (wanted >= m_windowsBegun) {
        return false;
    }
    for (std::uint64_t window = m_windowsTaken; window <= wanted; ++window) {
        const Slot& slot = m_slots[window % m_slots.size()];
        m_arrived.wait(lock, [&] { return slot.fetched; });
        if (slot.length != static_cast<std::int64_t>(m_windowBytes)) {
            return false;
        }
    }
    m_windowsTaken = wanted;
    m_nextTaken += passed * sectors;
    return true;
}

ReadAhead::Window ReadAhead::takeFrom(std::uint64_t sector) {
    std::unique_lock lock(m_mutex);
    // The last sector of the window before stays the current one should this window be refused.
    while (m_windowsTaken > m_windowsGivenBack + kKept) {
        m_slots[m_windowsGivenBack % m_slots.size()].fetched = false;
        ++m_windowsGivenBack;
        m_wanted.notify_one();
    }
    // Waiting for another thread costs more than doing its work.
    const Slot& slot = m_slots[m_windowsTaken % m_slots.size()];
    while (!slot.fetched) {
        if (mayFetch()) {
            fetchNext(lock);
        } else {
            m_arrived.wait(lock, [&] { return slot.fetched; });
        }
    }
    const std::uint64_t passed = sector - m_nextTaken;
    ++m_windowsTaken;
    m_nextTaken += m_windowBytes / kSectorBytes;
    return {slot.bytes + passed * kSectorBytes,
            slot.length - static_cast<std::int64_t>(passed * kSectorBytes),
            slot.screened ? slot.looks.data() + passed : nullptr};
}

// Called with the lock held, which is given up while the medium is read.
void ReadAhead::fetchNext(std::unique_lock<std::mutex>& lock) {
    const std::uint64_t window = m_windowsBegun++;
    Slot& slot = m_slots[window % m_slots.size()];
    ++m_busy;
    lock.unlock();
    slot.length = m_source.readAt(m_firstSector + window * (m_windowBytes / kSectorBytes),
                                  std::span(slot.bytes, m_windowBytes));
    slot.screened = m_screen != nullptr;
    if (m_screen && slot.length > 0) {
        m_screen->screen(slot.bytes, static_cast<std::size_t>(slot.length) / kSectorBytes, slot.looks.data());
    }
    lock.lock();
    --m_busy;
    slot.fetched = true;
    if (slot.length != static_cast<std::int64_t>(m_windowBytes)) {
        m_go = false;
    }
}

void ReadAhead::run() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wanted.wait(lock, [this] { return m_quit || mayFetch(); });
        if (m_quit) {
            return;
        }
        fetchNext(lock);
        m_arrived.notify_one();
    }
}

}  // namespace vantor
