// Shows the movie of the current preview with its controls; holds at most one.
#pragma once

#include <QWidget>
#include <memory>

#include "window/preview/Movie.h"

namespace vantor {

class MovieControls;

class MovieView : public QWidget {
    Q_OBJECT

  public:
    explicit MovieView(QWidget* parent = nullptr);
    ~MovieView() override;

    // Takes the movie over and shows its first frame; null empties the view.
    void setMovie(std::unique_ptr<Movie> movie);
    Movie* movie() const;

    // Starts the movie, or stops it when it plays.
    void togglePlaying();
    // Forward, or back by a negative time.
    void seekBy(std::int64_t timeMs);
    // There is room for controls that the preview pane has none for.
    void setRoomy();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QRect screen() const;

    MovieControls* m_controls;  // they hold the movie
    QImage m_frame;
};

}  // namespace vantor
