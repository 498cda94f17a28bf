// The table of a card's files as JSON.
#include "cli/ListFiles.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QObject>
#include <QTimeZone>
#include <cstdio>

#include "cli/JsonLine.h"
#include "cli/Options.h"
#include "cli/Telling.h"
#include "decode/CardHelper.h"
#include "filesystem/CardCollector.h"

namespace vantor {

namespace {

QString wordFor(FileSystemKind kind) {
    switch (kind) {
        case FileSystemKind::Fat12:
            return QStringLiteral("FAT12");
        case FileSystemKind::Fat16:
            return QStringLiteral("FAT16");
        case FileSystemKind::Fat32:
            return QStringLiteral("FAT32");
        case FileSystemKind::Exfat:
            return QStringLiteral("exFAT");
        case FileSystemKind::Ntfs:
            return QStringLiteral("NTFS");
    }
    return {};
}

QString wordFor(FileState state) {
    switch (state) {
        case FileState::Live:
            return QStringLiteral("there");
        case FileState::Deleted:
            return QStringLiteral("deleted");
        case FileState::Lost:
            return QStringLiteral("lost");
    }
    return {};
}

QString wordFor(RunsKnownBy how) {
    switch (how) {
        case RunsKnownBy::Record:
            return QStringLiteral("record");
        case RunsKnownBy::Chain:
            return QStringLiteral("chain");
        case RunsKnownBy::Flag:
            return QStringLiteral("flag");
        case RunsKnownBy::Guess:
            return QStringLiteral("guess");
        case RunsKnownBy::StartOnly:
            return QStringLiteral("start only");
    }
    return {};
}

QJsonValue timeText(const std::optional<std::int64_t>& seconds) {
    return seconds ? QDateTime::fromSecsSinceEpoch(*seconds, Qt::UTC).toString(Qt::ISODate) : QJsonValue();
}

QJsonObject objectFor(const CardFileSystem& system) {
    return {{QStringLiteral("file_system"), wordFor(system.kind)},
            {QStringLiteral("current"), system.isCurrent},
            {QStringLiteral("first_sector"), static_cast<qint64>(system.firstSector)},
            {QStringLiteral("sectors"), static_cast<qint64>(system.sectors)},
            {QStringLiteral("first_cluster"), static_cast<qint64>(system.firstCluster)},
            {QStringLiteral("cluster_sectors"), static_cast<qint64>(system.clusterSectors)},
            {QStringLiteral("label"), system.label}};
}

QJsonObject objectFor(const CardFile& file) {
    QJsonArray runs;
    for (const SectorRun& run : file.runs) {
        runs.append(QJsonArray{static_cast<qint64>(run.first), static_cast<qint64>(run.end)});
    }
    return {{QStringLiteral("path"), file.folder.isEmpty() ? file.name : file.folder + u'/' + file.name},
            {QStringLiteral("state"), wordFor(file.state)},
            {QStringLiteral("whole_name"), file.nameIsWhole},
            {QStringLiteral("bytes"), static_cast<qint64>(file.bytes)},
            {QStringLiteral("valid_bytes"), static_cast<qint64>(file.validBytes)},
            {QStringLiteral("modified"), timeText(file.modified)},
            {QStringLiteral("created"), timeText(file.created)},
            {QStringLiteral("runs"), runs},
            {QStringLiteral("runs_known_by"), wordFor(file.runsKnownBy)},
            {QStringLiteral("beginning_in_use"), file.beginningIsInUse}};
}

}  // namespace

int listFiles(const CliMedium& medium, const StopRequest& stop) {
    const std::unique_ptr<SectorReader> reader = medium.open(QString());
    if (!reader) {
        complain(QObject::tr("The medium cannot be opened."));
        return kExitCannotOpen;
    }
    if (medium.sectors == 0) {
        return kExitReadError;  // which was told when it was looked for
    }
    CardCollector collector;
    bool allRead = true;
    for (std::uint64_t sector = 0; sector < medium.sectors && !stop(); ++sector) {
        if (reader->read()) {
            collector.look(sector, reader->current(), 1);
        } else if (reader->isGone()) {
            return kExitReadError;
        } else {
            allRead = false;
            reader->seek(sector + 1);
        }
    }
    CardHelperOptions options;
    options.stop = stop;
    const auto read = readCardInHelper(*reader, medium.sectors, collector.traces(), {}, std::move(options));
    if (!read && stop()) {
        return kExitStopped;
    }
    if (!read) {
        complain(QObject::tr("The medium's directories could not be read."));
        return kExitReadError;
    }
    const CardTable& table = *read;
    for (const CardFileSystem& system : table.fileSystems) {
        printJsonLine(objectFor(system));
    }
    for (const CardFile& file : table.files) {
        printJsonLine(objectFor(file));
    }
    return stop() ? kExitStopped : allRead ? kExitCompleted : kExitReadError;
}

}  // namespace vantor
