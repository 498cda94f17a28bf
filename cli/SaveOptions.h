// The options that say how found items are saved.
#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QString>
#include <optional>

#include "cli/Options.h"

namespace vantor {

struct SaveOptions {
    SaveOptions();

    void addTo(QCommandLineParser& parser) const;
    // Fills in what was given; a sentence when it makes no sense.
    std::optional<QString> read(const QCommandLineParser& parser, CliOptions& options) const;

    QCommandLineOption save, asPublished, report, names, folders, lostOnly, byDate, minBytes, minPixels,
        keepDuplicates, skipUnsound, parts, complete, repairMovies, reference;
};

}  // namespace vantor
