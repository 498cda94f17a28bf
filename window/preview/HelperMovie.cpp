// Playing: the reader's thread fetches frames when they are due, the interface thread shows the latest.
#include "window/preview/HelperMovie.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "window/preview/PlaybackClock.h"

namespace vantor {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int kMoviePollMilliseconds = 20;
// How often the reader's thread looks at the clock while a frame is not yet due.
constexpr milliseconds kLongestWait{15};
// Frames later than this are left out where there is sound: the decoder goes to where that is.
constexpr std::int64_t kMostLateMs = 1500;

}  // namespace

std::unique_ptr<Movie> HelperMovie::open(const QString& file, QSize largest, HelperMovieOptions options) {
    std::unique_ptr<HelperMovie> movie(new HelperMovie);
    movie->m_worker.thread = std::thread([made = movie.get(), file, largest, options = std::move(options)] {
        made->run(file, largest, options);
    });
    {
        std::unique_lock lock(movie->m_worker.lock);
        movie->m_worker.changed.wait(lock, [&] { return movie->m_opened; });
    }
    return movie->m_poster.isNull() ? nullptr : std::move(movie);
}

HelperMovie::~HelperMovie() {
    stop();
    m_worker.end();
}

void HelperMovie::play() {
    {
        const std::lock_guard lock(m_worker.lock);
        m_playing = true;
    }
    m_worker.changed.notify_all();
    poll();
}

// The reader's thread starts no sound once m_playing is false, so what is silent here stays so.
void HelperMovie::stop() {
    const std::lock_guard lock(m_worker.lock);
    m_playing = false;
    ++m_stops;
    if (m_sound) {
        m_sound->stop();
    }
    m_worker.changed.notify_all();
}

void HelperMovie::seek(std::int64_t timeMs) {
    {
        const std::lock_guard lock(m_worker.lock);
        m_seekTo = std::clamp<std::int64_t>(timeMs, 0, m_durationMs);
        m_positionMs = *m_seekTo;
        if (m_sound) {
            m_sound->stop();
        }
    }
    m_worker.changed.notify_all();
    poll();
}

void HelperMovie::setMuted(bool muted) {
    m_muted = muted;
    if (m_sound) {
        m_sound->setMuted(muted);
    }
}

void HelperMovie::setVolume(double volume) {
    m_volume = std::clamp(volume, 0.0, 1.0);
    if (m_sound) {
        m_sound->setVolume(m_volume);
    }
}

void HelperMovie::poll() {
    if (!m_poll) {
        m_poll = std::make_unique<QTimer>();
        QObject::connect(m_poll.get(), &QTimer::timeout, m_poll.get(), [this] { report(); });
    }
    m_reportedPlaying = m_playing;
    m_poll->start(kMoviePollMilliseconds);
}

void HelperMovie::report() {
    QImage frame;
    bool busy = false;
    {
        const std::lock_guard lock(m_worker.lock);
        frame = std::exchange(m_latest, {});
        busy = m_playing || m_seekTo;
    }
    if (!busy) {
        m_poll->stop();
    }
    if (!frame.isNull() && onFrame) {
        onFrame(frame);
    }
    const bool moved = std::exchange(m_reportedMs, m_positionMs) != m_positionMs;
    const bool turned = std::exchange(m_reportedPlaying, m_playing) != m_playing;
    if ((moved || turned) && onProgress) {
        onProgress();
    }
}

std::unique_ptr<MovieReader> HelperMovie::openReader(const QString& file, QSize largest,
                                                     const HelperMovieOptions& options) {
    MovieReaderOptions own = options.reader;
    own.cancel = &m_worker.cancel;
    std::unique_ptr<MovieReader> reader = MovieReader::open(file, largest, own);
    const std::lock_guard lock(m_worker.lock);
    if (reader) {
        m_poster = reader->poster().image;
        m_durationMs = reader->durationMs();
        if (auto device = reader->hasSound() && options.sound ? options.sound() : nullptr) {
            m_sound = std::make_unique<SoundPlayer>(file, std::move(device), options.reader);
        }
    }
    m_opened = true;
    m_worker.changed.notify_all();
    return reader;
}

void HelperMovie::run(const QString& file, QSize largest, const HelperMovieOptions& options) {
    const std::unique_ptr<MovieReader> reader = openReader(file, largest, options);
    while (reader) {
        std::optional<std::int64_t> target;
        {
            std::unique_lock lock(m_worker.lock);
            m_worker.changed.wait(lock, [this] { return m_worker.closing || m_playing || m_seekTo; });
            if (m_worker.closing) {
                return;
            }
            target = m_seekTo;
            if (!target && m_atEnd) {
                target = 0;
            }
        }
        if (target) {
            goTo(*reader, *target);
        } else {
            playFrames(*reader, options.soundPatience);
        }
    }
}

void HelperMovie::show(const MovieFrame& frame) {
    const std::lock_guard lock(m_worker.lock);
    m_latest = frame.image;
    if (!m_seekTo) {
        m_positionMs = frame.timeMs;
    }
}

// Beyond the last frame the picture stays.
void HelperMovie::goTo(MovieReader& reader, std::int64_t timeMs) {
    const std::optional<MovieFrame> frame = reader.seek(timeMs);
    {
        const std::lock_guard lock(m_worker.lock);
        m_atEnd = !frame;
        if (m_seekTo == timeMs) {
            m_seekTo.reset();
        }
        if (!frame && !m_seekTo) {
            m_playing = false;
        }
    }
    if (frame) {
        show(*frame);
    }
}

// Where the movie goes on from; what is heard begins there as well.
std::int64_t HelperMovie::startSound() {
    const std::lock_guard lock(m_worker.lock);
    m_turn = m_stops;
    if (m_sound && goesOn()) {
        m_sound->start(m_positionMs);
    }
    return m_positionMs;
}

// Until the movie is stopped, sought in, or at its end, where it begins anew the next time.
void HelperMovie::playFrames(MovieReader& reader, milliseconds soundPatience) {
    const std::int64_t begun = startSound();
    PlaybackClock<SoundPlayer> clock(begun, m_sound.get(), Clock::now(), soundPatience);
    const auto waitUntil = [&](const auto& reached) {
        std::unique_lock lock(m_worker.lock);
        while (goesOn() && !reached()) {
            m_worker.changed.wait_for(lock, kLongestWait, [this] { return !goesOn(); });
        }
        return goesOn();
    };
    for (;;) {
        std::optional<MovieFrame> frame = reader.next();
        if (frame && clock.nowMs(Clock::now()) - frame->timeMs > kMostLateMs && clock.hasSound()) {
            frame = reader.seek(clock.nowMs(Clock::now()));
        }
        if (!frame) {
            // What is heard may be longer than what is seen.
            waitUntil([&] {
                const std::int64_t now = clock.nowMs(Clock::now());
                return !clock.hasSound() || m_sound->isFinished() || now >= m_durationMs;
            });
            break;
        }
        const bool due = waitUntil([&] { return clock.nowMs(Clock::now()) >= frame->timeMs; });
        show(*frame);
        if (!due) {
            return;
        }
    }
    const std::lock_guard lock(m_worker.lock);
    if (!goesOn()) {
        return;
    }
    m_playing = false;
    m_atEnd = !reader.isOver();
    m_positionMs = std::max<std::int64_t>(m_positionMs, reader.isOver() ? 0 : m_durationMs);
    if (m_sound) {
        m_sound->stop();
    }
}

}  // namespace vantor
