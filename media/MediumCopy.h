// A medium that is copied while it is searched.
#pragma once

#include <QString>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <span>
#include <thread>
#include <vector>

#include "media/AbandonableSource.h"
#include "media/BlockSource.h"
#include "media/CopyFile.h"
#include "media/CopyMap.h"
#include "media/CopyPlan.h"
#include "media/SectorReader.h"
#include "media/SectorRun.h"

namespace vantor {

// How a copy stands.
struct CopyProgress {
    enum class State { Resting, Copying, Trimming, Scraping, MediumGone, CannotWrite, OtherMedium };

    State state = State::Resting;
    std::uint64_t sectors = 0;   // of the medium
    std::uint64_t copied = 0;    // sectors
    std::uint64_t bad = 0;       // sectors that were refused alone
    std::uint64_t doubtful = 0;  // sectors in pieces that were refused, or between bad ones
    QString trouble;             // a sentence for the user when the copy cannot go on
};

// Reads a medium on a thread of its own, each sector once, in the order of a CopyPlan, into a CopyFile. All
// others read the copy: a read waits until the copy has its sector or knows that the medium will not give it.
// What lies beside the plan is read when somebody asks for it.
//
// A medium that goes leaves all that was read of it; what was not counts as unreadable. A disk that takes no
// more ends the copy: what is not in it is then read from the medium. Any thread; readers may outlive the
// program's interest, and the copy ends with the last of them.
class MediumCopy : public std::enable_shared_from_this<MediumCopy> {
  public:
    // Opens the medium, the same one each time; the wait for it ends when it is told to stop. On the copy's
    // thread.
    using OpenMedium = std::function<std::unique_ptr<BlockSource>(StopRequest stop)>;

    // `refused`: sectors known not to be readable, for which the medium is not asked.
    static std::shared_ptr<MediumCopy> make(std::unique_ptr<CopyFile> file, OpenMedium open,
                                            const std::vector<SectorRun>& refused = {});
    ~MediumCopy();
    MediumCopy(const MediumCopy&) = delete;
    MediumCopy& operator=(const MediumCopy&) = delete;

    // From now on these stretches are copied, one after the other.
    void copy(std::vector<SectorRun> goals);
    // Nothing is read any more but what is asked for.
    void pause();
    // Reads also what lies between bad sectors that are far apart.
    void scrapeAll();

    // At sector 0; null when the medium cannot be opened and nothing of it was copied, or when it is not the
    // medium that the copy is of. Tries anew to open a medium that is gone. `stop` ends a wait, and pauses
    // the copy.
    std::unique_ptr<SectorReader> openReader(StopRequest stop = {});

    CopyProgress progress() const;
    CopyMap map() const;

  private:
    class Source;
    class Patience;

    // A read that goes past the copy.
    struct Request {
        std::uint64_t sector = 0;
        std::vector<std::uint8_t> bytes;
        std::int64_t got = -1;
        bool done = false;
    };

    MediumCopy(std::unique_ptr<CopyFile> file, OpenMedium open, const std::vector<SectorRun>& refused);
    void run();
    void runKeeper();
    void openNow(std::unique_lock<std::mutex>& lock);
    bool serveRequest(std::unique_lock<std::mutex>& lock);
    bool takeStep(std::unique_lock<std::mutex>& lock);
    std::optional<CopyStep> nextStep();
    bool isSameMedium(BlockSource& medium) const;
    void keepNow(std::unique_lock<std::mutex>& lock);
    void cannotWrite(const QString& words);
    void changed();
    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into, Patience& patience);
    std::int64_t ask(std::unique_lock<std::mutex>& lock, std::uint64_t sector, std::span<std::uint8_t> into,
                     Patience& patience);

    const std::unique_ptr<CopyFile> m_file;
    const OpenMedium m_open;

    mutable std::mutex m_mutex;
    std::condition_variable m_work;    // the copying thread has something to do
    std::condition_variable m_answer;  // a reader may find its sector answered
    std::condition_variable m_keeping;
    CopyMap m_map;
    CopyPlan m_plan;
    SectorRun m_onItsWay;                   // of the step under way
    std::multiset<std::uint64_t> m_wanted;  // sectors that readers wait for
    std::deque<std::shared_ptr<Request>> m_requests;
    CopyProgress::State m_state = CopyProgress::State::Resting;
    QString m_trouble;
    bool m_changed = false;
    bool m_mapChanged = false;  // since it was kept
    bool m_paused = true;
    bool m_openWanted = false;
    bool m_hasMedium = false;
    bool m_cannotWrite = false;
    bool m_otherMedium = false;
    std::atomic<bool> m_quit = false;

    std::unique_ptr<BlockSource> m_medium;  // the copying thread's
    std::vector<std::uint8_t> m_buffer;     // likewise
    std::thread m_keeper, m_copier;
};

}  // namespace vantor
