#include "media/PlainFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QObject>
#include <cerrno>

namespace vantor {

bool openPlainFile(QFile& file, QString* why) {
    const auto refuse = [why](const QString& words) {
        if (why != nullptr) {
            *why = words;
        }
        return false;
    };
    const int descriptor =
        ::open(QFile::encodeName(file.fileName()).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return refuse(qt_error_string(errno));
    }
    struct stat facts {};
    if (::fstat(descriptor, &facts) != 0 || !S_ISREG(facts.st_mode)) {
        ::close(descriptor);
        return refuse(QObject::tr("it is no file"));
    }
    if (!file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
        ::close(descriptor);
        return refuse(file.errorString());
    }
    return true;
}

}  // namespace vantor
