// A thread of a test's whose place in a system call can be waited for, so that no test has to guess how long
// it takes to get there.
#pragma once

#include <sys/syscall.h>
#include <unistd.h>

#include <QByteArray>
#include <QString>
#include <algorithm>
#include <atomic>
#include <thread>
#include <utility>
#include <vector>

#include "tests/decode/Fixtures.h"

namespace vantor::test {

// Where callers of a pool stand. The C library has its choice between some calls.
#ifdef SYS_poll
inline const std::vector<long> kAskingAHelper{SYS_poll, SYS_ppoll};
#else
inline const std::vector<long> kAskingAHelper{SYS_ppoll};
#endif
inline const std::vector<long> kWaitingForAHelper{SYS_futex};

// Where a thread of this process sleeps; -1 while it runs.
inline long callOfThread(pid_t thread) {
    const QByteArray place = bytesOfFile(QStringLiteral("/proc/self/task/%1/syscall").arg(thread));
    bool sleeps = false;
    const long call = place.left(place.indexOf(' ')).toLong(&sleeps);
    return sleeps ? call : -1;
}

inline void awaitThreadAsleepIn(pid_t thread, const std::vector<long>& calls) {
    while (std::ranges::find(calls, callOfThread(thread)) == calls.end()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

class WatchedThread {
  public:
    template <typename Work>
    explicit WatchedThread(Work work)
        : m_thread([this, work = std::move(work)] {
              m_id = gettid();
              work();
              m_ended = true;
          }) {}

    // Returns when the thread sleeps in one of these system calls, or has come to its end.
    void awaitAsleepIn(const std::vector<long>& calls) const {
        while (!m_ended && std::ranges::find(calls, callOfThread(m_id)) == calls.end()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    void join() { m_thread.join(); }

  private:
    std::atomic<pid_t> m_id{0};
    std::atomic<bool> m_ended{false};
    std::thread m_thread;  // last: it uses the others
};

}  // namespace vantor::test
