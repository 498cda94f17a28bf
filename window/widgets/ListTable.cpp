// Set-up of the tables and the painting of their empty state.
#include "window/widgets/ListTable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include "window/widgets/EmptyState.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kRowHeight = 4 * theme::kUnit;

// Whole rows are chosen, so no single cell is marked as the current one.
class RowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_HasFocus;
    }
};

}  // namespace

ListTable::ListTable(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setItemDelegate(new RowDelegate(this));
    setAlternatingRowColors(true);
    setIconSize({20, 20});
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
}

void ListTable::setEmptyState(const QIcon& picture, const QString& title, const QString& advice) {
    m_emptyPicture = picture;
    m_emptyTitle = title;
    m_emptyAdvice = advice;
    describeState();
    viewport()->update();
}

QSize ListTable::sizeHint() const {
    constexpr int kRows = 4;  // the header included
    return {QTableView::sizeHint().width(), kRows * kRowHeight};
}

void ListTable::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &ListTable::describeState);
    describeState();
}

// The state is read out as long as it lasts, and no longer.
void ListTable::describeState() {
    setAccessibleDescription(firstRowInView() < 0 ? m_emptyTitle + u' ' + m_emptyAdvice : QString());
}

int ListTable::firstRowInView() const {
    const int rows = model() != nullptr ? model()->rowCount() : 0;
    for (int row = 0; row < rows; ++row) {
        if (!isRowHidden(row)) {
            return row;
        }
    }
    return -1;
}

bool ListTable::currentRowInView() const {
    return currentIndex().isValid() && !isRowHidden(currentIndex().row());
}

void ListTable::takeKeyboard() {
    const int row = currentRowInView() ? currentIndex().row() : firstRowInView();
    if (row >= 0) {
        selectRow(row);
        setFocus();
    }
}

void ListTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (firstRowInView() < 0) {
        paintEmptyState(viewport(), m_emptyPicture, m_emptyTitle, m_emptyAdvice);
    }
}

void ListTable::keyPressEvent(QKeyEvent* event) {
    const bool moves = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (moves && (!currentRowInView() || !selectionModel()->hasSelection())) {
        // The first arrow key chooses the row at hand instead of passing it over.
        const int row = currentRowInView() ? currentIndex().row() : firstRowInView();
        setCurrentIndex(model()->index(row, 0));
        selectRow(row);
        return;
    }
    if (event->key() == Qt::Key_Space && tickCurrentRow()) {
        emit tickedByKeyboard();
        return;
    }
    QTableView::keyPressEvent(event);
}

// The box of the row, whichever of its cells is the current one; false when the row has none.
bool ListTable::tickCurrentRow() {
    for (int column = 0; currentRowInView() && column < model()->columnCount(); ++column) {
        const QModelIndex cell = model()->index(currentIndex().row(), column);
        if (cell.flags().testFlag(Qt::ItemIsUserCheckable)) {
            const bool ticked = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            return model()->setData(cell, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        }
    }
    return false;
}

}  // namespace vantor
