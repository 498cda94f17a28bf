// What the command was asked to do.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "results/RecoveryMode.h"
#include "saving/SavePolicy.h"

namespace vantor {

struct CliOptions {
    RecoveryMode mode = kPhotoMode;
    std::optional<QStringList> types;                  // none: all
    std::optional<std::pair<QString, QString>> range;  // start and end sector as typed
    bool thorough = true;
    QString catalogueFolder;
    QString saveFolder;  // empty: nothing is saved
    SavePolicy savePolicy;
    bool report = false;    // beside the saved files
    bool complete = false;  // broken movies, from their pieces
    bool repairMovies = false;
    QString reference;  // a whole movie of the same camera; empty: one of those found
    bool listJson = false;
    bool listMedia = false;  // nothing is searched
    QString medium;
};

// The exit codes, which --help lists.
enum ExitCode : int {
    kExitCompleted = 0,
    kExitBadUsage = 2,
    kExitStopped = 3,
    kExitReadError = 4,
    kExitCannotOpen = 5,
    kExitDestinationTrouble = 6,
};

struct ParsedOptions {
    CliOptions options;
    std::optional<int> exitCode;  // set when the program is to end at once, after printing `message`
    QString message;
};

// Reads the arguments (without the program's name). Options and types are checked, the medium is not touched.
ParsedOptions parseOptions(const QStringList& arguments);

}  // namespace vantor
