// Counts in words.
#include "saving/SaveSummary.h"

#include <QFileInfo>
#include <QObject>
#include <QStringList>

#include "results/SizeForPeople.h"

namespace vantor {

namespace {

constexpr qsizetype kFailuresShown = 5;

// "Of these, 10 are complete, 2 are cut off."
QString soundnessLine(const SaveTally& tally) {
    return QObject::tr("Of these: %1.").arg(tally.bySoundness().join(QStringLiteral(", ")));
}

QStringList failureLines(const SaveTally& tally) {
    QStringList lines{QObject::tr("%1 could not be saved:").arg(countOfItems(tally.failed))};
    const qsizetype shown = std::min(kFailuresShown, tally.failures.size());
    for (const QString& failure : tally.failures.first(shown)) {
        lines << QStringLiteral("   ") + failure;
    }
    if (const std::uint64_t more = tally.failedBeside(shown); more > 0) {
        lines << QObject::tr("   and %1 more", nullptr, pluralOf(more)).arg(numberForPeople(more));
    }
    return lines;
}

}  // namespace

QString countOfItems(std::uint64_t count) {
    return count == 1 ? QObject::tr("1 item")
                      : QObject::tr("%1 items", nullptr, pluralOf(count)).arg(numberForPeople(count));
}

QString summaryHeadline(const SaveSummary& summary) {
    const SaveTally& tally = summary.tally;
    if (tally.saved == 0) {
        return tally.duplicates > 0 ? QObject::tr("Nothing new was saved.")
                                    : QObject::tr("Nothing was saved.");
    }
    return tally.saved == 1 ? QObject::tr("1 file was saved.")
                            : QObject::tr("%1 files were saved.", nullptr, pluralOf(tally.saved))
                                  .arg(numberForPeople(tally.saved));
}

QString summaryDetails(const SaveSummary& summary) {
    const SaveTally& tally = summary.tally;
    QStringList lines;
    if (tally.saved > 0) {
        lines << soundnessLine(tally) << QObject::tr("They are in %1.").arg(summary.destination);
    }
    if (tally.withUnreadableSectors > 0) {
        lines << QObject::tr("%1 could only be read in part; what could not be read is filled with zeros.")
                     .arg(countOfItems(tally.withUnreadableSectors));
    }
    const auto leftOut = [&lines](std::uint64_t count, const QString& why) {
        if (count > 0) {
            lines << QObject::tr("Left out: %1, %2.").arg(countOfItems(count), why);
        }
    };
    if (tally.duplicates > 0) {
        lines << QObject::tr("Not written again: %1, the same contents are saved already.")
                     .arg(countOfItems(tally.duplicates));
    }
    leftOut(tally.tooSmall, QObject::tr("smaller than you asked for"));
    leftOut(tally.unsound, QObject::tr("certainly no files of their type"));
    leftOut(tally.stillThere, QObject::tr("still there as files on the card"));
    leftOut(tally.parts, QObject::tr("parts of files that are saved whole"));
    if (tally.failed > 0) {
        lines << failureLines(tally);
    }
    if (summary.mediumGone) {
        lines << QObject::tr("The storage medium went away meanwhile. Put it back in and save again.");
    }
    if (summary.cancelled) {
        lines << QObject::tr("The rest was not saved because you cancelled.");
    }
    if (!summary.report.isEmpty()) {
        lines << QObject::tr("“%1” in the destination folder tells more of each file.")
                     .arg(QFileInfo(summary.report).fileName());
    } else if (!summary.reportError.isEmpty()) {
        lines << summary.reportError;
    }
    return lines.join(u'\n');
}

}  // namespace vantor
