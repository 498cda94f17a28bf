// Finding the program for a type and running it where it can do no harm.
#include "window/preview/DesktopThumbnailers.h"

#include <fcntl.h>
#include <linux/close_range.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>
#include <utility>

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
    close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_AS, kMemoryBytes);
    limit(RLIMIT_CPU, kProcessorSeconds);
    limit(RLIMIT_FSIZE, kWrittenBytes);
}

// Folders of programs and libraries that lie in /usr and have names beside it, or are still folders of their
// own.
QStringList systemFolders() {
    QStringList arguments{QStringLiteral("--ro-bind"), QStringLiteral("/usr"), QStringLiteral("/usr")};
    for (const char* name : {"/bin", "/sbin", "/lib", "/lib32", "/lib64", "/libx32"}) {
        const QFileInfo folder{QLatin1String(name)};
        if (folder.isSymLink()) {
            arguments << QStringLiteral("--symlink") << folder.symLinkTarget() << QLatin1String(name);
        } else if (folder.isDir()) {
            arguments << QStringLiteral("--ro-bind") << QLatin1String(name) << QLatin1String(name);
        }
    }
    return arguments;
}

// Namespaces of its own for everything, no environment, no capabilities; of the files only the system's
// programs and fonts, and it dies with us.
QStringList cage(const QString& bubblewrap) {
    QStringList arguments{bubblewrap};
    for (const char* argument : {"--unshare-all", "--unshare-user", "--disable-userns", "--die-with-parent",
                                 "--new-session", "--clearenv", "--cap-drop", "ALL"}) {
        arguments.append(QLatin1String(argument));
    }
    arguments += systemFolders();
    for (const char* fonts : {"/etc/fonts", "/var/cache/fontconfig"}) {
        arguments << QStringLiteral("--ro-bind-try") << QLatin1String(fonts) << QLatin1String(fonts);
    }
    for (const char* argument : {"--proc", "/proc", "--dev", "/dev", "--tmpfs", "/tmp", "--chdir", "/"}) {
        arguments.append(QLatin1String(argument));
    }
    return arguments;
}

// What a program leaves may be anything, a pipe or a link included.
QByteArray pictureLeftAt(const QString& path) {
    const int descriptor =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    QFile made;
    if (descriptor < 0 || !made.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        return {};
    }
    struct stat facts {};
    return fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode) ? made.read(kMostPictureBytes)
                                                                    : QByteArray();
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
    // Nothing of ours, in the cage's own process either.
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    process.setProcessEnvironment(environment);
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

QString DesktopThumbnailers::standardBubblewrap() {
    return QStandardPaths::findExecutable(QStringLiteral("bwrap"));
}

QStringList DesktopThumbnailers::standardFolders() {
    return QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("thumbnailers"),
                                     QStandardPaths::LocateDirectory);
}

DesktopThumbnailers::DesktopThumbnailers(const QStringList& folders, QString bubblewrap)
    : m_bubblewrap(std::move(bubblewrap)) {
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

bool DesktopThumbnailers::canShutIn() const {
    std::call_once(m_tried, [this] {
        m_canShutIn = !m_bubblewrap.isEmpty() &&
                      runToEnd(cage(m_bubblewrap) << QStringLiteral("true"), std::chrono::seconds{6});
    });
    return m_canShutIn;
}

bool DesktopThumbnailers::lacksCageFor(const QString& file) const {
    return !commandFor(file).isEmpty() && !canShutIn();
}

QByteArray DesktopThumbnailers::thumbnail(const QString& file, int side,
                                          std::chrono::milliseconds deadline) const {
    const QString command = commandFor(file);
    const QTemporaryDir folder;
    if (command.isEmpty() || !folder.isValid() || !canShutIn()) {
        return {};
    }
    // The one file, and the one folder to write to, under names of the cage's own.
    const QFileInfo input(file);
    const QString inside = QStringLiteral("/in/") + input.fileName();
    const QString outside = folder.filePath(QStringLiteral("thumbnail.png"));
    const QString output = QStringLiteral("/out/thumbnail.png");
    QStringList words = filledIn(command, inside, output, side);
    words.first() = QStandardPaths::findExecutable(words.constFirst());
    QStringList caged = cage(m_bubblewrap);
    caged << QStringLiteral("--ro-bind") << input.absoluteFilePath() << inside << QStringLiteral("--bind")
          << folder.path() << QStringLiteral("/out") << QStringLiteral("--");
    if (!runToEnd(caged + words, deadline)) {
        return {};
    }
    return pictureLeftAt(outside);
}

}  // namespace vantor
