// Set-up, zoom and selection of the browsers.
#include "results/ImageBrowserView.h"

#include <algorithm>

#include "results/ImageBrowserModel.h"
#include "results/ImageCell.h"
#include "wizard/EmptyState.h"

namespace vantor {

namespace {

// Edge of the picture in a cell, in pixels, at zoom 0 and 1.
constexpr int kSmallestPicture = 24;
constexpr int kLargestPicture = 208;

}  // namespace

ImageBrowserView::ImageBrowserView(QWidget* parent)
    : QListView(parent), m_model(new ImageBrowserModel(this)) {
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setDragEnabled(false);
    setVerticalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setItemDelegate(new ImageCell(this));
    setModel(m_model);
    setZoomValue(0);
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
    setGridSize(ImageCell::cellSize(edge, font()));
}

void ImageBrowserView::scrollIndexToVisible(qsizetype index) {
    scrollTo(m_model->index(static_cast<int>(index)));
}

QList<qsizetype> ImageBrowserView::selectionIndexes() const {
    QList<qsizetype> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.append(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

std::shared_ptr<MyImageObject> ImageBrowserView::item(qsizetype index) const {
    return m_model->item(index);
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

// Keys that move find a place to move from.
void ImageBrowserView::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    if (!currentIndex().isValid() && m_model->rowCount() > 0) {
        selectionModel()->setCurrentIndex(m_model->index(0, 0), QItemSelectionModel::NoUpdate);
    }
}

void ImageBrowserView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (m_model->rowCount() == 0) {
        paintEmptyState(viewport(), m_emptyPicture, m_emptyTitle, m_emptyAdvice);
    }
}

void ImageBrowserView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    emit selectionDidChange();
}

}  // namespace vantor
