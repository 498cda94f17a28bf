// A movie that can be played, whoever decodes it.
#pragma once

#include <QImage>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

namespace vantor {

// Interface thread only. Times are in milliseconds since the movie's beginning.
class Movie {
  public:
    Movie() = default;
    Movie(const Movie&) = delete;
    Movie& operator=(const Movie&) = delete;
    // Ends at once, its sound first.
    virtual ~Movie() = default;

    // Playback rate: 0 while paused or stopped.
    virtual float rate() const = 0;
    // The first frame; null when it is not known yet.
    virtual QImage poster() const { return {}; }
    // Goes on where it stands; from the beginning when it stands at its end.
    virtual void play() = 0;
    virtual void stop() = 0;

    // 0 when the length is not known, and the movie can then only be played through.
    virtual std::int64_t durationMs() const { return 0; }
    virtual std::int64_t positionMs() const { return 0; }
    // Shows the frame at that time, and goes on playing from there if it plays.
    virtual void seek(std::int64_t) {}

    virtual bool hasSound() const { return false; }
    virtual bool isMuted() const { return false; }
    virtual void setMuted(bool) {}
    // Of the sound, 0 to 1.
    virtual double volume() const { return 1; }
    virtual void setVolume(double) {}

    // Called with every frame that is due.
    std::function<void(const QImage&)> onFrame;
    // Called when position or rate changed by themselves.
    std::function<void()> onProgress;
};

// Opens a file as a movie, on any thread; null when it cannot be played. Carved bytes are hostile: whoever
// decodes them does it where a crash does not end the program.
using MovieLoader = std::function<std::unique_ptr<Movie>(const QString& file)>;

}  // namespace vantor
