// Reads the next windows of a sequential reading on a thread of its own while the last one is looked at.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>

#include "media/BlockSource.h"

namespace vantor {

// Searching a sector costs about as much as copying it out of the page cache; done side by side, the slower
// of the two sets the pace instead of their sum. One owner, which may use the source itself only while the
// reading is paused.
class ReadAhead {
  public:
    ReadAhead(BlockSource& source, std::size_t windowBytes);
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;
    ~ReadAhead();

    // Begins to read windows from the sector on; only while paused.
    void start(std::uint64_t sector);

    // Ends after the window being read and drops what was fetched.
    void pause();

    // True when the next window to be taken begins at the sector.
    bool isAt(std::uint64_t sector) const { return m_running && m_nextTaken == sector; }

    struct Window {
        const std::uint8_t* bytes = nullptr;
        std::int64_t length = 0;  // as BlockSource::readAt() returned it
    };

    // The next window, waiting for it where necessary; valid until the next take or start. After one that is
    // not full nothing more is read, and the reading has to be paused and started again.
    Window take();

  private:
    static constexpr std::size_t kSlots = 4;
    // The thread is woken for this many free slots at once, not for each.
    static constexpr std::size_t kWakeAtFree = 2;

    void run();
    std::uint8_t* slot(std::uint64_t window) const;

    BlockSource& m_source;
    const std::size_t m_windowBytes;
    std::unique_ptr<std::uint8_t[]> m_storage;

    // The owner's alone.
    bool m_running = false;
    std::uint64_t m_nextTaken = 0;  // sector

    std::mutex m_mutex;
    std::condition_variable m_fetched;  // a window is there, or none will follow
    std::condition_variable m_wanted;   // slots are free, or there is something else to do
    std::uint64_t m_nextFetched = 0;    // sector
    std::uint64_t m_windowsFetched = 0;
    std::uint64_t m_windowsGivenBack = 0;
    std::uint64_t m_windowsTaken = 0;
    std::int64_t m_lengths[kSlots] = {};
    bool m_go = false;       // the thread may read
    bool m_reading = false;  // it is doing so
    bool m_quit = false;

    std::thread m_thread;
};

}  // namespace vantor
