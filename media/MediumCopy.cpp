// The copying thread, and the one that brings its work to the disk.
#include "media/MediumCopy.h"

#include <QObject>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <utility>

#include "media/MediumMemory.h"
#include "media/SystemWords.h"

namespace vantor {

namespace {

// With the power no more of a copy is to be lost than ten seconds of it, and a slow disk takes its time to
// keep it.
constexpr auto kKeepTime = std::chrono::seconds(5);
constexpr std::uint64_t kComparedSectors = MediumMemory::kMostSectors;

// What was copied stays.
CopyMap withRefused(CopyMap map, const std::vector<SectorRun>& refused) {
    for (const SectorRun& run : refused) {
        const std::uint64_t sectors = map.bytes() / kSectorBytes;
        const std::uint64_t end = std::min(run.end, sectors) * kSectorBytes;
        for (std::uint64_t at = std::min(run.first, sectors) * kSectorBytes; at < end;) {
            const CopyRun known = map.at(at);
            const std::uint64_t upTo = std::min(known.end, end);
            if (known.state != CopyState::Copied) {
                map.set(at, upTo, CopyState::Bad);
            }
            at = upTo;
        }
    }
    return map;
}

}  // namespace

std::shared_ptr<MediumCopy> MediumCopy::make(std::unique_ptr<CopyFile> file, OpenMedium open,
                                             const std::vector<SectorRun>& refused) {
    return std::shared_ptr<MediumCopy>(new MediumCopy(std::move(file), std::move(open), refused));
}

MediumCopy::MediumCopy(std::unique_ptr<CopyFile> file, OpenMedium open, const std::vector<SectorRun>& refused)
    : m_file(std::move(file)),
      m_open(std::move(open)),
      m_map(withRefused(m_file->mapFound(), refused)),
      m_plan(m_map),
      m_buffer(CopyPlan::kPiece * kSectorBytes),
      m_keeper([this] { runKeeper(); }),
      m_copier([this] { run(); }) {}

MediumCopy::~MediumCopy() {
    {
        const std::lock_guard lock(m_mutex);
        m_quit = true;
        m_work.notify_all();
        m_keeping.notify_all();
    }
    m_copier.join();
    m_keeper.join();
    std::unique_lock lock(m_mutex);
    keepNow(lock);
}

void MediumCopy::changed() {
    m_changed = true;
    m_work.notify_one();
}

void MediumCopy::copy(std::vector<SectorRun> goals) {
    const std::lock_guard lock(m_mutex);
    m_plan.setGoals(std::move(goals));
    m_paused = false;
    changed();
}

void MediumCopy::pause() {
    const std::lock_guard lock(m_mutex);
    m_paused = true;
    m_answer.notify_all();
}

void MediumCopy::scrapeAll() {
    const std::lock_guard lock(m_mutex);
    m_plan.scrapeAll();
    changed();
}

CopyProgress MediumCopy::progress() const {
    const std::lock_guard lock(m_mutex);
    const auto sectorsIn = [this](CopyState state) { return m_map.bytesIn(state) / kSectorBytes; };
    return {m_state,
            m_map.bytes() / kSectorBytes,
            sectorsIn(CopyState::Copied),
            sectorsIn(CopyState::Bad),
            sectorsIn(CopyState::NotTrimmed) + sectorsIn(CopyState::NotScraped),
            m_trouble};
}

CopyMap MediumCopy::map() const {
    const std::lock_guard lock(m_mutex);
    return m_map;
}

// --- The copying thread ---

void MediumCopy::run() {
    std::unique_lock lock(m_mutex);
    while (!m_quit) {
        if (m_openWanted) {
            openNow(lock);
        } else if (!serveRequest(lock) && !takeStep(lock)) {
            m_work.wait(lock, [this] { return m_quit || std::exchange(m_changed, false); });
        }
    }
    m_openWanted = false;
    m_hasMedium = false;
    m_medium.reset();
    m_answer.notify_all();
}

void MediumCopy::openNow(std::unique_lock<std::mutex>& lock) {
    const bool begun = m_map.bytesIn(CopyState::Copied) != 0;
    lock.unlock();
    auto medium = m_open([this] { return m_quit.load(); });
    const bool fits =
        !medium || (medium->sectors() == m_map.bytes() / kSectorBytes && (!begun || isSameMedium(*medium)));
    lock.lock();
    m_openWanted = false;
    m_otherMedium = !fits;
    if (!fits) {
        m_trouble = QObject::tr("“%1” is a copy of another medium.").arg(m_file->imagePath());
        m_state = CopyProgress::State::OtherMedium;
    } else if (medium) {
        m_state = m_cannotWrite ? CopyProgress::State::CannotWrite : CopyProgress::State::Resting;
        m_medium = std::move(medium);
        m_hasMedium = true;
    } else {
        m_state = CopyProgress::State::MediumGone;
    }
    m_answer.notify_all();
}

// A few sectors of the copy, spread over all that was copied, against those of the medium.
bool MediumCopy::isSameMedium(BlockSource& medium) const {
    MediumMemory memory;
    const std::uint64_t copied = m_map.bytesIn(CopyState::Copied) / kSectorBytes;
    const std::uint64_t stride = std::max<std::uint64_t>(1, copied / kComparedSectors);
    std::uint64_t passed = 0, next = 0;
    std::uint8_t sector[kSectorBytes];
    for (auto run = m_map.firstOf(CopyState::Copied, 0, m_map.bytes()); run;
         run = m_map.firstOf(CopyState::Copied, run->end, m_map.bytes())) {
        const std::uint64_t first = run->first / kSectorBytes,
                            sectors = (run->end - run->first) / kSectorBytes;
        for (; next < passed + sectors; next += stride) {
            const std::uint64_t at = first + (next - passed);
            if (m_file->readAt(at, sector) == static_cast<std::int64_t>(kSectorBytes)) {
                memory.note(at, sector);
            }
        }
        passed += sectors;
    }
    return memory.isEmpty() || memory.agreesWith(medium);
}

bool MediumCopy::serveRequest(std::unique_lock<std::mutex>& lock) {
    if (m_requests.empty()) {
        return false;
    }
    const auto request = std::move(m_requests.front());
    m_requests.pop_front();
    lock.unlock();
    std::int64_t got = -1;
    if (m_medium) {
        got = m_medium->readAt(request->sector, request->bytes);
    }
    const bool usable = m_medium && m_medium->usable();
    lock.lock();
    request->got = got;
    request->done = true;
    if (m_medium && !usable) {
        m_medium.reset();
        m_hasMedium = false;
        m_state = CopyProgress::State::MediumGone;
    }
    m_answer.notify_all();
    return true;
}

// What a reader waits for beside the plan comes first; in the plan everything has its turn.
std::optional<CopyStep> MediumCopy::nextStep() {
    for (const std::uint64_t sector : m_wanted) {
        if (m_paused || !m_plan.isGoal(sector)) {
            if (auto piece = m_plan.pieceAt(sector)) {
                return piece;
            }
        }
    }
    return m_paused ? std::nullopt : m_plan.next();
}

bool MediumCopy::takeStep(std::unique_lock<std::mutex>& lock) {
    using State = CopyProgress::State;
    if (!m_hasMedium || m_cannotWrite) {
        return false;
    }
    const auto step = nextStep();
    if (!step) {
        m_state = State::Resting;
        m_answer.notify_all();
        return false;
    }
    constexpr State kStates[] = {State::Copying, State::Trimming, State::Scraping};
    m_state = kStates[static_cast<std::size_t>(step->kind)];
    m_onItsWay = {step->first, step->end};
    lock.unlock();
    const std::uint64_t wanted = step->end - step->first;
    const std::int64_t got = m_medium->readAt(step->first, std::span(m_buffer).first(wanted * kSectorBytes));
    const bool usable = m_medium->usable();
    const std::uint64_t good = got < 0 ? 0 : std::min(wanted, static_cast<std::uint64_t>(got) / kSectorBytes);
    const bool written =
        good == 0 || m_file->writeAt(step->first, std::span(m_buffer).first(good * kSectorBytes));
    const int error = errno;
    lock.lock();
    m_onItsWay = {};
    if (!written) {
        cannotWrite(systemWords(error));
    } else if (good == wanted || usable) {
        m_plan.done(*step, good);
        m_mapChanged = true;
    } else if (good != 0) {
        m_plan.done({step->kind, step->first, step->first + good, step->wanted}, good);
        m_mapChanged = true;
    }
    if (!usable) {
        m_medium.reset();
        m_hasMedium = false;
        m_state = State::MediumGone;
    }
    m_answer.notify_all();
    return true;
}

void MediumCopy::cannotWrite(const QString& words) {
    m_cannotWrite = true;
    m_state = CopyProgress::State::CannotWrite;
    m_trouble = QObject::tr("The copy “%1” ends here: %2. What it does not hold is read from the medium.")
                    .arg(m_file->imagePath(), words);
    m_answer.notify_all();
}

// --- The keeping thread ---

void MediumCopy::runKeeper() {
    std::unique_lock lock(m_mutex);
    while (!m_quit) {
        const auto next = std::chrono::steady_clock::now() + kKeepTime;
        keepNow(lock);
        m_keeping.wait_until(lock, next, [this] { return m_quit.load(); });
    }
}

void MediumCopy::keepNow(std::unique_lock<std::mutex>& lock) {
    if (!std::exchange(m_mapChanged, false)) {
        return;
    }
    const CopyMap map = m_map;
    lock.unlock();
    const auto failed = m_file->keep(map);
    lock.lock();
    if (failed && !m_cannotWrite) {
        cannotWrite(*failed);
    }
}

}  // namespace vantor
