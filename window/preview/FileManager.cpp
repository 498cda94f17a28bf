// Removal of single files; a folder is never removed.
#include "window/preview/FileManager.h"

#include <QFile>
#include <QFileInfo>

namespace vantor {

const FileManager& FileManager::defaultManager() {
    static const FileManager shared{};
    return shared;
}

bool FileManager::isDeletableFileAtPath(const QString& path) const {
    const QFileInfo file(path);
    return (file.isFile() || file.isSymLink()) && QFileInfo(file.absolutePath()).isWritable();
}

bool FileManager::removeItemAtPath(const QString& path) const {
    return QFile::remove(path);
}

}  // namespace vantor
