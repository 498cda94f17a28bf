// The command's run: checks first, then the search, then what there is to say about it.
#include "cli/Recovery.h"

#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QMap>
#include <csignal>
#include <cstdio>

#include "cli/CliSession.h"
#include "cli/ProgressLine.h"
#include "media/RawDevice.h"
#include "media/SizeText.h"
#include "results/DestinationCheck.h"
#include "wizard/TextHelpers.h"

namespace vantor {

namespace {

std::atomic<int>* g_stopNow = nullptr;

extern "C" void requestStop(int) {
    if (g_stopNow != nullptr) {
        *g_stopNow = 1;
    }
}

// Ctrl-C asks for a stop as the button does; a second one ends the program.
class StopOnInterrupt {
  public:
    explicit StopOnInterrupt(std::atomic<int>& stopNow) {
        static_assert(std::atomic<int>::is_always_lock_free, "written from a signal handler");
        g_stopNow = &stopNow;
        struct sigaction action {};
        action.sa_handler = requestStop;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        ::sigaction(SIGINT, &action, nullptr);
        ::sigaction(SIGTERM, &action, nullptr);
    }
    ~StopOnInterrupt() {
        std::signal(SIGINT, SIG_DFL);
        std::signal(SIGTERM, SIG_DFL);
        g_stopNow = nullptr;
    }
    StopOnInterrupt(const StopOnInterrupt&) = delete;
    StopOnInterrupt& operator=(const StopOnInterrupt&) = delete;
};

void complain(const QString& text) {
    std::fprintf(stderr, "vantor-recovery-cli: %s\n", qPrintable(Trim_Str(text)));
}

// A path, or the identifier of a device such as sdb1.
QString pathOfMedium(const QString& medium) {
    const QString node = QStringLiteral("/dev/") + medium;
    return !QFileInfo::exists(medium) && !medium.contains(u'/') && QFileInfo::exists(node) ? node : medium;
}

// The destination, made ready; false after saying why not.
bool prepareDestination(const CliOptions& options) {
    if (options.saveFolder.isEmpty()) {
        return true;
    }
    if (destinationIsOnMedium(options.saveFolder, options.medium)) {
        complain(QStringLiteral(
                     "%1 lies on the medium that is to be searched; saving there would overwrite what is "
                     "still to be found. Choose a folder on another disk.")
                     .arg(options.saveFolder));
        return false;
    }
    if (!QDir().mkpath(options.saveFolder) || !QFileInfo(options.saveFolder).isWritable()) {
        complain(QStringLiteral("The folder %1 cannot be written to.").arg(options.saveFolder));
        return false;
    }
    return true;
}

bool rangeRefused(const CliOptions& options, std::uint64_t mediumSectors) {
    if (!options.range) {
        return false;
    }
    const auto refusal =
        refuseRange(options.range->first, options.range->second, QString::number(mediumSectors));
    if (refusal) {
        complain(Trim_Str(refusal->message) +
                 (refusal->informative.isEmpty() ? QString() : QStringLiteral(" ") + refusal->informative));
    }
    return refusal.has_value();
}

bool typesRefused(CliSession& session, const CliOptions& options) {
    if (options.mode == kPhotoMode) {
        return false;
    }
    if (!options.types) {
        session.chooseAllTypes();
        return false;
    }
    const QStringList unknown = session.chooseTypes(*options.types);
    if (!unknown.isEmpty()) {
        complain(
            QStringLiteral("No such file type in this mode: %1").arg(unknown.join(QStringLiteral(", "))));
        return true;
    }
    if (!session.Check_For_One_Extension_Selection()) {
        complain(QStringLiteral("\nPlease select atleast one extension type."));
        return true;
    }
    return false;
}

void printJson(CliSession& session) {
    session.checksumRawItems();
    for (const QJsonObject& line : session.jsonLines()) {
        std::printf("%s\n", QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
    }
}

void printTable(const CliSession& session) {
    QMap<QString, int> perType;
    for (const PublishedItem& item : session.published()) {
        ++perType[item.type];
        std::printf("%s  %-20s  sectors %llu to %llu  %s\n", qPrintable(item.pass), qPrintable(item.name),
                    static_cast<unsigned long long>(item.firstSector),
                    static_cast<unsigned long long>(item.endSector),
                    qPrintable(getMPSize(QString::number(item.bytes)).simplified()));
    }
    QStringList counts;
    for (auto type = perType.cbegin(); type != perType.cend(); ++type) {
        counts.append(QStringLiteral("%1 %2").arg(type.value()).arg(type.key()));
    }
    std::printf("%zu found%s%s\n", session.published().size(), counts.isEmpty() ? "" : ": ",
                qPrintable(counts.join(QStringLiteral(", "))));
}

void tellSaving(const CliSession& session, const CliOptions& options) {
    const SaveTally& tally = session.saveTally();
    FILE* out = options.listJson ? stderr : stdout;
    std::fprintf(out, "%llu saved in %s\n", static_cast<unsigned long long>(tally.saved),
                 qPrintable(QDir(options.saveFolder).absolutePath()));
    if (tally.withUnreadableSectors != 0) {
        std::fprintf(out, "%llu of them have sectors that could not be read\n",
                     static_cast<unsigned long long>(tally.withUnreadableSectors));
    }
    if (tally.failed != 0) {
        complain(QStringLiteral("%1 could not be saved:").arg(tally.failed));
        for (const QString& failure : tally.failures) {
            complain(QStringLiteral("  ") + failure);
        }
        if (static_cast<std::uint64_t>(tally.failures.size()) < tally.failed) {
            complain(QStringLiteral("  and others"));
        }
    }
}

int exitCodeOf(const CliSession& session) {
    if (session.saveTally().failed != 0) {
        return kExitDestinationTrouble;
    }
    switch (session.lastOutcome()) {
        case PassOutcome::Completed:
            return kExitCompleted;
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

}  // namespace

int recover(const CliOptions& asked) {
    CliOptions options = asked;
    options.medium = pathOfMedium(asked.medium);
    QString whyNot;
    const auto facts = probeMedium(options.medium, &whyNot);
    const std::uint64_t sectors = facts ? facts->sectors : 0;
    if (!facts) {
        complain(QStringLiteral("%1: %2").arg(asked.medium, whyNot));
    } else if (rangeRefused(options, sectors)) {
        return kExitBadUsage;
    }
    if (!prepareDestination(options)) {
        return kExitDestinationTrouble;
    }

    CliSession session(options, sectors);
    session.setMediumOpener([path = options.medium](const QString&) { return openMedium(path); });
    session.loadCatalogues(options.catalogueFolder);
    if (typesRefused(session, options)) {
        return kExitBadUsage;
    }
    {
        const StopOnInterrupt interrupt(session.stop_now);
        std::optional<ProgressLine> line;
        if (::isatty(STDERR_FILENO) == 1) {
            line.emplace(session);
        }
        session.run();
    }
    for (const QString& alert : session.alerts()) {
        complain(alert);
    }
    if (options.listJson) {
        printJson(session);
    } else {
        printTable(session);
    }
    if (!options.saveFolder.isEmpty()) {
        tellSaving(session, options);
    }
    return exitCodeOf(session);
}

}  // namespace vantor
