// Rows of the file-type list: one a distinct extension, described by the first record met.
#include "catalogue/FileTypeList.h"

#include <QSet>
#include <algorithm>

#include "catalogue/SignatureRecord.h"

namespace vantor {

FileTypeRow makeFileTypeRow(const QString& extension, bool ticked, const QString& description,
                            const QString& thorough) {
    return {{QStringLiteral("Extension"), extension},
            {QStringLiteral("Description"), description},
            {QStringLiteral("Thoro"), thorough},
            {QStringLiteral("State"), ticked}};
}

bool isTicked(const FileTypeRow& row) {
    return row.value(QStringLiteral("State")).toBool();
}

QList<FileTypeRow> fileTypeRows(const QStringList& general, const QStringList& thorough) {
    QList<FileTypeRow> rows;
    QSet<QString> listed;
    const auto addTypesOf = [&](const QStringList& records, const QString& thoroughFlag) {
        for (qsizetype n = 0; n < recordCount(records); ++n) {
            const QString& extension = recordField(records, n, Ext_Name);
            if (!listed.contains(extension)) {
                listed.insert(extension);
                rows.append(
                    makeFileTypeRow(extension, true, recordField(records, n, Ext_Descp), thoroughFlag));
            }
        }
    };
    addTypesOf(general, QStringLiteral(""));
    addTypesOf(thorough, QStringLiteral("YES"));
    return rows;
}

void sortFileTypeRows(QList<FileTypeRow>& rows) {
    const auto extension = [](const FileTypeRow& row) {
        return row.value(QStringLiteral("Extension")).toString();
    };
    std::stable_sort(rows.begin(), rows.end(), [&](const FileTypeRow& a, const FileTypeRow& b) {
        return extension(a).compare(extension(b), Qt::CaseInsensitive) < 0;
    });
}

void removeRecordsOfType(QStringList& records, const QString& extension) {
    QStringList kept;
    kept.reserve(records.size());
    for (qsizetype at = 0; at < records.size(); at += kRecordStride) {
        if (records.at(at + Ext_Name) != extension) {
            kept.append(records.mid(at, kRecordStride));
        }
    }
    records = kept;
}

}  // namespace vantor
