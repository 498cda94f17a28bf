// Compares what lies below a folder with what a medium is made of, and tries the folder.
#include "saving/DestinationCheck.h"

#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <QObject>

#include "saving/FreeSpace.h"
#include "saving/StorageBelow.h"
#include "saving/WholeFile.h"

namespace vantor {

bool destinationIsOnMedium(const QString& folder, const QString& mediumPath) {
    struct stat place {};
    if (::stat(QFile::encodeName(nearestFolder(folder)).constData(), &place) != 0) {
        return false;
    }
    return storageBelow(place.st_dev).sharesWith(storageOfMedium(mediumPath));
}

std::optional<QString> refuseDestination(const QString& folder) {
    const QFileInfo info(folder);
    if (!info.exists()) {
        return QObject::tr("The folder %1 is not there.").arg(folder);
    }
    if (!info.isDir()) {
        return QObject::tr("%1 is not a folder.").arg(folder);
    }
    // Rights say little of a disk that is read-only or full.
    WholeFile trial(folder);
    if (!trial.write("x")) {
        return QObject::tr("Nothing can be written into the folder %1: %2.").arg(folder, trial.error());
    }
    return std::nullopt;
}

std::optional<std::uint64_t> fileSystemOf(const QString& folder) {
    struct stat place {};
    if (::stat(QFile::encodeName(folder).constData(), &place) != 0) {
        return std::nullopt;
    }
    return place.st_dev;
}

}  // namespace vantor
