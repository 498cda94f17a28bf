// One rule for the build tree and for every prefix.
#include "catalogue/ResourcesFolder.h"

#include <QCoreApplication>
#include <QDir>

namespace vantor {

QString resourcesFolder() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/vantor-recovery"));
}

}  // namespace vantor
