// Asks the file system that the folder lies on.
#include "results/FreeSpace.h"

#include <sys/statvfs.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "results/SizeForPeople.h"

namespace vantor {

std::optional<std::uint64_t> freeBytesAt(const QString& folder) {
    QString existing = QDir(folder).absolutePath();
    struct statvfs info {};
    while (::statvfs(QFile::encodeName(existing).constData(), &info) != 0) {
        if (existing == u"/") {
            return std::nullopt;
        }
        existing = QFileInfo(existing).path();
    }
    if (info.f_blocks == 0) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(info.f_bavail) * info.f_frsize;
}

std::optional<QString> refuseForSpace(const QString& folder, std::uint64_t bytes) {
    const auto free = freeBytesAt(folder);
    if (!free || *free >= bytes) {
        return std::nullopt;
    }
    const auto text = [](std::uint64_t n) { return sizeForPeople(n, QLocale::c()); };
    return QStringLiteral("There is not enough room in %1: %2 are needed, %3 are free")
        .arg(folder, text(bytes), text(*free));
}

}  // namespace vantor
