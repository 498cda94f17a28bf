// A grid of cells that are all alike, of any number of rows: where a cell lies is worked out, not remembered.
#pragma once

#include <QListView>

namespace vantor {

// Rows fill lines from the side where reading begins, as many to a line as fit; cells are of gridSize(). What
// would lie more than two thousand million pixels below the first line cannot be scrolled to.
class GridView : public QListView {
    Q_OBJECT

  public:
    explicit GridView(QWidget* parent = nullptr);

    // One cell to a line, however wide; what is wider than the view can be scrolled to.
    void setOneColumn(bool one);

    QRect visualRect(const QModelIndex& index) const override;
    QModelIndex indexAt(const QPoint& point) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    void doItemsLayout() override;

  protected:
    // Half-open, of the rows that a part of the viewport shows.
    struct Rows {
        int first = 0;
        int end = 0;
    };
    Rows rowsIn(const QRect& part) const;
    int rowCount() const { return model() != nullptr ? model()->rowCount(rootIndex()) : 0; }

    int horizontalOffset() const override;
    int verticalOffset() const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void updateGeometries() override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    int columns() const;
    int columnWidth() const;
    int gapBeside() const;  // on each side of a cell
    int rowAt(const QPoint& point) const;
    void paintBand(QPainter& painter);

    bool m_oneColumn = false;
    QPoint m_pressedAt;  // in the contents, not the viewport
    QPoint m_pointer;    // in the viewport
};

}  // namespace vantor
