// The thread of somebody who is given orders: begun with the first of them.
#pragma once

#include <atomic>
#include <thread>
#include <utility>

namespace vantor {

// Its owner tells the work to return and joins it before anything goes that it uses; all but hasEnded() on
// the owner's thread.
class OrderThread {
  public:
    // Does nothing from the second call on.
    template <typename Work>
    void begin(Work work) {
        if (m_thread.joinable()) {
            return;
        }
        m_running = true;
        m_thread = std::thread([this, work = std::move(work)] {
            work();
            m_running = false;
        });
    }
    // Any thread.
    bool hasEnded() const { return !m_running; }
    void join() {
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }

  private:
    std::atomic<bool> m_running{false};
    std::thread m_thread;
};

}  // namespace vantor
