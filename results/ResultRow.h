// The per-type rows of the raw results table.
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <cstdint>

namespace vantor {

// A row has the keys "FileTypes", "NoOfFile", "FileName", "FilePath", "FileTypes_Hidden"; all values are
// text. A row is replaced whole when an item is counted, never changed in place.
using ResultRow = QMap<QString, QString>;

ResultRow makeResultRow(const QString& type, std::uint64_t count, const QString& name, const QString& path,
                        const QString& hiddenType);

// The index of the first row whose "FileTypes_Hidden" equals the type, case-sensitively; -1 when there is
// none.
qsizetype rowOfType(const QList<ResultRow>& rows, const QString& type);

// The row's "NoOfFile" as a number.
std::int64_t countOf(const ResultRow& row);

// Counts one more item of `extension` in the first row of that type; false when no row has it.
bool countItem(QList<ResultRow>& rows, const QString& extension, const QString& name, const QString& path);

// The extension of a name: what follows the last dot of its last path component; "" without one, or when
// nothing stands before the dot.
QString pathExtension(const QString& name);

}  // namespace vantor
