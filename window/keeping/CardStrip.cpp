// Places of equal size, each in the colour of the last word on it, and a legend beneath.
#include "window/keeping/CardStrip.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kStripHeight = 12;
constexpr int kGap = 4;
constexpr int kLegendSquare = 8;
constexpr int kLegendGap = 16;
constexpr int kWidthHint = 300;
const Tone kToCome{{0xe3, 0xe8, 0xf1}, {0x3a, 0x43, 0x50}};

QColor colourOf(CardStrip::Mark mark) {
    switch (mark) {
        case CardStrip::Mark::Read:
            return {0x9d, 0xbb, 0xf0};
        case CardStrip::Mark::Found:
            return {0x1f, 0x5f, 0xd6};
        case CardStrip::Mark::Bad:
            return {0xc6, 0x28, 0x28};
        case CardStrip::Mark::ToCome:
            break;
    }
    return kToCome;
}

}  // namespace

CardStrip::CardStrip(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("cardStrip"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("What of the range was read"));
}

void CardStrip::begin(SectorRun range) {
    m_range = range;
    m_places.assign(kPlaces, Mark::ToCome);
    update();
}

// Without overflow, whatever the medium's size.
std::size_t CardStrip::placeOf(std::uint64_t sector) const {
    const auto share =
        static_cast<double>(sector - m_range.first) / static_cast<double>(m_range.end - m_range.first);
    return std::min(kPlaces - 1, static_cast<std::size_t>(share * kPlaces));
}

void CardStrip::mark(const SectorRun& sectors, Mark mark) {
    const std::uint64_t first = std::max(sectors.first, m_range.first);
    const std::uint64_t end = std::min(sectors.end, m_range.end);
    if (first >= end) {
        return;
    }
    bool changed = false;
    for (std::size_t at = placeOf(first); at <= placeOf(end - 1); ++at) {
        changed = changed || m_places[at] < mark;
        m_places[at] = std::max(m_places[at], mark);
    }
    if (changed) {
        update();
    }
}

CardStrip::Mark CardStrip::markAt(std::uint64_t sector) const {
    return sector >= m_range.first && sector < m_range.end ? m_places[placeOf(sector)] : Mark::ToCome;
}

QSize CardStrip::sizeHint() const {
    return {kWidthHint, kStripHeight + kGap + fontMetrics().height()};
}

void CardStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto xOf = [this](std::size_t place) {
        return static_cast<int>(place * static_cast<std::size_t>(width()) / kPlaces);
    };
    // Rows of one colour at a time; bad places last and wide enough to be seen.
    for (std::size_t at = 0; at < kPlaces;) {
        std::size_t end = at + 1;
        while (end < kPlaces && m_places[end] == m_places[at]) {
            ++end;
        }
        painter.fillRect(xOf(at), 0, xOf(end) - xOf(at), kStripHeight, colourOf(m_places[at]));
        at = end;
    }
    for (std::size_t at = 0; at < kPlaces; ++at) {
        if (m_places[at] == Mark::Bad) {
            painter.fillRect(xOf(at), 0, std::max(2, xOf(at + 1) - xOf(at)), kStripHeight,
                             colourOf(Mark::Bad));
        }
    }
    int x = 0;
    const int top = kStripHeight + kGap;
    const int line = fontMetrics().height();
    for (const auto& [mark, word] :
         {std::pair(Mark::Read, tr("read")), std::pair(Mark::Found, tr("something found")),
          std::pair(Mark::Bad, tr("bad")), std::pair(Mark::ToCome, tr("to come"))}) {
        painter.fillRect(x, top + (line - kLegendSquare) / 2, kLegendSquare, kLegendSquare, colourOf(mark));
        x += kLegendSquare + kGap;
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(x, top, width(), line, Qt::AlignLeft | Qt::AlignVCenter, word);
        x += fontMetrics().horizontalAdvance(word) + kLegendGap;
    }
}

}  // namespace vantor
