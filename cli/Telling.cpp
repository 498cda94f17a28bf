// The list, the sum of what was saved, and why a search did not get to its end.
#include "cli/Telling.h"

#include <QDateTime>
#include <QDir>
#include <QMap>
#include <QObject>
#include <cstdio>

#include "catalogue/TextHelpers.h"
#include "cli/JsonLine.h"
#include "media/LabelText.h"
#include "media/OpenRefusal.h"
#include "media/PathArgument.h"
#include "results/SizeForPeople.h"
#include "results/ToldFiles.h"
#include "saving/CopyWords.h"

namespace vantor {

namespace {

// What the user has not asked for in words of his own; beside a list for machines it goes to the standard
// error.
void say(const CliOptions& options, const QString& line) {
    if (!options.quiet) {
        // A folder may be named to speak to the terminal.
        std::fprintf(options.listJson ? stderr : stdout, "%s\n", qPrintable(steeringSpeltOut(line)));
    }
}

// False when not all items could be read for their checksums.
bool printJson(const CliSession& session) {
    return session.forEachJsonLine(printJsonLine);
}

void printTable(const CliSession& session) {
    QMap<QString, std::uint64_t> perType;
    for (std::size_t i = 0; i < session.publishedCount(); ++i) {
        const PublishedItem item = session.published(i);
        ++perType[item.type];
        const QString sectors = QObject::tr("sectors %1 to %2")
                                    .arg(numberForPeople(item.firstSector), numberForPeople(item.endSector));
        std::printf("%s  %-20s  %s  %s\n", qPrintable(item.pass), qPrintable(item.name), qPrintable(sectors),
                    qPrintable(sizeForPeople(item.bytes())));
    }
    QStringList counts;
    for (auto type = perType.cbegin(); type != perType.cend(); ++type) {
        counts.append(QStringLiteral("%1 %2").arg(numberForPeople(type.value()), type.key()));
    }
    const QString found = numberForPeople(session.publishedCount());
    std::printf("%s\n",
                qPrintable(counts.isEmpty()
                               ? QObject::tr("%1 found").arg(found)
                               : QObject::tr("%1 found: %2").arg(found, counts.join(QStringLiteral(", ")))));
}

void tellSaving(const CliSession& session, const CliOptions& options) {
    const SaveTally& tally = session.saveTally();
    if (session.toldCount() != 0) {
        say(options, QObject::tr("%1 more files that only the card's directory tells of", nullptr,
                                 pluralOf(session.toldCount()))
                         .arg(numberForPeople(session.toldCount())));
    }
    if (session.toldBeyondRoom() != 0) {
        complain(wordsForBeyondRoom(session.toldBeyondRoom()));
    }
    for (const QString& line : tally.lines(QDir(options.saveFolder).absolutePath())) {
        say(options, withShownPaths(line));
    }
    if (tally.failed != 0) {
        complain(QObject::tr("%1 could not be saved:").arg(numberForPeople(tally.failed)));
        for (const QString& failure : tally.failures) {
            complain(QStringLiteral("  ") + failure);
        }
        if (tally.failedBeside(tally.failures.size()) != 0) {
            complain(QObject::tr("  and others"));
        }
    }
}

void tellMending(const CliSession& session, const CliOptions& options) {
    for (const QString& line : session.mendingLines()) {
        say(options, line);
    }
}

WrittenReport writeReportOf(const CliSession& session, const CliOptions& options, ReportHead head) {
    head.mode = wordsForMode(options.mode);
    head.ended = QDateTime::currentDateTime();
    head.searchEnd = searchEndHeadline(session.searchEnd());
    return writeReport(QDir(options.saveFolder).absolutePath(), head, session.reportedItems());
}

// False after saying why the report could not be written. What was saved is told last, when nothing can
// happen to it any more that the user would not see.
bool tellDestination(CliSession& session, const CliOptions& options, const ReportHead& head) {
    WrittenReport written;
    if (session.destinationKeepsAll() && options.report) {
        written = writeReportOf(session, options, head);
        if (!session.destinationKeepsAll()) {
            written = {};
        }
    }
    tellSaving(session, options);
    tellMending(session, options);
    if (!written.html.isEmpty() && written.error.isEmpty()) {
        say(options, QObject::tr("Report: %1").arg(withShownPaths(written.html)));
    }
    if (!written.error.isEmpty()) {
        complain(written.error);
    }
    return written.error.isEmpty();
}

int exitCodeOf(const CliSession& session) {
    if (session.saveTally().failed != 0 || session.mendingFailed()) {
        return kExitDestinationTrouble;
    }
    switch (session.lastOutcome()) {
        case PassOutcome::Completed:
            return session.leftUndone() ? kExitStopped : kExitCompleted;
        case PassOutcome::Stopped:
            return kExitStopped;
        case PassOutcome::OpenError:
            return kExitCannotOpen;
        case PassOutcome::ReadError:
        case PassOutcome::NotRun:
            break;
    }
    return kExitReadError;
}

// Why the search did not get to its end, and how to get there.
void tellEnd(const SearchEnd& end, const CliOptions& options, const CliMedium& medium) {
    if (end.isFlawless()) {
        return;
    }
    complain(searchEndHeadline(end));
    const QString why = medium.refusal ? wordsForRefusal(medium.refusal->get()) : QString();
    if (end.outcome == PassOutcome::OpenError && !why.isEmpty()) {
        complain(why);
    }
    if (end.canGoOn() && !options.sessionFile.isEmpty()) {
        complain(QObject::tr("To go on from there: --resume %1").arg(options.sessionFile));
    } else if (end.canGoOn()) {
        complain(QObject::tr("To go on from there: --range %1:%2").arg(end.goOnAt).arg(end.end));
    }
}

}  // namespace

void complain(const QString& text) {
    // A path may be named to speak to the terminal.
    QStringList lines = withShownPaths(Trim_Str(text)).split(u'\n');
    for (QString& line : lines) {
        line = steeringSpeltOut(line);
    }
    std::fprintf(stderr, "vantor-recovery-cli: %s\n", qPrintable(lines.join(u'\n')));
}

int tell(CliSession& session, const CliOptions& options, const CliMedium& medium, const ReportHead& head) {
    for (const QString& alert : session.alerts()) {
        complain(alert);
    }
    tellEnd(session.searchEnd(), options, medium);
    bool allRead = true;
    if (options.listJson) {
        allRead = printJson(session);
    } else if (!options.quiet) {
        printTable(session);
    }
    if (!options.saveFolder.isEmpty() && !tellDestination(session, options, head)) {
        return kExitDestinationTrouble;
    }
    // A list that a full disk cut short looks complete to a script.
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        complain(QObject::tr("What was found cannot be written to the standard output."));
        return kExitDestinationTrouble;
    }
    QStringList troubles;
    if (medium.image && medium.image->wasWrittenTo()) {
        troubles << wordsForWrittenTo();
    }
    if (session.cardIsUnread()) {
        troubles << unreadCardWords();
    }
    if (!allRead) {
        troubles << QObject::tr("Not all items could be read once more; those have no checksum.");
    }
    for (const QString& trouble : troubles) {
        complain(trouble);
    }
    const int code = exitCodeOf(session);
    return code == kExitCompleted && !troubles.isEmpty() ? kExitReadError : code;
}

bool tellCopy(const MediumCopy& copy, const CliOptions& options) {
    const CopyProgress progress = copy.progress();
    say(options, QObject::tr("Copy: %1").arg(copyEndWords(progress)));
    if (!progress.trouble.isEmpty()) {
        complain(progress.trouble);
    }
    return progress.trouble.isEmpty();
}

}  // namespace vantor
