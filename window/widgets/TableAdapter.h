// A thin model that asks the data source of a table for every cell.
#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <functional>

class QTableView;

namespace vantor {

// Serves several tables and tells them apart by identity. Interface thread only.
class TableDataSource {
  public:
    TableDataSource() = default;
    TableDataSource(const TableDataSource&) = delete;
    TableDataSource& operator=(const TableDataSource&) = delete;
    virtual ~TableDataSource() = default;

    // 0 for a table that is not served.
    virtual qsizetype numberOfRowsInTableView(const QTableView* table) = 0;
    // The cell under a column identifier; an invalid variant where there is none.
    virtual QVariant tableView(const QTableView* table, const QString& objectValueForTableColumn,
                               qsizetype row) = 0;
    // Stores an edited value; ignored by tables that cannot be edited.
    virtual void tableView(const QTableView* table, const QVariant& setObjectValue,
                           const QString& forTableColumn, qsizetype row) = 0;
};

struct TableColumn {
    QString identifier;
    QString title;
    bool tickBox = false;
    bool rightAligned = false;
    // What is shown in place of the value; the value itself when not given.
    std::function<QString(const QVariant& value)> wording = {};
    // A picture before the value.
    std::function<QVariant(qsizetype row)> picture = {};
};

class TableAdapter : public QAbstractTableModel {
    Q_OBJECT

  public:
    TableAdapter(TableDataSource& source, QTableView* table, QList<TableColumn> columns);

    // Everything anew; the selection is lost.
    void reloadData();
    // The values changed; rows at the end may have come or gone.
    void refreshData();
    // The identifier of a column; "" outside the table.
    QString identifier(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    TableDataSource& m_source;
    QTableView* m_table;
    QList<TableColumn> m_columns;
    int m_rows = 0;
};

}  // namespace vantor
