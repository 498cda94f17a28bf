// The grid over more rows than any list should remember the places of.
#include <gtest/gtest.h>

#include <QAbstractListModel>
#include <QScrollBar>
#include <QTest>

#include "window/browser/GridView.h"

namespace vantor {
namespace {

constexpr int kRows = 10'000'000;

// So many rows; counts who asks for them.
class ManyRows : public QAbstractListModel {
  public:
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows; }
    QVariant data(const QModelIndex&, int) const override {
        ++asked;
        return {};
    }
    void addRows(int count) {
        beginInsertRows({}, rows, rows + count - 1);
        rows += count;
        endInsertRows();
    }
    int rows = kRows;
    mutable int asked = 0;
};

class Grid : public ::testing::Test {
  protected:
    Grid() {
        view.setGridSize({100, 60});
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        view.setModel(&model);
        view.resize(460, 300);  // four to a line
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
    }
    QModelIndex row(int number) const { return model.index(number); }
    // What four columns leave of a line lies between them.
    int columnWidth() const { return view.viewport()->width() / 4; }
    int leftOf(int column) const { return column * columnWidth() + (columnWidth() - 100) / 2; }
    QList<QPair<int, int>> selected() const {
        QList<QPair<int, int>> ranges;
        for (const QItemSelectionRange& range : view.selectionModel()->selection()) {
            ranges.append({range.top(), range.bottom()});
        }
        std::sort(ranges.begin(), ranges.end());
        return ranges;
    }

    ManyRows model;
    GridView view;
};

TEST_F(Grid, EveryRowHasItsPlace_AndEveryPlaceItsRow) {
    ASSERT_GE(columnWidth(), 104);
    EXPECT_EQ(view.visualRect(row(0)), QRect(leftOf(0), 0, 100, 60));
    EXPECT_EQ(view.visualRect(row(6)), QRect(leftOf(2), 60, 100, 60));
    EXPECT_EQ(view.indexAt({leftOf(2), 100}), row(6));
    EXPECT_EQ(view.indexAt({leftOf(2) + 99, 100}), row(6));
    EXPECT_FALSE(view.indexAt({leftOf(2) - 1, 100}).isValid()) << "between two of a line";
    EXPECT_FALSE(view.indexAt({leftOf(2) + 100, 100}).isValid()) << "between two of a line";
    EXPECT_FALSE(view.indexAt({leftOf(3) + 101, 10}).isValid()) << "right of the last of a line";
    view.scrollTo(row(kRows - 1));
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    const QRect last = view.visualRect(row(kRows - 1));
    EXPECT_EQ(last.bottom() + 1, view.viewport()->height());
    EXPECT_EQ(view.indexAt(last.center()), row(kRows - 1));
    EXPECT_EQ(view.visualRect(row(0)).top(), -(kRows / 4 * 60 - view.viewport()->height()));
    model.asked = 0;
    view.viewport()->repaint();
    EXPECT_LT(model.asked, 1000) << "only what is in view is asked for";
}

TEST_F(Grid, RightToLeft_LinesBeginAtTheRight) {
    view.setLayoutDirection(Qt::RightToLeft);
    const int width = view.viewport()->width();
    EXPECT_EQ(view.visualRect(row(1)), QRect(width - leftOf(1) - 100, 0, 100, 60));
    EXPECT_EQ(view.indexAt({width - leftOf(1) - 50, 10}), row(1));
}

TEST_F(Grid, RowsThatComeAreThere_AndAnotherWidthIsLaidOutAnew) {
    const int before = view.verticalScrollBar()->maximum();
    model.addRows(4);
    view.doItemsLayout();
    EXPECT_EQ(view.verticalScrollBar()->maximum(), before + 60);
    view.resize(260, 300);
    EXPECT_EQ(view.visualRect(row(2)), QRect((view.viewport()->width() / 2 - 100) / 2, 60, 100, 60));
}

TEST_F(Grid, KeysMoveThroughLines) {
    view.setCurrentIndex(row(5));
    const std::pair<Qt::Key, int> steps[] = {
        {Qt::Key_Up, 1},     {Qt::Key_Up, 1},          {Qt::Key_Down, 5},          {Qt::Key_Left, 4},
        {Qt::Key_Left, 4},   {Qt::Key_Right, 5},       {Qt::Key_PageDown, 21},     {Qt::Key_PageUp, 5},
        {Qt::Key_PageUp, 1}, {Qt::Key_End, kRows - 1}, {Qt::Key_Right, kRows - 1}, {Qt::Key_Down, kRows - 1},
        {Qt::Key_Home, 0},   {Qt::Key_Left, 0},
    };
    for (const auto& [key, expected] : steps) {
        QTest::keyClick(&view, key);
        EXPECT_EQ(view.currentIndex().row(), expected) << key;
        EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.currentIndex())));
    }
    model.rows = 10;  // the last line is not full
    view.setCurrentIndex(row(7));
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(view.currentIndex().row(), 9);
}

TEST_F(Grid, ShiftSelectsAllBetween_AndTheBandWhatItTouches) {
    view.setCurrentIndex(row(5));
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (QList<QPair<int, int>>{{5, 9}}));
    QTest::keyClick(&view, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (QList<QPair<int, int>>{{5, kRows - 1}}));
    view.selectAll();
    EXPECT_EQ(selected(), (QList<QPair<int, int>>{{0, kRows - 1}}));
    view.scrollToTop();
    view.clearSelection();
    // From the room right of the cells leftwards, over the last two columns of two lines.
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, {leftOf(3) + 102, 10});
    QTest::mouseMove(view.viewport(), {leftOf(3) + 50, 40});
    // What ends between two columns has not touched the one on the left.
    QTest::mouseMove(view.viewport(), {leftOf(2) - 1, 100});
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, {leftOf(2) - 1, 100});
    EXPECT_EQ(selected(), (QList<QPair<int, int>>{{2, 3}, {6, 7}}));
}

}  // namespace
}  // namespace vantor
