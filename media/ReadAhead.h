// Reads and screens the next windows of a sequential reading on threads of its own.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "media/BlockSource.h"
#include "media/SectorRun.h"
#include "media/SectorScreen.h"

namespace vantor {

// Searching a sector costs about half of copying it out of the page cache. Both are done to one window by one
// thread, so that its bytes never travel from one processor to another, and to several windows side by side.
// One owner, who lends a hand where it would wait. The source is asked from several threads at once, and by
// the owner only while the reading is paused.
class ReadAhead {
  public:
    ReadAhead(BlockSource& source, std::size_t windowBytes);
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;
    ~ReadAhead();

    // Begins to read windows from the sector on; only while paused. Without a screen every sector is worth a
    // look.
    void start(std::uint64_t sector, std::shared_ptr<const SectorScreen> screen);

    // Ends after the windows being read and drops what was fetched; the sectors that the medium was asked for
    // in vain meanwhile, without the owner having heard of it: the one that was refused, or, of a window that
    // was refused whole, all of it.
    std::vector<SectorRun> pause();

    // True when the next window to be taken begins at the sector.
    bool isAt(std::uint64_t sector) const { return m_running && m_nextTaken == sector; }
    std::uint64_t nextTaken() const { return m_nextTaken; }  // sector

    // Makes the window that holds the sector the next to be taken, waiting for it where necessary. False, and
    // nothing changes, where it is not among those being read, or one up to it is not full.
    bool goOnTo(std::uint64_t sector);

    struct Window {
        const std::uint8_t* bytes = nullptr;
        std::int64_t length = 0;              // as BlockSource::readAt() returned it
        const std::uint8_t* looks = nullptr;  // one a sector, as SectorScreen sets them; null: look at all
    };

    // The next window, from a sector of it on, waiting for it where necessary; valid until the third take
    // after it, or the next start. After one that is not full the reading has to be paused and started again.
    Window takeFrom(std::uint64_t sector);

  private:
    struct Slot {
        std::uint8_t* bytes = nullptr;
        std::vector<std::uint8_t> looks;
        std::int64_t length = 0;
        bool screened = false;
        bool fetched = false;
    };

    void run();
    void fetchNext(std::unique_lock<std::mutex>& lock);
    bool mayFetch() const { return m_go && m_windowsBegun - m_windowsGivenBack < m_slots.size(); }

    BlockSource& m_source;
    const std::size_t m_windowBytes;
    std::unique_ptr<std::uint8_t[]> m_storage;

    // The owner's alone.
    bool m_running = false;
    std::uint64_t m_nextTaken = 0;  // sector

    std::mutex m_mutex;
    std::condition_variable m_arrived;  // the window waited for is there, or a thread has come to rest
    std::condition_variable m_wanted;   // slots are free, or there is something else to do
    std::vector<Slot> m_slots;          // window n is in slot n % size
    std::shared_ptr<const SectorScreen> m_screen;
    std::uint64_t m_firstSector = 0;
    std::uint64_t m_windowsBegun = 0;
    std::uint64_t m_windowsGivenBack = 0;
    std::uint64_t m_windowsTaken = 0;
    std::size_t m_busy = 0;  // threads that are reading
    bool m_go = false;       // the threads may read
    bool m_quit = false;

    std::vector<std::thread> m_threads;
};

}  // namespace vantor
