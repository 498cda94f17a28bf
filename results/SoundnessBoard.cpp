// One thread, one reader, one item at a time.
#include "results/SoundnessBoard.h"

#include <algorithm>
#include <utility>

#include "decode/ContentTrials.h"
#include "results/MyImageObject.h"

namespace vantor {

namespace {

// Rests so many times as long as it worked while others use the medium.
constexpr int kRestShare = 4;
// A medium of which so many items in a row gave not one sector is gone.
constexpr int kMostSilentItems = 3;
// What one item may cost; larger memory is not kept for the next.
constexpr std::size_t kMostKeptMemory = std::size_t{8} << 20;

}  // namespace

// What the thread holds from item to item of one list.
struct SoundnessBoard::Turn {
    std::uint64_t generation = 0;
    std::unique_ptr<SectorReader> medium;
    std::optional<std::uint64_t> goodSector;
    int silentItems = 0;
    std::vector<std::uint8_t> kept;
    ContentTrials trials{ContentTrials::kInPassing};
};

SoundnessBoard::SoundnessBoard(ItemAt itemAt, HintsOf hintsOf)
    : m_itemAt(std::move(itemAt)), m_hintsOf(std::move(hintsOf)) {}

SoundnessBoard::~SoundnessBoard() {
    requestEnd();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void SoundnessBoard::begin(Open open) {
    const std::lock_guard lock(m_mutex);
    ++m_generation;
    m_open = std::move(open);
    m_known.clear();
    m_news.clear();
    m_inView.clear();
    m_all = m_cursor = 0;
    m_gone = false;
    m_watch.ended = true;
    ++m_changes;
    m_wake.notify_all();
}

void SoundnessBoard::beginAgain() {
    const std::lock_guard lock(m_mutex);
    m_known.clear();
    m_news.clear();
    m_cursor = 0;
    m_watch.ended = true;
    ++m_changes;
    m_wake.notify_all();
}

void SoundnessBoard::want(std::vector<std::size_t> inView) {
    const std::lock_guard lock(m_mutex);
    m_inView = std::move(inView);
    startThread();
}

void SoundnessBoard::wantAll(std::size_t count) {
    const std::lock_guard lock(m_mutex);
    m_all = count;
    m_cursor = std::min(m_cursor, m_all);
    startThread();
}

// With the first wish, not with the window; the lock is held.
void SoundnessBoard::startThread() {
    if (!m_thread.joinable() && isWished() && !m_ending) {
        m_running = true;
        m_thread = std::thread([this] {
            run();
            m_running = false;
        });
    }
    m_wake.notify_all();
}

void SoundnessBoard::setMediumBusy(bool busy) {
    const std::lock_guard lock(m_mutex);
    if (m_busy != busy) {
        m_busy = busy;
        m_wake.notify_all();
    }
}

void SoundnessBoard::rest(bool resting) {
    const std::lock_guard lock(m_mutex);
    m_resting = resting;
    if (resting) {
        m_watch.ended = true;
    }
    m_wake.notify_all();
}

void SoundnessBoard::note(std::size_t index, const Soundness& soundness) {
    const std::lock_guard lock(m_mutex);
    Soundness noted = soundness;
    if (const auto known = m_known.find(index); known != m_known.end()) {
        // Whoever saves a file does not ask for its camera, and may have no time left to decode it.
        noted.camera = noted.camera.isEmpty() ? known->second.camera : noted.camera;
        noted.checked =
            noted.checked || (noted.followed && known->second.checked && known->second.bytes == noted.bytes);
    }
    store(index, noted);
}

void SoundnessBoard::store(std::size_t index, const Soundness& soundness) {
    m_known[index] = soundness;
    m_news.push_back(index);
    ++m_changes;
}

std::optional<Soundness> SoundnessBoard::find(std::size_t index) const {
    const std::lock_guard lock(m_mutex);
    const auto known = m_known.find(index);
    return known != m_known.end() ? std::optional(known->second) : std::nullopt;
}

std::vector<std::size_t> SoundnessBoard::takeNews() {
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_news, {});
}

std::size_t SoundnessBoard::known() const {
    const std::lock_guard lock(m_mutex);
    return m_known.size();
}

bool SoundnessBoard::mediumIsGone() const {
    const std::lock_guard lock(m_mutex);
    return m_gone;
}

void SoundnessBoard::tryAgain() {
    const std::lock_guard lock(m_mutex);
    m_gone = false;
    m_wake.notify_all();
}

void SoundnessBoard::requestEnd() {
    const std::lock_guard lock(m_mutex);
    m_ending = true;
    m_watch.ended = true;
    m_wake.notify_all();
}

// What is to be examined now; the lock is held.
std::optional<std::size_t> SoundnessBoard::next() {
    if (!m_open || m_gone || m_resting) {
        return std::nullopt;
    }
    for (const std::size_t index : m_inView) {
        if (!isKnown(index)) {
            return index;
        }
    }
    while (m_cursor < m_all && isKnown(m_cursor)) {
        ++m_cursor;
    }
    return !m_busy && m_cursor < m_all ? std::optional(m_cursor) : std::nullopt;
}

void SoundnessBoard::run() {
    Turn turn;
    std::unique_lock lock(m_mutex);
    for (;;) {
        std::optional<std::size_t> index;
        const auto isLeft = [&] { return turn.medium && (turn.generation != m_generation || !isWished()); };
        m_wake.wait(lock, [&] { return m_ending || isLeft() || (index = next()).has_value(); });
        if (m_ending) {
            return;
        }
        if (isLeft()) {
            lock.unlock();
            turn.medium.reset();
            lock.lock();
            continue;
        }
        if (turn.generation != m_generation) {
            turn = Turn{m_generation, {}, {}, 0, std::move(turn.kept)};
        }
        const Open open = m_open;
        const bool busy = m_busy;
        m_watch.ended = false;
        lock.unlock();

        const auto begun = std::chrono::steady_clock::now();
        const std::shared_ptr<const MyImageObject> item = m_itemAt(*index);
        std::optional<Soundness> found;
        bool later = !item || (busy && item->carved().readFailed);
        bool gone = false;
        if (!later) {
            if (!turn.medium) {
                turn.medium = open();
            }
            found = turn.medium ? look(*item, turn) : std::nullopt;
            gone = !turn.medium;
        }
        const auto worked = std::chrono::steady_clock::now() - begun;

        lock.lock();
        const bool givenUp = !found && m_watch.ended;
        if (turn.generation != m_generation || m_ending || givenUp) {
            continue;
        }
        if (found) {
            store(*index, *found);
        } else if (gone) {
            m_gone = true;
        } else {
            // Asked for again with the next look at the view.
            std::erase(m_inView, *index);
            m_cursor += !later && m_cursor == *index ? 1 : 0;
        }
        if (m_busy) {
            m_wake.wait_for(lock, worked * kRestShare,
                            [&] { return m_ending || !m_busy || turn.generation != m_generation; });
        }
    }
}

// Nothing when the look was ended, or when the medium is gone, which then is closed.
std::optional<Soundness> SoundnessBoard::look(const MyImageObject& item, Turn& turn) {
    if (item.carved().runs.empty()) {
        return Soundness{};
    }
    const std::uint64_t readBefore = m_watch.sectorsRead;
    const auto found = examine(item.fileType(), item.carved(), *turn.medium, m_watch, turn.kept,
                               kMostExaminedBytes, m_hintsOf ? m_hintsOf(item) : ItemHints{}, &turn.trials);
    if (turn.kept.capacity() > kMostKeptMemory) {
        turn.kept = {};
    }
    if (m_watch.ended) {
        return std::nullopt;
    }
    if (m_watch.sectorsRead != readBefore) {
        turn.goodSector = item.carved().runs.front().first;
        return found;
    }
    // Not one sector: a bad place, or a medium that went away.
    const bool answers = turn.goodSector && turn.medium->seek(*turn.goodSector) && turn.medium->read();
    if (!answers && (turn.goodSector || ++turn.silentItems >= kMostSilentItems)) {
        turn.medium.reset();
        return std::nullopt;
    }
    return found;
}

}  // namespace vantor
