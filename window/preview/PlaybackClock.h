// The time in a movie that plays: that of its sound, or of the wall where nothing sounds.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>

namespace vantor {

// One thread; every question names the wall's time. Sound has positionMs(), hasFailed() and stop(), as
// SoundPlayer; it is stopped when it is given up.
template <typename Sound>
class PlaybackClock {
  public:
    using Time = std::chrono::steady_clock::time_point;

    // `sound` may be null; else it was just started at this time of the movie, and outlives the clock. A
    // device that takes nothing for as long as the patience lasts does not lead any more.
    PlaybackClock(std::int64_t timeMs, Sound* sound, Time now, std::chrono::milliseconds patience)
        : m_sound(sound), m_patience(patience), m_baseMs(timeMs), m_baseTime(now) {}

    // Since the movie's beginning; never goes back.
    std::int64_t nowMs(Time now) {
        if (m_sound) {
            followSound(now);
        }
        return m_sound ? m_baseMs
                       : m_baseMs +
                             std::chrono::duration_cast<std::chrono::milliseconds>(now - m_baseTime).count();
    }

    // False once the sound was given up, or where there was none.
    bool hasSound() const { return m_sound != nullptr; }

  private:
    void followSound(Time now) {
        const std::int64_t position = m_sound->positionMs();
        if (position > m_baseMs) {
            m_baseMs = position;
            m_baseTime = now;
            return;
        }
        if (m_sound->hasFailed() || now - m_baseTime > m_patience) {
            m_sound->stop();
            m_sound = nullptr;
            m_baseTime = now;
        }
    }

    Sound* m_sound;
    std::chrono::milliseconds m_patience;
    std::int64_t m_baseMs;  // the last time known for certain, and when that was
    Time m_baseTime;
};

}  // namespace vantor
