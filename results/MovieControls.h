// The row under a movie: play or pause, where it stands, how long it is, and its sound.
#pragma once

#include <QWidget>
#include <cstdint>

class QLabel;
class QSlider;
class QToolButton;

namespace vantor {

class MovieControls : public QWidget {
    Q_OBJECT

  public:
    explicit MovieControls(QWidget* parent = nullptr);

    // Length in milliseconds, 0 where it is not known: there is then nothing to seek by.
    void setMovie(std::int64_t durationMs, bool hasSound);
    void setPosition(std::int64_t timeMs);
    void setPlaying(bool playing);
    void setMuted(bool muted);

  signals:
    void playClicked();
    void muteClicked();
    void positionChosen(qint64 timeMs);

  private:
    QToolButton* m_play;
    QSlider* m_position;
    QLabel* m_times;
    QToolButton* m_mute;
    std::int64_t m_durationMs = 0;
};

// Minutes and seconds, with hours where there are any: "0:05", "1:02:03".
QString timeText(std::int64_t timeMs);

}  // namespace vantor
