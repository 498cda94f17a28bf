// Line after line, each as high as its highest control.
#include "window/widgets/WrapLayout.h"

#include <algorithm>

namespace vantor {

WrapLayout::WrapLayout(QWidget* parent, int gap) : QLayout(parent), m_gap(gap) {
    setContentsMargins(0, 0, 0, 0);
}

void WrapLayout::addItem(QLayoutItem* item) {
    m_items.emplace_back(item);
    invalidate();
}

QLayoutItem* WrapLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrapLayout::takeAt(int index) {
    if (index < 0 || index >= count()) {
        return nullptr;
    }
    QLayoutItem* item = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    invalidate();
    return item;
}

int WrapLayout::heightForWidth(int width) const {
    return layOut(QRect(0, 0, width, 0), false);
}

QSize WrapLayout::sizeHint() const {
    QSize hint;
    for (const auto& item : m_items) {
        if (!item->isEmpty()) {
            hint.rwidth() += item->sizeHint().width() + (hint.width() > 0 ? m_gap : 0);
            hint.setHeight(std::max(hint.height(), item->sizeHint().height()));
        }
    }
    return hint;
}

QSize WrapLayout::minimumSize() const {
    QSize widest;
    for (const auto& item : m_items) {
        widest = widest.expandedTo(item->isEmpty() ? QSize() : item->minimumSize());
    }
    return widest;
}

void WrapLayout::setGeometry(const QRect& room) {
    QLayout::setGeometry(room);
    layOut(room, true);
}

// Gives the height of all lines.
int WrapLayout::layOut(const QRect& room, bool place) const {
    QPoint at = room.topLeft();
    int lineHeight = 0;
    for (const auto& item : m_items) {
        if (item->isEmpty()) {
            continue;
        }
        const QSize size = item->sizeHint();
        if (at.x() > room.left() && at.x() + size.width() > room.left() + room.width()) {
            at = {room.left(), at.y() + lineHeight + m_gap / 2};
            lineHeight = 0;
        }
        if (place) {
            item->setGeometry(QRect(at, size));
        }
        at.rx() += size.width() + m_gap;
        lineHeight = std::max(lineHeight, size.height());
    }
    return at.y() - room.top() + lineHeight;
}

}  // namespace vantor
