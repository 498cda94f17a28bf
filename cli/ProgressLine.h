// The progress line of a terminal: done, speed, time left, items found.
#pragma once

#include <QString>
#include <chrono>
#include <cstdint>
#include <deque>
#include <memory>
#include <thread>

namespace vantor {

class CliSession;

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

// "4 min 10 s", "35 s", "2 h 5 min".
QString durationText(double seconds);

// Draws on standard error twice a second from its own thread until it is destroyed, and then wipes the line.
class ProgressLine {
  public:
    explicit ProgressLine(const CliSession& session);
    ~ProgressLine();

  private:
    void draw();

    const CliSession& m_session;
    SpeedMeter m_speed;
    std::jthread m_thread;
};

}  // namespace vantor
