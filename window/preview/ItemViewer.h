// One found item over the whole window, with what is known of it.
#pragma once

#include <QImage>
#include <QList>
#include <QWidget>
#include <memory>

#include "window/preview/Movie.h"
#include "window/preview/ViewerFacts.h"

class QFormLayout;
class QLabel;
class QScrollArea;
class QStackedWidget;
class QToolButton;

namespace vantor {

class MendPane;
class MovieView;
class ZoomPicture;

// Covers the widget that it was made over, follows its size, and keeps the keyboard as long as it is shown.
//
//     ┌ ✕  IMG_0412.JPG   12 of 810              Fit  1:1  −  +  62 %   Full screen  Facts ┐
//     │                                                             │ Name        GND00012 │
//     │ ‹                      the picture or movie               › │ On the card …        │
//     └─────────────────────────────────────────────────────────────┴──────────────────────┘
class ItemViewer : public QWidget {
    Q_OBJECT

  public:
    // Pictures are judged on a dark ground, whatever the desktop's.
    static constexpr QRgb kGround = 0xff171b22;

    explicit ItemViewer(QWidget* over);

    void open();
    // Leaves the full screen too, if it was entered here.
    void leave();
    bool isFullScreenOn() const { return m_fullScreen; }
    void showFacts();

    // Another item: its name, where it stands among the others, and what can be shown of it at once. `full`
    // is the size of the whole picture, empty when that is not known.
    void begin(const QString& title, const QString& place, const QImage& standIn, QSize full);
    // Of the same item, as it comes.
    // `mayBeLarger`: nobody knows its full size, and there may be more of it than is told.
    void setPicture(const QImage& picture, QSize full, bool mayBeLarger);
    void setMovie(std::unique_ptr<Movie> movie);
    void setFacts(const QList<ViewerFact>& facts);
    // Below the picture; empty: none.
    void setNote(const QString& note);
    void setPlace(const QString& place);
    void setSteps(bool back, bool on);
    void setTicked(bool ticked);

    ZoomPicture* picture() const { return m_picture; }
    MovieView* movie() const { return m_movie; }
    MendPane* mend() const { return m_mend; }
    QList<ViewerFact> facts() const { return m_facts; }
    // Pixels that a picture needs to fill the place.
    QSize stageSize() const;

  signals:
    // So many items on, or back.
    void stepWanted(int steps);
    // To the first item, or the last.
    void endWanted(bool last);
    // It is to be ticked for saving, or no longer.
    void tickWanted(bool ticked);
    // Somebody has zoomed in further than the pixels go.
    void morePixelsWanted();
    void left();

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QToolButton* makeButton(const char* name, const QString& text, const QString& meaning);
    QWidget* makeHead();
    QWidget* makeStage();
    void makeFactsPane();
    void makeShortcuts();
    void coverAll();
    void showZoom();
    void toggleFullScreen();
    void showFullScreenState();
    void escape();
    // Of the movie, or a push of the picture.
    void moveWithin(int direction);

    QWidget* m_over;
    QWidget* m_head;
    QLabel* m_title;
    QLabel* m_placeLabel;
    QLabel* m_zoomLabel;
    QLabel* m_note;
    QToolButton* m_fit;
    QToolButton* m_actual;
    QToolButton* m_smaller;
    QToolButton* m_larger;
    QToolButton* m_full;
    QToolButton* m_tickButton;
    QToolButton* m_factsButton;
    QToolButton* m_back;
    QToolButton* m_on;
    QStackedWidget* m_stage;
    ZoomPicture* m_picture;
    MovieView* m_movie;
    MendPane* m_mend;
    QScrollArea* m_factsPane;
    QLabel* m_factsText;
    QList<ViewerFact> m_facts;
    bool m_mayBeLarger = false;
    bool m_fullScreen = false;
};

}  // namespace vantor
