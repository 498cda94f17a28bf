// A movie that a test plays itself.
#pragma once

#include "window/preview/Movie.h"

namespace vantor {

struct MovieLog {
    int alive = 0;
    int stops = 0;
};

class ScriptedMovie : public Movie {
  public:
    explicit ScriptedMovie(MovieLog& log) : m_log(log) { ++m_log.alive; }
    ~ScriptedMovie() override { --m_log.alive; }
    float rate() const override { return playing; }
    void play() override { playing = 1; }
    void stop() override {
        playing = 0;
        ++m_log.stops;
    }
    std::int64_t durationMs() const override { return duration; }
    std::int64_t positionMs() const override { return position; }
    void seek(std::int64_t timeMs) override { position = timeMs; }
    bool hasSound() const override { return true; }
    bool isMuted() const override { return muted; }
    void setMuted(bool wanted) override { muted = wanted; }
    void setVolume(double wanted) override { loudness = wanted; }

    float playing = 0;
    std::int64_t duration = 65'000;
    std::int64_t position = 0;
    bool muted = false;
    double loudness = 1;

  private:
    MovieLog& m_log;
};

}  // namespace vantor
