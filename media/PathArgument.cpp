// Descriptors stand for what has no name in text.
#include "media/PathArgument.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QHash>
#include <QList>
#include <algorithm>
#include <cerrno>
#include <utility>

namespace vantor {

namespace {

struct Known {
    QList<std::pair<QString, QString>> shown;  // by descriptor, and for people; the longest first
    QHash<QString, QByteArray> notMade;        // folders that are not there and have no name in text
};

Known& known() {
    static Known known;
    return known;
}

bool isText(const QByteArray& path) {
    return QFile::encodeName(QFile::decodeName(path)) == path;
}

QString byDescriptor(const QByteArray& path) {
    const int descriptor = ::open(path.constData(), O_PATH | O_CLOEXEC);
    if (descriptor < 0) {
        return {};
    }
    const QString name = QStringLiteral("/proc/self/fd/%1").arg(descriptor);
    auto& shown = known().shown;
    shown.append({name, QString::fromLocal8Bit(path.endsWith('/') ? path.chopped(1) : path)});
    std::stable_sort(shown.begin(), shown.end(),
                     [](const auto& a, const auto& b) { return a.first.size() > b.first.size(); });
    return name;
}

}  // namespace

// The longest part of the way that is there, with what is named behind it. Where the last name is text it is
// left outside: the parts of an image lie beside each other and are looked for by name.
QString pathFromBytes(const QByteArray& path) {
    if (isText(path)) {
        return QFile::decodeName(path);
    }
    qsizetype end = path.size();
    if (const qsizetype slash = path.lastIndexOf('/'); slash >= 0 && isText(path.mid(slash))) {
        end = slash + 1;
    }
    QString opened = byDescriptor(path.first(end));
    while (opened.isEmpty() && end > 0) {
        const qsizetype slash = path.lastIndexOf('/', end - 2);
        end = slash + 1;
        opened = byDescriptor(end == 0 ? QByteArray("./") : path.first(end));
    }
    const QByteArray rest = path.mid(end);
    const QString name = rest.isEmpty() ? opened : opened + u'/' + QFile::decodeName(rest);
    if (!isText(rest)) {
        known().notMade[name] = path;
    }
    return name;
}

QStringList argumentsFromBytes(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        const qsizetype value = argument.startsWith("--") ? argument.indexOf('=') + 1 : 0;
        arguments.append(QFile::decodeName(argument.first(value)) + pathFromBytes(argument.mid(value)));
    }
    return arguments;
}

bool makeFolder(QString& path) {
    const QByteArray bytes = known().notMade.value(path);
    if (bytes.isEmpty()) {
        return QDir().mkpath(path);
    }
    for (qsizetype end = 0; end >= 0;) {
        end = bytes.indexOf('/', end + 1);
        const QByteArray part = end < 0 ? bytes : bytes.first(end);
        if (::mkdir(part.constData(), 0777) != 0 && errno != EEXIST) {
            return false;
        }
    }
    const QString made = byDescriptor(bytes);
    path = made.isEmpty() ? path : made;
    return !made.isEmpty();
}

QString withShownPaths(QString text) {
    for (const auto& [path, shown] : known().shown) {
        text.replace(path, shown);
    }
    return text;
}

}  // namespace vantor
