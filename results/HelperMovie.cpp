// Playing: the reader's thread fetches frames when they are due, the interface thread shows the latest.
#include "results/HelperMovie.h"

#include <chrono>

#include "decode/MovieReader.h"

namespace vantor {

namespace {

constexpr int kPollMilliseconds = 20;

}  // namespace

std::unique_ptr<Movie> HelperMovie::open(const QString& file, QSize largest) {
    std::unique_ptr<HelperMovie> movie(new HelperMovie);
    movie->m_thread = std::thread([made = movie.get(), file, largest] { made->run(file, largest); });
    {
        std::unique_lock lock(movie->m_lock);
        movie->m_changed.wait(lock, [&] { return movie->m_opened; });
    }
    return movie->m_poster.isNull() ? nullptr : std::move(movie);
}

HelperMovie::~HelperMovie() {
    {
        const std::lock_guard lock(m_lock);
        m_closing = true;
        m_playing = false;
    }
    m_changed.notify_all();
    m_thread.join();
}

void HelperMovie::play() {
    if (!m_poll) {
        m_poll = std::make_unique<QTimer>();
        QObject::connect(m_poll.get(), &QTimer::timeout, [this] { showLatest(); });
    }
    m_poll->start(kPollMilliseconds);
    {
        const std::lock_guard lock(m_lock);
        m_playing = true;
    }
    m_changed.notify_all();
}

void HelperMovie::stop() {
    {
        const std::lock_guard lock(m_lock);
        m_playing = false;
    }
    m_changed.notify_all();
    if (m_poll) {
        m_poll->stop();
    }
}

void HelperMovie::showLatest() {
    QImage frame;
    {
        const std::lock_guard lock(m_lock);
        frame = m_latest;
    }
    if (onFrame) {
        onFrame(frame);
    }
    if (!m_playing) {
        m_poll->stop();
    }
}

void HelperMovie::run(const QString& file, QSize largest) {
    const std::unique_ptr<MovieReader> reader = MovieReader::open(file, largest);
    {
        const std::lock_guard lock(m_lock);
        m_poster = reader ? reader->poster().image : QImage();
        m_opened = true;
    }
    m_changed.notify_all();
    while (reader) {
        {
            std::unique_lock lock(m_lock);
            m_changed.wait(lock, [this] { return m_closing || m_playing; });
            if (m_closing) {
                return;
            }
        }
        playFrames(*reader);
    }
}

// Until the movie is stopped or at its end, where it begins anew the next time.
void HelperMovie::playFrames(MovieReader& reader) {
    const auto begun = std::chrono::steady_clock::now();
    std::optional<std::int64_t> firstTime;
    while (m_playing) {
        const std::optional<MovieFrame> frame = reader.next();
        if (!frame) {
            m_playing = false;
            if (!reader.isOver()) {
                reader.seek(0);
            }
            return;
        }
        firstTime = firstTime.value_or(frame->timeMs);
        const auto due = begun + std::chrono::milliseconds(frame->timeMs - *firstTime);
        std::unique_lock lock(m_lock);
        m_changed.wait_until(lock, due, [this] { return !m_playing; });
        m_latest = frame->image;
    }
}

}  // namespace vantor
