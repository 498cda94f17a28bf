// The report's two texts. Everything that comes from a medium or a catalogue is escaped.
#include "saving/RecoveryReport.h"

#include <QDir>
#include <QMap>
#include <QObject>
#include <QUrl>

#include "media/LabelText.h"
#include "results/Mend.h"
#include "results/RecoveryMode.h"
#include "results/SizeForPeople.h"
#include "saving/SaveTally.h"
#include "saving/WholeFile.h"

namespace vantor {

namespace {

const char kStyle[] =
    "body{font:15px/1.5 sans-serif;margin:2em auto;max-width:75em;padding:0 1em;color:#222}"
    "table{border-collapse:collapse;margin:1em 0}th,td{padding:.25em .7em;text-align:left;"
    "border-bottom:1px solid #ddd;vertical-align:top}td.n{text-align:right;white-space:nowrap}"
    "th{background:#f3f3f3;position:sticky;top:0}img{max-width:100px;max-height:100px}"
    ".complete{color:#176b2c}.cut,.damaged,.failed{color:#a11}.sum{font:11px monospace;color:#666;"
    "word-break:break-all}@media(prefers-color-scheme:dark){body{background:#1c1c1c;color:#ddd}"
    "th{background:#333}td,th{border-color:#444}a{color:#8bf}.complete{color:#7d8}"
    ".cut,.damaged,.failed{color:#f88}}";

QString dateText(const std::optional<CivilTime>& taken) {
    if (!taken) {
        return {};
    }
    return QStringLiteral("%1-%2-%3 %4:%5:%6%7")
        .arg(taken->year, 4, 10, QLatin1Char('0'))
        .arg(taken->month, 2, 10, QLatin1Char('0'))
        .arg(taken->day, 2, 10, QLatin1Char('0'))
        .arg(taken->hour, 2, 10, QLatin1Char('0'))
        .arg(taken->minute, 2, 10, QLatin1Char('0'))
        .arg(taken->second, 2, 10, QLatin1Char('0'))
        .arg(taken->utc ? QStringLiteral(" UTC") : QString());
}

QString dateText(std::int64_t seconds) {
    return QDateTime::fromSecsSinceEpoch(seconds).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

// For machines.
QString stateOf(const CardFile& original) {
    switch (original.state) {
        case FileState::Live:
            return QStringLiteral("there");
        case FileState::Deleted:
            return QStringLiteral("deleted");
        case FileState::Lost:
            break;
    }
    return QStringLiteral("lost");
}

// For people: the path as on the card, what became of it and when it was changed last.
QString originalText(const std::shared_ptr<const CardFile>& original) {
    if (!original) {
        return {};
    }
    QStringList parts{original->state == FileState::Live      ? QObject::tr("still there")
                      : original->state == FileState::Deleted ? QObject::tr("deleted")
                                                              : QObject::tr("its folder lost")};
    if (original->modified) {
        parts << QObject::tr("changed %1").arg(dateText(*original->modified));
    }
    return QStringLiteral("%1 (%2)").arg(controlsSpeltOut(originalPath(*original)),
                                         parts.join(QStringLiteral(", ")));
}

// One word for machines.
QString resultText(const SaveOutcome& outcome) {
    if (outcome.leftOut != LeftOut::No) {
        return QStringLiteral("left out");
    }
    if (!outcome.saved) {
        return QStringLiteral("failed");
    }
    return outcome.duplicate ? QStringLiteral("duplicate") : QStringLiteral("saved");
}

QString reasonText(const SaveOutcome& outcome) {
    if (outcome.leftOut != LeftOut::No) {
        return outcome.leftOut == LeftOut::TooSmall  ? QObject::tr("smaller than asked for")
               : outcome.leftOut == LeftOut::Unsound ? QObject::tr("no file of its type")
               : outcome.leftOut == LeftOut::Part    ? QObject::tr("part of %1").arg(outcome.partOf)
                                                     : QObject::tr("still there as a file");
    }
    return controlsSpeltOut(outcome.error);
}

QString relativePath(const QString& folder, const QString& path) {
    return QDir(folder).relativeFilePath(path);
}

// Of what was made of a broken item the words for how, else how sound the file is.
QString soundnessOrMend(const SaveOutcome& outcome) {
    return outcome.mend ? describe(*outcome.mend) : soundnessWords(outcome.verdict, outcome.checked);
}

QString stateText(const SaveOutcome& outcome) {
    QStringList parts{soundnessOrMend(outcome)};
    if (outcome.verdict == Verdict::Complete && !outcome.exactLength) {
        parts << QObject::tr("length estimated");
    }
    if (outcome.pieces > 1 && !outcome.mend) {
        parts << QObject::tr("put together from %1 pieces", nullptr, pluralOf(outcome.pieces))
                     .arg(numberForPeople(outcome.pieces));
    }
    if (outcome.sectorsUnreadable != 0) {
        parts << QObject::tr("%1 sectors unreadable", nullptr, pluralOf(outcome.sectorsUnreadable))
                     .arg(numberForPeople(outcome.sectorsUnreadable));
    }
    return parts.join(QStringLiteral(", "));
}

// For people: where the file lies, each piece in the order of the file.
QString placesText(const ReportedItem& item) {
    std::vector<SectorRun> runs = item.outcome.runs;
    if (runs.size() < 2) {
        runs = {{item.firstSector, item.endSector}};
    }
    QStringList places;
    for (const SectorRun& run : runs) {
        places << QObject::tr("%1 to %2").arg(numberForPeople(run.first), numberForPeople(run.end));
    }
    return places.join(QStringLiteral(", "));
}

// For machines: "1200+64 2048+12", first sector and count of each piece.
QString runsText(const SaveOutcome& outcome) {
    QStringList runs;
    for (const SectorRun& run : outcome.runs) {
        runs << QStringLiteral("%1+%2").arg(run.first).arg(run.end - run.first);
    }
    return runs.join(u' ');
}

QString row(const QStringList& cells, const char* tag) {
    const QString name = QLatin1String(tag);
    QString text = QStringLiteral("<tr>");
    for (const QString& cell : cells) {
        text += QStringLiteral("<%1>%2</%1>").arg(name, cell);
    }
    return text + QStringLiteral("</tr>\n");
}

QString totals(const std::vector<ReportedItem>& items) {
    QMap<QString, SaveTally> types;
    for (const ReportedItem& item : items) {
        types[item.type].add(item.name, item.outcome);
    }
    QString text = QStringLiteral("<h2>%1</h2>\n<table>\n").arg(QObject::tr("Totals").toHtmlEscaped()) +
                   row({QObject::tr("Type"), QObject::tr("Saved"), QObject::tr("Size"),
                        QObject::tr("Complete"), QObject::tr("Ends where it says"), QObject::tr("Cut off"),
                        QObject::tr("Damaged"), QObject::tr("Length unknown"), QObject::tr("Duplicates"),
                        QObject::tr("Left out"), QObject::tr("Failed")},
                       "th");
    for (auto type = types.cbegin(); type != types.cend(); ++type) {
        const SaveTally& t = type.value();
        text +=
            row({type.key().toHtmlEscaped(), numberForPeople(t.saved), sizeForPeople(t.bytes),
                 numberForPeople(t.complete), numberForPeople(t.unchecked), numberForPeople(t.cutOff),
                 numberForPeople(t.damaged), numberForPeople(t.unknownLength), numberForPeople(t.duplicates),
                 numberForPeople(t.tooSmall + t.unsound + t.stillThere), numberForPeople(t.failed)},
                "td");
    }
    return text + QStringLiteral("</table>\n");
}

QString linkTo(const QString& folder, const QString& path, const QString& inner) {
    // The colon of a name must not read as a scheme.
    const QByteArray target = "./" + QUrl::toPercentEncoding(relativePath(folder, path), "/");
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(QString::fromLatin1(target), inner);
}

QString itemRow(const ReportedItem& item, const QString& folder, const ReportThumbnail& thumbnail) {
    const SaveOutcome& outcome = item.outcome;
    QString name = item.name.toHtmlEscaped();
    if (outcome.saved) {
        name = linkTo(folder, outcome.path, relativePath(folder, outcome.path).toHtmlEscaped());
    }
    QString picture;
    if (const QByteArray bytes = thumbnail && outcome.saved ? thumbnail(item) : QByteArray();
        !bytes.isEmpty()) {
        const char* const kind = bytes.startsWith("\x89PNG") ? "png" : "jpeg";
        picture = linkTo(folder, outcome.path,
                         QStringLiteral("<img alt=\"\" src=\"data:image/%1;base64,%2\">")
                             .arg(QLatin1String(kind), QString::fromLatin1(bytes.toBase64())));
    }
    static const char* const kClasses[] = {"unknown", "complete", "cut", "damaged"};
    const bool unchecked = outcome.verdict == Verdict::Complete && !outcome.checked;
    const QString soundness =
        outcome.saved
            ? QStringLiteral("<span class=\"%1\">%2</span>")
                  .arg(QLatin1String(unchecked ? "unchecked" : kClasses[static_cast<int>(outcome.verdict)]),
                       stateText(outcome).toHtmlEscaped())
            : QStringLiteral("<span class=\"failed\">%1</span>")
                  .arg((outcome.leftOut != LeftOut::No ? QObject::tr("left out: %1")
                                                       : QObject::tr("failed: %1"))
                           .arg(reasonText(outcome))
                           .toHtmlEscaped());
    QStringList cells{
        name,
        item.type.toHtmlEscaped(),
        outcome.saved ? sizeForPeople(outcome.bytes) : QString(),
        outcome.duplicate ? QObject::tr("same bytes as an earlier file; %1").toHtmlEscaped().arg(soundness)
                          : soundness,
        originalText(outcome.original).toHtmlEscaped(),
        dateText(outcome.taken),
        outcome.width != 0 ? QStringLiteral("%1 × %2").arg(outcome.width).arg(outcome.height) : QString(),
        placesText(item),
        QStringLiteral("<span class=\"sum\">%1</span>").arg(QString::fromLatin1(outcome.sha256.toHex()))};
    if (thumbnail) {
        cells.prepend(picture);
    }
    return row(cells, "td");
}

QString headText(const ReportHead& head) {
    const auto line = [](const QString& label, const QString& text) {
        return text.isEmpty() ? QString() : row({label.toHtmlEscaped(), text.toHtmlEscaped()}, "td");
    };
    const auto time = [](const QDateTime& t) {
        return t.isValid() ? t.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) : QString();
    };
    return QStringLiteral("<table>\n") + line(QObject::tr("Medium"), controlsSpeltOut(head.medium)) +
           line(QObject::tr("Sectors of 512 bytes"),
                head.sectors != 0 ? numberForPeople(head.sectors) : QString()) +
           line(QObject::tr("Searched for"), head.mode) + line(QObject::tr("Begun"), time(head.begun)) +
           line(QObject::tr("Ended"), time(head.ended)) + line(QObject::tr("Search"), head.searchEnd) +
           QStringLiteral("</table>\n");
}

QString quoted(const QString& text) {
    QString field = controlsSpeltOut(text);
    return u'"' + field.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

// Takes a text piece by piece: with its pictures, that of a large card does not belong in memory.
using Pieces = std::function<void(const QByteArray&)>;

void htmlTo(const Pieces& add, const ReportHead& head, const std::vector<ReportedItem>& items,
            const QString& folder, const ReportThumbnail& thumbnail) {
    QString text = QStringLiteral(
                       "<!DOCTYPE html>\n<html lang=\"%1\"><head><meta charset=\"utf-8\">"
                       "<meta name=\"viewport\" content=\"width=device-width\">"
                       "<title>%2</title><style>%3</style></head>\n<body>\n"
                       "<h1>%2</h1>\n")
                       .arg(localeOfTexts().bcp47Name(), QObject::tr("Recovery report").toHtmlEscaped(),
                            QLatin1String(kStyle));
    text += headText(head) + totals(items) +
            QStringLiteral("<h2>%1</h2>\n<table>\n").arg(QObject::tr("Files").toHtmlEscaped());
    QStringList columns{QObject::tr("File"),        QObject::tr("Type"),
                        QObject::tr("Size"),        QObject::tr("State"),
                        QObject::tr("On the card"), QObject::tr("Taken"),
                        QObject::tr("Pixels"),      QObject::tr("Found in sectors"),
                        QStringLiteral("SHA-256")};
    if (thumbnail) {
        columns.prepend(QString());
    }
    add((text + row(columns, "th")).toUtf8());
    for (const ReportedItem& item : items) {
        add(itemRow(item, folder, thumbnail).toUtf8());
    }
    add("</table>\n</body></html>\n");
}

void csvTo(const Pieces& add, const ReportHead& head, const std::vector<ReportedItem>& items,
           const QString& folder) {
    add("name,type,medium,first_sector,end_sector,bytes,sha256,soundness,exact_length,unreadable_sectors,"
        "taken,width,height,result,path_or_reason,content_checked,"
        "original_path,original_state,modified,pieces,runs,mended\r\n");
    for (const ReportedItem& item : items) {
        const SaveOutcome& o = item.outcome;
        const QStringList fields{
            quoted(item.name),
            quoted(item.type),
            quoted(head.medium),
            QString::number(item.firstSector),
            QString::number(item.endSector),
            QString::number(o.bytes),
            QString::fromLatin1(o.sha256.toHex()),
            soundnessText(o.verdict),
            o.exactLength ? QStringLiteral("yes") : QStringLiteral("no"),
            QString::number(o.sectorsUnreadable),
            dateText(o.taken),
            QString::number(o.width),
            QString::number(o.height),
            resultText(o),
            quoted(o.saved ? relativePath(folder, o.path) : reasonText(o)),
            o.checked ? QStringLiteral("yes") : QStringLiteral("no"),
            o.original ? quoted(originalPath(*o.original)) : QString(),
            o.original ? stateOf(*o.original) : QString(),
            o.original && o.original->modified ? dateText(*o.original->modified) : QString(),
            QString::number(o.pieces),
            runsText(o),
            o.mend ? markOf(o.mend->kind) : QString()};
        add(fields.join(u',').toUtf8() + "\r\n");
    }
}

const QString kPage = QStringLiteral(".html");
const QString kTable = QStringLiteral(".csv");

// Of both files, without the ending. Reports of a day are told apart by their time, not by a number.
QString reportName(const QString& folder, const ReportHead& head) {
    const QString name = QStringLiteral("Recovery report");
    const QDir there(folder);
    if (!head.ended.isValid() || !(there.exists(name + kPage) || there.exists(name + kTable))) {
        return name;
    }
    return name + head.ended.toString(QStringLiteral(" yyyy-MM-dd HH.mm.ss"));
}

}  // namespace

QString wordsForMode(int mode) {
    switch (mode) {
        case kVideoMode:
            return QObject::tr("videos");
        case kRawFileMode:
            return QObject::tr("files");
        default:
            return QObject::tr("photos");
    }
}

WrittenReport writeReport(const QString& folder, const ReportHead& head,
                          const std::vector<ReportedItem>& items, const ReportThumbnail& thumbnail) {
    WrittenReport written;
    const QString name = reportName(folder, head);
    const auto write = [&](const QString& ending, const std::function<void(const Pieces&)>& text) {
        WholeFile file(folder);
        text([&file](const QByteArray& piece) { file.write(piece); });
        const auto path = file.commit(name + ending);
        if (!path) {
            written.error = QObject::tr("The report cannot be written into %1: %2").arg(folder, file.error());
        }
        return path.value_or(QString());
    };
    written.html = write(kPage, [&](const Pieces& add) { htmlTo(add, head, items, folder, thumbnail); });
    written.csv = write(kTable, [&](const Pieces& add) { csvTo(add, head, items, folder); });
    return written;
}

}  // namespace vantor
