// Making, finding and counting result rows.
#include "results/ResultRow.h"

#include "catalogue/NumberText.h"

namespace vantor {

ResultRow makeResultRow(const QString& type, std::uint64_t count, const QString& name, const QString& path,
                        const QString& hiddenType) {
    return {{QStringLiteral("FileTypes"), type},
            {QStringLiteral("NoOfFile"), QString::number(count)},
            {QStringLiteral("FileName"), name},
            {QStringLiteral("FilePath"), path},
            {QStringLiteral("FileTypes_Hidden"), hiddenType}};
}

qsizetype rowOfType(const QList<ResultRow>& rows, const QString& type) {
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (rows.at(i).value(QStringLiteral("FileTypes_Hidden")) == type) {
            return i;
        }
    }
    return -1;
}

std::int64_t countOf(const ResultRow& row) {
    return textToInt64(row.value(QStringLiteral("NoOfFile")));
}

bool countItem(QList<ResultRow>& rows, const QString& extension, const QString& name, const QString& path) {
    const qsizetype i = rowOfType(rows, extension);
    if (i < 0) {
        return false;
    }
    const auto count = static_cast<std::uint64_t>(countOf(rows.at(i))) + 1;
    rows[i] = makeResultRow(extension, count, name, path, extension);
    return true;
}

QString pathExtension(const QString& name) {
    const QString component = name.mid(name.lastIndexOf(u'/') + 1);
    const qsizetype dot = component.lastIndexOf(u'.');
    return dot <= 0 ? QStringLiteral("") : component.mid(dot + 1);
}

}  // namespace vantor
