// The command's run: checks first, then the search, then what there is to say about it.
#include "cli/Recovery.h"

#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QObject>
#include <array>
#include <csignal>
#include <cstdio>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

#include "catalogue/CatalogueFile.h"
#include "catalogue/FileTypeList.h"
#include "catalogue/TextHelpers.h"
#include "cli/CliMedium.h"
#include "cli/CliSession.h"
#include "cli/KeptSearch.h"
#include "cli/ListFiles.h"
#include "cli/ListMedia.h"
#include "cli/ListTypes.h"
#include "cli/ProgressLine.h"
#include "cli/Telling.h"
#include "decode/ErasedCardCheck.h"
#include "media/PathArgument.h"
#include "media/PlatformMedia.h"
#include "saving/CopyPlace.h"
#include "saving/DestinationCheck.h"

namespace vantor {

namespace {

std::atomic<int>* g_stopNow = nullptr;
std::atomic<bool>* g_walkAway = nullptr;

extern "C" void requestStop(int) {
    *g_stopNow = 1;
    *g_walkAway = true;
}

// Ctrl-C, an end of the terminal or of the session.
constexpr std::array kStopRequests = {SIGINT, SIGTERM, SIGHUP};

// Each asks for a stop as the button does, and leaves a device alone that does not answer; a second one
// ends the program.
class StopOnInterrupt {
  public:
    StopOnInterrupt(std::atomic<int>& stopNow, std::atomic<bool>& walkAway) {
        static_assert(std::atomic<int>::is_always_lock_free, "written from a signal handler");
        g_stopNow = &stopNow;
        g_walkAway = &walkAway;
        struct sigaction action {};
        action.sa_handler = requestStop;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        for (const int request : kStopRequests) {
            ::sigaction(request, &action, nullptr);
        }
    }
    ~StopOnInterrupt() {
        for (const int request : kStopRequests) {
            std::signal(request, SIG_DFL);
        }
    }
    StopOnInterrupt(const StopOnInterrupt&) = delete;
    StopOnInterrupt& operator=(const StopOnInterrupt&) = delete;
};

// The search has a thread of its own: the request for the user's consent to read a device needs one, and the
// main thread's events.
void runBesideEvents(const std::function<void()>& work) {
    QEventLoop loop;
    std::thread worker([&] {
        work();
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    worker.join();
}

// The destination, made ready; false after saying why not.
bool prepareDestination(CliOptions& options, const QString& mediumPath) {
    if (options.saveFolder.isEmpty()) {
        return true;
    }
    if (destinationIsOnMedium(options.saveFolder, mediumPath)) {
        complain(
            QObject::tr("%1 lies on the medium that is to be searched; saving there would overwrite what is "
                        "still to be found. Choose a folder on another disk.")
                .arg(options.saveFolder));
        return false;
    }
    if (!makeFolder(options.saveFolder) || !QFileInfo(options.saveFolder).isWritable()) {
        complain(QObject::tr("The folder %1 cannot be written to.").arg(options.saveFolder));
        return false;
    }
    return true;
}

// The copy that was asked for, which will read the medium for all others; null after saying why not.
std::shared_ptr<MediumCopy> beginCopy(const CliOptions& options, const CliMedium& medium) {
    if (medium.sectors == 0) {
        complain(QObject::tr("%1 cannot be copied: its size is not known.").arg(options.medium));
        return nullptr;
    }
    if (const auto refusal = refuseCopyPlace(options.image, medium.path)) {
        complain(*refusal);
        return nullptr;
    }
    for (const QString& warning : warnOfCopyPlace(options.image, medium.sectors)) {
        complain(warning);
    }
    QString why;
    auto file = CopyFile::open(options.image, medium.sectors, &why);
    if (!file) {
        complain(why);
        return nullptr;
    }
    auto copy = MediumCopy::make(std::move(file), medium.openSource);
    if (options.scrape) {
        copy->scrapeAll();
    }
    const SectorRange range = rangeFromControls(controlsFor(options, medium.sectors));
    copy->copy(copyGoals({range.start, range.end}, medium.sectors));
    return copy;
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

// Searching without a catalogue would end well and find nothing. Readable ones that are empty are the
// engine's to judge.
bool cataloguesRefused(const CliOptions& options) {
    static const std::pair<const char*, const char*> kFiles[] = {
        {kPhotoCatalogue, kPhotoThoroughCatalogue},
        {kVideoCatalogue, kVideoThoroughCatalogue},
        {kRawFileCatalogue, kRawFileThoroughCatalogue}};
    const auto& [general, thorough] = kFiles[options.mode];
    const auto readable = [&options](const char* name) {
        return QFileInfo(options.catalogueFolder + QLatin1String(name)).isReadable();
    };
    if (readable(general) || readable(thorough)) {
        return false;
    }
    complain(QObject::tr("The folder %1 holds no signature catalogue that can be read.")
                 .arg(options.catalogueFolder));
    return true;
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
        complain(QObject::tr("No such file type in this mode: %1").arg(unknown.join(QStringLiteral(", "))));
        return true;
    }
    if (!session.Check_For_One_Extension_Selection()) {
        complain(noTypeChosenWords());
        return true;
    }
    return false;
}

// Looks at a medium before a search of all of it, and hands what came of opening it to whoever opens it next,
// so that nobody is asked for his consent twice.
MediumOpener openerAfterALook(const CliMedium& medium, const MediumOpener& open) {
    auto opened = std::make_shared<std::optional<std::unique_ptr<SectorReader>>>(open(QString()));
    SectorReader* reader = opened->value().get();
    if (reader && looksErased(*reader, medium.sectors)) {
        complain(erasedCardWords() + u' ' + QObject::tr("Searched all the same."));
    }
    if (reader && !reader->seek(0)) {
        opened->reset();
    }
    return [opened, open](const QString& path) {
        auto first = std::exchange(*opened, std::nullopt);
        return first ? std::move(*first) : open(path);
    };
}

// Says why no search can be kept in the file.
bool sessionFileRefused(const CliOptions& options, const QString& mediumPath) {
    const QString& path = options.sessionFile;
    const QFileInfo file(path);
    // Where a link leads to is written into.
    const QFileInfo folder(file.exists() ? QFileInfo(file.canonicalFilePath()).path() : file.absolutePath());
    QString why;
    if (destinationIsOnMedium(folder.filePath(), mediumPath)) {
        complain(QObject::tr("%1 lies on the medium that is to be searched.").arg(path));
    } else if (!folder.isDir() || !folder.isWritable()) {
        complain(QObject::tr("The folder %1 cannot be written to.").arg(folder.filePath()));
    } else if (!options.resume && (file.exists() || file.isSymLink()) && !readSearchRecord(path, &why)) {
        // Whatever else lies there stays, above all a medium's image.
        complain(QStringLiteral("%1: %2").arg(path, why));
    } else {
        return false;
    }
    return true;
}

}  // namespace

int recover(CliOptions options) {
    std::optional<SearchRecord> kept;
    QString why;
    if (options.resume) {
        kept = readSearchRecord(options.sessionFile, &why);
        if (!kept) {
            complain(QStringLiteral("%1: %2").arg(options.sessionFile, why));
            return kExitBadUsage;
        }
        takeWishes(*kept, options);
    }
    if (options.listTypes) {
        return cataloguesRefused(options) ? kExitBadUsage : listTypes(options);
    }
    const std::unique_ptr<MediaSource> source = makePlatformMediaSource();
    if (options.listMedia) {
        return listMedia(*source, options.listJson);
    }
    std::atomic<bool> walkAway{false};
    const StopRequest stop = [&walkAway] { return walkAway.load(); };
    const CliMedium medium = findMedium(
        options.medium, *source, [&walkAway] { return walkAway.load(); }, options.map);
    if (!medium.complaint.isEmpty()) {
        complain(medium.complaint);
    }
    if (options.listFiles) {
        std::atomic<int> stopNow{0};
        const StopOnInterrupt interrupt(stopNow, walkAway);
        int code = kExitCannotOpen;
        runBesideEvents([&] { code = listFiles(medium, [&stopNow] { return stopNow != 0; }); });
        return code;
    }
    if (medium.sectors != 0 && rangeRefused(options, medium.sectors)) {
        return kExitBadUsage;
    }
    ReportHead head;
    head.medium = withShownPaths(options.medium);
    head.sectors = medium.sectors;
    head.begun = QDateTime::currentDateTime();
    CliSession session(options, medium.sectors);
    session.setAskCard(!options.saveFolder.isEmpty());
    session.setStopRequest(stop);
    session.setLiesOnMedium([path = medium.path](const QString& destination) {
        return destinationIsOnMedium(destination, path);
    });
    session.setSpillFolder([path = medium.path] {
        const QString folder = QDir::tempPath();
        return destinationIsOnMedium(folder, path) ? QString() : folder;
    });
    session.loadCatalogues(options.catalogueFolder);
    if (cataloguesRefused(options) || typesRefused(session, options)) {
        return kExitBadUsage;
    }
    if (!prepareDestination(options, medium.path)) {
        return kExitDestinationTrouble;
    }
    session.setDestination(options.saveFolder);
    if (!options.reference.isEmpty()) {
        const QString refusal = refuseReference(options.reference);
        if (!refusal.isEmpty()) {
            complain(refusal);
            return kExitBadUsage;
        }
    }
    if (!options.sessionFile.isEmpty() && sessionFileRefused(options, medium.path)) {
        return kExitDestinationTrouble;
    }
    std::shared_ptr<MediumCopy> copy;
    if (!options.image.isEmpty() && !(copy = beginCopy(options, medium))) {
        return kExitDestinationTrouble;
    }
    const MediumOpener open =
        copy ? [copy, stop](const QString&) { return copy->openReader(stop); } : medium.open;
    // A copy knows what was refused, and may come back to it.
    const auto refused = copy || options.retryBad ? ScanSession::RefusedSectorsAre::AskedForAgain
                                                  : ScanSession::RefusedSectorsAre::KnownToAll;
    session.setMediumOpener(open, refused);
    std::shared_ptr<SearchKeeper> keeper;
    runBesideEvents([&] { keeper = keeperFor(options, session, medium, kept, &why); });
    if (!why.isEmpty()) {
        complain(QObject::tr("The search cannot go on. %1").arg(why));
        return kExitCannotOpen;
    }
    session.keepSearch(keeper);
    {
        const StopOnInterrupt interrupt(session.stop_now, walkAway);
        std::optional<ProgressLine> line;
        if (!options.quiet && ::isatty(STDERR_FILENO) == 1) {
            line.emplace(session, copy);
        }
        runBesideEvents([&] {
            // A copy is read in its own order, and who goes on has looked before.
            if (!options.range && medium.sectors != 0 && !copy && !kept) {
                session.setMediumOpener(
                    openerAfterALook(medium, options.retryBad ? open : session.knowingRefusals(open)),
                    refused);
            }
            session.run();
            if (options.complete || options.repairMovies) {
                session.mend();
            }
            session.checkContents();
        });
    }
    const bool isKept = !keeper || keeper->error().isEmpty();
    if (!isKept) {
        complain(
            QObject::tr("The search could not be kept in %1: %2").arg(options.sessionFile, keeper->error()));
    }
    const int code = tell(session, options, medium, head);
    const bool copied = !copy || tellCopy(*copy, options);
    return (isKept && copied) || code != kExitCompleted ? code : kExitDestinationTrouble;
}

}  // namespace vantor
