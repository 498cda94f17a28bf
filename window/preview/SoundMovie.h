// What can be played though it has no moving pictures: music, speech, and movies of which only the sound is
// left.
#pragma once

#include <QString>
#include <QTimer>
#include <memory>
#include <optional>

#include "window/preview/HelperMovie.h"
#include "window/preview/Movie.h"
#include "window/preview/PlaybackClock.h"
#include "window/preview/SoundPlayer.h"

namespace vantor {

// Opened on any thread; used and destroyed on the interface thread. Where there is no device, or the helper
// dies, it stops where it stands: there is nothing else to it.
class SoundMovie : public Movie {
  public:
    // Blocks until the first piece is decoded; null when the file holds no sound that can be played, or
    // nobody makes devices. Its poster is the cover that it carries, none where no size is given.
    static std::unique_ptr<Movie> open(const QString& file, QSize largestPoster,
                                       const HelperMovieOptions& options);
    ~SoundMovie() override;

    float rate() const override { return m_clock ? 1.0F : 0.0F; }
    QImage poster() const override { return m_poster; }
    void play() override;
    void stop() override;
    std::int64_t durationMs() const override { return m_durationMs; }
    std::int64_t positionMs() const override { return m_positionMs; }
    void seek(std::int64_t timeMs) override;
    bool hasSound() const override { return true; }
    bool isMuted() const override { return m_muted; }
    void setMuted(bool muted) override;
    double volume() const override { return m_volume; }
    void setVolume(double volume) override;

  private:
    SoundMovie(std::unique_ptr<SoundPlayer> player, QImage poster, std::int64_t durationMs,
               std::chrono::milliseconds patience);
    void startHere();
    void follow();

    const std::unique_ptr<SoundPlayer> m_player;
    const QImage m_poster;
    const std::int64_t m_durationMs;
    const std::chrono::milliseconds m_patience;  // with the device
    std::int64_t m_positionMs = 0;
    bool m_muted = false;
    double m_volume = 1;
    bool m_atEnd = false;
    std::optional<PlaybackClock<SoundPlayer>> m_clock;  // while it plays
    std::unique_ptr<QTimer> m_poll;                     // made with the first play()
};

// A movie, or what sounds of one. Decided within the readers' deadlines; null when there is neither.
std::unique_ptr<Movie> openMovieOrSound(const QString& file, QSize largest,
                                        const HelperMovieOptions& options);

}  // namespace vantor
