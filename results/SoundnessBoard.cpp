// One thread, one reader, one item at a time.
#include "results/SoundnessBoard.h"

#include <algorithm>
#include <utility>

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
};

SoundnessBoard::SoundnessBoard(ItemAt itemAt, HintsOf hintsOf, ContentDecoder decodes)
    : m_itemAt(std::move(itemAt)), m_hintsOf(std::move(hintsOf)), m_decodes(std::move(decodes)) {}

SoundnessBoard::~SoundnessBoard() {
    requestEnd();
    if (m_thread.joinable()) {
        m_thread.join();
    }
    if (m_decoder.joinable()) {
        m_decoder.join();
    }
}

void SoundnessBoard::begin(Open open, Failing failing) {
    const std::lock_guard lock(m_mutex);
    ++m_generation;
    m_open = std::move(open);
    m_failing = std::move(failing);
    m_known.clear();
    m_earlier.clear();
    m_followed.clear();
    m_tried.clear();
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
    m_known.merge(m_earlier);
    m_earlier = std::exchange(m_known, {});
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
    if (const auto known = m_known.find(index); known != m_known.end() && noted.camera.isEmpty()) {
        noted.camera = known->second.camera;  // whoever saves a file does not ask for it
    }
    store(index, std::move(noted));
    m_wake.notify_all();
}

// What was once decoded stays checked for those who only follow it; the lock is held.
void SoundnessBoard::store(std::size_t index, Soundness soundness) {
    for (const auto* const before : {&m_known, &m_earlier}) {
        const auto known = before->find(index);
        soundness.checked =
            soundness.checked ||
            (soundness.followed && known != before->end() && known->second.checked &&
             known->second.bytes == soundness.bytes && known->second.pieces == soundness.pieces);
    }
    m_known[index] = std::move(soundness);
    m_news.push_back(index);
    ++m_changes;
    if (isToBeDecoded(index)) {
        m_followed.push_back(index);
    }
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

// What is to be done now; the lock is held.
std::optional<SoundnessBoard::Work> SoundnessBoard::next() {
    if (!m_open || m_gone || m_resting) {
        return std::nullopt;
    }
    for (const std::size_t index : m_inView) {
        if (!isKnown(index)) {
            return Work{index};
        }
    }
    while (m_cursor < m_all && isKnown(m_cursor)) {
        ++m_cursor;
    }
    if (m_busy) {
        return std::nullopt;
    }
    return m_cursor < m_all ? Work{m_cursor} : nextToDecode();
}

std::optional<SoundnessBoard::Work> SoundnessBoard::nextToDecode() {
    if (m_decoding || (m_failing && m_failing())) {
        return std::nullopt;
    }
    std::erase_if(m_followed, [this](std::size_t index) { return !isToBeDecoded(index); });
    auto at = std::find_if(m_followed.begin(), m_followed.end(),
                           [this](std::size_t index) { return isInView(index); });
    if (at == m_followed.end()) {
        at = std::find_if(m_followed.begin(), m_followed.end(),
                          [this](std::size_t index) { return index < m_all; });
    }
    return at != m_followed.end() ? std::optional(Work{*at, true}) : std::nullopt;
}

bool SoundnessBoard::isToBeDecoded(std::size_t index) const {
    const auto known = m_known.find(index);
    if (known == m_known.end() || !known->second.followed || known->second.checked) {
        return false;
    }
    const auto tried = m_tried.find(index);
    return tried == m_tried.end() || tried->second != known->second.bytes;
}

bool SoundnessBoard::isInView(std::size_t index) const {
    return std::find(m_inView.begin(), m_inView.end(), index) != m_inView.end();
}

// Not open where it is not to be decoded.
FileDescriptor SoundnessBoard::contentOf(const MyImageObject& item, Turn& turn, std::uint64_t bytes,
                                         const Failing& failing) {
    const StopRequest stop = [&] { return m_watch.ended || (failing && failing()); };
    return contentInMemory(item.fileType(), item.carved(), *turn.medium, m_watch, turn.kept, bytes,
                           m_hintsOf ? m_hintsOf(item) : ItemHints{}, stop);
}

// The lock is held, and no movie is being decoded.
void SoundnessBoard::decodeBeside(std::size_t index, std::uint64_t bytes, FileDescriptor content) {
    if (m_decoder.joinable()) {
        m_decoder.join();
    }
    m_decoding = true;
    m_decoder = std::thread([this, index, bytes, generation = m_generation, content = std::move(content)] {
        const StopRequest stop = [this, generation] {
            const std::lock_guard lock(m_mutex);
            return m_ending || generation != m_generation;
        };
        const bool whole = m_decodes ? m_decodes(content.get(), stop) : m_trials.decodes(content.get(), stop);
        const std::lock_guard lock(m_mutex);
        m_decoding = false;
        if (whole && generation == m_generation) {
            noteWhole(index, bytes);
        }
        m_wake.notify_all();
    });
}

void SoundnessBoard::noteWhole(std::size_t index, std::uint64_t bytes) {
    for (auto* const map : {&m_known, &m_earlier}) {
        const auto known = map->find(index);
        if (known == map->end() || !known->second.followed || known->second.bytes != bytes) {
            continue;
        }
        known->second.checked = true;
        if (map == &m_known) {
            m_news.push_back(index);
            ++m_changes;
        }
    }
}

void SoundnessBoard::run() {
    Turn turn;
    std::unique_lock lock(m_mutex);
    for (;;) {
        std::optional<Work> work;
        const auto isLeft = [&] { return turn.medium && (turn.generation != m_generation || !isWished()); };
        m_wake.wait(lock, [&] { return m_ending || isLeft() || (work = next()).has_value(); });
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
        const std::size_t index = work->index;
        if (work->decoding) {
            prepareDecoding(index, turn, lock);
            continue;
        }
        const Open open = m_open;
        const bool busy = m_busy;
        m_watch.ended = false;
        lock.unlock();

        const auto begun = std::chrono::steady_clock::now();
        const std::shared_ptr<const MyImageObject> item = m_itemAt(index);
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
            store(index, *std::move(found));
        } else if (gone) {
            m_gone = true;
        } else {
            // Asked for again with the next look at the view.
            std::erase(m_inView, index);
            m_cursor += !later && m_cursor == index ? 1 : 0;
        }
        if (m_busy) {
            m_wake.wait_for(lock, worked * kRestShare,
                            [&] { return m_ending || !m_busy || turn.generation != m_generation; });
        }
    }
}

// Brings the bytes of what was followed into memory and has them decoded. The lock is held, but not
// meanwhile.
void SoundnessBoard::prepareDecoding(std::size_t index, Turn& turn, std::unique_lock<std::mutex>& lock) {
    const std::uint64_t bytes = m_known[index].bytes;
    if (std::exchange(m_trialsOf, m_generation) != m_generation) {
        m_trials = ContentTrials(ContentTrials::kInPassing);
    }
    const bool mayTry = m_trials.mayTry(bytes);
    const Open open = m_open;
    const Failing failing = m_failing;
    m_watch.ended = false;
    lock.unlock();

    const std::shared_ptr<const MyImageObject> item = mayTry ? m_itemAt(index) : nullptr;
    if (item && !turn.medium) {
        turn.medium = open();
    }
    FileDescriptor content = item && turn.medium ? contentOf(*item, turn, bytes, failing) : FileDescriptor();

    lock.lock();
    // Whoever gave the look up for a moment gets it later.
    if (turn.generation != m_generation || m_ending || m_watch.ended) {
        return;
    }
    m_tried[index] = bytes;
    if (content) {
        decodeBeside(index, bytes, std::move(content));
    }
}

// Nothing when the look was ended, or when the medium is gone, which then is closed.
std::optional<Soundness> SoundnessBoard::look(const MyImageObject& item, Turn& turn) {
    if (item.carved().runs.empty()) {
        return Soundness{};
    }
    const std::uint64_t readBefore = m_watch.sectorsRead;
    const auto found = examine(item.fileType(), item.carved(), *turn.medium, m_watch, turn.kept,
                               kMostExaminedBytes, m_hintsOf ? m_hintsOf(item) : ItemHints{});
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
