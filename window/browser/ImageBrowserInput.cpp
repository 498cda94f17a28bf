// Mouse and keys in the browsers: ticking, pulling away, opening, moving.
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

#include "window/browser/ImageBrowserModel.h"
#include "window/browser/ImageBrowserView.h"

namespace vantor {

// By the keyboard it is that of the current item.
void ImageBrowserView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex item = byKeyboard ? itemAtHand() : indexAt(event->pos());
    if (item.isValid()) {
        emit menuWanted(indexOfRow(item.row()),
                        byKeyboard ? viewport()->mapToGlobal(visualRect(item).center()) : event->globalPos());
    }
}

// Keys that move find a place to move from.
void ImageBrowserView::focusInEvent(QFocusEvent* event) {
    GridView::focusInEvent(event);
    if (!currentIndex().isValid() && m_model->rowCount() > 0) {
        selectionModel()->setCurrentIndex(m_model->index(0, 0), QItemSelectionModel::NoUpdate);
    }
}

// The item that a key chooses where none is selected: the current one, or where the list has moved on, the
// first in view.
QModelIndex ImageBrowserView::itemAtHand() const {
    const QModelIndex current = currentIndex();
    const QRect view = viewport()->rect();
    if (current.isValid() && view.intersects(visualRect(current))) {
        return current;
    }
    const Rows rows = rowsIn(view);
    for (int row = rows.first; row < rows.end; ++row) {
        if (view.contains(visualRect(m_model->index(row)))) {
            return m_model->index(row);
        }
    }
    return current;
}

// The item whose tick box lies there.
QModelIndex ImageBrowserView::tickAt(const QPoint& place) const {
    const QModelIndex item = indexAt(place);
    return item.isValid() && tickPlace(item).contains(place) ? item : QModelIndex();
}

// A press on a tick box is for the tick alone: what is selected stays selected.
bool ImageBrowserView::tickByMouse(const QMouseEvent& event) {
    const QModelIndex item =
        event.button() == Qt::LeftButton ? tickAt(event.position().toPoint()) : QModelIndex();
    if (!item.isValid()) {
        return false;
    }
    m_ticking = true;
    emit ticksWanted({m_model->indexOfRow(item.row())}, !factsOfRow(item.row()).ticked);
    return true;
}

// What is selected already can be pulled away; elsewhere the mouse draws a band.
void ImageBrowserView::mousePressEvent(QMouseEvent* event) {
    m_pull = Pull::None;
    m_heldPress.reset();
    if (tickByMouse(*event)) {
        return;
    }
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier) {
        m_pulledFrom = event->position().toPoint();
        const QModelIndex item = indexAt(m_pulledFrom);
        m_pull = item.isValid() && selectionModel()->isSelected(item) ? Pull::May : Pull::None;
        // It would leave only this one selected.
        if (m_pull == Pull::May && selectedCount() > 1) {
            m_heldPress.reset(event->clone());
            return;
        }
    }
    GridView::mousePressEvent(event);
}

void ImageBrowserView::mouseMoveEvent(QMouseEvent* event) {
    if (m_pull == Pull::None || (event->buttons() & Qt::LeftButton) == 0) {
        GridView::mouseMoveEvent(event);
        return;
    }
    const QPoint way = event->position().toPoint() - m_pulledFrom;
    if (m_pull == Pull::May && way.manhattanLength() >= QApplication::startDragDistance()) {
        m_pull = Pull::Done;
        emit dragWanted(selectionIndexes());
    }
}

void ImageBrowserView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!tickByMouse(*event)) {
        GridView::mouseDoubleClickEvent(event);
    }
}

void ImageBrowserView::mouseReleaseEvent(QMouseEvent* event) {
    if (std::exchange(m_ticking, false)) {
        return;
    }
    if (const std::unique_ptr<QMouseEvent> press = std::move(m_heldPress)) {
        if (std::exchange(m_pull, Pull::None) == Pull::Done) {
            return;  // and all that was dragged stays selected
        }
        GridView::mousePressEvent(press.get());
    }
    m_pull = Pull::None;
    GridView::mouseReleaseEvent(event);
}

// Insert ticks and Delete unticks what is selected, or else the item that the keyboard is at.
bool ImageBrowserView::tickByKey(int key) {
    if (key != Qt::Key_Insert && key != Qt::Key_Delete) {
        return false;
    }
    QList<qsizetype> indexes = selectionIndexes();
    if (const QModelIndex item = itemAtHand(); indexes.isEmpty() && item.isValid()) {
        indexes.append(m_model->indexOfRow(item.row()));
    }
    if (!indexes.isEmpty()) {
        emit ticksWanted(indexes, key == Qt::Key_Insert);
    }
    return true;
}

// Space with Control goes on selecting.
bool ImageBrowserView::opensItem(const QKeyEvent& key) const {
    const bool wanted =
        key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Space;
    return wanted && (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && itemAtHand().isValid();
}

// Where an item has the keyboard, Return is not the window's.
bool ImageBrowserView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && opensItem(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return GridView::event(event);
}

void ImageBrowserView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (tickByKey(key)) {
        return;
    }
    if (opensItem(*event)) {
        if (!event->isAutoRepeat()) {
            const QModelIndex item = itemAtHand();
            setCurrentIndex(item);
            emit openWanted(indexOfRow(item.row()));
        }
        return;
    }
    const bool noneChosen = !selectionModel()->hasSelection() && event->modifiers() == Qt::NoModifier;
    const bool steps =
        key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
    if (const QModelIndex item = itemAtHand(); noneChosen && steps && item.isValid()) {
        setCurrentIndex(item);
        return;
    }
    // Also for whom the list followed a search while the current item stayed where it was.
    if (key == Qt::Key_Home) {
        scrollToTop();
    } else if (key == Qt::Key_End) {
        scrollToBottom();
    }
    GridView::keyPressEvent(event);
    // The current item is chosen too, which the toolkit passes over where it was the current one before.
    if (noneChosen && (key == Qt::Key_Home || key == Qt::Key_End)) {
        setCurrentIndex(currentIndex());
    }
}

}  // namespace vantor
