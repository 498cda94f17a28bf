// Holds whoever comes to it until the test lets them go.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>

namespace vantor {

// What is handed to other threads outlives the gate: a test that ended early leaves nobody waiting, and who
// comes later finds it open.
class Gate {
  public:
    Gate() = default;
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;
    ~Gate() { open(); }

    // To be called on the thread that is to wait here while the gate is shut.
    auto passage() const {
        return [state = m_state] { state->pass(); };
    }
    // For a medium's `beforeRead`: passes at every read, or at the read of that number.
    auto atEveryRead() const {
        return [state = m_state](std::uint64_t) { state->pass(); };
    }
    auto atRead(std::uint64_t number) const {
        return [state = m_state, number](std::uint64_t read) {
            if (read == number) {
                state->pass();
            }
        };
    }
    void open() {
        const std::lock_guard lock(m_state->lock);
        m_state->open = true;
        m_state->changed.notify_all();
    }
    bool someoneWaits() const {
        const std::lock_guard lock(m_state->lock);
        return m_state->waiting > 0;
    }

  private:
    struct State {
        void pass() {
            std::unique_lock guard(lock);
            ++waiting;
            changed.wait(guard, [this] { return open; });
            --waiting;
        }

        std::mutex lock;
        std::condition_variable changed;
        bool open = false;
        int waiting = 0;
    };

    const std::shared_ptr<State> m_state = std::make_shared<State>();
};

}  // namespace vantor
