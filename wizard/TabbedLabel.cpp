// Measuring and painting of text with tabs.
#include "wizard/TabbedLabel.h"

#include <QPainter>
#include <QTextOption>
#include <cmath>

namespace vantor {

// A name of this width takes a little more than three tab widths, as the longest captions do.
int TabbedLabel::tabDistance() const {
    return static_cast<int>(
        std::floor(fontMetrics().horizontalAdvance(QStringLiteral("Volume Name")) / 3.02));
}

QSize TabbedLabel::sizeHint() const {
    const int distance = std::max(1, tabDistance());
    int x = 0;
    const QStringList pieces = text().split(u'\t');
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (i > 0) {
            x = (x / distance + 1) * distance;
        }
        x += fontMetrics().horizontalAdvance(pieces.at(i));
    }
    return {x + 2, fontMetrics().height()};
}

void TabbedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const int distance = std::max(1, tabDistance());
    int x = 0;
    const QStringList pieces = text().split(u'\t');
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (i > 0) {
            x = (x / distance + 1) * distance;
        }
        painter.drawText(QRect(x, 0, width() - x, height()), Qt::AlignVCenter | Qt::TextSingleLine,
                         pieces.at(i));
        x += fontMetrics().horizontalAdvance(pieces.at(i));
    }
}

}  // namespace vantor
