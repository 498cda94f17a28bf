// One thread, one queue, one medium.
#include "saving/SaveQueue.h"

#include <algorithm>
#include <utility>

namespace vantor {

namespace {

// What a waiting task costs besides its bytes, so that tasks without bytes are capped too.
constexpr std::uint64_t kTaskBytes = 1024;

// Bytes may have room to spare behind them.
std::uint64_t costOf(const SaveTask& task) {
    return static_cast<std::uint64_t>(std::max(task.firstBytes.capacity(), task.firstBytes.size())) +
           kTaskBytes;
}

}  // namespace

SaveQueue::SaveQueue(const QString& destination, const SavePolicy& policy, Open open, Done done,
                     Destination::LiesOnMedium liesOnMedium)
    : m_saver(destination, policy, std::move(liesOnMedium)),
      m_open(std::move(open)),
      m_done(std::move(done)),
      m_thread([this] { run(); }) {}

SaveQueue::~SaveQueue() {
    finish();
}

void SaveQueue::add(SaveTask task) {
    const std::uint64_t cost = costOf(task);
    std::unique_lock lock(m_mutex);
    m_taken.wait(lock, [&] { return m_waitingBytes == 0 || m_waitingBytes + cost <= kMostWaitingBytes; });
    m_waitingBytes += cost;
    task.place = m_places++;
    m_waiting.push_back(std::move(task));
    m_added.notify_one();
}

void SaveQueue::finish() {
    {
        const std::lock_guard lock(m_mutex);
        m_finishing = true;
    }
    m_added.notify_one();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void SaveQueue::run() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_added.wait(lock, [this] { return m_finishing || !m_waiting.empty(); });
        if (m_waiting.empty()) {
            lock.unlock();
            saveWaiting();
            m_saver.flush();
            return;
        }
        SaveTask task = std::move(m_waiting.front());
        m_waiting.pop_front();
        const std::uint64_t cost = costOf(task);
        lock.unlock();
        save(task);
        task = {};
        lock.lock();
        m_waitingBytes -= cost;
        m_taken.notify_one();
    }
}

SectorReader* SaveQueue::medium() {
    if (!m_medium) {
        m_medium = m_open();
    }
    return m_medium.get();
}

SaveOutcome SaveQueue::attempt(const SaveTask& task, bool mayWait) {
    medium();
    FoundItem item{task.type, task.name, {task.carved, task.firstBytes, [this] { return m_medium.get(); }}};
    item.source.mediumSectors = m_medium ? m_medium->mediumSectors() : 0;
    item.source.hints = task.hints;
    item.mayWait = mayWait;
    return m_saver.save(item);
}

// What could not be read may only stand in the bytes at hand, and those are not kept.
void SaveQueue::save(SaveTask& task) {
    const SaveOutcome outcome = attempt(task, !m_later.isFull() && !task.carved.readFailed);
    if (!outcome.later) {
        m_done(task, outcome);
        return;
    }
    m_later.add(task.place, outcome.bytes, task.carved, outcome.comesFirst());
    m_laterTasks[task.place] = {task.type, task.name, task.carved, {}, task.hints, task.place};
}

void SaveQueue::saveWaiting() {
    m_saver.beginSecondRound();
    for (const std::size_t place : m_later.take()) {
        auto task = m_laterTasks.extract(place);
        m_done(task.mapped(), attempt(task.mapped(), false));
    }
}

}  // namespace vantor
