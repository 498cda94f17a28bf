// Holds a scripted medium's reads until the test lets them go.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace vantor {

class Gate {
  public:
    // The reading thread waits here while the gate is shut.
    void pass() {
        std::unique_lock lock(m_lock);
        ++m_waiting;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_open; });
        --m_waiting;
    }
    // For a medium's `beforeRead`: passes at the read of that number.
    auto atRead(std::uint64_t number) {
        return [this, number](std::uint64_t read) {
            if (read == number) {
                pass();
            }
        };
    }
    void open() {
        const std::lock_guard lock(m_lock);
        m_open = true;
        m_changed.notify_all();
    }
    bool someoneWaits() const {
        const std::lock_guard lock(m_lock);
        return m_waiting > 0;
    }

  private:
    mutable std::mutex m_lock;
    std::condition_variable m_changed;
    bool m_open = false;
    int m_waiting = 0;
};

}  // namespace vantor
