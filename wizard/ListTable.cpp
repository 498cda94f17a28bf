// Set-up of the tables and the painting of their empty state.
#include "wizard/ListTable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include "wizard/EmptyState.h"
#include "wizard/Theme.h"

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
    setAccessibleDescription(title + u' ' + advice);
    viewport()->update();
}

void ListTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (model() != nullptr && model()->rowCount() == 0) {
        paintEmptyState(viewport(), m_emptyPicture, m_emptyTitle, m_emptyAdvice);
    }
}

void ListTable::keyPressEvent(QKeyEvent* event) {
    const bool moves = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (moves && model()->rowCount() > 0 && !selectionModel()->hasSelection()) {
        // The first arrow key chooses the row at hand instead of passing it over.
        setCurrentIndex(currentIndex().isValid() ? currentIndex() : model()->index(0, 0));
        selectRow(currentIndex().row());
        return;
    }
    QTableView::keyPressEvent(event);
    if (event->key() == Qt::Key_Space) {
        emit tickedByKeyboard();
    }
}

}  // namespace vantor
