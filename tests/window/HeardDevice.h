// A sound device that a test listens to: it plays as fast as the test turns it.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "decode/SoundReader.h"
#include "window/preview/SoundDevice.h"

namespace vantor {

// What came of the devices of one test; outlives them.
struct Heard {
    std::atomic<int> alive{0};
    std::atomic<int> starts{0};
    std::atomic<bool> playing{false};
    std::atomic<bool> broken{false};
    std::atomic<std::int64_t> played{0};

    // Asks for so much sound, as a device would while time goes by; returns what it got.
    std::vector<std::int16_t> listen(int milliseconds) {
        std::vector<std::int16_t> samples(static_cast<std::size_t>(milliseconds) * kSoundFramesPerSecond /
                                          1000 * kSoundChannels);
        const std::lock_guard guard(lock);
        if (fill) {
            fill(samples);
            played += static_cast<std::int64_t>(samples.size()) / kSoundChannels;
        } else {
            samples.clear();
        }
        return samples;
    }

    std::mutex lock;
    SoundDevice::Fill fill;
};

inline int loudestOf(const std::vector<std::int16_t>& samples) {
    int loudest = 0;
    for (const std::int16_t sample : samples) {
        loudest = std::max(loudest, std::abs(static_cast<int>(sample)));
    }
    return loudest;
}

class HeardDevice : public SoundDevice {
  public:
    explicit HeardDevice(Heard& heard) : m_heard(heard) { ++m_heard.alive; }
    ~HeardDevice() override {
        stop();
        --m_heard.alive;
    }
    void start(Fill fill) override {
        const std::lock_guard guard(m_heard.lock);
        m_heard.fill = std::move(fill);
        m_heard.played = 0;
        m_heard.playing = true;
        ++m_heard.starts;
    }
    void stop() override {
        const std::lock_guard guard(m_heard.lock);
        m_heard.fill = nullptr;
        m_heard.playing = false;
    }
    std::int64_t playedFrames() const override { return m_heard.played; }
    bool hasFailed() const override { return m_heard.broken; }

  private:
    Heard& m_heard;
};

}  // namespace vantor
