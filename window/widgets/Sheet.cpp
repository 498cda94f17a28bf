// Showing, drawing once, and the blocking of input.
#include "window/widgets/Sheet.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMouseEvent>
#include <QShortcut>
#include <QTimer>

namespace vantor {

namespace {

bool movesOrTicksInAList(int key) {
    switch (key) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_Insert:
        case Qt::Key_Delete:
            return true;
        default:
            return false;
    }
}

// Of the others the widget says itself, as before any shortcut, whether they are for what it shows.
bool opensFromAList(QWidget* widget, const QKeyEvent& key) {
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter && key.key() != Qt::Key_Space) {
        return false;
    }
    QKeyEvent question(QEvent::ShortcutOverride, key.key(), key.modifiers(), key.text());
    question.ignore();
    QCoreApplication::sendEvent(widget, &question);
    return question.isAccepted();
}

// Takes the moves and the release of a button away whose press nobody has seen.
class RestOfAPress : public QObject {
  public:
    explicit RestOfAPress(QWidget* over) : QObject(over), m_over(over) { qApp->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const widget = qobject_cast<const QWidget*>(watched);
        if (widget == nullptr || widget->window() != m_over->window()) {
            return false;
        }
        switch (event->type()) {
            case QEvent::MouseMove:
                if (static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton) {
                    return true;
                }
                break;
            case QEvent::MouseButtonRelease:
                end();
                return true;
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick:
                break;
            default:
                return false;
        }
        // Let go where nobody told us.
        end();
        return false;
    }

  private:
    void end() {
        qApp->removeEventFilter(this);
        deleteLater();
    }

    QWidget* m_over;
};

}  // namespace

SheetSession::SheetSession(QDialog* sheet, QWidget* over, QWidget* exempt,
                           std::chrono::milliseconds unnoticed)
    : m_sheet(sheet), m_over(over), m_exempt(exempt) {
    qApp->installEventFilter(this);
    if (unnoticed.count() > 0) {
        QTimer::singleShot(unnoticed, this, &SheetSession::show);
        return;
    }
    show();
    // Once round the loop, so that the sheet is drawn before the work begins.
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sheet->repaint();
}

void SheetSession::show() {
    const QRect window = m_over->window()->frameGeometry();
    m_sheet->move(window.center().x() - m_sheet->width() / 2, window.top() + window.height() / 4);
    m_sheet->show();
}

SheetSession::~SheetSession() {
    qApp->removeEventFilter(this);
    m_sheet->hide();
    if (m_buttonHeld) {
        new RestOfAPress(m_over);
    }
    for (auto& [widget, key] : m_keys) {
        if (widget) {
            QCoreApplication::postEvent(widget, key.release());
        }
    }
}

bool SheetSession::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::Wheel:
        case QEvent::Drop:
            break;
        default:
            return false;
    }
    // A shortcut stands for the widget that it belongs to.
    QObject* const target = qobject_cast<QShortcut*>(watched) != nullptr ? watched->parent() : watched;
    auto* const widget = qobject_cast<QWidget*>(target);
    if (widget == nullptr || widget->window() != m_over->window()) {
        return false;
    }
    if (widget == m_exempt || m_exempt->isAncestorOf(widget)) {
        return false;
    }
    switch (event->type()) {
        case QEvent::MouseButtonDblClick:
            m_doubleClicked = widget;
            [[fallthrough]];
        case QEvent::MouseButtonPress:
            m_buttonHeld = true;
            return true;
        case QEvent::MouseButtonRelease:
            m_buttonHeld = false;
            return true;
        case QEvent::MouseMove:
            return static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton;
        case QEvent::KeyPress:
            keep(widget, *static_cast<QKeyEvent*>(event));
            return true;
        default:
            return true;
    }
}

// What a key that is held down repeats comes again as long as it is held.
void SheetSession::keep(QWidget* widget, const QKeyEvent& key) {
    if (key.isAutoRepeat() || m_opens) {
        return;
    }
    m_opens = opensFromAList(widget, key);
    if (m_opens || movesOrTicksInAList(key.key())) {
        m_keys.emplace_back(widget, key.clone());
    }
}

}  // namespace vantor
