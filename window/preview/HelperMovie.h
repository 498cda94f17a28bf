// A movie whose frames and sound helper processes decode.
#pragma once

#include <QString>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <memory>
#include <optional>

#include "decode/MovieReader.h"
#include "window/preview/HelperThread.h"
#include "window/preview/Movie.h"
#include "window/preview/SoundDevice.h"
#include "window/preview/SoundPlayer.h"

namespace vantor {

struct HelperMovieOptions {
    SoundDeviceMaker sound;  // none: every movie is silent
    MovieReaderOptions reader;
    // A device that takes nothing for this long does not lead the pictures any more.
    std::chrono::milliseconds soundPatience{2000};
};

// Opened on any thread; used and destroyed on the interface thread. A helper that dies ends the movie where
// it stood; one that dies over the sound ends the sound only.
class HelperMovie : public Movie {
  public:
    // Blocks until the first frame is there; null when the file is no movie that can be shown.
    static std::unique_ptr<Movie> open(const QString& file, QSize largest, HelperMovieOptions options = {});
    ~HelperMovie() override;

    float rate() const override { return m_playing ? 1.0F : 0.0F; }
    QImage poster() const override { return m_poster; }
    void play() override;
    void stop() override;
    std::int64_t durationMs() const override { return m_durationMs; }
    std::int64_t positionMs() const override { return m_positionMs; }
    void seek(std::int64_t timeMs) override;
    bool hasSound() const override { return m_sound != nullptr; }
    bool isMuted() const override { return m_muted; }
    void setMuted(bool muted) override;
    double volume() const override { return m_volume; }
    void setVolume(double volume) override;

  private:
    HelperMovie() = default;
    void run(const QString& file, QSize largest, const HelperMovieOptions& options);
    std::unique_ptr<MovieReader> openReader(const QString& file, QSize largest,
                                            const HelperMovieOptions& options);
    void goTo(MovieReader& reader, std::int64_t timeMs);
    void playFrames(MovieReader& reader, std::chrono::milliseconds soundPatience);
    std::int64_t startSound();
    // A movie that was stopped and goes on at once does so with a new turn.
    bool goesOn() const { return m_playing && m_turn == m_stops && !m_worker.closing && !m_seekTo; }
    void show(const MovieFrame& frame);
    void poll();
    void report();

    std::unique_ptr<SoundPlayer> m_sound;  // null without sound or device; never changes once opened
    std::unique_ptr<QTimer> m_poll;
    QImage m_poster;
    std::int64_t m_durationMs = 0;
    bool m_muted = false;
    double m_volume = 1;

    // What was reported last; interface thread.
    std::int64_t m_reportedMs = 0;
    bool m_reportedPlaying = false;

    HelperThread m_worker;  // the reader's; its lock is for what follows
    QImage m_latest;        // not yet given to onFrame
    bool m_opened = false;  // or failed
    bool m_atEnd = false;
    std::uint64_t m_stops = 0;
    std::uint64_t m_turn = 0;  // the stops before what the reader's thread plays
    std::optional<std::int64_t> m_seekTo;
    std::atomic<bool> m_playing{false};
    std::atomic<std::int64_t> m_positionMs{0};
};

}  // namespace vantor
