// Carries steps from the threads of a scan to the interface thread, in order.
#pragma once

#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>

namespace vantor {

// The interface thread empties the queue a few times a second, and at once when somebody waits; nothing of
// the toolkit is touched by the other threads.
class InterfaceQueue {
  public:
    using Step = std::function<void()>;

    // `wake` is called on the thread that begins to wait, with its step already in the queue.
    explicit InterfaceQueue(std::function<void()> wake = {});

    // Any thread: runs later on the interface thread.
    void post(Step step);

    // Any thread but the interface thread: waits until the step has run there, and throws what it threw.
    // False when the queue was closed first.
    bool runAndWait(Step step);

    // Interface thread: runs the oldest step. False when there is none.
    bool runOne();

    bool isEmpty() const;
    // True when somebody waits for the oldest step, as those do who show or ask something.
    bool nextIsAwaited() const;

    // Drops what is queued and releases everyone who waits; later steps are dropped too.
    void close();

  private:
    struct Settled {
        bool done = false;
        std::exception_ptr raised;
    };
    struct Entry {
        Step step;
        std::shared_ptr<Settled> ran;  // null when nobody waits
    };

    const std::function<void()> m_wake;
    mutable std::mutex m_lock;
    std::condition_variable m_settled;
    std::deque<Entry> m_entries;
    bool m_closed = false;
};

}  // namespace vantor
