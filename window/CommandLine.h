// What the program was started with, beside the language it is to speak.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace vantor {

struct CommandLine {
    QStringList images;           // to be opened
    std::optional<int> exitCode;  // set where no window is wanted: 0 help or version, 2 bad usage
    QString message;              // to be printed then
};

// `arguments` without the program's name. What stands behind "--" is an image whatever it begins with.
CommandLine readCommandLine(const QStringList& arguments, const QString& version);

}  // namespace vantor
