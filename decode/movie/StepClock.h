// What a step of the movie helper may take. Runs in the movie helper only.
#pragma once

#include <chrono>
#include <ctime>

namespace vantor::decode {

// Counts the processor time of this process and the pauses it was told of, not the time in which a busy
// machine lets others run: a movie is no worse because something else has the processor. What hangs without
// working is the asking program's to end.
class StepClock {
  public:
    explicit StepClock(std::chrono::nanoseconds limit) : m_limit(limit) {}

    void start() {
        m_begin = spent();
        m_paused = {};
    }
    void paused(std::chrono::nanoseconds pause) { m_paused += pause; }
    bool isOver() const { return spent() - m_begin + m_paused > m_limit; }

  private:
    static std::chrono::nanoseconds spent() {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return std::chrono::seconds{time.tv_sec} + std::chrono::nanoseconds{time.tv_nsec};
    }

    std::chrono::nanoseconds m_limit;
    std::chrono::nanoseconds m_begin{};
    std::chrono::nanoseconds m_paused{};
};

}  // namespace vantor::decode
