// Measuring and painting of text with tabs.
#include "window/widgets/TabbedLabel.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace vantor {

namespace {

constexpr int kMargin = 2;

}  // namespace

// A name of this width takes a little more than three tab widths, as the longest captions do.
int TabbedLabel::tabDistance() const {
    return static_cast<int>(
        std::floor(fontMetrics().horizontalAdvance(QStringLiteral("Volume Name")) / 3.02));
}

int TabbedLabel::walk(const std::function<void(int x, const QString& text, bool last)>& piece) const {
    const int distance = std::max(1, tabDistance());
    int x = 0;
    const QStringList pieces = text().split(u'\t');
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (i > 0) {
            x = (x / distance + 1) * distance;
        }
        piece(x, pieces.at(i), i > 0 && i + 1 == pieces.size());
        x += fontMetrics().horizontalAdvance(pieces.at(i));
    }
    return x;
}

QSize TabbedLabel::sizeHint() const {
    return {walk([](int, const QString&, bool) {}) + kMargin, fontMetrics().height()};
}

void TabbedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    walk([&](int x, const QString& piece, bool last) {
        const QRect room =
            last ? QRect(0, 0, width() - kMargin, height()) : QRect(x, 0, width() - x, height());
        painter.drawText(room,
                         int{Qt::AlignVCenter} | Qt::TextSingleLine | (last ? Qt::AlignRight : Qt::AlignLeft),
                         piece);
    });
}

}  // namespace vantor
