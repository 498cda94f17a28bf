// The adapter between the data-source operations and the toolkit's tables.
#include "window/widgets/TableAdapter.h"

#include <QTableView>
#include <utility>

namespace vantor {

TableAdapter::TableAdapter(TableDataSource& source, QTableView* table, QList<TableColumn> columns)
    : QAbstractTableModel(table), m_source(source), m_table(table), m_columns(std::move(columns)) {
    m_table->setModel(this);
}

void TableAdapter::reloadData() {
    beginResetModel();
    m_rows = static_cast<int>(m_source.numberOfRowsInTableView(m_table));
    endResetModel();
}

void TableAdapter::refreshData() {
    if (static_cast<int>(m_source.numberOfRowsInTableView(m_table)) != m_rows) {
        reloadData();
    } else if (m_rows > 0) {
        emit dataChanged(index(0, 0), index(m_rows - 1, columnCount() - 1));
    }
}

QString TableAdapter::identifier(int column) const {
    return column >= 0 && column < m_columns.size() ? m_columns.at(column).identifier : QString();
}

int TableAdapter::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int TableAdapter::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant TableAdapter::data(const QModelIndex& index, int role) const {
    const TableColumn& column = m_columns.at(index.column());
    const auto value = [&] { return m_source.tableView(m_table, column.identifier, index.row()); };
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            if (column.tickBox) {
                return {};
            }
            return column.wording ? QVariant(column.wording(value())) : value();
        case Qt::CheckStateRole:
            return column.tickBox ? QVariant(value().toBool() ? Qt::Checked : Qt::Unchecked) : QVariant();
        case Qt::DecorationRole:
            return column.picture ? column.picture(index.row()) : QVariant();
        case Qt::TextAlignmentRole:
            return column.rightAligned ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
        case Qt::AccessibleTextRole:
            if (column.tickBox) {
                return value().toBool() ? tr("selected") : tr("not selected");
            }
            return {};
        default:
            return {};
    }
}

bool TableAdapter::setData(const QModelIndex& index, const QVariant& value, int role) {
    const TableColumn& column = m_columns.at(index.column());
    if (role != Qt::CheckStateRole || !column.tickBox) {
        return false;
    }
    m_source.tableView(m_table, QVariant(value.toInt() == Qt::Checked), column.identifier, index.row());
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags TableAdapter::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && m_columns.at(index.column()).tickBox ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant TableAdapter::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical || section < 0 || section >= m_columns.size()) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return m_columns.at(section).title;
        case Qt::TextAlignmentRole:
            return m_columns.at(section).rightAligned ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                                      : QVariant();
        default:
            return {};
    }
}

}  // namespace vantor
