// The command's options and its help text.
#include "cli/Options.h"

#include <QCommandLineParser>
#include <QObject>

#include "catalogue/ResourcesFolder.h"
#include "cli/CopyOptions.h"
#include "cli/SaveOptions.h"
#include "cli/Version.h"

namespace vantor {

namespace {

const QString kExitCodeHelp = QObject::tr(
    "\nExit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the "
    "medium cannot\n"
    "be opened, 6 something found could not be saved.\n"
    "Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.\n"
    "The medium is only ever read.\n");

ParsedOptions badUsage(const QString& why) {
    ParsedOptions parsed;
    parsed.exitCode = kExitBadUsage;
    parsed.message = why + QObject::tr("\nTry --help.");
    return parsed;
}

std::optional<RecoveryMode> modeOf(const QString& text) {
    if (text == u"photo") {
        return kPhotoMode;
    }
    if (text == u"video") {
        return kVideoMode;
    }
    if (text == u"rawfile") {
        return kRawFileMode;
    }
    return std::nullopt;
}

}  // namespace

ParsedOptions parseOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QObject::tr(
        "Finds photos, videos and other files on a storage medium by the bytes that begin them."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QObject::tr("Show this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QObject::tr("Show the version."));
    const QCommandLineOption mode(QStringLiteral("mode"),
                                  QObject::tr("What to look for: photo (default), video or rawfile."),
                                  QStringLiteral("MODE"), QStringLiteral("photo"));
    const QCommandLineOption types(
        QStringLiteral("types"),
        QObject::tr("Only these file types, comma-separated (video and rawfile modes): extensions, or "
                    "@photos, @office, @phone, @recorder, @everything."),
        QStringLiteral("EXT,..."));
    const QCommandLineOption range(QStringLiteral("range"),
                                   QObject::tr("Only the sectors from START up to, not including, END."),
                                   QStringLiteral("START:END"));
    const QCommandLineOption noThorough(QStringLiteral("no-thorough"),
                                        QObject::tr("Leave out the thorough pass of photo mode."));
    const QCommandLineOption retryBad(
        QStringLiteral("retry-bad"),
        QObject::tr("Ask the medium again for bad sectors in the thorough pass and for saving."));
    const QCommandLineOption sessionFile(
        QStringLiteral("session"),
        QObject::tr("Keep the search in FILE, so that --resume can go on with it."), QStringLiteral("FILE"));
    const QCommandLineOption resume(
        QStringLiteral("resume"), QObject::tr("Go on with the search kept in FILE; MEDIUM may be left out."),
        QStringLiteral("FILE"));
    const QCommandLineOption catalogue(QStringLiteral("catalogue"),
                                       QObject::tr("Folder of the six signature catalogues."),
                                       QStringLiteral("DIR"), resourcesFolder());
    const SaveOptions saving;
    const CopyOptions copying;
    const QCommandLineOption listJson(
        QStringLiteral("list-json"), QObject::tr("Print one JSON object a found item, and one for the end."));
    const QCommandLineOption listMedia(
        QStringLiteral("list-media"),
        QObject::tr("Print the storage media of this machine (with --list-json as "
                    "JSON) and search nothing."));
    const QCommandLineOption listFiles(
        QStringLiteral("list-files"),
        QObject::tr("Print what the medium's own directories tell of its files, those that "
                    "are there and those that were, as one JSON object each, and search nothing."));
    const QCommandLineOption listTypes(
        QStringLiteral("list-types"),
        QObject::tr("Print what --types can choose from in this mode, and search nothing."));
    const QCommandLineOption quiet({QStringLiteral("q"), QStringLiteral("quiet")},
                                   QObject::tr("Say nothing but what went wrong, and no progress."));
    // Taken out of the command line before: the help itself is in that language.
    const QCommandLineOption language(
        QStringLiteral("language"),
        QObject::tr(
            "Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop's; "
            "with --list-json it is English always."),
        QStringLiteral("CODE"));
    parser.addOptions({help, version, language, mode, types, range, noThorough, retryBad, sessionFile, resume,
                       catalogue, listJson, listMedia, listFiles, listTypes, quiet});
    saving.addTo(parser);
    copying.addTo(parser);
    parser.addPositionalArgument(
        QStringLiteral("MEDIUM"),
        QObject::tr("An image file, a device's identifier (sdb1) or its path (/dev/sdb1)."));

    if (!parser.parse(QStringList{QStringLiteral("vantor-recovery-cli")} + arguments)) {
        return badUsage(parser.errorText());
    }
    ParsedOptions parsed;
    if (parser.isSet(help)) {
        parsed.exitCode = kExitCompleted;
        parsed.message = parser.helpText() + kExitCodeHelp;
        return parsed;
    }
    if (parser.isSet(version)) {
        parsed.exitCode = kExitCompleted;
        parsed.message = QStringLiteral("vantor-recovery-cli " VANTOR_VERSION);
        return parsed;
    }
    const auto chosenMode = modeOf(parser.value(mode));
    if (!chosenMode) {
        return badUsage(QObject::tr("Unknown mode \"%1\".").arg(parser.value(mode)));
    }
    CliOptions& options = parsed.options;
    options.mode = *chosenMode;
    options.resume = parser.isSet(resume);
    if (options.resume && (parser.isSet(mode) || parser.isSet(types) || parser.isSet(range) ||
                           parser.isSet(noThorough) || parser.isSet(sessionFile))) {
        return badUsage(QObject::tr("What to search for stands in the file of --resume."));
    }
    options.sessionFile = parser.value(options.resume ? resume : sessionFile);
    if (options.sessionFile.isEmpty() && (options.resume || parser.isSet(sessionFile))) {
        return badUsage(QObject::tr("No file given to keep the search in."));
    }
    if (parser.isSet(types)) {
        if (options.mode == kPhotoMode) {
            return badUsage(
                QObject::tr("Photo mode searches for all its types; --types goes with video or rawfile."));
        }
        options.types = parser.value(types).split(u',', Qt::SkipEmptyParts);
    }
    if (parser.isSet(range)) {
        const QString text = parser.value(range);
        const qsizetype colon = text.indexOf(u':');
        if (colon < 0) {
            return badUsage(QObject::tr("--range takes START:END."));
        }
        options.range = {text.left(colon), text.mid(colon + 1)};
    }
    options.thorough = !parser.isSet(noThorough);
    options.retryBad = parser.isSet(retryBad);
    options.catalogueFolder = parser.value(catalogue);
    for (const auto& complaint : {saving.read(parser, options), copying.read(parser, options)}) {
        if (complaint) {
            return badUsage(*complaint);
        }
    }
    options.listJson = parser.isSet(listJson);
    options.listMedia = parser.isSet(listMedia);
    options.listFiles = parser.isSet(listFiles);
    options.listTypes = parser.isSet(listTypes);
    options.quiet = parser.isSet(quiet);
    const QStringList media = parser.positionalArguments();
    if (options.listTypes) {
        if (options.mode == kPhotoMode) {
            return badUsage(QObject::tr(
                "Photo mode searches for all its types; --list-types goes with video or rawfile."));
        }
        return media.isEmpty() ? parsed : badUsage(QObject::tr("--list-types takes no medium."));
    }
    if (options.listMedia) {
        return media.isEmpty() ? parsed : badUsage(QObject::tr("--list-media takes no medium."));
    }
    if (options.resume && media.isEmpty()) {
        return parsed;
    }
    if (media.size() != 1 || media.first().isEmpty()) {
        return badUsage(media.size() < 2 ? QObject::tr("No medium given.")
                                         : QObject::tr("More than one medium given."));
    }
    options.medium = media.first();
    return parsed;
}

}  // namespace vantor
