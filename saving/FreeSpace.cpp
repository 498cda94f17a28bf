// Asks the file system that the folder lies on.
#include "saving/FreeSpace.h"

#include <sys/statvfs.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>

#include "results/SizeForPeople.h"

namespace vantor {

QString nearestFolder(const QString& folder) {
    QString existing = QDir(folder).absolutePath();
    while (!QFileInfo::exists(existing) && existing != u"/") {
        existing = QFileInfo(existing).path();
    }
    return existing;
}

std::optional<std::uint64_t> freeBytesAt(const QString& folder) {
    struct statvfs info {};
    if (::statvfs(QFile::encodeName(nearestFolder(folder)).constData(), &info) != 0 || info.f_blocks == 0) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(info.f_bavail) * info.f_frsize;
}

std::optional<QString> refuseForSpace(const QString& folder, std::uint64_t bytes) {
    const auto free = freeBytesAt(folder);
    if (!free || *free >= bytes) {
        return std::nullopt;
    }
    const auto text = [](std::uint64_t n) { return sizeForPeople(n); };
    return QObject::tr("There is not enough room in %1: %2 are needed, %3 are free")
        .arg(folder, text(bytes), text(*free));
}

}  // namespace vantor
