// Mends the broken items of a list on a thread of its own, while somebody watches.
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <unordered_map>
#include <vector>

#include "decode/CancelSignal.h"
#include "media/WatchedReader.h"
#include "repair/ItemMending.h"
#include "results/CardIndex.h"
#include "results/MendedItems.h"
#include "results/Soundness.h"

namespace vantor {

class MyImageObject;

// All functions are called on the run's thread.
struct MendingOrder {
    std::vector<std::size_t> places;  // of all items of the list, those that matter first in front
    std::function<std::unique_ptr<SectorReader>()> openMedium;
    std::function<std::shared_ptr<const MyImageObject>(std::size_t place)> itemAt;
    // What is known of an item, and who is told what else was found out.
    std::function<std::optional<Soundness>(std::size_t place)> known;
    std::function<void(std::size_t place, const Soundness&)> examined;
    std::shared_ptr<const CardIndex> card;  // null: nothing is known
    std::shared_ptr<MendedItems> mended;    // what is made goes there
    bool movies = true;                     // are searched for
    bool photos = true;                     // and archives
    MovieReaderOptions helper = {};
};

enum class MendingStep { Examining, Movies, Photos, Archives, Repairing };
enum class MendingEnd { Finished, Stopped, CannotOpen, MediumGone };

struct MendingResult {
    MendingEnd end = MendingEnd::Finished;
    std::size_t broken = 0;  // of the kinds that can be mended
};

// Interface thread, or any one. What was made until a stop stays.
class MendingRun {
  public:
    MendingRun() = default;
    MendingRun(const MendingRun&) = delete;
    MendingRun& operator=(const MendingRun&) = delete;
    // Waits for the medium; see isRunning().
    ~MendingRun();

    // Only where none is running. `over` is called on the run's thread as the last thing that it does.
    void start(MendingOrder order, std::function<void()> over);
    // Nothing is told of any more when it returns, and the run ends as soon as the medium answers.
    void stop();
    bool isRunning() const { return m_running; }

    MendingStep step() const { return m_step; }
    std::size_t looked() const { return m_progress.looked; }
    std::size_t of() const { return m_progress.of; }
    // Of the last run that is over.
    MendingResult result() const;

  private:
    class Medium;

    void run();
    MendingEnd work();
    std::vector<MendableItem> examineAll(SectorReader& medium);
    std::optional<Soundness> look(const MyImageObject& item, SectorReader& medium,
                                  std::vector<std::uint8_t>& kept);
    bool take(const MendableItem& item, Mend mend, SectorReader& medium);
    bool tell(std::size_t place, const Soundness& soundness);

    MendingOrder m_order;
    std::function<void()> m_over;
    std::unordered_multimap<std::uint64_t, std::size_t> m_sharing;  // places by first sector
    std::unique_ptr<CancelSignal> m_cancel;                         // of the helpers of the run
    ReadWatch m_watch;
    std::atomic<int> m_stop{0};
    std::atomic<bool> m_running{false};
    std::atomic<MendingStep> m_step{MendingStep::Examining};
    CompletionProgress m_progress;
    mutable std::mutex m_mutex;  // while somebody is told, and of the result
    MendingResult m_result;
    std::thread m_thread;
};

}  // namespace vantor
