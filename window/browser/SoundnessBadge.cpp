// Drawn rather than loaded, so that they are crisp at every zoom.
#include "window/browser/SoundnessBadge.h"

#include <QObject>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "results/Mend.h"
#include "results/SizeForPeople.h"
#include "window/browser/ImageCell.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kLargestEdge = 18;
constexpr int kSmallestEdge = 11;
constexpr qreal kSmallType = 0.8;

const QColor kCutOffColor{0xb4, 0x5f, 0x06};
const QColor kUnknownColor{0x50, 0x5c, 0x72};
const QColor kDamagedColor{0xb9, 0x1c, 0x1c};

// Lines within a square of one unit, drawn over the badge.
QPainterPath polyline(std::initializer_list<QPointF> points) {
    QPainterPath path(*points.begin());
    for (const QPointF& point : points) {
        path.lineTo(point);
    }
    return path;
}

QPainterPath checkMark() {
    return polyline({{0.27, 0.53}, {0.44, 0.69}, {0.74, 0.34}});
}

QPainterPath cross() {
    QPainterPath path = polyline({{0.33, 0.33}, {0.67, 0.67}});
    path.addPath(polyline({{0.67, 0.33}, {0.33, 0.67}}));
    return path;
}

// A line that breaks off.
QPainterPath brokenLine() {
    QPainterPath path = polyline({{0.22, 0.5}, {0.52, 0.5}});
    path.addPath(polyline({{0.64, 0.3}, {0.64, 0.7}}));
    return path;
}

QPainterPath questionMark() {
    QPainterPath path({0.36, 0.38});
    path.cubicTo({0.36, 0.18}, {0.66, 0.18}, {0.64, 0.4});
    path.cubicTo({0.63, 0.5}, {0.5, 0.5}, {0.5, 0.6});
    path.addPath(polyline({{0.5, 0.75}, {0.5, 0.77}}));
    return path;
}

QPainterPath exclamationMark() {
    QPainterPath path = polyline({{0.5, 0.4}, {0.5, 0.62}});
    path.addPath(polyline({{0.5, 0.77}, {0.5, 0.78}}));
    return path;
}

// Something that was put down.
QPainterPath arrowDown() {
    QPainterPath path = polyline({{0.5, 0.24}, {0.5, 0.6}});
    path.addPath(polyline({{0.34, 0.46}, {0.5, 0.62}, {0.66, 0.46}}));
    path.addPath(polyline({{0.3, 0.77}, {0.7, 0.77}}));
    return path;
}

void paintSign(QPainter* painter, const QRectF& box, const QPainterPath& sign,
               const QColor& colour = Qt::white) {
    painter->save();
    painter->translate(box.topLeft());
    painter->scale(box.width(), box.height());
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(colour, 0.12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(sign);
    painter->restore();
}

void paintDisc(QPainter* painter, const QRectF& box, const QColor& colour, const QPainterPath& sign) {
    painter->setPen(QPen(Qt::white, 1.5));
    painter->setBrush(colour);
    painter->drawEllipse(box);
    paintSign(painter, box, sign);
}

// What is not known for certain: only the outline.
void paintRing(QPainter* painter, const QRectF& box, const QColor& colour, const QPainterPath& sign) {
    painter->setPen(QPen(colour, 1.5));
    painter->setBrush(Qt::white);
    painter->drawEllipse(box);
    paintSign(painter, box, sign, colour);
}

void paintWarning(QPainter* painter, const QRectF& box) {
    QPainterPath triangle;
    triangle.addPolygon(QPolygonF{QPointF(box.center().x(), box.top()), box.bottomRight(), box.bottomLeft()});
    triangle.closeSubpath();
    painter->setPen(QPen(Qt::white, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(kCutOffColor);
    painter->drawPath(triangle);
    paintSign(painter, box, exclamationMark());
}

// "2 pieces": what was put together; in another colour where the user has to look.
void paintPieces(QPainter* painter, const QRectF& badge, const QRect& place, const ItemFacts& facts) {
    const std::size_t pieces = facts.mend && !facts.mend->assembly.runs.empty()
                                   ? facts.mend->assembly.runs.size()
                               : facts.soundness ? facts.soundness->pieces
                                                 : 1;
    const bool repaired = facts.mend && facts.mend->kind == MendKind::Repaired;
    if (pieces < 2 && !repaired) {
        return;
    }
    const bool proved = !facts.mend || facts.mend->kind == MendKind::Completed;
    painter->save();
    QFont font = painter->font();
    font.setPointSizeF(font.pointSizeF() * kSmallType);
    painter->setFont(font);
    const QString text =
        repaired ? QObject::tr("repaired")
                 : QObject::tr("%1 pieces", nullptr, pluralOf(pieces)).arg(numberForPeople(pieces));
    const qreal height = painter->fontMetrics().height() + 1;
    QRectF pill(0, 0, painter->fontMetrics().horizontalAdvance(text) + height * 0.7, height);
    // Beside a small picture, as far as the cell goes; else at its foot between the other badges.
    if (pill.width() > place.width() - 2 * badge.width()) {
        const qreal most = place.center().x() + ImageCell::kNarrowest / 2 - pill.width() - 2;
        pill.moveTopLeft({std::min(badge.right() + 3, most), badge.top() - height - 3});
    } else {
        pill.moveCenter({static_cast<qreal>(place.center().x()), badge.center().y()});
    }
    painter->setPen(QPen(Qt::white, 1.5));
    painter->setBrush(proved ? QColor(theme::kAccent) : kCutOffColor);
    painter->drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    painter->setPen(Qt::white);
    painter->drawText(pill, Qt::AlignCenter, text);
    painter->restore();
}

}  // namespace

void paintBadges(QPainter* painter, const QRect& place, const ItemFacts& facts) {
    const int edge = std::clamp(place.width() / 4, kSmallestEdge, kLargestEdge);
    const QRectF corner(place.right() - edge + 2, place.bottom() - edge + 2, edge, edge);
    const auto& soundness = facts.soundness;
    if (facts.readFailed || (soundness && soundness->unreadable)) {
        paintWarning(painter, corner.translated(0, -place.height() + edge));
    }
    if (facts.saved) {
        paintDisc(painter, corner.translated(edge - place.width() - 4, 0), theme::kAccent, arrowDown());
    }
    paintPieces(painter, corner, place, facts);
    if (!soundness) {
        return;
    }
    if (soundness->notOfItsType) {
        paintDisc(painter, corner, kDamagedColor, questionMark());
        return;
    }
    switch (soundness->verdict) {
        case Verdict::Complete:
            if (soundness->checked) {
                paintDisc(painter, corner, theme::kDone, checkMark());
            } else {
                paintRing(painter, corner, theme::kDone, checkMark());
            }
            break;
        case Verdict::CutOff:
            paintDisc(painter, corner, kCutOffColor, brokenLine());
            break;
        case Verdict::Damaged:
            paintDisc(painter, corner, kDamagedColor, cross());
            break;
        case Verdict::Unknown:
            paintDisc(painter, corner, kUnknownColor, questionMark());
            break;
    }
}

}  // namespace vantor
