// The preview file's life: where it lies, how it is made, and how it goes.
#include "window/preview/PreviewFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "results/PreviewCopy.h"
#include "results/ResultRow.h"
#include "window/preview/FileManager.h"

namespace vantor {

namespace {

const QString kPreviewName = QStringLiteral("dprv");

bool isPreviewName(const QString& name) {
    const QString extension = pathExtension(name);
    return (extension.isEmpty() ? name : name.chopped(extension.size() + 1)) == kPreviewName;
}

void removeIfDeletable(const QString& path) {
    const FileManager& fileManager = FileManager::defaultManager();
    if (fileManager.isDeletableFileAtPath(path)) {
        fileManager.removeItemAtPath(path);
    }
}

}  // namespace

bool makePreviewFile(const PreviewFileRequest& request, const std::atomic<int>& stop_now) {
    std::unique_ptr<SectorReader> medium = request.openMedium ? request.openMedium() : nullptr;
    if (!medium) {
        return false;
    }
    removeIfDeletable(request.previousFile);
    QFile file(request.newFile);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Truncate)) {
        return true;
    }
    const auto write = [&](const std::uint8_t* sector) {
        return file.write(reinterpret_cast<const char*>(sector), kSectorBytes) == kSectorBytes;
    };
    const bool faithful = copyPreviewSectors(*medium, request.start, request.end, stop_now, write);
    file.close();
    if (request.behind && stop_now != 1) {
        request.behind(std::move(medium), faithful);
    }
    return true;
}

QString previewFilePath(const QString& folder, const QString& itemPath) {
    const QString extension = pathExtension(itemPath);
    return folder + u'/' + (extension.isEmpty() ? kPreviewName : kPreviewName + u'.' + extension);
}

QString previewFolder(const QString& resourcesFolder) {
    if (QFileInfo(resourcesFolder).isDir() && QFileInfo(resourcesFolder).isWritable()) {
        return resourcesFolder;
    }
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QString own = runtime + QStringLiteral("/vantor-recovery");
    if (runtime.isEmpty() || !QDir().mkpath(own)) {
        return resourcesFolder;
    }
    QFile::setPermissions(own, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return own;
}

void deletePreviewFiles(const QString& folder) {
    if (!QFileInfo(folder).isDir()) {
        return;
    }
    const QDir directory(folder);
    for (const QString& name : directory.entryList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (isPreviewName(name)) {
            removeIfDeletable(directory.filePath(name));
        }
    }
}

}  // namespace vantor
