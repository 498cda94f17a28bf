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
    bool retryBad =
        false;  // sectors that were refused twice are asked for again by the later pass and saving
    QString catalogueFolder;
    QString saveFolder;  // empty: nothing is saved
    SavePolicy savePolicy;
    bool report = false;    // beside the saved files
    bool complete = false;  // broken movies, from their pieces
    bool repairMovies = false;
    QString reference;  // a whole movie of the same camera; empty: one of those found
    bool listJson = false;
    bool listMedia = false;  // nothing is searched
    bool listFiles = false;  // only what the medium's directories tell
    bool listTypes = false;  // only what can be searched for in this mode
    bool quiet = false;      // only what went wrong is said
    QString sessionFile;     // where the search is kept; empty: nowhere
    bool resume = false;     // goes on with the search of the session file, whose wishes count
    QString medium;          // empty only with `resume`: the one that was searched
    QString map;             // of an image; empty: the one beside it
    QString image;           // where the medium is copied to; empty: it is not
    bool scrape = false;     // the copy leaves nothing out
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
