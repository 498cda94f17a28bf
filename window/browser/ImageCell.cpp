// Cells keep encoded thumbnails and a small cache of decoded ones, so that a hundred thousand items fit in
// memory.
#include "window/browser/ImageCell.h"

#include <QPainter>
#include <algorithm>

#include "results/MyImageObject.h"
#include "window/browser/ImageBrowserView.h"
#include "window/browser/SoundnessBadge.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kPadding = theme::kUnit;
constexpr int kDecodedPictures = 600;
constexpr qreal kRadius = 6;
constexpr int kTickEdge = 16;
constexpr int kTickReach = 24;  // what can be clicked is larger than what is drawn

void paintTick(QPainter* painter, const QRect& reach, bool ticked, bool pointedAt) {
    QRectF box(0, 0, kTickEdge, kTickEdge);
    box.moveCenter(QRectF(reach).center());
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

}  // namespace

ImageCell::ImageCell(ImageBrowserView* view)
    : QStyledItemDelegate(nullptr), m_view(view), m_decoded(kDecodedPictures) {
    setParent(view);
}

QSize ImageCell::cellSize(int edge, const QFont& font, int lines) {
    const QFontMetrics metrics(font);
    return {std::max(edge + 2 * kPadding, kNarrowest), edge + lines * metrics.height() + 3 * kPadding};
}

QRect ImageCell::tickPlace(const QRect& cell) {
    return {cell.left() + 3, cell.top() + 3, kTickReach, kTickReach};
}

QSize ImageCell::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return cellSize(m_view->iconSize().width(), option.font, m_view->originalsShown() ? 2 : 1);
}

QPixmap ImageCell::decoded(const QByteArray& bytes) const {
    if (const QPixmap* known = m_decoded.object(bytes)) {
        return *known;
    }
    QPixmap pixmap;
    pixmap.loadFromData(bytes);
    m_decoded.insert(bytes, new QPixmap(pixmap));
    return pixmap;
}

void ImageCell::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto item = m_view->itemOfRow(index.row());
    if (!item) {
        return;
    }
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRect cell = option.rect.adjusted(2, 2, -2, -2);
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    if (selected || (option.state & QStyle::State_MouseOver) != 0) {
        painter->setPen(selected ? QPen(theme::kAccent, 1.5) : QPen(theme::kRule, 1));
        painter->setBrush(theme::kAccentWash);
        painter->drawRoundedRect(QRectF(cell).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    }
    if ((option.state & QStyle::State_HasFocus) != 0) {
        painter->setPen(QPen(theme::kAccent, 1, Qt::DashLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(cell).adjusted(3.5, 3.5, -3.5, -3.5), kRadius - 2, kRadius - 2);
    }
    const int edge = m_view->iconSize().width();
    const QRect place(cell.center().x() - edge / 2, cell.top() + kPadding, edge, edge);
    const QVariant picture = item->imageRepresentation();
    if (item->imageRepresentationType() == RepresentationType::EncodedData) {
        const QPixmap pixmap = decoded(picture.toByteArray());
        if (!pixmap.isNull()) {
            QRect fitted({}, pixmap.size().scaled(place.size(), Qt::KeepAspectRatio));
            fitted.moveCenter(place.center());
            painter->drawPixmap(fitted, pixmap);
        }
    } else {
        picture.value<QIcon>().paint(painter, place);
    }
    const ItemFacts facts = m_view->factsOfRow(index.row());
    paintBadges(painter, place, facts);
    paintTick(painter, tickPlace(option.rect), facts.ticked, (option.state & QStyle::State_MouseOver) != 0);
    QRect words = cell.adjusted(4, 0, -4, 0);
    words.setTop(place.bottom() + kPadding / 2);
    painter->setFont(option.font);
    painter->setPen(theme::kInk);
    const QString title = option.fontMetrics.elidedText(item->imageTitle(), Qt::ElideMiddle, words.width());
    painter->drawText(words, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine, title);
    if (facts.original) {
        words.setTop(words.top() + option.fontMetrics.height());
        painter->setPen(theme::kQuietInk);
        const QString name =
            option.fontMetrics.elidedText(facts.original->name, Qt::ElideMiddle, words.width());
        painter->drawText(words, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine, name);
    }
    painter->restore();
}

}  // namespace vantor
