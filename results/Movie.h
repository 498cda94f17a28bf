// A movie that can be played, whoever decodes it.
#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <memory>

namespace vantor {

// Interface thread only.
class Movie {
  public:
    Movie() = default;
    Movie(const Movie&) = delete;
    Movie& operator=(const Movie&) = delete;
    virtual ~Movie() = default;

    // Playback rate: 0 while paused or stopped.
    virtual float rate() const = 0;
    // The first frame; null when it is not known yet.
    virtual QImage poster() const { return {}; }
    virtual void play() = 0;
    virtual void stop() = 0;

    // Called with every frame that is due; an empty picture clears the view.
    std::function<void(const QImage&)> onFrame;
};

// Opens a file as a movie, on any thread; null when it cannot be played. Carved bytes are hostile: whoever
// decodes them does it where a crash does not end the program.
using MovieLoader = std::function<std::unique_ptr<Movie>(const QString& file)>;

}  // namespace vantor
