// A medium whose reads somebody counts and may end from another thread.
#pragma once

#include <atomic>
#include <cstdint>
#include <limits>

#include "media/SectorReader.h"

namespace vantor {

// Shared between the reading thread and whoever watches it.
struct ReadWatch {
    std::atomic<std::uint64_t> sectorsRead{0};
    std::atomic<std::uint64_t> sectorsRefused{0};  // by the medium
    std::atomic<bool> ended{false};                // every read from now on is refused
};

// Reads a borrowed medium; both outlive it. After `most` reads everything is refused, as after `ended`.
class WatchedReader final : public SectorReader {
  public:
    WatchedReader(SectorReader& medium, ReadWatch& watch,
                  std::uint64_t most = std::numeric_limits<std::uint64_t>::max())
        : m_medium(medium), m_watch(watch), m_left(most) {}

    std::uint64_t mediumSectors() const override { return m_medium.mediumSectors(); }
    bool isGone() override { return m_medium.isGone(); }
    // True when reads were refused that the medium was not asked for.
    bool wasEnded() const { return m_left == 0 || m_watch.ended; }

  protected:
    bool fetch() override {
        if (wasEnded()) {
            return false;
        }
        --m_left;
        if (m_medium.position() != position() && !m_medium.seek(position())) {
            return refused();
        }
        if (!m_medium.read()) {
            return refused();
        }
        ++m_watch.sectorsRead;
        handOver(m_medium.current(), 1);
        return true;
    }
    bool moveTo(std::uint64_t sector) override { return !wasEnded() && m_medium.seek(sector); }

  private:
    bool refused() {
        ++m_watch.sectorsRefused;
        return false;
    }

    SectorReader& m_medium;
    ReadWatch& m_watch;
    std::uint64_t m_left;
};

}  // namespace vantor
