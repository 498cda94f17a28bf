// Showing, drawing once, and the blocking of input.
#include "window/widgets/Sheet.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QShortcut>

namespace vantor {

SheetSession::SheetSession(QDialog* sheet, QWidget* over, QWidget* exempt)
    : m_sheet(sheet), m_over(over), m_exempt(exempt) {
    const QRect window = m_over->window()->frameGeometry();
    m_sheet->move(window.center().x() - m_sheet->width() / 2, window.top() + window.height() / 4);
    m_sheet->show();
    qApp->installEventFilter(this);
    // Once round the loop, so that the sheet is drawn before the work begins.
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sheet->repaint();
}

SheetSession::~SheetSession() {
    qApp->removeEventFilter(this);
    m_sheet->hide();
}

bool SheetSession::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
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
    const QObject* target = qobject_cast<QShortcut*>(watched) != nullptr ? watched->parent() : watched;
    const auto* widget = qobject_cast<const QWidget*>(target);
    if (widget == nullptr || widget->window() != m_over->window()) {
        return false;
    }
    return widget != m_exempt && !m_exempt->isAncestorOf(widget);
}

}  // namespace vantor
