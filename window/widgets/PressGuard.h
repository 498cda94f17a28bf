// Keeps a press to the screen that it was meant for.
#pragma once

#include <QObject>
#include <QPoint>
#include <functional>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace vantor {

// While it lives, in all windows of the program: a key that is held down neither presses Return again nor
// goes from screen to screen, and what is left of it or of a burst of clicks when the screen has changed, a
// panel was opened or one closed does nothing there. Interface thread only.
class PressGuard : public QObject {
  public:
    // `screen` tells the screens of the main window apart.
    PressGuard(std::function<int()> screen, QObject* parent);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // What a press can act on: a screen, or the panel over it.
    struct Place {
        int screen = 0;
        const QWidget* panel = nullptr;
        bool operator==(const Place&) const = default;
    };

    Place here() const;
    bool pressed(const QMouseEvent& event);
    bool isRepeated(const QKeyEvent& key) const;

    std::function<int()> m_screen;
    Place m_began;  // where the burst of clicks did
    QPoint m_lastSpot;
    quint64 m_lastTime = 0;  // milliseconds
    Place m_keyBegan;        // where the key was pressed that is held
    int m_letGo = 0;         // the key
    quint64 m_letGoTime = 0;
};

}  // namespace vantor
