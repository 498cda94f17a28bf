// The row under a movie or a sound: play or pause, where it stands, how long it is, and its sound.
#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>

#include "window/preview/Movie.h"

class QLabel;
class QSlider;
class QToolButton;

namespace vantor {

// Holds what it controls, at most one, and is hidden while it holds nothing.
class MovieControls : public QWidget {
    Q_OBJECT

  public:
    explicit MovieControls(QWidget* parent = nullptr);
    ~MovieControls() override;

    // Takes the movie over; null lets the last one go.
    void setMovie(std::unique_ptr<Movie> movie);
    Movie* movie() const { return m_movie.get(); }

    // Starts the movie, or stops it when it plays.
    void togglePlaying();
    // Forward, or back by a negative time; nothing where the length is not known.
    void seekBy(std::int64_t timeMs);
    // Adds how loud the sound is, where there is any.
    void setRoomy();

  signals:
    // It plays, stands elsewhere, or is silent now.
    void changed();

  private:
    void showProgress();
    void showPosition(std::int64_t timeMs);

    QToolButton* m_play;
    QSlider* m_position;
    QLabel* m_times;
    QToolButton* m_mute;
    QSlider* m_volume;
    bool m_roomy = false;
    std::unique_ptr<Movie> m_movie;
};

}  // namespace vantor
