// Pieces are decoded half a second ahead and handed over as the device asks for them.
#include "window/preview/SoundPlayer.h"

#include <algorithm>
#include <utility>

namespace vantor {

namespace {

constexpr std::int64_t kAheadFrames = kSoundFramesPerSecond / 2;
// So much has to be there before the device begins, lest the first piece be the last for a while.
constexpr std::int64_t kFirstFrames = kSoundFramesPerSecond / 5;
// Holes in the sound up to this length are played as silence; longer ones are damaged stamps.
constexpr std::int64_t kLongestHoleMs = 5000;
// Shorter ones are rounding.
constexpr std::int64_t kShortestHoleMs = 40;

std::int64_t msOf(std::int64_t frames) {
    return frames * 1000 / kSoundFramesPerSecond;
}

std::int64_t framesIn(std::int64_t ms) {
    return ms * kSoundFramesPerSecond / 1000;
}

}  // namespace

SoundPlayer::SoundPlayer(QString file, std::unique_ptr<SoundDevice> device, MovieReaderOptions options)
    : m_file(std::move(file)), m_options(std::move(options)), m_device(std::move(device)) {
    m_options.cancel = &m_worker.cancel;
    m_worker.thread = std::thread([this] { decode(); });
}

SoundPlayer::~SoundPlayer() {
    stop();
    m_worker.end();
}

void SoundPlayer::start(std::int64_t timeMs) {
    stop();
    {
        const std::lock_guard lock(m_worker.lock);
        ++m_turn;
        m_playing = true;
        m_startMs = m_nextMs = m_lastPositionMs = timeMs;
    }
    m_worker.changed.notify_all();
}

void SoundPlayer::stop() {
    {
        const std::lock_guard lock(m_worker.lock);
        ++m_turn;
        m_playing = false;
        m_outputBegun = false;
        m_ended = false;
        m_samples.clear();
        m_given = m_starved = 0;
    }
    const std::lock_guard deviceLock(m_deviceLock);
    m_device->stop();
}

std::int64_t SoundPlayer::positionMs() {
    const std::int64_t played = m_device->playedFrames();
    const std::lock_guard lock(m_worker.lock);
    if (m_outputBegun) {
        // The silence of a late piece counts when it is handed over, a little before it is heard.
        m_lastPositionMs = std::max(m_lastPositionMs, m_startMs + msOf(played - m_starved));
    }
    return m_lastPositionMs;
}

bool SoundPlayer::isFinished() {
    const std::int64_t played = m_device->playedFrames();
    const std::lock_guard lock(m_worker.lock);
    return m_ended && m_samples.empty() && played >= m_given + m_starved;
}

bool SoundPlayer::wantsPiece() const {
    return m_playing && !m_ended &&
           static_cast<std::int64_t>(m_samples.size()) < kAheadFrames * kSoundChannels;
}

void SoundPlayer::decode() {
    std::unique_ptr<SoundReader> reader;
    std::uint64_t turn = 0;
    std::unique_lock lock(m_worker.lock);
    for (;;) {
        m_worker.changed.wait(lock, [this] { return m_worker.closing || wantsPiece(); });
        if (m_worker.closing) {
            return;
        }
        const bool anew = turn != m_turn;
        turn = m_turn;
        const std::int64_t start = m_startMs;
        lock.unlock();
        std::optional<SoundPiece> piece;
        if (!reader && !m_failed) {
            reader = SoundReader::open(m_file, m_options);
            m_failed = !reader;
        }
        if (reader) {
            piece = anew ? reader->seek(start) : reader->next();
        }
        lock.lock();
        if (turn != m_turn) {
            continue;
        }
        if (piece) {
            take(*piece);
        }
        m_ended = !piece;
        const bool enough = static_cast<std::int64_t>(m_samples.size()) >= kFirstFrames * kSoundChannels;
        if (!m_outputBegun && !m_failed && (m_ended || enough)) {
            lock.unlock();
            beginOutput(turn);
            lock.lock();
        }
    }
}

// Pieces that begin late get silence before them, what lies before the start is cut off.
void SoundPlayer::take(const SoundPiece& piece) {
    const std::int64_t lateMs = piece.timeMs - m_nextMs;
    const bool first = m_samples.empty() && m_given == 0;
    std::int64_t skipped = 0;
    if (lateMs > (first ? 0 : kShortestHoleMs) && lateMs <= kLongestHoleMs) {
        appendSilence(framesIn(lateMs));
    } else if (lateMs < 0 && first) {
        skipped = std::min(framesIn(-lateMs), piece.frames());
    }
    m_samples.insert(m_samples.end(), piece.samples.begin() + skipped * kSoundChannels, piece.samples.end());
    m_nextMs = std::max(m_nextMs, piece.timeMs + msOf(piece.frames()));
}

void SoundPlayer::appendSilence(std::int64_t frames) {
    m_samples.insert(m_samples.end(), static_cast<std::size_t>(frames * kSoundChannels), std::int16_t{0});
}

void SoundPlayer::beginOutput(std::uint64_t turn) {
    const std::lock_guard deviceLock(m_deviceLock);
    {
        const std::lock_guard lock(m_worker.lock);
        if (turn != m_turn) {
            return;
        }
        m_outputBegun = true;
    }
    m_device->start([this](std::span<std::int16_t> samples) { fill(samples); });
}

void SoundPlayer::fill(std::span<std::int16_t> samples) {
    {
        const std::lock_guard lock(m_worker.lock);
        const std::size_t count = std::min(samples.size(), m_samples.size());
        const auto end = m_samples.begin() + static_cast<std::ptrdiff_t>(count);
        std::copy(m_samples.begin(), end, samples.begin());
        m_samples.erase(m_samples.begin(), end);
        std::fill(samples.begin() + static_cast<std::ptrdiff_t>(count), samples.end(), std::int16_t{0});
        m_given += static_cast<std::int64_t>(count) / kSoundChannels;
        // After the end silence is as good as sound: the time goes on.
        if (!m_ended) {
            m_starved += static_cast<std::int64_t>(samples.size() - count) / kSoundChannels;
        }
    }
    if (m_muted) {
        std::fill(samples.begin(), samples.end(), std::int16_t{0});
    } else if (const double volume = m_volume; volume < 1) {
        for (std::int16_t& sample : samples) {
            sample = static_cast<std::int16_t>(sample * volume);
        }
    }
    m_worker.changed.notify_all();
}

}  // namespace vantor
