// The readers' side of a copy: from the image what it has, and patience for what it does not have yet.
#include <algorithm>
#include <chrono>
#include <cstring>
#include <utility>

#include "media/MediumCopy.h"
#include "media/WindowedReader.h"

namespace vantor {

namespace {

constexpr auto kPollTime = std::chrono::milliseconds(50);

}  // namespace

// How long a reader waits: until it is told to stop, and then as long as a device may take for one read.
class MediumCopy::Patience {
  public:
    explicit Patience(StopRequest stop) : m_stop(std::move(stop)) {}

    // Waits a little. The user's answer is asked for without the lock.
    void wait(std::unique_lock<std::mutex>& lock, std::condition_variable& answer) {
        answer.wait_for(lock, kPollTime);
        lock.unlock();
        m_stopping = m_stopping || (m_stop && m_stop());
        lock.lock();
        m_grace -= m_stopping ? kPollTime : std::chrono::milliseconds(0);
    }
    bool isStopping() const { return m_stopping; }
    bool isOver() const { return m_grace.count() <= 0; }
    void renew() {
        m_stopping = false;
        m_grace = std::chrono::milliseconds(AbandonableSource::kGraceMs);
    }

  private:
    StopRequest m_stop;
    bool m_stopping = false;
    std::chrono::milliseconds m_grace{AbandonableSource::kGraceMs};
};

class MediumCopy::Source : public BlockSource {
  public:
    Source(std::shared_ptr<MediumCopy> copy, StopRequest stop)
        : m_copy(std::move(copy)),
          m_sectors(m_copy->m_map.bytes() / kSectorBytes),
          m_patience(std::move(stop)) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        if (sector >= m_sectors || m_gone) {
            return -1;
        }
        const std::uint64_t most = (m_sectors - sector) * kSectorBytes;
        m_patience.renew();
        const std::int64_t got = m_copy->readAt(
            sector, into.first(static_cast<std::size_t>(std::min<std::uint64_t>(into.size(), most))),
            m_patience);
        m_gone = m_gone || got == kGone;
        return std::max<std::int64_t>(got, -1);
    }
    bool usable() override { return !m_gone; }
    std::uint64_t sectors() const override { return m_sectors; }

    // Beside what BlockSource::readAt() returns: this and all that follows will not come any more.
    static constexpr std::int64_t kGone = -2;

  private:
    const std::shared_ptr<MediumCopy> m_copy;
    const std::uint64_t m_sectors;
    Patience m_patience;
    std::atomic<bool> m_gone = false;
};

std::unique_ptr<SectorReader> MediumCopy::openReader(StopRequest stop) {
    std::unique_lock lock(m_mutex);
    if (!m_hasMedium) {
        m_openWanted = true;
        changed();
        Patience patience(stop);
        while (m_openWanted && !patience.isOver()) {
            patience.wait(lock, m_answer);
        }
    }
    const bool nothingThere = !m_hasMedium && m_map.bytesIn(CopyState::Copied) == 0;
    if (nothingThere || m_otherMedium) {
        return nullptr;
    }
    lock.unlock();
    return std::make_unique<WindowedReader>(std::make_unique<Source>(shared_from_this(), std::move(stop)));
}

std::int64_t MediumCopy::readAt(std::uint64_t sector, std::span<std::uint8_t> into, Patience& patience) {
    std::unique_lock lock(m_mutex);
    const std::uint64_t wanted = into.size() / kSectorBytes;
    while (!patience.isOver()) {
        const CopyRun run = m_map.at(sector * kSectorBytes);
        if (run.state == CopyState::Copied) {
            const std::uint64_t have = std::min(wanted, run.end / kSectorBytes - sector);
            // Less than was asked for looks like a refusal: what is being read just now is waited for.
            const std::uint64_t next = sector + have;
            if (have == wanted || next < m_onItsWay.first || next >= m_onItsWay.end ||
                patience.isStopping()) {
                lock.unlock();
                return m_file->readAt(sector, into.first(have * kSectorBytes));
            }
        } else if (m_cannotWrite && m_hasMedium) {
            return ask(lock, sector, into, patience);
        } else if (!m_hasMedium) {
            const bool more = m_map.firstOf(CopyState::Copied, run.end, m_map.bytes()).has_value();
            return more ? -1 : Source::kGone;
        } else if (!m_plan.mayChange(sector) || (m_paused && run.state != CopyState::NotTried)) {
            return -1;
        }
        const auto want = m_wanted.insert(sector);
        changed();
        patience.wait(lock, m_answer);
        m_wanted.erase(want);
        m_paused = m_paused || patience.isStopping();
    }
    return Source::kGone;
}

std::int64_t MediumCopy::ask(std::unique_lock<std::mutex>& lock, std::uint64_t sector,
                             std::span<std::uint8_t> into, Patience& patience) {
    const auto request = std::make_shared<Request>();
    request->sector = sector;
    request->bytes.resize(into.size());
    m_requests.push_back(request);
    changed();
    while (!request->done && !patience.isOver()) {
        patience.wait(lock, m_answer);
    }
    if (!request->done) {
        return Source::kGone;
    }
    if (request->got > 0) {
        std::memcpy(into.data(), request->bytes.data(), static_cast<std::size_t>(request->got));
    }
    return request->got < 0 && !m_hasMedium ? Source::kGone : request->got;
}

}  // namespace vantor
