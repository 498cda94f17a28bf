// Their texts, and what they mean.
#include "cli/SaveOptions.h"

#include <QObject>
#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <utility>

namespace vantor {

namespace {

QCommandLineOption option(const char* name, const char* text, const char* value = "") {
    return {QLatin1String(name), QObject::tr(text), QLatin1String(value)};
}

// 0 when the option is not given; nothing when its value is no number.
std::optional<quint64> numberOf(const QCommandLineParser& parser, const QCommandLineOption& option) {
    if (!parser.isSet(option)) {
        return 0;
    }
    bool ok = false;
    const quint64 number = parser.value(option).toULongLong(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

// The first of the choices when the option is not given; nothing for a word that is none of them.
template <typename Choice>
std::optional<Choice> choiceOf(const QCommandLineParser& parser, const QCommandLineOption& option,
                               std::initializer_list<std::pair<const char*, Choice>> choices) {
    if (!parser.isSet(option)) {
        return choices.begin()->second;
    }
    const QString word = parser.value(option);
    for (const auto& [name, choice] : choices) {
        if (word == QLatin1String(name)) {
            return choice;
        }
    }
    return std::nullopt;
}

}  // namespace

SaveOptions::SaveOptions()
    : save(option("save",
                  QT_TRANSLATE_NOOP(
                      "QObject",
                      "Save what is found as DIR/<type>/<name>, each file as long as its format says and the "
                      "same bytes once; nothing is overwritten."),
                  "DIR")),
      asPublished(option(
          "as-published",
          QT_TRANSLATE_NOOP(
              "QObject", "Save the sectors of each found item as they are listed, no more and no fewer."))),
      report(
          option("report",
                 QT_TRANSLATE_NOOP(
                     "QObject",
                     "Write \"Recovery report.html\" and \"Recovery report.csv\" beside the saved files."))),
      names(option(
          "names",
          QT_TRANSLATE_NOOP(
              "QObject",
              "original (default): save under the names that the card's directory still tells, where it "
              "does; found: under the listed names."),
          "WHICH")),
      folders(
          option("folders",
                 QT_TRANSLATE_NOOP(
                     "QObject",
                     "card (default): save in the folders that the card's directory still tells, and what "
                     "it does not tell in DIR/<type>; type: all in DIR/<type>; date: as "
                     "DIR/<type>/<date>/<date and time> <name> where a date is known."),
                 "WHICH")),
      lostOnly(option("lost-only",
                      QT_TRANSLATE_NOOP("QObject", "Do not save what the card still holds as a file."))),
      byDate(option("by-date", QT_TRANSLATE_NOOP("QObject", "The same as --folders date."))),
      minBytes(option("min-bytes", QT_TRANSLATE_NOOP("QObject", "Do not save files of fewer bytes."), "N")),
      minPixels(option(
          "min-pixels",
          QT_TRANSLATE_NOOP("QObject", "Do not save pictures whose longer side has fewer pixels."), "N")),
      keepDuplicates(
          option("keep-duplicates",
                 QT_TRANSLATE_NOOP("QObject", "Save the same bytes again when they are found again."))),
      skipUnsound(option("skip-unsound",
                         QT_TRANSLATE_NOOP("QObject", "Do not save what is certainly no file of its type."))),
      parts(option(
          "parts",
          QT_TRANSLATE_NOOP(
              "QObject",
              "Save parts of files too, such as a picture's preview or a member of an archive: what lies "
              "wholly inside a file that was proved complete, and is left out else."))),
      complete(option(
          "complete",
          QT_TRANSLATE_NOOP(
              "QObject",
              "Put MP4, QuickTime and AVI movies, JPEG or PNG pictures, ZIP archives and "
              "office documents together that lie in pieces, as \"... "
              "complete.MP4\", or as \"... put together.MP4\" where it could not be proved that all pieces "
              "are the right ones."))),
      repairMovies(option(
          "repair-movies",
          QT_TRANSLATE_NOOP(
              "QObject",
              "Write a playable twin, \"... repaired.MP4\", of each MP4, QuickTime or AVI movie whose "
              "index was never written; for MP4 and QuickTime a whole movie of the same camera has to be "
              "found as well."))),
      reference(
          option("reference",
                 QT_TRANSLATE_NOOP(
                     "QObject",
                     "A whole movie of the camera, in place of those that are found (with --repair-movies)."),
                 "FILE")) {}

void SaveOptions::addTo(QCommandLineParser& parser) const {
    parser.addOptions({save, asPublished, report, names, folders, lostOnly, byDate, minBytes, minPixels,
                       keepDuplicates, skipUnsound, parts, complete, repairMovies, reference});
}

std::optional<QString> SaveOptions::read(const QCommandLineParser& parser, CliOptions& options) const {
    options.saveFolder = parser.value(save);
    if (parser.isSet(save) && options.saveFolder.isEmpty()) {
        return QObject::tr("--save takes a folder.");
    }
    for (const auto* other : {&asPublished, &report, &names, &folders, &lostOnly, &byDate, &minBytes,
                              &minPixels, &keepDuplicates, &skipUnsound, &parts, &complete, &repairMovies}) {
        if (parser.isSet(*other) && !parser.isSet(save)) {
            return QObject::tr("--%1 goes with --save.").arg(other->names().constFirst());
        }
    }
    if (parser.isSet(asPublished) &&
        (parser.isSet(byDate) || parser.isSet(names) || parser.isSet(folders) || parser.isSet(minPixels) ||
         parser.isSet(skipUnsound) || parser.isSet(parts))) {
        return QObject::tr(
            "--as-published looks into no file, so it knows neither names nor dates nor pixels nor "
            "soundness.");
    }
    const auto nameChoice =
        choiceOf<SaveNames>(parser, names, {{"original", SaveNames::Original}, {"found", SaveNames::Found}});
    if (!nameChoice) {
        return QObject::tr("--names takes original or found.");
    }
    const auto folderChoice = choiceOf<SaveFolders>(
        parser, folders,
        {{"card", SaveFolders::Card}, {"type", SaveFolders::Type}, {"date", SaveFolders::Date}});
    if (!folderChoice) {
        return QObject::tr("--folders takes card, type or date.");
    }
    if (parser.isSet(byDate) && parser.isSet(folders) && *folderChoice != SaveFolders::Date) {
        return QObject::tr("--by-date is --folders date.");
    }
    if (parser.isSet(reference) && !parser.isSet(repairMovies)) {
        return QObject::tr("--reference goes with --repair-movies.");
    }
    const auto leastBytes = numberOf(parser, minBytes);
    const auto leastPixels = numberOf(parser, minPixels);
    if (!leastBytes || !leastPixels) {
        return QObject::tr("--min-bytes and --min-pixels take a number.");
    }
    SavePolicy& policy = options.savePolicy;
    policy.asPublished = parser.isSet(asPublished);
    policy.names = *nameChoice;
    policy.folders = parser.isSet(byDate) ? SaveFolders::Date : *folderChoice;
    policy.lostOnly = parser.isSet(lostOnly);
    policy.skipDuplicates = !parser.isSet(keepDuplicates) && !policy.asPublished;
    policy.skipUnsound = parser.isSet(skipUnsound);
    policy.parts = parser.isSet(parts);
    policy.minBytes = *leastBytes;
    constexpr quint64 kMostPixels = std::numeric_limits<std::uint32_t>::max();
    policy.minPixels = static_cast<std::uint32_t>(std::min(*leastPixels, kMostPixels));
    options.report = parser.isSet(report);
    options.complete = parser.isSet(complete);
    options.repairMovies = parser.isSet(repairMovies);
    options.reference = parser.value(reference);
    policy.checksums = options.report;
    return std::nullopt;
}

}  // namespace vantor
