// Finding, reading and replacing maps.
#include "media/CopyMapFile.h"

#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QSaveFile>
#include <algorithm>

#include "media/CopyMapText.h"
#include "media/PlainFile.h"

namespace vantor {

namespace {

// A million runs take 30 MB.
constexpr qint64 kMostBytes = 64 * 1024 * 1024;
constexpr qint64 kClaimBytes = 32;

bool isMap(const QString& path) {
    QFile file(path);
    if (!openPlainFile(file)) {
        return false;
    }
    return !path.endsWith(QStringLiteral(".log")) ||
           claimsToBeCopyMap(file.read(std::min(file.size(), kClaimBytes)));
}

}  // namespace

QString mapBeside(const QString& imagePath) {
    const QFileInfo image(imagePath);
    const QString stem = image.path() + u'/' + image.completeBaseName();
    for (const char* const suffix : {".map", ".mapfile", ".log"}) {
        for (const QString& base : {imagePath, stem}) {
            const QString path = base + QLatin1String(suffix);
            if (QFileInfo(path) != image && isMap(path)) {
                return path;
            }
        }
    }
    return {};
}

QString newMapBeside(const QString& imagePath) {
    return imagePath + QStringLiteral(".map");
}

std::optional<CopyMap> loadCopyMap(const QString& path, QString* why) {
    const auto refuse = [&](const QString& words) {
        if (why != nullptr) {
            *why = QObject::tr("The map “%1” cannot be used: %2").arg(QFileInfo(path).fileName(), words);
        }
        return std::nullopt;
    };
    QFile file(path);
    QString wrong;
    if (!openPlainFile(file, &wrong)) {
        return refuse(
            QFileInfo(path).isSymLink() || QFileInfo::exists(path) ? wrong : QObject::tr("it is not there"));
    }
    if (file.size() > kMostBytes) {
        return refuse(QObject::tr("it is too large for a map"));
    }
    auto map = readCopyMap(file.read(file.size()), &wrong);
    return map ? map : refuse(wrong);
}

std::optional<QString> storeCopyMap(const QString& path, const CopyMap& map) {
    QSaveFile file(path);
    const QByteArray text = writeCopyMap(map);
    // A commit of this Qt does not ask whether the rest of the buffer found room.
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush() ||
        !file.commit()) {
        return QObject::tr("The map “%1” cannot be written: %2").arg(path, file.errorString());
    }
    return std::nullopt;
}

}  // namespace vantor
