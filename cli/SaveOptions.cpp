// Their texts, and what they mean.
#include "cli/SaveOptions.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace vantor {

namespace {

QCommandLineOption option(const char* name, const char* text, const char* value = "") {
    return {QLatin1String(name), QLatin1String(text), QLatin1String(value)};
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

}  // namespace

SaveOptions::SaveOptions()
    : save(option("save",
                  "Save what is found as DIR/<type>/<name>, each file as long as its format says and the "
                  "same bytes once; nothing is overwritten.",
                  "DIR")),
      asPublished(option("as-published",
                         "Save the sectors of each found item as they are listed, no more and no fewer.")),
      report(option("report",
                    "Write \"Recovery report.html\" and \"Recovery report.csv\" beside the saved files.")),
      byDate(option("by-date",
                    "Save as DIR/<type>/<date>/<date and time> <name> where a file tells when it was "
                    "taken.")),
      minBytes(option("min-bytes", "Do not save files of fewer bytes.", "N")),
      minPixels(option("min-pixels", "Do not save pictures whose longer side has fewer pixels.", "N")),
      keepDuplicates(option("keep-duplicates", "Save the same bytes again when they are found again.")),
      skipUnsound(option("skip-unsound", "Do not save what is certainly no file of its type.")),
      complete(option(
          "complete",
          "Put MP4 and QuickTime movies together that lie in pieces, as \"... complete.MP4\", or as "
          "\"... put together.MP4\" where it could not be proved that all pieces are the right ones.")),
      repairMovies(
          option("repair-movies",
                 "Write a playable twin, \"... repaired.MP4\", of each MP4 or QuickTime movie whose "
                 "index was never written; a whole movie of the same camera has to be found as well.")),
      reference(option(
          "reference",
          "A whole movie of the camera, in place of those that are found (with --repair-movies).", "FILE")) {}

void SaveOptions::addTo(QCommandLineParser& parser) const {
    parser.addOptions({save, asPublished, report, byDate, minBytes, minPixels, keepDuplicates, skipUnsound,
                       complete, repairMovies, reference});
}

std::optional<QString> SaveOptions::read(const QCommandLineParser& parser, CliOptions& options) const {
    options.saveFolder = parser.value(save);
    if (parser.isSet(save) && options.saveFolder.isEmpty()) {
        return QStringLiteral("--save takes a folder.");
    }
    for (const auto* other : {&asPublished, &report, &byDate, &minBytes, &minPixels, &keepDuplicates,
                              &skipUnsound, &complete, &repairMovies}) {
        if (parser.isSet(*other) && !parser.isSet(save)) {
            return QStringLiteral("--%1 goes with --save.").arg(other->names().constFirst());
        }
    }
    if (parser.isSet(asPublished) &&
        (parser.isSet(byDate) || parser.isSet(minPixels) || parser.isSet(skipUnsound))) {
        return QStringLiteral(
            "--as-published looks into no file, so it knows neither dates nor pixels nor soundness.");
    }
    if (parser.isSet(reference) && !parser.isSet(repairMovies)) {
        return QStringLiteral("--reference goes with --repair-movies.");
    }
    const auto leastBytes = numberOf(parser, minBytes);
    const auto leastPixels = numberOf(parser, minPixels);
    if (!leastBytes || !leastPixels) {
        return QStringLiteral("--min-bytes and --min-pixels take a number.");
    }
    SavePolicy& policy = options.savePolicy;
    policy.asPublished = parser.isSet(asPublished);
    policy.byDate = parser.isSet(byDate);
    policy.skipDuplicates = !parser.isSet(keepDuplicates) && !policy.asPublished;
    policy.skipUnsound = parser.isSet(skipUnsound);
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
