// Asks the file system that the folder lies on.
#include "saving/FreeSpace.h"

#include <linux/magic.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>

#include "results/SizeForPeople.h"

namespace vantor {

namespace {

// Lengths are kept in 32 bits there (Microsoft, "FAT: General Overview of On-Disk Format").
constexpr std::uint64_t kLongestOnFat = 0xFFFFFFFF;

}  // namespace

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

bool takesFileOf(const QString& folder, std::uint64_t bytes) {
    struct statfs info {};
    return bytes <= kLongestOnFat ||
           ::statfs(QFile::encodeName(nearestFolder(folder)).constData(), &info) != 0 ||
           info.f_type != MSDOS_SUPER_MAGIC;
}

std::optional<QString> refuseForSpace(const QString& folder, std::uint64_t bytes) {
    if (!takesFileOf(folder, bytes)) {
        return QObject::tr(
                   "%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed")
            .arg(folder, sizeForPeople(bytes));
    }
    const auto free = freeBytesAt(folder);
    if (!free || *free >= bytes) {
        return std::nullopt;
    }
    const auto text = [](std::uint64_t n) { return sizeForPeople(n); };
    return QObject::tr("There is not enough room in %1: %2 are needed, %3 are free")
        .arg(folder, text(bytes), text(*free));
}

}  // namespace vantor
