// The sectors that a medium refused, known to all who read it.
#pragma once

#include <atomic>
#include <cstdint>
#include <limits>
#include <mutex>
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
    // Every sector may be asked for again.
    void forget() {
        const std::lock_guard lock(m_mutex);
        m_sectors = SectorSet(kMostRuns);
        m_any = false;
    }

  private:
    mutable std::mutex m_mutex;
    SectorSet m_sectors{kMostRuns};
    std::atomic<bool> m_any{false};
};

}  // namespace vantor
