// Lines are filled from the left end on; a part that does not fit begins a line of its own.
#include "window/widgets/EndsLayout.h"

#include <QBoxLayout>
#include <algorithm>

namespace vantor {

EndsLayout::EndsLayout(QBoxLayout* row) {
    setSpacing(row->spacing());
    setContentsMargins(0, 0, 0, 0);
    while (QLayoutItem* const item = row->takeAt(0)) {
        addItem(item);
    }
}

void EndsLayout::addItem(QLayoutItem* item) {
    m_items.emplace_back(item);
}

QLayoutItem* EndsLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* EndsLayout::takeAt(int index) {
    if (itemAt(index) == nullptr) {
        return nullptr;
    }
    QLayoutItem* const item = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

std::vector<EndsLayout::Line> EndsLayout::linesFor(int width) const {
    std::vector<Line> parts(1);
    for (const auto& item : m_items) {
        if (item->spacerItem() != nullptr) {
            parts.emplace_back().right = true;
        } else if (!item->isEmpty()) {
            const QSize size = item->sizeHint();
            Line* line = &parts.back();
            if (!line->items.empty() && line->width + spacing() + size.width() > width) {
                parts.push_back({{}, 0, 0, line->right});
                line = &parts.back();
            }
            line->width += size.width() + (line->items.empty() ? 0 : spacing());
            line->height = std::max(line->height, size.height());
            line->items.push_back(item.get());
        }
    }
    std::erase_if(parts, [](const Line& line) { return line.items.empty(); });
    return parts;
}

QSize EndsLayout::sizeHint() const {
    QSize hint;
    for (const Line& part : linesFor(QLAYOUTSIZE_MAX)) {
        hint.rwidth() += part.width + (hint.width() > 0 ? spacing() : 0);
        hint.setHeight(std::max(hint.height(), part.height));
    }
    return hint;
}

QSize EndsLayout::minimumSize() const {
    QSize widest;
    for (const Line& line : linesFor(0)) {
        widest = widest.expandedTo({line.width, line.height});
    }
    return widest;
}

void EndsLayout::setGeometry(const QRect& room) {
    QLayout::setGeometry(room);
    layOut(room, true);
}

// Gives the height of all lines.
int EndsLayout::layOut(const QRect& room, bool place) const {
    const std::vector<Line> lines = linesFor(room.width());
    const bool oneLine = sizeHint().width() <= room.width();
    int top = room.top(), height = 0;
    for (const Line& line : lines) {
        if (!oneLine && height > 0) {
            top += height + spacing();
            height = 0;
        }
        height = std::max(height, line.height);
        int left = line.right ? room.left() + room.width() - line.width : room.left();
        for (QLayoutItem* const item : line.items) {
            const QSize size = item->sizeHint();
            if (place) {
                item->setGeometry({left, top, size.width(), line.height});
            }
            left += size.width() + spacing();
        }
    }
    return top - room.top() + height;
}

}  // namespace vantor
