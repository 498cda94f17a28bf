// Calls a thread back from waiting for a helper, soon after a stop that nobody signals.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "decode/CancelSignal.h"
#include "media/AbandonableSource.h"

namespace vantor::decode {

// Asks again and again whether there was a stop, on a thread of its own, and raises its signal when that was
// so for a while. Without a question it never does.
class SoonAfterStop {
  public:
    SoonAfterStop(StopRequest stop, std::chrono::milliseconds grace)
        : m_stop(std::move(stop)), m_grace(grace) {
        if (m_stop) {
            m_thread = std::jthread([this](const std::stop_token& ended) { watch(ended); });
        }
    }

    const CancelSignal& signal() const { return m_signal; }

  private:
    static constexpr std::chrono::milliseconds kBetweenQuestions{20};

    void watch(const std::stop_token& ended) {
        std::optional<std::chrono::steady_clock::time_point> since;
        std::unique_lock lock(m_mutex);
        while (!ended.stop_requested()) {
            const auto now = std::chrono::steady_clock::now();
            if (!since && m_stop()) {
                since = now;
            }
            if (since && now - *since >= m_grace) {
                m_signal.raise();
                return;
            }
            m_ended.wait_for(lock, ended, kBetweenQuestions, [] { return false; });
        }
    }

    const StopRequest m_stop;
    const std::chrono::milliseconds m_grace;
    CancelSignal m_signal;
    std::mutex m_mutex;
    std::condition_variable_any m_ended;
    std::jthread m_thread;
};

}  // namespace vantor::decode
