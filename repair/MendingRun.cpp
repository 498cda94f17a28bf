// First what is broken and what is whole, then the movies, the photos, the archives, then the movies without
// an index.
#include "repair/MendingRun.h"

#include <algorithm>
#include <utility>

#include "results/MyImageObject.h"

namespace vantor {

// Passes on what the medium gives, and ends the run where that has gone for good.
class MendingRun::Medium final : public SectorReader {
  public:
    Medium(std::unique_ptr<SectorReader> medium, MendingRun& run)
        : m_medium(std::move(medium)), m_watched(*m_medium, run.m_watch), m_run(run) {}

    std::uint64_t mediumSectors() const override { return m_medium->mediumSectors(); }
    bool isGone() override { return m_gone; }

  protected:
    bool fetch() override {
        const bool there =
            (m_watched.position() == position() || m_watched.seek(position())) && m_watched.read();
        if (!there) {
            noteGone();
            return false;
        }
        handOver(m_watched.current(), 1);
        return true;
    }
    bool moveTo(std::uint64_t sector) override { return m_watched.seek(sector); }

  private:
    void noteGone() {
        m_gone = m_gone || m_medium->isGone();
        if (m_gone) {
            m_run.m_stop = 1;
        }
    }

    const std::unique_ptr<SectorReader> m_medium;
    WatchedReader m_watched;
    MendingRun& m_run;
    bool m_gone = false;
};

MendingRun::~MendingRun() {
    stop();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void MendingRun::start(MendingOrder order, std::function<void()> over) {
    if (m_running) {
        return;
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
    const std::lock_guard lock(m_mutex);
    m_order = std::move(order);
    m_over = std::move(over);
    m_cancel = std::make_unique<CancelSignal>();
    m_order.helper.cancel = m_cancel.get();
    m_stop = 0;
    m_watch.ended = false;
    m_step = MendingStep::Examining;
    m_progress.looked = 0;
    m_progress.of = m_order.places.size();
    m_result = {};
    m_running = true;
    m_thread = std::thread([this] { run(); });
}

void MendingRun::stop() {
    const std::lock_guard lock(m_mutex);
    m_stop = 1;
    m_watch.ended = true;
    if (m_cancel) {
        m_cancel->raise();
    }
}

MendingResult MendingRun::result() const {
    const std::lock_guard lock(m_mutex);
    return m_result;
}

void MendingRun::run() {
    const MendingEnd end = work();
    {
        const std::lock_guard lock(m_mutex);
        m_result.end = end;
    }
    const std::function<void()> over = std::exchange(m_over, {});
    m_order = {};
    m_sharing.clear();
    m_running = false;
    if (over) {
        over();
    }
}

MendingEnd MendingRun::work() {
    auto opened = m_order.openMedium ? m_order.openMedium() : nullptr;
    if (!opened) {
        return MendingEnd::CannotOpen;
    }
    Medium medium(std::move(opened), *this);
    const std::vector<MendableItem> items = examineAll(medium);
    ItemMending mending(
        medium, m_stop, m_progress,
        [&](const MendableItem& item, Mend mend) { return take(item, std::move(mend), medium); },
        m_order.helper);
    CompletionSum movies, photos, archives;
    ItemMending::RepairSum repairs;
    for (const auto& mend : m_order.mended->allProved()) {
        mending.explain(mend->assembly.runs);
    }
    const auto enter = [this](MendingStep step) {
        m_progress.looked = 0;
        m_progress.of = 0;
        m_step = step;
        return m_stop == 0;
    };
    if (m_order.movies && enter(MendingStep::Movies)) {
        movies = mending.completeMovies(items);
    }
    if (m_order.photos && enter(MendingStep::Photos)) {
        photos = mending.completePhotos(items);
    }
    if (m_order.photos && enter(MendingStep::Archives)) {
        archives = mending.completeArchives(items);
    }
    if (m_order.movies && enter(MendingStep::Repairing)) {
        repairs = mending.repairMovies(items);
    }
    {
        const std::lock_guard lock(m_mutex);
        m_result.broken = movies.broken + photos.broken + archives.broken;
    }
    return medium.isGone() ? MendingEnd::MediumGone
           : m_stop != 0   ? MendingEnd::Stopped
                           : MendingEnd::Finished;
}

std::vector<MendableItem> MendingRun::examineAll(SectorReader& medium) {
    std::vector<MendableItem> items;
    std::vector<std::uint8_t> kept;
    for (const std::size_t place : m_order.places) {
        if (m_stop != 0) {
            break;
        }
        ++m_progress.looked;
        const auto item = m_order.itemAt(place);
        if (!item) {
            continue;
        }
        std::optional<Soundness> soundness = m_order.known(place);
        if (!soundness) {
            soundness = look(*item, medium, kept);
            if (!soundness || !tell(place, *soundness)) {
                break;
            }
        }
        const bool complete = soundness->verdict == Verdict::Complete && !soundness->notOfItsType;
        if (!item->carved().runs.empty()) {
            m_sharing.emplace(item->carved().runs.front().first, place);
        }
        items.push_back({place, item->fileType(), item->imageTitle(), item->carved(), complete,
                         complete && soundness->followed, soundness->bytes, soundness->pieces});
    }
    return items;
}

// Nothing when the run is to end.
std::optional<Soundness> MendingRun::look(const MyImageObject& item, SectorReader& medium,
                                          std::vector<std::uint8_t>& kept) {
    ItemHints hints;
    hints.card = m_order.card;
    hints.mend = m_order.mended->provedOf(item);
    auto soundness =
        examine(item.fileType(), item.carved(), medium, m_watch, kept, kMostExaminedBytes, hints);
    return m_stop == 0 ? std::move(soundness) : std::nullopt;
}

bool MendingRun::take(const MendableItem& item, Mend mend, SectorReader& medium) {
    const std::uint64_t first = item.carved.runs.front().first;
    const bool proved = mend.kind == MendKind::Completed;
    {
        const std::lock_guard lock(m_mutex);
        if (m_stop != 0) {
            return false;
        }
        m_order.mended->add(item.type, first, std::move(mend));
    }
    if (!proved) {
        return true;
    }
    // Those that share its place are mended with it.
    std::vector<std::uint8_t> kept;
    const auto [from, to] = m_sharing.equal_range(first);
    for (auto sharing = from; sharing != to; ++sharing) {
        const std::size_t place = sharing->second;
        const auto other = m_order.itemAt(place);
        if (!other || !m_order.mended->provedOf(*other)) {
            continue;
        }
        const auto soundness = look(*other, medium, kept);
        if (!soundness || !tell(place, *soundness)) {
            break;
        }
    }
    return true;
}

// False when nobody listens any more.
bool MendingRun::tell(std::size_t place, const Soundness& soundness) {
    const std::lock_guard lock(m_mutex);
    if (m_stop != 0) {
        return false;
    }
    m_order.examined(place, soundness);
    return true;
}

}  // namespace vantor
