// Drawn, for every look and size.
#include "window/browser/TickBox.h"

#include <QPainter>

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kTickEdge = 16;

}  // namespace

void paintTick(QPainter* painter, const QRect& place, bool ticked, bool pointedAt) {
    QRectF box(0, 0, kTickEdge, kTickEdge);
    box.moveCenter(QRectF(place).center());
    painter->setPen(QPen(ticked || pointedAt ? theme::kAccent : theme::kDisabledInk, 1.2));
    painter->setBrush(ticked ? theme::kAccent : theme::kCard);
    painter->drawRoundedRect(box, 3, 3);
    if (ticked) {
        painter->setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const auto at = [&box](qreal x, qreal y) {
            return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
        };
        painter->drawPolyline(QPolygonF{at(0.24, 0.52), at(0.43, 0.71), at(0.77, 0.31)});
    }
}

}  // namespace vantor
