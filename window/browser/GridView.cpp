// The list view's behaviour over positions that are worked out.
#include "window/browser/GridView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionRubberBand>
#include <algorithm>
#include <limits>

namespace vantor {

namespace {

constexpr int kStepAcross = 20;  // pixels
constexpr qint64 kMostPixels = std::numeric_limits<int>::max() / 2;

int bounded(qint64 pixels) {
    return static_cast<int>(std::clamp(pixels, -kMostPixels, kMostPixels));
}

}  // namespace

GridView::GridView(QWidget* parent) : QListView(parent) {
    setViewMode(IconMode);
    setMovement(Static);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void GridView::setOneColumn(bool one) {
    m_oneColumn = one;
    setHorizontalScrollBarPolicy(one ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollMode(ScrollPerPixel);
    scheduleDelayedItemsLayout();
}

int GridView::columns() const {
    return m_oneColumn ? 1 : std::max(1, viewport()->width() / std::max(1, gridSize().width()));
}

// What the columns leave of a line lies between them.
int GridView::columnWidth() const {
    const int cell = std::max(1, gridSize().width());
    return m_oneColumn ? cell : std::max(cell, viewport()->width() / columns());
}

int GridView::gapBeside() const {
    return (columnWidth() - gridSize().width()) / 2;
}

int GridView::horizontalOffset() const {
    return horizontalScrollBar()->value();
}

int GridView::verticalOffset() const {
    return verticalScrollBar()->value();
}

QRect GridView::visualRect(const QModelIndex& index) const {
    if (!index.isValid() || index.model() != model()) {
        return {};
    }
    const QSize cell = gridSize();
    const int line = index.row() / columns();
    const int x = index.row() % columns() * columnWidth() + gapBeside() - horizontalOffset();
    const QPoint corner(isRightToLeft() ? viewport()->width() - x - cell.width() : x,
                        bounded(qint64{line} * cell.height() - verticalOffset()));
    return {corner, cell};
}

// -1 where there is none.
int GridView::rowAt(const QPoint& point) const {
    const QSize cell = gridSize();
    const qint64 y = qint64{point.y()} + verticalOffset();
    const int x = (isRightToLeft() ? viewport()->width() - 1 - point.x() : point.x()) + horizontalOffset();
    const int inCell = x % columnWidth() - gapBeside();
    if (cell.isEmpty() || y < 0 || x < 0 || x / columnWidth() >= columns() || inCell < 0 ||
        inCell >= cell.width()) {
        return -1;
    }
    const qint64 row = y / cell.height() * columns() + x / columnWidth();
    return row < rowCount() ? static_cast<int>(row) : -1;
}

QModelIndex GridView::indexAt(const QPoint& point) const {
    const int row = rowAt(point);
    return row < 0 ? QModelIndex() : model()->index(row, modelColumn(), rootIndex());
}

GridView::Rows GridView::rowsIn(const QRect& part) const {
    const int height = gridSize().height();
    const int count = rowCount();
    if (height <= 0 || part.isEmpty()) {
        return {};
    }
    const qint64 top = std::max<qint64>(0, qint64{part.top()} + verticalOffset());
    const qint64 bottom = qint64{part.bottom()} + verticalOffset();
    if (bottom < 0) {
        return {};
    }
    const qint64 first = std::min<qint64>(count, top / height * columns());
    const qint64 end = std::min<qint64>(count, (bottom / height + 1) * columns());
    return {static_cast<int>(first), static_cast<int>(end)};
}

void GridView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!index.isValid()) {
        return;
    }
    executeDelayedItemsLayout();
    const QRect cell = visualRect(index);
    const int height = viewport()->height();
    const int below = cell.bottom() + 1 - height;
    int move = 0;
    switch (hint) {
        case PositionAtTop:
            move = cell.top();
            break;
        case PositionAtBottom:
            move = below;
            break;
        case PositionAtCenter:
            move = cell.center().y() - height / 2;
            break;
        case EnsureVisible:
            move = cell.top() < 0 || cell.height() > height ? cell.top() : std::max(0, below);
            break;
    }
    if (move != 0) {
        verticalScrollBar()->setValue(bounded(qint64{verticalOffset()} + move));
    }
}

void GridView::doItemsLayout() {
    QAbstractItemView::doItemsLayout();
}

void GridView::updateGeometries() {
    QAbstractItemView::updateGeometries();
    const qint64 lines = (qint64{rowCount()} + columns() - 1) / columns();
    const int height = viewport()->height();
    QScrollBar* const bar = verticalScrollBar();
    bar->setSingleStep(std::max(1, gridSize().height() / 2));
    bar->setPageStep(height);
    QScrollBar* const across = horizontalScrollBar();
    across->setSingleStep(kStepAcross);
    across->setPageStep(viewport()->width());
    across->setRange(0, m_oneColumn ? std::max(0, gridSize().width() - viewport()->width()) : 0);
    bar->setRange(0, bounded(std::max<qint64>(0, lines * gridSize().height() - height)));
}

void GridView::resizeEvent(QResizeEvent* event) {
    QAbstractItemView::resizeEvent(event);
    viewport()->update();
}

QModelIndex GridView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    const int count = rowCount();
    if (count == 0) {
        return {};
    }
    const auto at = [this](int row) { return model()->index(row, modelColumn(), rootIndex()); };
    const QModelIndex current = currentIndex();
    if (!current.isValid()) {
        return at(action == MoveEnd ? count - 1 : 0);
    }
    const int row = current.row();
    const int inLine = row % columns();
    const int page = std::max(1, viewport()->height() / std::max(1, gridSize().height())) * columns();
    const int lastLine = (count - 1) / columns();
    switch (action) {
        case MoveLeft:
        case MoveRight: {
            const bool forward = (action == MoveRight) != isRightToLeft();
            if (m_oneColumn) {
                horizontalScrollBar()->triggerAction(forward ? QScrollBar::SliderSingleStepAdd
                                                             : QScrollBar::SliderSingleStepSub);
                return current;
            }
            const bool atEdge = forward ? inLine == columns() - 1 || row == count - 1 : inLine == 0;
            return at(atEdge ? row : forward ? row + 1 : row - 1);
        }
        case MoveUp:
            return at(row < columns() ? row : row - columns());
        case MoveDown:
            return at(row / columns() == lastLine ? row : std::min(count - 1, row + columns()));
        case MovePageUp:
            return at(row < page ? inLine : row - page);
        case MovePageDown:
            return at(row < count - page ? row + page : std::min(count - 1, lastLine * columns() + inLine));
        case MoveHome:
            return at(0);
        case MoveEnd:
            return at(count - 1);
        case MoveNext:
            return at(std::min(count - 1, row + 1));
        case MovePrevious:
            return at(std::max(0, row - 1));
    }
    return current;
}

// With the band all cells that it touches; with clicks and keys all from the one at its first corner to the
// one at its last.
void GridView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
    QItemSelection selection;
    const auto add = [&](int first, int last) {
        selection.append(QItemSelectionRange(model()->index(first, modelColumn(), rootIndex()),
                                             model()->index(last, modelColumn(), rootIndex())));
    };
    if (state() == DragSelectingState) {
        const QRect band = rect.normalized();
        const QRect reach = isRightToLeft() ? QRect(viewport()->width() - 1 - band.right(), band.top(),
                                                    band.width(), band.height())
                                            : band;
        const int width = columnWidth();
        const int left = reach.left() - gapBeside() - gridSize().width();  // of it, what ends there is passed
        const int right = reach.right() - gapBeside();
        const int from = left < 0 ? 0 : left / width + 1;
        const int to = right < 0 ? -1 : std::min(columns() - 1, right / width);
        const Rows rows = rowsIn(band);
        if (from == 0 && to == columns() - 1 && rows.first < rows.end) {
            add(rows.first, rows.end - 1);
        } else if (from <= to) {
            for (int line = rows.first; line + from < rows.end; line += columns()) {
                add(line + from, std::min(rows.end - 1, line + to));
            }
        }
    } else {
        const int one = rowAt(rect.topLeft());
        const int other = rowAt(rect.bottomRight());
        if (one >= 0 && other >= 0) {
            add(std::min(one, other), std::max(one, other));
        }
    }
    selectionModel()->select(selection, command);
}

QRegion GridView::visualRegionForSelection(const QItemSelection& selection) const {
    const Rows shown = rowsIn(viewport()->rect());
    QRegion region;
    for (const QItemSelectionRange& range : selection) {
        const int end = std::min(range.bottom() + 1, shown.end);
        for (int row = std::max(range.top(), shown.first); row < end; ++row) {
            region += visualRect(model()->index(row, modelColumn(), rootIndex()));
        }
    }
    return region;
}

void GridView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QStyle::State plain = option.state;
    const QModelIndex current = hasFocus() || viewport()->hasFocus() ? currentIndex() : QModelIndex();
    const QModelIndex pointed =
        viewport()->underMouse() ? indexAt(viewport()->mapFromGlobal(QCursor::pos())) : QModelIndex();
    const Rows rows = rowsIn(event->rect());
    for (int row = rows.first; row < rows.end; ++row) {
        const QModelIndex index = model()->index(row, modelColumn(), rootIndex());
        option.rect = visualRect(index);
        if (!event->region().intersects(option.rect)) {
            continue;
        }
        option.state = plain;
        option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
        option.state.setFlag(QStyle::State_HasFocus, index == current);
        option.state.setFlag(QStyle::State_MouseOver, index == pointed);
        itemDelegate()->paint(&painter, option, index);
    }
    paintBand(painter);
}

void GridView::paintBand(QPainter& painter) {
    if (state() != DragSelectingState || !isSelectionRectVisible()) {
        return;
    }
    QStyleOptionRubberBand option;
    option.initFrom(this);
    option.shape = QRubberBand::Rectangle;
    option.opaque = false;
    option.rect =
        QRect(m_pressedAt - QPoint(0, verticalOffset()), m_pointer).normalized() & viewport()->rect();
    style()->drawControl(QStyle::CE_RubberBand, &option, &painter, this);
}

void GridView::mousePressEvent(QMouseEvent* event) {
    m_pointer = event->position().toPoint();
    m_pressedAt = m_pointer + QPoint(0, verticalOffset());
    QAbstractItemView::mousePressEvent(event);
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    m_pointer = event->position().toPoint();
    QAbstractItemView::mouseMoveEvent(event);
    if (state() == DragSelectingState) {
        viewport()->update();
    }
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    QAbstractItemView::mouseReleaseEvent(event);
    viewport()->update();
}

}  // namespace vantor
