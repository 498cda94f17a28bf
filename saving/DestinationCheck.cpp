// Compares the whole disks behind a folder and a medium by their device numbers, and tries the folder.
#include "saving/DestinationCheck.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <optional>

#include "saving/FreeSpace.h"
#include "saving/WholeDisks.h"

namespace vantor {

namespace {

// The block device behind a place's file system. Some file systems report a number of no device; then the
// table of mounts names the source.
dev_t deviceUnder(const struct stat& info) {
    if (major(info.st_dev) != 0) {
        return info.st_dev;
    }
    const QString number = QStringLiteral("%1:%2").arg(major(info.st_dev)).arg(minor(info.st_dev));
    QFile mounts(QStringLiteral("/proc/self/mountinfo"));
    if (!mounts.open(QIODevice::ReadOnly)) {
        return info.st_dev;
    }
    const QStringList lines = QString::fromLocal8Bit(mounts.readAll()).split(u'\n');
    for (const QString& line : lines) {
        const QStringList fields = line.split(u' ');
        const qsizetype dash = fields.indexOf(QStringLiteral("-"));
        if (fields.size() < 3 || fields.at(2) != number || dash < 0 || dash + 2 >= fields.size()) {
            continue;
        }
        struct stat source {};
        if (::stat(fields.at(dash + 2).toLocal8Bit().constData(), &source) == 0 && S_ISBLK(source.st_mode)) {
            return source.st_rdev;
        }
    }
    return info.st_dev;
}

std::optional<struct stat> statOf(const QString& path) {
    struct stat info {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0) {
        return std::nullopt;
    }
    return info;
}

}  // namespace

bool destinationIsOnMedium(const QString& folder, const QString& mediumPath) {
    const auto medium = statOf(mediumPath);
    if (!medium || !S_ISBLK(medium->st_mode)) {
        return false;
    }
    const auto place = statOf(nearestFolder(folder));
    if (!place) {
        return false;
    }
    const dev_t under = deviceUnder(*place);
    if (under == medium->st_rdev) {
        return true;
    }
    return wholeDisksOf(medium->st_rdev).intersects(wholeDisksOf(under));
}

std::optional<QString> refuseDestination(const QString& folder) {
    const QFileInfo info(folder);
    if (!info.exists()) {
        return QStringLiteral("The folder %1 is not there.").arg(folder);
    }
    if (!info.isDir()) {
        return QStringLiteral("%1 is not a folder.").arg(folder);
    }
    // Rights say little of a disk that is read-only or full.
    QTemporaryFile trial(folder + QStringLiteral("/.vantor-XXXXXX"));
    if (!trial.open() || trial.write("x", 1) != 1 || !trial.flush()) {
        return QStringLiteral("Nothing can be written into the folder %1: %2.")
            .arg(folder, trial.errorString());
    }
    return std::nullopt;
}

std::optional<std::uint64_t> fileSystemOf(const QString& folder) {
    const auto info = statOf(folder);
    return info ? std::optional<std::uint64_t>(info->st_dev) : std::nullopt;
}

}  // namespace vantor
