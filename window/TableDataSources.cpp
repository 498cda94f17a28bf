// One set of data-source operations serves the three tables.

#include "media/LabelText.h"
#include "media/MyDataObject.h"
#include "scan/PlatformException.h"
#include "window/MyTableController.h"

namespace vantor {

namespace {

QVariant mediumCell(const MyDataObject& medium, const QString& column) {
    if (column == u"Collumn1") {
        return medium.nsStrDiskIdentifier;
    }
    if (column == u"Collumn2") {
        return shownLabel(medium.nsStrVolName);
    }
    if (column == u"Collumn3") {
        return shownLabel(medium.nsStrFileSystem);
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
const auto& rowAt(const List& rows, qsizetype row) {
    if (row < 0 || row >= rows.size()) {
        throw PlatformException("index beyond the array");
    }
    return rows.at(row);
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

QVariant MyTableController::tableView(const QTableView* table, const QString& objectValueForTableColumn,
                                      qsizetype row) {
    // A row that is gone meanwhile shows nothing.
    return guarded([&]() -> QVariant {
        if (table == idTableView) {
            const auto& medium = rowAt(nsMutaryOfDataObject, row);
            return medium ? mediumCell(*medium, objectValueForTableColumn) : QVariant();
        }
        if (table == idCheckTableView) {
            return rowAt(nsCheckedListDataObject, row).value(objectValueForTableColumn);
        }
        if (table == idSigTableView) {
            const std::lock_guard lock(listLock());
            assertParameter(row >= 0 && row < nsSIGFileInfoDataObject.size(),
                            "pRowIndex >= 0 && pRowIndex < [nsSIGFileInfoDataObject count]");
            const ResultRow& found = std::as_const(nsSIGFileInfoDataObject).at(row);
            return found.contains(objectValueForTableColumn)
                       ? QVariant(found.value(objectValueForTableColumn))
                       : QVariant();
        }
        return {};
    });
}

void MyTableController::tableView(const QTableView* table, const QVariant& setObjectValue,
                                  const QString& forTableColumn, qsizetype row) {
    if (table != idCheckTableView) {
        return;
    }
    // The edit of a row that is gone is dropped.
    guarded([&] {
        assertParameter(row >= 0 && row < nsCheckedListDataObject.size(),
                        "pRowIndex >= 0 && pRowIndex < [nsCheckedListDataObject count]");
        nsCheckedListDataObject[row][forTableColumn] = setObjectValue;
    });
}

}  // namespace vantor
