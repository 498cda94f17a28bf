// The words of the system's errors.
#include "media/SystemWords.h"

#include <QObject>
#include <cerrno>
#include <cstring>

namespace vantor {

QString systemWords(int error) {
    switch (error) {
        case ENOSPC:
            return QObject::tr("The disk is full");
        case EDQUOT:
            return QObject::tr("Your share of the disk is used up");
        case EROFS:
            return QObject::tr("The disk can only be read");
        case EFBIG:
            return QObject::tr("The disk holds no file that is this long");
        case EIO:
            return QObject::tr("The disk reports an error");
        case EACCES:
        case EPERM:
            return QObject::tr("You do not have the right to do this");
        case ENAMETOOLONG:
            return QObject::tr("The name is too long");
        case ENOENT:
            return QObject::tr("There is nothing of this name");
        case ENODEV:
        case ENXIO:
            return QObject::tr("The device is not there");
        case ENOMEDIUM:
            return QObject::tr("There is no medium in the device");
        default:
            return QString::fromLocal8Bit(std::strerror(error));
    }
}

}  // namespace vantor
