// One item after the other: the interface thread says which, the thread of this says what came of it.
#include "window/preview/CellPictures.h"

#include <QBuffer>
#include <QMetaObject>
#include <algorithm>
#include <utility>

namespace vantor {

namespace {

// Rests so many times as long as it worked while others use the medium.
constexpr int kRestShare = 4;
constexpr std::chrono::milliseconds kLongestRest{10'000};
// A medium of which so many items in a row gave not one sector is gone.
constexpr int kMostSilentItems = 3;
constexpr int kQuality = 85;
constexpr int kOverhead = 96;  // bytes that a kept picture costs beside its own

QByteArray encodedWithin(const QImage& picture, int side) {
    const QSize bound(side, side);
    const bool large = picture.width() > side || picture.height() > side;
    const QImage small =
        large ? picture.scaled(bound, Qt::KeepAspectRatio, Qt::SmoothTransformation) : picture;
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    const bool clear = small.hasAlphaChannel();
    return small.save(&bytes, clear ? "PNG" : "JPG", clear ? -1 : kQuality) ? bytes.data() : QByteArray();
}

}  // namespace

// Stays open from item to item of one list.
class CellPictures::KeptMedium {
  public:
    bool openFor(const Work& work) {
        if (m_ticket != work.ticket) {
            close();
            m_ticket = work.ticket;
        }
        if (!m_medium && work.order.openMedium) {
            m_medium = work.order.openMedium();
        }
        return m_medium != nullptr;
    }
    void close() {
        m_medium.reset();
        m_silentItems = 0;
    }
    bool isOpen() const { return m_medium != nullptr; }
    std::unique_ptr<SectorReader> lend() {
        m_readBefore = m_watch.sectorsRead;
        return std::make_unique<WatchedReader>(*m_medium, m_watch);
    }
    // What was read of it since then tells whether it is still there.
    bool hasGone() {
        m_silentItems = m_watch.sectorsRead == m_readBefore ? m_silentItems + 1 : 0;
        return m_medium->isGone() || m_silentItems >= kMostSilentItems;
    }

  private:
    std::unique_ptr<SectorReader> m_medium;
    ReadWatch m_watch;
    std::uint64_t m_readBefore = 0;
    std::uint64_t m_ticket = 0;
    int m_silentItems = 0;
};

CellPictures::CellPictures(FileLooker look, OrderOf orderOf)
    : m_look(std::move(look)), m_orderOf(std::move(orderOf)), m_made(kMostBytes) {
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &CellPictures::goOn);
}

CellPictures::~CellPictures() {
    requestEnd();
    m_thread.join();
}

void CellPictures::begin() {
    giveUp();
    ++m_ticket;
    m_made.clear();
    m_wanted.clear();
    m_mediumIsGone = false;
    goOn();
}

// Whether that is still what there is of the item.
bool CellPictures::shows(std::size_t index, const std::shared_ptr<const Mend>& mend) const {
    const auto order = m_orderOf(index);
    return !order || order->file.hints.mend == mend;
}

void CellPictures::mendsChanged() {
    for (const std::size_t index : m_made.keys()) {
        if (!shows(index, m_made.object(index)->mend)) {
            m_made.remove(index);
        }
    }
    goOn();
}

void CellPictures::want(std::vector<std::size_t> inView, int side, bool mediumBusy) {
    m_wanted = std::move(inView);
    m_side = side;
    m_mediumBusy = mediumBusy;
    if (!mediumBusy) {
        m_pause.stop();
    }
    if (m_atWork && std::find(m_wanted.begin(), m_wanted.end(), *m_atWork) == m_wanted.end()) {
        giveUp();
    }
    goOn();
}

void CellPictures::rest(bool resting) {
    m_resting = resting;
    if (resting) {
        giveUp();
    }
    goOn();
}

void CellPictures::giveUp() {
    if (m_whole) {
        m_whole->cancel();
    }
}

// Hands over the first item in view that nothing is known of; with none the medium is let go.
void CellPictures::goOn() {
    if (m_atWork || m_pause.isActive() || !m_look) {
        return;
    }
    if (!m_resting && !m_mediumIsGone) {
        for (const std::size_t index : m_wanted) {
            if (m_made.contains(index)) {
                continue;
            }
            if (auto order = m_orderOf(index)) {
                order->bound = {m_side, m_side};
                m_atWork = index;
                m_whole = std::make_shared<WholePreview>();
                give({index, std::move(*order), m_whole, m_ticket});
                return;
            }
        }
    }
    const std::lock_guard guard(m_mutex);
    m_nothingWanted = true;
    m_wake.notify_all();
}

void CellPictures::give(Work work) {
    {
        const std::lock_guard guard(m_mutex);
        m_next = std::move(work);
        m_nothingWanted = false;
    }
    m_thread.begin([this] { run(); });
    m_wake.notify_all();
}

void CellPictures::take(const Work& work, Outcome outcome, const CellPicture& picture,
                        std::chrono::milliseconds worked) {
    m_atWork.reset();
    m_whole.reset();
    if (work.ticket == m_ticket) {
        m_mediumIsGone = outcome == Outcome::MediumIsGone;
        if (outcome == Outcome::Looked && shows(work.index, work.order.file.hints.mend)) {
            m_made.insert(work.index, new Made{picture, work.order.file.hints.mend},
                          picture.encoded.size() + kOverhead);
            emit changed();
        }
    }
    if (m_mediumBusy) {
        m_pause.start(std::min(worked * kRestShare, kLongestRest));
    } else {
        goOn();
    }
}

void CellPictures::requestEnd() {
    m_wanted.clear();
    m_resting = true;
    giveUp();
    {
        const std::lock_guard guard(m_mutex);
        m_ending = true;
        m_next.reset();
    }
    m_wake.notify_all();
}

void CellPictures::run() {
    KeptMedium medium;
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [&] { return m_ending || m_next || (m_nothingWanted && medium.isOpen()); });
        if (m_ending) {
            return;
        }
        if (!m_next) {
            lock.unlock();
            medium.close();
            lock.lock();
            continue;
        }
        const Work work = std::move(*std::exchange(m_next, std::nullopt));
        lock.unlock();
        const auto begun = std::chrono::steady_clock::now();
        CellPicture picture;
        const Outcome outcome = makeOne(work, medium, picture);
        const auto worked =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begun);
        QMetaObject::invokeMethod(
            this, [this, work, outcome, picture, worked] { take(work, outcome, picture, worked); },
            Qt::QueuedConnection);
        lock.lock();
    }
}

// Of a long file its ends have to do: formats keep there what opens them.
CellPictures::Outcome CellPictures::makeOne(const Work& work, KeptMedium& medium,
                                            CellPicture& picture) const {
    if (!medium.openFor(work)) {
        return Outcome::MediumIsGone;
    }
    WholePreview& whole = *work.whole;
    whole.begin(work.order.file, medium.lend());
    if (whole.wasCancelled()) {
        return Outcome::GivenUp;
    }
    if (medium.hasGone()) {
        medium.close();
        return Outcome::MediumIsGone;
    }
    if (const QString file = whole.path(); !file.isEmpty()) {
        const FileLook look = m_look(file, work.order.bound);
        picture = {
            look.picture.isNull() ? QByteArray() : encodedWithin(look.picture, work.order.bound.width()),
            look.durationMs};
    }
    return Outcome::Looked;
}

}  // namespace vantor
