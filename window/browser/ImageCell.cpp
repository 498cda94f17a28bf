// Cells keep encoded thumbnails and a small cache of decoded ones, so that a hundred thousand items fit in
// memory.
#include "window/browser/ImageCell.h"

#include <QPainter>
#include <algorithm>

#include "results/ItemWords.h"
#include "results/MyImageObject.h"
#include "window/browser/ImageBrowserView.h"
#include "window/browser/SoundnessBadge.h"
#include "window/browser/TickBox.h"
#include "window/widgets/CellPicture.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kPadding = theme::kUnit;
constexpr int kDecodedKilobytes = 48 << 10;
constexpr qreal kRadius = 6;
constexpr int kLeastEdgeForLength = 72;
constexpr int kCorner = 20;

// "1:02" in a corner, where there is room for it.
void paintLength(QPainter* painter, const QRect& place, std::int64_t durationMs) {
    if (durationMs <= 0 || place.width() < kLeastEdgeForLength) {
        return;
    }
    const QString words = timeText(durationMs);
    QRectF box(0, 0, painter->fontMetrics().horizontalAdvance(words) + 8, painter->fontMetrics().height());
    // Beside the mark in the corner.
    box.moveBottomRight(QPointF(place.right() - kCorner, place.bottom() - 2));
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(0, 0, 0, 170));
    painter->drawRoundedRect(box, 3, 3);
    painter->setPen(Qt::white);
    painter->drawText(box, Qt::AlignCenter, words);
}

}  // namespace

ImageCell::ImageCell(ImageBrowserView* view)
    : QStyledItemDelegate(nullptr), m_view(view), m_decoded(kDecodedKilobytes) {
    setParent(view);
}

QSize ImageCell::cellSize(int edge, const QFont& font, int lines) {
    const QFontMetrics metrics(font);
    // The names that are given to found items are read whole, whatever the font.
    const int name = metrics.horizontalAdvance(QStringLiteral("GND00000.JPEG")) + 2 * kPadding;
    return {std::max({edge + 2 * kPadding, kNarrowest, name}),
            edge + lines * metrics.height() + 3 * kPadding};
}

QRect ImageCell::tickPlace(const QRect& cell) {
    return {cell.left() + 3, cell.top() + 3, kTickReach, kTickReach};
}

QRect ImageCell::picturePlace(const QRect& cell, int edge) {
    const QRect inner = cell.adjusted(2, 2, -2, -2);
    return {inner.center().x() - edge / 2, inner.top() + kPadding, edge, edge};
}

QSize ImageCell::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return cellSize(m_view->iconSize().width(), option.font, m_view->linesOfWords());
}

QPixmap ImageCell::decoded(const QByteArray& bytes) const {
    if (const QPixmap* known = m_decoded.object(bytes)) {
        return *known;
    }
    QPixmap pixmap;
    pixmap.loadFromData(bytes);
    const int kilobytes = pixmap.width() * pixmap.height() / 256 + 1;  // of four bytes a pixel
    m_decoded.insert(bytes, new QPixmap(pixmap), kilobytes);
    return pixmap;
}

QRect ImageCell::paintPicture(QPainter* painter, const QRect& place, const QByteArray& bytes) const {
    const QPixmap pixmap = decoded(bytes);
    if (pixmap.isNull()) {
        return {};
    }
    QRect fitted({}, pixmap.size().scaled(place.size(), Qt::KeepAspectRatio));
    fitted.moveCenter(place.center());
    painter->drawPixmap(fitted, pixmap);
    return fitted;
}

void ImageCell::paintPictureOf(QPainter* painter, const QRect& place, const MyImageObject& item,
                               const CellPicture* picture) const {
    if (picture != nullptr && !picture->encoded.isEmpty()) {
        const QRect shown = paintPicture(painter, place, picture->encoded);
        painter->setPen(QPen(theme::kRule, 1));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(QRectF(shown).adjusted(0.5, 0.5, -0.5, -0.5));
    } else if (item.imageRepresentationType() == RepresentationType::EncodedData) {
        const QByteArray bytes = item.imageRepresentation().toByteArray();
        // Crossed out, a sound file would look broken.
        if (bytes == m_view->placeholder()) {
            ownIcon(QStringLiteral("type-picture")).paint(painter, place);
        } else {
            paintPicture(painter, place, bytes);
        }
    } else {
        item.imageRepresentation().value<QIcon>().paint(painter, place);
    }
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
    const QRect place = picturePlace(option.rect, m_view->iconSize().width());
    const CellPicture* const picture = m_view->pictureOfRow(index.row());
    const std::int64_t durationMs = picture != nullptr ? picture->durationMs : 0;
    paintPictureOf(painter, place, *item, picture);
    const ItemFacts facts = m_view->factsOfRow(index.row());
    paintLength(painter, place, durationMs);
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
    const CaptionWords caption = captionWords(facts, durationMs);
    const bool fits = option.fontMetrics.horizontalAdvance(caption.all) <= words.width();
    words.setTop(words.top() + option.fontMetrics.height());
    painter->setPen(theme::kQuietInk);
    painter->drawText(words, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine,
                      fits ? caption.all : caption.first);
    painter->restore();
}

}  // namespace vantor
