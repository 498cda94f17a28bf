// The preview file's life: where it lies, how it is made, and how it goes.
#include "window/preview/PreviewFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

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

constexpr QFile::Permissions kForTheOwner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

// A folder of this user's that nobody else can look into.
bool isPrivate(const QString& folder) {
    struct stat facts {};
    return lstat(QFile::encodeName(folder).constData(), &facts) == 0 && S_ISDIR(facts.st_mode) &&
           facts.st_uid == geteuid() && (facts.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

}  // namespace

bool makePreviewFile(const PreviewFileRequest& request, const std::atomic<int>& stop_now) {
    std::unique_ptr<SectorReader> medium = request.openMedium ? request.openMedium() : nullptr;
    if (!medium) {
        return false;
    }
    removeIfDeletable(request.previousFile);
    // Somebody else's file or link of that name is not written into: what stood there goes, and the new file
    // is for its owner's eyes from the first moment.
    QFile::remove(request.newFile);
    QFile file(request.newFile);
    if (!file.open(QIODevice::ReadWrite | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner)) {
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
    const bool ofABuild = QFileInfo::exists(resourcesFolder + QStringLiteral("/../../CMakeCache.txt"));
    if (QFileInfo(resourcesFolder).isWritable() && (ofABuild || isPrivate(resourcesFolder))) {
        return resourcesFolder;
    }
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QString own = runtime + QStringLiteral("/vantor-recovery");
    if (runtime.isEmpty()) {
        return resourcesFolder;
    }
    QDir().mkdir(own, kForTheOwner);
    QFile::setPermissions(own, kForTheOwner);
    return isPrivate(own) ? own : resourcesFolder;
}

// The lock goes with the process, however that ends; the folder itself bears it, so that nothing is left.
PreviewFolderHold::PreviewFolderHold(const QString& folder)
    : m_folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (!m_folder) {
        return;
    }
    if (::flock(m_folder.get(), LOCK_EX | LOCK_NB) == 0) {
        deletePreviewFiles(folder);
    }
    ::flock(m_folder.get(), LOCK_SH | LOCK_NB);
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
