// From options to the wishes of a search, and back.
#include "cli/KeptSearch.h"

#include <QDir>
#include <QFileInfo>
#include <QObject>
#include <tuple>
#include <utility>

#include "cli/CliMedium.h"
#include "cli/CliSession.h"
#include "media/PathArgument.h"

namespace vantor {

namespace {

SearchWishes wishesOf(const CliOptions& options, const CliSession& session) {
    SearchWishes wishes;
    wishes.mode = options.mode;
    wishes.types = options.types.value_or(QStringList());
    wishes.thorough = options.thorough;
    wishes.entire = !options.range;
    if (options.range) {
        std::tie(wishes.start, wishes.end) = *options.range;
    }
    wishes.catalogueSum = session.catalogueSum();
    return wishes;
}

// An image as it is found from any folder; a device as the user named it.
QString nameToKeep(const QString& medium) {
    const QFileInfo file(medium);
    return withShownPaths(file.isFile() ? file.absoluteFilePath() : medium);
}

// Where the medium is looked for: an image that went away together with what was kept of its search lies
// beside that.
QString placeOf(const QString& medium, const QString& sessionFile) {
    const QString beside = QFileInfo(sessionFile).absoluteDir().filePath(QFileInfo(medium).fileName());
    const bool isAway = medium.contains(u'/') && !QFileInfo::exists(medium);
    return isAway && QFileInfo(beside).isFile() ? beside : medium;
}

}  // namespace

void takeWishes(const SearchRecord& kept, CliOptions& options) {
    const SearchWishes& wishes = kept.wishes;
    options.mode = static_cast<RecoveryMode>(wishes.mode);
    options.types = wishes.types.isEmpty() ? std::nullopt : std::optional(wishes.types);
    options.thorough = wishes.thorough;
    options.range = wishes.entire ? std::nullopt : std::optional(std::pair(wishes.start, wishes.end));
    if (options.medium.isEmpty()) {
        options.medium = placeOf(kept.medium, options.sessionFile);
    }
}

std::shared_ptr<SearchKeeper> keeperFor(const CliOptions& options, const CliSession& session,
                                        const CliMedium& medium, const std::optional<SearchRecord>& kept,
                                        QString* why) {
    if (options.sessionFile.isEmpty()) {
        return nullptr;
    }
    SearchRecord record = kept.value_or(SearchRecord());
    record.medium = nameToKeep(options.medium);
    const SearchWishes wishes = wishesOf(options, session);
    if (kept) {
        const auto reader = medium.open({});
        if (wishes != record.wishes) {
            *why = QObject::tr("The signature catalogues are not those that it was begun with.");
        } else if (!reader) {
            *why = QObject::tr("The medium %1 cannot be opened.").arg(options.medium);
        } else if (medium.sectors != record.sectors || !holdsSamples(*reader, record.samples)) {
            *why = QObject::tr("%1 is not the medium that was searched.").arg(options.medium);
        }
        if (!why->isEmpty()) {
            return nullptr;
        }
    }
    record.wishes = wishes;
    record.sectors = medium.sectors;
    return std::make_shared<SearchKeeper>(options.sessionFile, std::move(record));
}

}  // namespace vantor
