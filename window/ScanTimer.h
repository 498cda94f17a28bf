// The repeating timer of a scan and the run loop of its thread.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace vantor {

class ScanTimer {
  public:
    static constexpr std::chrono::milliseconds kInterval{500};

    // Calls `tick` every half second until the timer is invalidated; the calling thread is the timer's.
    void run(const std::function<void()>& tick) {
        std::unique_lock lock(m_lock);
        while (!m_ended.wait_for(lock, kInterval, [this] { return m_invalid; })) {
            lock.unlock();
            tick();
            lock.lock();
        }
    }

    // Any thread; the run loop returns at once or after the tick that is under way.
    void invalidate() {
        const std::lock_guard lock(m_lock);
        m_invalid = true;
        m_ended.notify_all();
    }

  private:
    std::mutex m_lock;
    std::condition_variable m_ended;
    bool m_invalid = false;
};

}  // namespace vantor
