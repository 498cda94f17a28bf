// Compares the whole disks behind a folder and a medium by their device numbers.
#include "saving/DestinationCheck.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <QFile>
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

}  // namespace vantor
