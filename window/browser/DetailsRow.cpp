// The columns lie where the header above has them.
#include "window/browser/DetailsRow.h"

#include <QPainter>
#include <algorithm>

#include "results/MyImageObject.h"
#include "window/browser/DetailsHeader.h"
#include "window/browser/ImageBrowserView.h"
#include "window/browser/ImageCell.h"
#include "window/browser/TickBox.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kPicture = 20;                  // pixels
constexpr int kColumnGap = 11;                // as the header has it
constexpr int kLead = kTickReach + kPicture;  // before the name

}  // namespace

DetailsRow::DetailsRow(ImageBrowserView* view, const ImageCell* cell)
    : QStyledItemDelegate(nullptr), m_view(view), m_cell(cell) {
    setParent(view);
}

int DetailsRow::heightFor(const QFont& font) {
    return std::max(QFontMetrics(font).height() + theme::kUnit, kTickReach);
}

QRect DetailsRow::tickPlace(const QRect& line) {
    return {line.left(), line.top(), kTickReach, line.height()};
}

QSize DetailsRow::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {m_view->detailsHeader()->length(), heightFor(option.font)};
}

void DetailsRow::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
    const auto item = m_view->itemOfRow(index.row());
    if (!item) {
        return;
    }
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRect line = option.rect;
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    const bool pointedAt = (option.state & QStyle::State_MouseOver) != 0;
    if (selected || pointedAt) {
        painter->fillRect(line, QColor(selected ? theme::kAccentWash : theme::kOtherRow));
    }
    if ((option.state & QStyle::State_HasFocus) != 0) {
        painter->setPen(QPen(theme::kAccent, 1, Qt::DashLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(QRectF(line).adjusted(1.5, 1.5, -1.5, -1.5));
    }
    const ItemFacts facts = m_view->factsOfRow(index.row());
    const CellPicture* const picture = m_view->pictureOfRow(index.row());
    const DetailsHeader& header = *m_view->detailsHeader();
    const QRect lead(line.left() + kTickReach, line.top() + (line.height() - kPicture) / 2, kPicture,
                     kPicture);
    m_cell->paintPictureOf(painter, lead, *item, picture);
    paintTick(painter, tickPlace(line), facts.ticked, pointedAt);
    painter->setFont(option.font);
    for (int at = 0; at < kDetailsColumns; ++at) {
        if (header.isSectionHidden(at)) {
            continue;
        }
        const auto column = static_cast<DetailsColumn>(at);
        const int left = line.left() + header.sectionPosition(at);
        QRect words(left + kColumnGap, line.top(), header.sectionSize(at) - 2 * kColumnGap, line.height());
        if (column == DetailsColumn::Name) {
            words.setLeft(words.left() + kLead);
        }
        const bool number = column == DetailsColumn::Size;
        painter->setPen(column == DetailsColumn::Name ? theme::kInk : theme::kQuietInk);
        const QString text = option.fontMetrics.elidedText(detailsText(column, *item, facts, picture),
                                                           Qt::ElideMiddle, words.width());
        painter->drawText(
            words, Qt::AlignVCenter | Qt::TextSingleLine | (number ? Qt::AlignRight : Qt::AlignLeft), text);
    }
    painter->restore();
}

}  // namespace vantor
