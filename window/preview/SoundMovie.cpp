// The player does the work; here is when it starts, where it stands and when it is over.
#include "window/preview/SoundMovie.h"

#include <algorithm>
#include <utility>

namespace vantor {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kSoundPollMilliseconds = 50;

}  // namespace

SoundMovie::SoundMovie(std::unique_ptr<SoundPlayer> player, QImage poster, std::int64_t durationMs,
                       std::chrono::milliseconds patience)
    : m_player(std::move(player)),
      m_poster(std::move(poster)),
      m_durationMs(durationMs),
      m_patience(patience) {}

SoundMovie::~SoundMovie() = default;

std::unique_ptr<Movie> SoundMovie::open(const QString& file, QSize largestPoster,
                                        const HelperMovieOptions& options) {
    const auto reader = SoundReader::open(file, options.reader);
    auto device = reader && options.sound ? options.sound() : nullptr;
    if (!device) {
        return nullptr;
    }
    return std::unique_ptr<Movie>(
        new SoundMovie(std::make_unique<SoundPlayer>(file, std::move(device), options.reader),
                       MovieReader::cover(file, largestPoster, options.reader), reader->durationMs(),
                       options.soundPatience));
}

void SoundMovie::play() {
    if (m_clock) {
        return;
    }
    if (std::exchange(m_atEnd, false)) {
        m_positionMs = 0;
    }
    if (!m_poll) {
        m_poll = std::make_unique<QTimer>();
        QObject::connect(m_poll.get(), &QTimer::timeout, m_poll.get(), [this] { follow(); });
    }
    startHere();
    m_poll->start(kSoundPollMilliseconds);
}

void SoundMovie::startHere() {
    m_player->start(m_positionMs);
    m_clock.emplace(m_positionMs, m_player.get(), Clock::now(), m_patience);
}

void SoundMovie::stop() {
    m_player->stop();
    m_clock.reset();
    if (m_poll) {
        m_poll->stop();
    }
}

void SoundMovie::seek(std::int64_t timeMs) {
    m_positionMs = std::clamp<std::int64_t>(timeMs, 0, m_durationMs);
    m_atEnd = false;
    if (m_clock) {
        startHere();
    }
}

void SoundMovie::setMuted(bool muted) {
    m_muted = muted;
    m_player->setMuted(muted);
}

void SoundMovie::setVolume(double volume) {
    m_volume = std::clamp(volume, 0.0, 1.0);
    m_player->setVolume(m_volume);
}

void SoundMovie::follow() {
    const std::int64_t now = m_clock->nowMs(Clock::now());
    // The time of silent rooms is of no interest.
    const bool failed = !m_clock->hasSound();
    if (!failed) {
        m_positionMs = m_durationMs > 0 ? std::min(now, m_durationMs) : now;
        m_atEnd = m_player->isFinished();
    }
    if (failed || m_atEnd) {
        stop();
    }
    if (onProgress) {
        onProgress();
    }
}

std::unique_ptr<Movie> openMovieOrSound(const QString& file, QSize largest,
                                        const HelperMovieOptions& options) {
    std::unique_ptr<Movie> movie = HelperMovie::open(file, largest, options);
    return movie ? std::move(movie) : SoundMovie::open(file, largest, options);
}

}  // namespace vantor
