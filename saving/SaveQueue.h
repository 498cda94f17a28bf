// Saves found items on a thread of its own, so that a search need not wait for the destination.
#pragma once

#include <QByteArray>
#include <QString>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

#include "media/SectorReader.h"
#include "results/CarvedRun.h"
#include "saving/ItemSaver.h"
#include "saving/LengthClaims.h"

namespace vantor {

struct SaveTask {
    QString type;
    QString name;
    CarvedRun carved;
    QByteArray firstBytes;  // the carved bytes, where they are at hand
    ItemHints hints = {};
    std::size_t place = 0;  // among all that were added; given by the queue
};

// Items are saved in the order in which they were added; those that claim far more than was carved of them
// come last. The bytes that wait are capped: a destination that is slower than the search slows the search,
// never fills the memory.
class SaveQueue {
  public:
    static constexpr std::uint64_t kMostWaitingBytes = std::uint64_t{128} * 1024 * 1024;

    // Opens the medium anew; null when it is gone. Called on the saving thread, once.
    using Open = std::function<std::unique_ptr<SectorReader>()>;
    // Called on the saving thread once with each item's outcome; may keep what it likes of the task.
    using Done = std::function<void(SaveTask&, const SaveOutcome&)>;

    SaveQueue(const QString& destination, const SavePolicy& policy, Open open, Done done,
              Destination::LiesOnMedium liesOnMedium = {});
    SaveQueue(const SaveQueue&) = delete;
    SaveQueue& operator=(const SaveQueue&) = delete;
    ~SaveQueue();  // finishes

    // Waits while too many bytes wait already. One caller.
    void add(SaveTask task);
    // Returns when all that was added is saved; nothing may be added behind it.
    void finish();
    // Once finished: who saved, and from where; null when the medium was never opened or cannot be.
    const ItemSaver& saver() const { return m_saver; }
    SectorReader* medium();

  private:
    void run();
    void save(SaveTask& task);
    SaveOutcome attempt(const SaveTask& task, bool mayWait);
    void saveWaiting();

    // The saving thread's alone.
    const ItemSaver m_saver;
    const Open m_open;
    const Done m_done;
    std::unique_ptr<SectorReader> m_medium;
    WaitingClaims m_later;
    std::map<std::size_t, SaveTask> m_laterTasks;  // by their places

    std::mutex m_mutex;
    std::condition_variable m_added, m_taken;
    std::deque<SaveTask> m_waiting;
    std::size_t m_places = 0;
    std::uint64_t m_waitingBytes = 0;  // the one being saved included
    bool m_finishing = false;
    std::thread m_thread;
};

}  // namespace vantor
