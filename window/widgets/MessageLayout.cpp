// One line where there is room, else the sentence above and the rest below it.
#include "window/widgets/MessageLayout.h"

#include <QBoxLayout>
#include <QLabel>
#include <algorithm>

namespace vantor {

namespace {

// A sentence that gets no more than this many letters a line is hard to read.
constexpr int kLettersOfALine = 36;

int highest(const std::vector<QLayoutItem*>& items) {
    int height = 0;
    for (const QLayoutItem* const item : items) {
        height = std::max(height, item->sizeHint().height());
    }
    return height;
}

}  // namespace

void MessageLayout::replace(QBoxLayout* row) {
    auto* const layout = new MessageLayout;
    QWidget* const bar = row->parentWidget();
    layout->setSpacing(row->spacing());
    layout->setContentsMargins(row->contentsMargins());
    while (QLayoutItem* const item = row->takeAt(0)) {
        auto* const label = qobject_cast<QLabel*>(item->widget());
        if (layout->m_words == nullptr && label != nullptr && label->wordWrap()) {
            layout->m_words = label;
            layout->m_wordsAt = layout->count();
        }
        layout->addItem(item);
    }
    delete row;
    bar->setLayout(layout);
}

MessageLayout::~MessageLayout() {
    while (QLayoutItem* const item = takeAt(0)) {
        delete item;
    }
}

void MessageLayout::addItem(QLayoutItem* item) {
    m_items.emplace_back(item);
    invalidate();
}

QLayoutItem* MessageLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* MessageLayout::takeAt(int index) {
    if (itemAt(index) == nullptr) {
        return nullptr;
    }
    QLayoutItem* const item = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

std::vector<QLayoutItem*> MessageLayout::shownFrom(int first, int end) const {
    std::vector<QLayoutItem*> items;
    for (int at = first; at < end; ++at) {
        if (!itemAt(at)->isEmpty()) {
            items.push_back(itemAt(at));
        }
    }
    return items;
}

int MessageLayout::widthOf(const std::vector<QLayoutItem*>& items) const {
    int width = 0;
    for (const QLayoutItem* const item : items) {
        width += item->sizeHint().width() + spacing();
    }
    return width;
}

int MessageLayout::wantedByWords() const {
    const QFontMetrics letters = m_words->fontMetrics();
    return std::min(letters.horizontalAdvance(m_words->text()) + 1,
                    kLettersOfALine * letters.averageCharWidth());
}

QSize MessageLayout::sizeHint() const {
    const auto before = shownFrom(0, m_wordsAt), behind = shownFrom(m_wordsAt + 1, count());
    const QMargins edge = contentsMargins();
    const int width = widthOf(before) + wantedByWords() + widthOf(behind) + edge.left() + edge.right();
    return {width, heightForWidth(width)};
}

QSize MessageLayout::minimumSize() const {
    constexpr int kFewestLetters = 12;
    const QMargins edge = contentsMargins();
    int width = widthOf(shownFrom(0, m_wordsAt)) + kFewestLetters * m_words->fontMetrics().averageCharWidth();
    for (const QLayoutItem* const item : shownFrom(m_wordsAt + 1, count())) {
        width = std::max(width, item->sizeHint().width());
    }
    return {width + edge.left() + edge.right(), edge.top() + edge.bottom()};
}

void MessageLayout::setGeometry(const QRect& room) {
    QLayout::setGeometry(room);
    layOut(room, true);
}

// Gives the height of all lines with the margins.
int MessageLayout::layOut(const QRect& whole, bool place) const {
    const QMargins edge = contentsMargins();
    const QRect room(whole.left() + edge.left(), whole.top() + edge.top(),
                     std::max(0, whole.width() - edge.left() - edge.right()), 0);
    const int right = room.left() + room.width();
    const auto before = shownFrom(0, m_wordsAt);
    auto behind = shownFrom(m_wordsAt + 1, count());
    const bool oneLine = widthOf(before) + wantedByWords() + widthOf(behind) <= room.width();
    const int words = std::max(0, room.width() - widthOf(before) - (oneLine ? widthOf(behind) : 0));
    int height = std::max({m_words->heightForWidth(words), highest(before), oneLine ? highest(behind) : 0});
    if (place) {
        int left = room.left();
        for (QLayoutItem* const item : before) {
            item->setGeometry({left, room.top(), item->sizeHint().width(), height});
            left += item->sizeHint().width() + spacing();
        }
        itemAt(m_wordsAt)->setGeometry({left, room.top(), words, height});
    }
    for (int top = room.top(); !behind.empty();) {
        // As many as one line holds, and one at least.
        auto last = behind.begin() + 1;
        while (last != behind.end() && widthOf({behind.begin(), last + 1}) - spacing() <= room.width()) {
            ++last;
        }
        const std::vector<QLayoutItem*> line(behind.begin(), last);
        behind.erase(behind.begin(), last);
        const int lineHeight = oneLine ? height : highest(line);
        if (!oneLine) {
            top = room.top() + height + spacing();
            height += spacing() + lineHeight;
        }
        int left = std::max(room.left(), right - widthOf(line) + spacing());
        for (QLayoutItem* const item : line) {
            if (place) {
                item->setGeometry({left, top, item->sizeHint().width(), lineHeight});
            }
            left += item->sizeHint().width() + spacing();
        }
    }
    return height + edge.top() + edge.bottom();
}

}  // namespace vantor
