// One mutex held for moments; the steps themselves run outside it.
#include "window/InterfaceQueue.h"

#include <utility>

namespace vantor {

InterfaceQueue::InterfaceQueue(std::function<void()> wake) : m_wake(std::move(wake)) {}

void InterfaceQueue::post(Step step) {
    const std::lock_guard lock(m_lock);
    if (!m_closed) {
        m_entries.push_back({std::move(step), nullptr});
    }
}

bool InterfaceQueue::runAndWait(Step step) {
    std::unique_lock lock(m_lock);
    if (m_closed) {
        return false;
    }
    const auto ran = std::make_shared<Settled>();
    m_entries.push_back({std::move(step), ran});
    if (m_wake) {
        lock.unlock();
        m_wake();
        lock.lock();
    }
    m_settled.wait(lock, [&] { return m_closed || ran->done; });
    if (ran->raised) {
        std::rethrow_exception(ran->raised);
    }
    return ran->done;
}

bool InterfaceQueue::runOne() {
    Entry entry;
    {
        const std::lock_guard lock(m_lock);
        if (m_entries.empty()) {
            return false;
        }
        entry = std::move(m_entries.front());
        m_entries.pop_front();
    }
    if (!entry.ran) {
        entry.step();
        return true;
    }
    std::exception_ptr raised;
    try {
        entry.step();
    } catch (...) {
        raised = std::current_exception();
    }
    const std::lock_guard lock(m_lock);
    *entry.ran = {true, raised};
    m_settled.notify_all();
    return true;
}

bool InterfaceQueue::isEmpty() const {
    const std::lock_guard lock(m_lock);
    return m_entries.empty();
}

bool InterfaceQueue::nextIsAwaited() const {
    const std::lock_guard lock(m_lock);
    return !m_entries.empty() && m_entries.front().ran;
}

void InterfaceQueue::close() {
    const std::lock_guard lock(m_lock);
    m_closed = true;
    m_entries.clear();
    m_settled.notify_all();
}

}  // namespace vantor
