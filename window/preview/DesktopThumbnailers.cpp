// Finding the program for a type and running it where it can do no harm.
#include "window/preview/DesktopThumbnailers.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

namespace vantor {

namespace {

constexpr rlim_t kMemoryBytes = rlim_t{2} << 30;
constexpr rlim_t kProcessorSeconds = 10;
constexpr rlim_t kWrittenBytes = rlim_t{64} << 20;
constexpr qint64 kMostPictureBytes = qint64{16} << 20;

void limit(__rlimit_resource resource, rlim_t most) {
    const rlimit both{most, most};
    setrlimit(resource, &both);
}

// Runs between fork and exec: system calls only.
void shutIn() {
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_AS, kMemoryBytes);
    limit(RLIMIT_CPU, kProcessorSeconds);
    limit(RLIMIT_FSIZE, kWrittenBytes);
}

// No network, nothing to write to but the picture's folder, and it dies with us.
QStringList sandboxed(const QStringList& command, const QString& outputFolder) {
    static const QString bwrap = QStandardPaths::findExecutable(QStringLiteral("bwrap"));
    if (bwrap.isEmpty()) {
        return command;
    }
    QStringList wrapped{bwrap};
    for (const char* argument : {"--ro-bind", "/", "/", "--dev", "/dev", "--proc", "/proc", "--unshare-all",
                                 "--die-with-parent", "--new-session"}) {
        wrapped.append(QLatin1String(argument));
    }
    wrapped << QStringLiteral("--bind") << outputFolder << outputFolder << QStringLiteral("--setenv")
            << QStringLiteral("TMPDIR") << outputFolder;
    return wrapped + command;
}

QStringList filledIn(const QString& command, const QString& file, const QString& output, int side) {
    QStringList arguments = QProcess::splitCommand(command);
    for (QString& argument : arguments) {
        QString filled;
        for (qsizetype i = 0; i < argument.size(); ++i) {
            if (argument[i] != u'%' || i + 1 == argument.size()) {
                filled += argument[i];
                continue;
            }
            switch (argument[++i].unicode()) {
                case u'i':
                    filled += file;
                    break;
                case u'u':
                    filled += QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
                    break;
                case u'o':
                    filled += output;
                    break;
                case u's':
                    filled += QString::number(side);
                    break;
                default:
                    filled += argument[i];
            }
        }
        argument = filled;
    }
    return arguments;
}

bool runToEnd(const QStringList& command, std::chrono::milliseconds deadline) {
    QProcess process;
    process.setProgram(command.constFirst());
    process.setArguments(command.sliced(1));
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setChildProcessModifier(shutIn);
    process.start();
    if (!process.waitForStarted()) {
        return false;
    }
    const auto group = static_cast<pid_t>(process.processId());
    const bool ended = process.waitForFinished(static_cast<int>(deadline.count()));
    // Whatever it started ends with it.
    kill(-group, SIGKILL);
    process.waitForFinished();
    return ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

}  // namespace

QStringList DesktopThumbnailers::standardFolders() {
    return QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("thumbnailers"),
                                     QStandardPaths::LocateDirectory);
}

DesktopThumbnailers::DesktopThumbnailers(const QStringList& folders) {
    for (const QString& folder : folders) {
        for (const QString& name : QDir(folder).entryList({QStringLiteral("*.thumbnailer")}, QDir::Files)) {
            readEntry(folder + u'/' + name);
        }
    }
}

void DesktopThumbnailers::readEntry(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    QHash<QString, QString> values;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (equals > 0 && !line.startsWith(u'#')) {
            values.insert(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
        }
    }
    const QString command = values.value(QStringLiteral("Exec"));
    const QString tried = values.value(QStringLiteral("TryExec"), QProcess::splitCommand(command).value(0));
    if (QStandardPaths::findExecutable(tried).isEmpty()) {
        return;
    }
    for (const QString& mime : values.value(QStringLiteral("MimeType")).split(u';', Qt::SkipEmptyParts)) {
        if (!m_commands.contains(mime)) {
            m_commands.insert(mime, command);
        }
    }
}

QString DesktopThumbnailers::commandFor(const QString& file) const {
    static const QMimeDatabase database;
    const QMimeType mime = database.mimeTypeForFile(file, QMimeDatabase::MatchExtension);
    // Our own helpers have judged these.
    if (mime.name().startsWith(QLatin1String("image/")) || mime.name().startsWith(QLatin1String("video/"))) {
        return {};
    }
    for (const QString& name : QStringList{mime.name()} + mime.aliases()) {
        if (knows(name)) {
            return m_commands.value(name);
        }
    }
    return {};
}

QByteArray DesktopThumbnailers::thumbnail(const QString& file, int side,
                                          std::chrono::milliseconds deadline) const {
    const QString command = commandFor(file);
    const QTemporaryDir folder;
    if (command.isEmpty() || !folder.isValid()) {
        return {};
    }
    const QString input = QFileInfo(file).absoluteFilePath();
    const QString output = folder.filePath(QStringLiteral("thumbnail.png"));
    if (!runToEnd(sandboxed(filledIn(command, input, output, side), folder.path()), deadline)) {
        return {};
    }
    QFile made(output);
    // What it left may be anything, a pipe included.
    if (!QFileInfo(output).isFile() || QFileInfo(output).isSymLink() || !made.open(QIODevice::ReadOnly)) {
        return {};
    }
    return made.read(kMostPictureBytes);
}

}  // namespace vantor
