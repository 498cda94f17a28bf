// Names, widths and words of the columns.
#include "window/browser/DetailsHeader.h"

#include <QStandardItemModel>
#include <algorithm>

#include "results/CardIndex.h"
#include "results/ItemWords.h"
#include "results/MyImageObject.h"
#include "results/SizeForPeople.h"
#include "window/widgets/CellPicture.h"

namespace vantor {

namespace {

constexpr int kWidestColumn = 2000;  // pixels
constexpr int kMargins = 24;

struct Column {
    QString title;
    SortItems sort;
    int letters;  // as wide as so many
};

Column columnAt(DetailsColumn column) {
    switch (column) {
        case DetailsColumn::Name:
            return {DetailsHeader::tr("Name"), SortItems::Name, 21};
        case DetailsColumn::OriginalName:
            return {DetailsHeader::tr("Name on the card"), SortItems::OriginalName, 25};
        case DetailsColumn::Type:
            return {DetailsHeader::tr("Type"), SortItems::Type, 5};
        case DetailsColumn::Size:
            return {DetailsHeader::tr("Size"), SortItems::Size, 8};
        case DetailsColumn::Date:
            return {DetailsHeader::tr("Date"), SortItems::DateTaken, 15};
        case DetailsColumn::Camera:
            return {DetailsHeader::tr("Camera"), SortItems::Camera, 18};
        case DetailsColumn::Extent:
            return {DetailsHeader::tr("Pixels or length"), SortItems::Length, 14};
        case DetailsColumn::State:
            return {DetailsHeader::tr("State"), SortItems::Soundness, 22};
        case DetailsColumn::Place:
            break;
    }
    return {DetailsHeader::tr("Place on the card"), SortItems::Place, 30};
}

}  // namespace

SortItems sortOf(DetailsColumn column) {
    return columnAt(column).sort;
}

QString detailsText(DetailsColumn column, const MyImageObject& item, const ItemFacts& facts,
                    const CellPicture* picture) {
    switch (column) {
        case DetailsColumn::Name:
            return item.imageTitle();
        case DetailsColumn::OriginalName:
            return facts.original ? originalPath(*facts.original) : QString();
        case DetailsColumn::Type:
            return item.fileType();
        case DetailsColumn::Size:
            return facts.soundness ? sizeForPeople(facts.soundness->bytes) : QString();
        case DetailsColumn::Date:
            return dateWords(facts);
        case DetailsColumn::Camera:
            return facts.soundness ? facts.soundness->camera : QString();
        case DetailsColumn::Extent:
            return extentWords(facts, picture != nullptr ? picture->durationMs : 0);
        case DetailsColumn::State:
            return facts.saved ? DetailsHeader::tr("%1, saved").arg(stateWords(facts)) : stateWords(facts);
        case DetailsColumn::Place:
            break;
    }
    return placeWords(item, facts);
}

DetailsHeader::DetailsHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    auto* const titles = new QStandardItemModel(0, kDetailsColumns, this);
    setModel(titles);
    setSectionsMovable(true);
    setFirstSectionMovable(false);  // ticks and pictures stand before the names
    setSectionsClickable(true);
    setHighlightSections(false);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setAccessibleName(tr("Columns of the details"));
    for (int at = 0; at < kDetailsColumns; ++at) {
        const Column column = columnAt(static_cast<DetailsColumn>(at));
        auto* const title = new QStandardItem(column.title);
        if (static_cast<DetailsColumn>(at) == DetailsColumn::Size) {
            title->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
        titles->setHorizontalHeaderItem(at, title);
        resizeSection(at, column.letters * fontMetrics().horizontalAdvance(u'0') + kMargins);
    }
    setSortIndicatorShown(false);
    setOriginalsShown(false);
    connect(this, &QHeaderView::sectionClicked, this,
            [this](int column) { emit sortWanted(sortOf(static_cast<DetailsColumn>(column))); });
}

// The state has the mark of a sorting as well, which every list begins without; and no column is lost.
void DetailsHeader::recall(const QByteArray& state) {
    const int before = minimumSectionSize();
    if (state.isEmpty() || !restoreState(state)) {
        return;
    }
    setMinimumSectionSize(before);
    setSortIndicatorShown(false);
    for (int at = 0; at < count(); ++at) {
        setSectionHidden(at, false);
        resizeSection(at, std::clamp(sectionSize(at), before, kWidestColumn));
    }
    setOriginalsShown(m_originalsShown);
}

void DetailsHeader::setOriginalsShown(bool shown) {
    m_originalsShown = shown;
    setSectionHidden(static_cast<int>(DetailsColumn::OriginalName), !shown);
}

void DetailsHeader::showSorted(SortItems sort, bool reversed) {
    setSortIndicatorShown(false);
    for (int at = 0; at < kDetailsColumns; ++at) {
        if (sortOf(static_cast<DetailsColumn>(at)) == sort) {
            setSortIndicator(at, reversed ? Qt::DescendingOrder : Qt::AscendingOrder);
            setSortIndicatorShown(true);
        }
    }
}

}  // namespace vantor
