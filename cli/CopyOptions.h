// The options about copies of media and their maps.
#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QString>
#include <optional>

#include "cli/Options.h"

namespace vantor {

struct CopyOptions {
    CopyOptions();

    void addTo(QCommandLineParser& parser) const;
    // Fills in what was given; a sentence when it makes no sense.
    std::optional<QString> read(const QCommandLineParser& parser, CliOptions& options) const;

    QCommandLineOption image, scrape, map;
};

}  // namespace vantor
