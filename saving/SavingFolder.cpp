// One part of the way after the other, each opened from the one before.
#include "saving/SavingFolder.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <QFile>
#include <QObject>
#include <QStringList>
#include <cerrno>
#include <utility>

#include "media/SystemWords.h"

namespace vantor {

namespace {

constexpr mode_t kFolderMode = 0777;  // less the user's mask

bool isLink(int folder, const QByteArray& name) {
    struct stat info {};
    return ::fstatat(folder, name.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(info.st_mode);
}

}  // namespace

SavingFolder::SavingFolder(FileDescriptor folder, QString path)
    : m_folder(std::make_shared<const FileDescriptor>(std::move(folder))), m_path(std::move(path)) {}

std::optional<SavingFolder> SavingFolder::open(const QString& path) {
    FileDescriptor folder(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder) {
        return std::nullopt;
    }
    return SavingFolder(std::move(folder), path);
}

std::optional<SavingFolder> SavingFolder::below(const QString& relative, QStringList* made) const {
    const auto home = device();
    QString way;
    SavingFolder at = *this;
    for (const QString& part : relative.split(u'/', Qt::SkipEmptyParts)) {
        const QByteArray name = QFile::encodeName(part);
        if (name == "." || name == "..") {
            errno = ELOOP;
            return std::nullopt;
        }
        way += way.isEmpty() ? part : u'/' + part;
        if (::mkdirat(at.descriptor(), name.constData(), kFolderMode) == 0) {
            if (made != nullptr) {
                made->append(way);
            }
        } else if (errno != EEXIST) {
            return std::nullopt;
        }
        FileDescriptor next(
            ::openat(at.descriptor(), name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!next) {
            if (errno == ENOTDIR && isLink(at.descriptor(), name)) {
                errno = ELOOP;
            }
            return std::nullopt;
        }
        at = SavingFolder(std::move(next), at.m_path + u'/' + part);
        if (at.device() != home) {
            errno = EXDEV;
            return std::nullopt;
        }
    }
    return at;
}

bool SavingFolder::removeIfEmpty(const QString& relative) const {
    const auto parent = below(relative.section(u'/', 0, -2));
    const QByteArray name = QFile::encodeName(relative.section(u'/', -1));
    return parent && ::unlinkat(parent->descriptor(), name.constData(), AT_REMOVEDIR) == 0;
}

std::optional<dev_t> SavingFolder::device() const {
    struct stat info {};
    if (::fstat(descriptor(), &info) != 0) {
        return std::nullopt;
    }
    return info.st_dev;
}

namespace {

// Others tell other times once a folder was forgotten and read again, as exFAT does, or tell none.
bool keepsTimesOfBirth(int folder) {
    struct statfs info {};
    return ::fstatfs(folder, &info) == 0 &&
           (info.f_type == EXT4_SUPER_MAGIC || info.f_type == BTRFS_SUPER_MAGIC ||
            info.f_type == XFS_SUPER_MAGIC || info.f_type == TMPFS_MAGIC);
}

}  // namespace

std::optional<std::int64_t> SavingFolder::birth() const {
    constexpr std::int64_t kNanoseconds = 1'000'000'000;
    struct statx info {};
    if (!keepsTimesOfBirth(descriptor()) ||
        ::statx(descriptor(), "", AT_EMPTY_PATH, STATX_BTIME, &info) != 0 ||
        (info.stx_mask & STATX_BTIME) == 0 || info.stx_btime.tv_sec >= INT64_MAX / kNanoseconds ||
        info.stx_btime.tv_sec <= INT64_MIN / kNanoseconds) {
        return std::nullopt;
    }
    return info.stx_btime.tv_sec * kNanoseconds + info.stx_btime.tv_nsec;
}

QString whyNoFolder(const QString& path, int error) {
    if (error == ENOTDIR) {
        return QObject::tr("%1 is not a folder.").arg(path);
    }
    if (error == ELOOP || error == EXDEV) {
        return QObject::tr("The folder %1 leads elsewhere").arg(path);
    }
    return QObject::tr("The folder %1 cannot be created: %2").arg(path, systemWords(error));
}

void SavingFolder::flush() const {
    ::fsync(descriptor());
}

}  // namespace vantor
