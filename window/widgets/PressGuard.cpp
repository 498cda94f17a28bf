// What is swallowed, and what is let through without effect.
#include "window/widgets/PressGuard.h"

#include <QApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <utility>

namespace vantor {

namespace {

// Nobody lets a key go and presses it again within so many milliseconds.
constexpr quint64 kRepeatMilliseconds = 5;

// To where they would lead on again.
bool leadsOn(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter ||
           key.modifiers().testFlag(Qt::AltModifier);
}

}  // namespace

// A display server repeats a key by letting it go and pressing it; the toolkit does not always see that the
// two belong together.
bool PressGuard::isRepeated(const QKeyEvent& key) const {
    return key.isAutoRepeat() || (key.key() == m_letGo && key.timestamp() != 0 &&
                                  key.timestamp() - m_letGoTime <= kRepeatMilliseconds);
}

PressGuard::PressGuard(std::function<int()> screen, QObject* parent)
    : QObject(parent), m_screen(std::move(screen)) {
    qApp->installEventFilter(this);
}

PressGuard::Place PressGuard::here() const {
    return {m_screen(), QApplication::activeModalWidget()};
}

bool PressGuard::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress: {
            const auto& key = *static_cast<QKeyEvent*>(event);
            if (!isRepeated(key)) {
                m_keyBegan = here();
            }
            const bool held = isRepeated(key) && (leadsOn(key) || m_keyBegan != here());
            if (held) {
                event->accept();  // no shortcut is looked for
            }
            return held;
        }
        case QEvent::KeyRelease:
            m_letGo = static_cast<QKeyEvent*>(event)->key();
            m_letGoTime = static_cast<QKeyEvent*>(event)->timestamp();
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return watched->isWidgetType() && pressed(*static_cast<QMouseEvent*>(event));
        default:
            return false;
    }
}

// True when the press belongs to a burst that began elsewhere. A second quick click is told by the toolkit, a
// third is not.
bool PressGuard::pressed(const QMouseEvent& event) {
    const QPoint spot = event.globalPosition().toPoint();
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const bool quick =
        event.timestamp() - m_lastTime <= static_cast<quint64>(hints.mouseDoubleClickInterval());
    const bool near = (spot - m_lastSpot).manhattanLength() <= hints.mouseDoubleClickDistance();
    if (event.type() == QEvent::MouseButtonPress && !(quick && near)) {
        m_began = here();
    }
    m_lastSpot = spot;
    m_lastTime = event.timestamp();
    return m_began != here();
}

}  // namespace vantor
