// The sectors that a medium refused, known to all who read it.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <limits>
#include <mutex>
#include <set>
#include <vector>

#include "media/SectorRun.h"
#include "media/SectorSet.h"

namespace vantor {

// A failing medium may have few reads left, so nobody asks it for what it refused twice already. Any thread.
class RefusedSectors {
  public:
    // Rows of sectors, some 64 bytes each.
    static constexpr std::size_t kMostRuns = std::size_t{1} << 20;

    void add(std::uint64_t sector) {
        const std::lock_guard lock(m_mutex);
        m_sectors.add(sector);
        m_any = true;
    }
    void add(const SectorRun& run) {
        const std::lock_guard lock(m_mutex);
        m_sectors.add(run);
        m_any = true;
    }
    std::vector<SectorRun> runs() const {
        const std::lock_guard lock(m_mutex);
        return m_sectors.all();
    }
    bool contains(std::uint64_t sector) const { return firstFrom(sector) == sector; }
    // The first of them at or behind the sector; the largest number there is when none follows.
    std::uint64_t firstFrom(std::uint64_t sector) const {
        if (!m_any) {
            return std::numeric_limits<std::uint64_t>::max();
        }
        const std::lock_guard lock(m_mutex);
        return m_sectors.firstFrom(sector);
    }
    bool isEmpty() const { return !m_any; }

    // A reader's turn to ask for a sector alone: whoever wants the same one meanwhile waits for the answer,
    // so that two who read the same place do not both ask twice. Not for ever: the one whose turn it is may
    // hang, and the others have their own ways to give up.
    class Turn {
      public:
        Turn(RefusedSectors& refused, std::uint64_t sector) : m_refused(refused), m_sector(sector) {
            std::unique_lock lock(refused.m_mutex);
            ++refused.m_waiting;
            m_mine = refused.m_turnEnds.wait_for(lock, kMostWaiting, [&] {
                return !refused.m_asked.contains(sector);
            }) && refused.m_asked.insert(sector).second;
            --refused.m_waiting;
        }
        ~Turn() {
            if (m_mine) {
                const std::lock_guard lock(m_refused.m_mutex);
                m_refused.m_asked.erase(m_sector);
                m_refused.m_turnEnds.notify_all();
            }
        }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

      private:
        static constexpr std::chrono::seconds kMostWaiting{5};

        RefusedSectors& m_refused;
        const std::uint64_t m_sector;
        bool m_mine = false;
    };
    // How many wait for another's answer.
    std::size_t waiting() const {
        const std::lock_guard lock(m_mutex);
        return m_waiting;
    }

    // Every sector may be asked for again.
    void forget() {
        const std::lock_guard lock(m_mutex);
        m_sectors = SectorSet(kMostRuns);
        m_any = false;
    }

  private:
    mutable std::mutex m_mutex;
    SectorSet m_sectors{kMostRuns};
    std::set<std::uint64_t> m_asked;  // those whose turn has begun, one a reader at most
    std::condition_variable m_turnEnds;
    std::size_t m_waiting = 0;
    std::atomic<bool> m_any{false};
};

}  // namespace vantor
