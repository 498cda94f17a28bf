// An option is not taken for an image's name.
#include "window/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QObject>

namespace vantor {

namespace {

constexpr int kBadUsage = 2;
const QString kProgram = QStringLiteral("vantor-recovery");

}  // namespace

CommandLine readCommandLine(const QStringList& arguments, const QString& version) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QObject::tr(
        "Finds photos, videos and other files on a storage medium by the bytes that begin them."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QObject::tr("Show this help."));
    const QCommandLineOption showVersion({QStringLiteral("v"), QStringLiteral("version")},
                                         QObject::tr("Show the version."));
    parser.addOptions({help, showVersion});
    parser.addPositionalArgument(QStringLiteral("IMAGE"),
                                 QCoreApplication::translate("MediaScreen", "Open an image file of a medium"),
                                 QStringLiteral("[--language CODE] [IMAGE...]"));
    CommandLine line;
    if (!parser.parse(QStringList{kProgram} + arguments)) {
        line.exitCode = kBadUsage;
        line.message = parser.errorText() + QObject::tr("\nTry --help.");
    } else if (parser.isSet(help)) {
        line.exitCode = 0;
        line.message = parser.helpText();
    } else if (parser.isSet(showVersion)) {
        line.exitCode = 0;
        line.message = kProgram + u' ' + version;
    } else {
        line.images = parser.positionalArguments();
    }
    return line;
}

}  // namespace vantor
