// Lines are filled from the left end on; a part that does not fit begins a line of its own.
#include "window/widgets/EndsLayout.h"

#include <QBoxLayout>
#include <algorithm>

namespace vantor {

namespace {

// Rows within the row say themselves how narrow they may become; all others keep their size.
int leastWidthOf(QLayoutItem& item) {
    return item.layout() != nullptr ? item.minimumSize().width() : item.sizeHint().width();
}

}  // namespace

EndsLayout::EndsLayout(QBoxLayout* row) {
    setSpacing(row->spacing());
    setContentsMargins(0, 0, 0, 0);
    while (QLayoutItem* const item = row->takeAt(0)) {
        if (QLayout* const together = item->layout()) {
            together->setParent(nullptr);
            addChildLayout(together);
        }
        addItem(item);
    }
}

EndsLayout::~EndsLayout() {
    while (QLayoutItem* const item = takeAt(0)) {
        delete item;
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
            const int least = leastWidthOf(*item);
            Line* line = &parts.back();
            if (!line->items.empty() && line->least + spacing() + least > width) {
                parts.push_back({{}, 0, 0, 0, line->right});
                line = &parts.back();
            }
            const int gap = line->items.empty() ? 0 : spacing();
            line->width += size.width() + gap;
            line->least += least + gap;
            line->height = std::max(line->height, size.height());
            line->items.push_back(item.get());
        }
    }
    std::erase_if(parts, [](const Line& line) { return line.items.empty(); });
    return parts;
}

QSize EndsLayout::sizeHint() const {
    QSize hint(0, 0);
    for (const Line& part : linesFor(QLAYOUTSIZE_MAX)) {
        hint.rwidth() += part.width + (hint.width() > 0 ? spacing() : 0);
        hint.setHeight(std::max(hint.height(), part.height));
    }
    return hint;
}

QSize EndsLayout::minimumSize() const {
    QSize widest(0, 0);
    for (const Line& line : linesFor(0)) {
        widest = widest.expandedTo({line.least, line.height});
    }
    return widest;
}

void EndsLayout::setGeometry(const QRect& room) {
    QLayout::setGeometry(room);
    layOut(room, true);
}

// Gives the height of all lines.
int EndsLayout::layOut(const QRect& room, bool place) const {
    std::vector<Line> lines = linesFor(QLAYOUTSIZE_MAX);
    int wanted = -spacing(), least = -spacing(), highest = 0;
    for (const Line& part : lines) {
        wanted += part.width + spacing();
        least += part.least + spacing();
        highest = std::max(highest, part.height);
    }
    const bool oneLine = least <= room.width();
    if (!oneLine) {
        lines = linesFor(room.width());
    }
    int top = room.top(), height = 0;
    for (const Line& line : lines) {
        if (!oneLine && height > 0) {
            top += height + spacing();
        }
        height = oneLine ? highest : line.height;
        // What is missing is taken from those that can spare it, by what each can.
        const int spare = oneLine ? wanted - least : line.width - line.least;
        const int missing = std::clamp((oneLine ? wanted : line.width) - room.width(), 0, spare);
        std::vector<int> widths;
        int total = -spacing();
        for (QLayoutItem* const item : line.items) {
            const int hint = item->sizeHint().width();
            const int own = hint - leastWidthOf(*item);
            widths.push_back(hint - (spare > 0 ? (own * missing + spare - 1) / spare : 0));
            total += widths.back() + spacing();
        }
        int left = line.right ? room.left() + room.width() - total : room.left();
        for (std::size_t at = 0; place && at < line.items.size(); ++at) {
            line.items[at]->setGeometry({left, top, widths[at], height});
            left += widths[at] + spacing();
        }
    }
    return top - room.top() + height;
}

}  // namespace vantor
