// Set-up, zoom and selection of the browsers.
#include "window/browser/ImageBrowserView.h"

#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <utility>

#include "window/browser/DetailsHeader.h"
#include "window/browser/DetailsRow.h"
#include "window/browser/ImageBrowserModel.h"
#include "window/browser/ImageCell.h"
#include "window/widgets/EmptyState.h"

namespace vantor {

namespace {

// Edge of the picture in a cell, in pixels, at zoom 0 and 1.
constexpr int kSmallestPicture = 24;
constexpr int kLargestPicture = 208;

}  // namespace

ImageBrowserView::ImageBrowserView(QWidget* parent)
    : GridView(parent), m_model(new ImageBrowserModel(this)), m_header(new DetailsHeader(this)) {
    auto* const cells = new ImageCell(this);
    m_cells = cells;
    m_lines = new DetailsRow(this, cells);
    m_header->hide();
    const auto columnsChanged = [this] {
        layCellsOut();
        scheduleDelayedItemsLayout();
        viewport()->update();
    };
    connect(m_header, &QHeaderView::sectionResized, this, columnsChanged);
    connect(m_header, &QHeaderView::sectionMoved, this, columnsChanged);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, m_header, &QHeaderView::setOffset);
    setSelectionMode(ExtendedSelection);
    setDragEnabled(false);
    setWordWrap(false);
    setItemDelegate(m_cells);
    setModel(m_model);
    setZoomValue(0);
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& item) { emit openWanted(indexOfRow(item.row())); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &ImageBrowserView::seeWhetherAtEnd);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int least, int most) {
        // Items that are added lead nobody away from the end.
        if (least == most) {
            m_atEnd = true;
        }
    });
}

void ImageBrowserView::seeWhetherAtEnd() {
    const QScrollBar& bar = *verticalScrollBar();
    m_atEnd = bar.maximum() - bar.value() < gridSize().height() / 2;
}

void ImageBrowserView::setDataSource(ImageBrowserDataSource* source) {
    m_model->setDataSource(source);
}

void ImageBrowserView::reloadData() {
    m_model->reloadData();
    describeState();
    viewport()->update();
}

void ImageBrowserView::setZoomValue(float zoom) {
    m_zoom = zoom;
    const float bounded = std::clamp(zoom, 0.0F, 1.0F);
    const int edge =
        kSmallestPicture + static_cast<int>(bounded * (kLargestPicture - kSmallestPicture) + 0.5F);
    setIconSize({edge, edge});
    layCellsOut();
}

void ImageBrowserView::layCellsOut() {
    setGridSize(m_detailsShown ? QSize(m_header->length(), DetailsRow::heightFor(font()))
                               : ImageCell::cellSize(iconSize().width(), font(), linesOfWords()));
}

// The item at the top stays there.
void ImageBrowserView::setDetailsShown(bool shown) {
    if (shown == m_detailsShown) {
        return;
    }
    const Rows inView = rowsIn(viewport()->rect());
    m_detailsShown = shown;
    setItemDelegate(shown ? m_lines : m_cells);
    setOneColumn(shown);
    m_header->setVisible(shown);
    layCellsOut();
    updateGeometries();
    scrollTo(m_model->index(inView.first), PositionAtTop);
    viewport()->update();
}

void ImageBrowserView::updateGeometries() {
    const int height = m_detailsShown ? m_header->sizeHint().height() : 0;
    if (viewportMargins().top() != height) {
        setViewportMargins(0, height, 0, 0);
    }
    const QRect place = viewport()->geometry();
    m_header->setGeometry(place.left(), place.top() - height, place.width(), height);
    GridView::updateGeometries();
}

QRect ImageBrowserView::tickPlace(const QModelIndex& item) const {
    const QRect place = visualRect(item);
    return m_detailsShown ? DetailsRow::tickPlace(place) : ImageCell::tickPlace(place);
}

void ImageBrowserView::setOriginalsShown(bool shown) {
    if (m_originalsShown != shown) {
        m_originalsShown = shown;
        m_header->setOriginalsShown(shown);
        setZoomValue(m_zoom);
        scheduleDelayedItemsLayout();
    }
}

void ImageBrowserView::scrollIndexToVisible(qsizetype index) {
    const int row = m_model->rowOfIndex(static_cast<int>(index));
    if (row >= 0) {
        scrollTo(m_model->index(row));
    }
}

void ImageBrowserView::showCurrentOrFirst() {
    const QModelIndex current = currentIndex();
    if (current.isValid() && selectionModel()->isSelected(current)) {
        scrollTo(current);
    } else {
        scrollToTop();
    }
}

void ImageBrowserView::endFollowing() {
    if (m_atEnd) {
        showCurrentOrFirst();
    }
}

void ImageBrowserView::followIndex(qsizetype index) {
    if (m_atEnd) {
        scrollIndexToVisible(index);
        // A cell may be higher than the view.
        if (m_model->rowOfIndex(static_cast<int>(index)) + 1 == m_model->rowCount()) {
            scrollToBottom();
        }
        m_atEnd = true;  // with some more behind it, perhaps
    }
}

QList<qsizetype> ImageBrowserView::selectionIndexes() const {
    QList<qsizetype> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.append(m_model->indexOfRow(row));
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

qsizetype ImageBrowserView::selectedCount() const {
    qsizetype count = 0;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        count += range.height();
    }
    return count;
}

// As few ranges as there can be: whatever works on a selection takes its time range by range.
QItemSelection ImageBrowserView::rangesOf(const QList<qsizetype>& indexes) const {
    std::vector<int> rows;
    rows.reserve(static_cast<std::size_t>(indexes.size()));
    for (const qsizetype index : indexes) {
        if (const int row = m_model->rowOfIndex(static_cast<int>(index)); row >= 0) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    QItemSelection ranges;
    for (std::size_t from = 0, to = 0; from < rows.size(); from = to) {
        for (to = from + 1; to < rows.size() && rows[to] == rows[to - 1] + 1; ++to) {
        }
        ranges.append(QItemSelectionRange(m_model->index(rows[from]), m_model->index(rows[to - 1])));
    }
    return ranges;
}

void ImageBrowserView::setOrder(std::optional<QList<int>> order) {
    if (!order && !m_model->hasOrder()) {
        return;
    }
    const QList<qsizetype> selected = selectionIndexes();
    const int current = currentIndex().isValid() ? m_model->indexOfRow(currentIndex().row()) : -1;
    const int scrolled = verticalScrollBar()->value();
    m_reordering = true;
    // Quietly, and first: to compare what was selected with what will be takes long.
    selectionModel()->reset();
    m_model->setOrder(std::move(order));
    selectionModel()->select(rangesOf(selected), QItemSelectionModel::Select);
    viewport()->update();
    if (const int row = current >= 0 ? m_model->rowOfIndex(current) : -1; row >= 0) {
        selectionModel()->setCurrentIndex(m_model->index(row), QItemSelectionModel::NoUpdate);
    }
    verticalScrollBar()->setValue(scrolled);
    m_reordering = false;
}

std::vector<std::size_t> ImageBrowserView::indexesInView() const {
    std::vector<std::size_t> indexes;
    const Rows rows = isVisible() ? rowsIn(viewport()->rect()) : Rows();
    for (int row = rows.first; row < rows.end; ++row) {
        indexes.push_back(static_cast<std::size_t>(m_model->indexOfRow(row)));
    }
    return indexes;
}

QList<qsizetype> ImageBrowserView::shownIndexes() const {
    QList<qsizetype> indexes;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        indexes.append(m_model->indexOfRow(row));
    }
    return indexes;
}

int ImageBrowserView::rowOfIndex(qsizetype index) const {
    return m_model->rowOfIndex(static_cast<int>(index));
}

qsizetype ImageBrowserView::indexOfRow(int row) const {
    return row >= 0 && row < m_model->rowCount() ? m_model->indexOfRow(row) : -1;
}

void ImageBrowserView::chooseIndex(qsizetype index) {
    if (const int row = rowOfIndex(index); row >= 0) {
        setCurrentIndex(m_model->index(row));
    }
}

void ImageBrowserView::selectIndexes(const QList<qsizetype>& indexes) {
    selectionModel()->select(rangesOf(indexes), QItemSelectionModel::ClearAndSelect);
}

qsizetype ImageBrowserView::listedCount() const {
    return m_model->listedCount();
}

int ImageBrowserView::shownCount() const {
    return m_model->rowCount();
}

std::shared_ptr<MyImageObject> ImageBrowserView::itemOfRow(int row) const {
    return m_model->item(m_model->indexOfRow(row));
}

ItemFacts ImageBrowserView::factsOfRow(int row) const {
    return m_model->facts(m_model->indexOfRow(row));
}

const CellPicture* ImageBrowserView::pictureOfRow(int row) const {
    return m_model->picture(m_model->indexOfRow(row));
}

int ImageBrowserView::pictureSide() const {
    return static_cast<int>(std::ceil(iconSize().width() * devicePixelRatioF()));
}

int ImageBrowserView::largestPictureSide() const {
    return static_cast<int>(std::ceil(kLargestPicture * devicePixelRatioF()));
}

void ImageBrowserView::setEmptyState(const QIcon& picture, const QString& title, const QString& advice) {
    m_emptyPicture = picture;
    m_emptyTitle = title;
    m_emptyAdvice = advice;
    describeState();
    viewport()->update();
}

// The state is read out as long as it lasts, and no longer.
void ImageBrowserView::describeState() {
    setAccessibleDescription(m_model->rowCount() == 0 ? m_emptyTitle + u' ' + m_emptyAdvice : QString());
}

// Who sees the last items goes on seeing them when something else takes room from the list.
void ImageBrowserView::resizeEvent(QResizeEvent* event) {
    const QScrollBar& bar = *verticalScrollBar();
    const bool atBottom = bar.maximum() > 0 && bar.value() == bar.maximum();
    GridView::resizeEvent(event);
    if (atBottom) {
        scrollToBottom();
    }
}

void ImageBrowserView::paintEvent(QPaintEvent* event) {
    GridView::paintEvent(event);
    if (m_model->rowCount() == 0) {
        paintEmptyState(viewport(), m_emptyPicture, m_emptyTitle, m_emptyAdvice);
    }
}

void ImageBrowserView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    GridView::selectionChanged(selected, deselected);
    if (!m_reordering) {
        emit selectionDidChange();
    }
}

}  // namespace vantor
