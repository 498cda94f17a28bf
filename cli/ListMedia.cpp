// The media list as a table for people and as JSON for programs.
#include "cli/ListMedia.h"

#include <QJsonObject>
#include <QObject>
#include <algorithm>
#include <cstdio>

#include "catalogue/NumberText.h"
#include "cli/JsonLine.h"
#include "cli/Options.h"
#include "media/LabelText.h"
#include "media/MediaList.h"

namespace vantor {

namespace {

using Records = QList<std::shared_ptr<MyDataObject>>;

void printJson(const Records& records) {
    for (const auto& record : records) {
        const QJsonObject line{{QStringLiteral("identifier"), record->nsStrDiskIdentifier},
                               {QStringLiteral("name"), record->nsStrVolName},
                               {QStringLiteral("file_system"), record->nsStrFileSystem},
                               {QStringLiteral("size"), record->nsStrSize.simplified()},
                               {QStringLiteral("disk"), record->nsStrParentDisk},
                               {QStringLiteral("sectors"), textToInt64(record->nsStrSectors)}};
        printJsonLine(line);
    }
}

void printTable(const Records& records) {
    QList<QStringList> rows{{QObject::tr("Medium"), QObject::tr("Name"), QObject::tr("File system"),
                             QObject::tr("Size"), QObject::tr("Disk"), QObject::tr("Sectors")}};
    for (const auto& record : records) {
        rows.append({shownLabel(record->nsStrDiskIdentifier), shownLabel(record->nsStrVolName),
                     shownLabel(record->nsStrFileSystem), record->nsStrSize.simplified(),
                     shownLabel(record->nsStrParentDisk), record->nsStrSectors});
    }
    QList<qsizetype> widths(rows.first().size(), 0);
    for (const QStringList& row : rows) {
        for (qsizetype column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], row[column].size());
        }
    }
    for (const QStringList& row : rows) {
        QString line;
        for (qsizetype column = 0; column < row.size(); ++column) {
            line += row[column].leftJustified(widths[column] + 2);
        }
        std::printf("%s\n", qPrintable(line.trimmed()));
    }
}

}  // namespace

int listMedia(MediaSource& source, bool asJson) {
    const Records records = listedMedia(source);
    if (asJson) {
        printJson(records);
    } else if (records.isEmpty()) {
        std::printf("%s\n",
                    qPrintable(QObject::tr(
                        "No storage medium found. Put in a card or stick, or name an image file instead.")));
    } else {
        printTable(records);
    }
    return kExitCompleted;
}

}  // namespace vantor
