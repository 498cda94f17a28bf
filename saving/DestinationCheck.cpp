// Compares what lies below a folder with what a medium is made of.
#include "saving/DestinationCheck.h"

#include <sys/stat.h>

#include <QFile>

#include "saving/FreeSpace.h"
#include "saving/StorageBelow.h"

namespace vantor {

bool destinationIsOnMedium(const QString& folder, const QString& mediumPath) {
    struct stat place {};
    if (::stat(QFile::encodeName(nearestFolder(folder)).constData(), &place) != 0) {
        return false;
    }
    return storageBelow(place.st_dev).sharesWith(storageOfMedium(mediumPath));
}

}  // namespace vantor
