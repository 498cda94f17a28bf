// How fast work over sectors goes, and how long the rest will take.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>

namespace vantor {

// Speed and time left from the last minute, so that a slow patch behind us does not spoil the estimate.
class SpeedMeter {
  public:
    using Clock = std::chrono::steady_clock;

    void note(Clock::time_point when, std::uint64_t sectorsDone);
    double bytesPerSecond() const;  // 0 until two moments are known
    // Seconds for so many sectors at that speed; negative when unknown.
    double secondsFor(std::uint64_t sectors) const;

  private:
    struct Moment {
        Clock::time_point when;
        std::uint64_t sectors;
    };
    std::deque<Moment> m_moments;
};

}  // namespace vantor
