// The list from which the user ticks file types, and the cutting of catalogues down to the ticked ones.
#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace vantor {

// A row has the keys "Extension", "Description", "Thoro" ("" or "YES": only in the thorough catalogue) and
// "State" (bool).
using FileTypeRow = QVariantMap;

FileTypeRow makeFileTypeRow(const QString& extension, bool ticked, const QString& description,
                            const QString& thorough);

bool isTicked(const FileTypeRow& row);

// The distinct types of both catalogues in catalogue order, general first, all ticked; the first record of a
// type describes it.
QList<FileTypeRow> fileTypeRows(const QStringList& general, const QStringList& thorough);

// What the user is told when no row is ticked.
inline QString noTypeChosenWords() {
    return QObject::tr("\nPlease select atleast one extension type.");
}

// Sorts by "Extension" without regard to case; rows that compare equal keep their order.
void sortFileTypeRows(QList<FileTypeRow>& rows);

// Removes every record of the type (exact, case-sensitive) from a flat record array, with what there is of an
// incomplete one at its end.
void removeRecordsOfType(QStringList& records, const QString& extension);

}  // namespace vantor
