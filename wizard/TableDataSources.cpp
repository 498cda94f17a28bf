// One set of data-source operations serves the three tables.

#include "app/MyTableController.h"
#include "media/MyDataObject.h"

namespace vantor {

namespace {

QVariant mediumCell(const MyDataObject& medium, const QString& column) {
    if (column == u"Collumn1") {
        return medium.nsStrDiskIdentifier;
    }
    if (column == u"Collumn2") {
        return medium.nsStrVolName;
    }
    if (column == u"Collumn3") {
        return medium.nsStrFileSystem;
    }
    if (column == u"Collumn4") {
        return medium.nsStrSize;
    }
    if (column == u"Collumn5") {
        return medium.nsStrParentDisk;
    }
    if (column == u"Collumn6") {
        return medium.nsStrSectors;
    }
    return {};
}

template <class List>
bool hasRow(const List& rows, qsizetype row) {
    return row >= 0 && row < rows.size();
}

}  // namespace

qsizetype MyTableController::numberOfRowsInTableView(const QTableView* table) {
    if (table == idTableView) {
        return nsMutaryOfDataObject.size();
    }
    if (table == idCheckTableView) {
        return nsCheckedListDataObject.size();
    }
    if (table == idSigTableView) {
        const std::lock_guard lock(listLock());
        return nsSIGFileInfoDataObject.size();
    }
    return 0;
}

// A row that is gone meanwhile shows nothing.
QVariant MyTableController::tableView(const QTableView* table, const QString& objectValueForTableColumn,
                                      qsizetype row) {
    if (table == idTableView && hasRow(nsMutaryOfDataObject, row)) {
        const auto& medium = nsMutaryOfDataObject.at(row);
        return medium ? mediumCell(*medium, objectValueForTableColumn) : QVariant();
    }
    if (table == idCheckTableView && hasRow(nsCheckedListDataObject, row)) {
        return nsCheckedListDataObject.at(row).value(objectValueForTableColumn);
    }
    if (table == idSigTableView) {
        const std::lock_guard lock(listLock());
        if (hasRow(nsSIGFileInfoDataObject, row)) {
            const ResultRow& found = nsSIGFileInfoDataObject.at(row);
            return found.contains(objectValueForTableColumn) ? found.value(objectValueForTableColumn)
                                                             : QVariant();
        }
    }
    return {};
}

// The edit of a row that is gone is dropped.
void MyTableController::tableView(const QTableView* table, const QVariant& setObjectValue,
                                  const QString& forTableColumn, qsizetype row) {
    if (table == idCheckTableView && hasRow(nsCheckedListDataObject, row)) {
        nsCheckedListDataObject[row][forTableColumn] = setObjectValue;
    }
}

}  // namespace vantor
