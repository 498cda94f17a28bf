// The two files, and what may not be mistaken for them.
#include "media/CopyFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <algorithm>
#include <cerrno>

#include "media/CopyMapFile.h"
#include "media/PositionedRead.h"
#include "media/SectorReader.h"
#include "media/SystemWords.h"

namespace vantor {

namespace {

bool isZero(std::span<const std::uint8_t> bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t b) { return b == 0; });
}

bool writeAll(int fd, std::uint64_t offset, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t n = ::pwrite(fd, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n <= 0) {
            errno = n == 0 ? ENOSPC : errno;
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(n));
        offset += static_cast<std::uint64_t>(n);
    }
    return true;
}

}  // namespace

std::unique_ptr<CopyFile> CopyFile::open(const QString& imagePath, std::uint64_t sectors, QString* why) {
    const auto refuse = [&](const QString& words) {
        *why = words;
        return nullptr;
    };
    const QFileInfo info(imagePath);
    const QString name = info.fileName();
    std::unique_ptr<CopyFile> copy(new CopyFile);
    copy->m_imagePath = info.absoluteFilePath();
    const QString map = mapBeside(copy->m_imagePath);
    if (info.exists() && !info.isFile()) {
        return refuse(QObject::tr("“%1” is no file.").arg(name));
    }
    if (!info.exists() && !map.isEmpty()) {
        return refuse(QObject::tr("The map “%1” belongs to another copy. Please choose another name.")
                          .arg(QFileInfo(map).fileName()));
    }
    copy->m_found = CopyMap(sectors * kSectorBytes);
    copy->m_mapPath = map.isEmpty() ? newMapBeside(copy->m_imagePath) : map;
    if (!map.isEmpty()) {
        QString wrong;
        const auto found = loadCopyMap(map, &wrong);
        if (!found) {
            return refuse(wrong + u'.');
        }
        copy->m_found = found->ofWholeSectors();
        if (copy->m_found.bytes() != sectors * kSectorBytes) {
            return refuse(
                QObject::tr("“%1” is a copy of a medium of another size. Please choose another name.")
                    .arg(name));
        }
    }
    const int flags = O_RDWR | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | (map.isEmpty() ? O_CREAT : 0);
    copy->m_image = FileDescriptor(::open(QFile::encodeName(copy->m_imagePath).constData(), flags, 0666));
    struct stat image {};
    if (!copy->m_image || ::fstat(copy->m_image.get(), &image) != 0) {
        return refuse(QObject::tr("“%1” cannot be written: %2.").arg(name, systemWords(errno)));
    }
    if (::flock(copy->m_image.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return refuse(QObject::tr("“%1” is being written by another search.").arg(name));
    }
    // An empty one is what a program leaves that is killed before it has written the map.
    if (map.isEmpty() && image.st_size != 0) {
        return refuse(
            QObject::tr("“%1” is there already, and no map beside it says that it is a copy to go on "
                        "with. Please choose another name.")
                .arg(name));
    }
    copy->m_length = static_cast<std::uint64_t>(image.st_size);
    // No image without a map, from the first moment on.
    if (const auto failed = map.isEmpty() ? storeCopyMap(copy->m_mapPath, copy->m_found) : std::nullopt) {
        ::unlink(QFile::encodeName(copy->m_imagePath).constData());
        return refuse(*failed + u'.');
    }
    return copy;
}

std::int64_t CopyFile::readAt(std::uint64_t sector, std::span<std::uint8_t> into) const {
    const std::int64_t got = positionedRead(m_image.get(), sector * kSectorBytes, into);
    return got < static_cast<std::int64_t>(kSectorBytes) ? -1 : got / kSectorBytes * kSectorBytes;
}

bool CopyFile::writeAt(std::uint64_t sector, std::span<const std::uint8_t> bytes) {
    const std::uint64_t offset = sector * kSectorBytes;
    const std::uint64_t end = offset + bytes.size();
    const bool done = offset >= m_length && isZero(bytes)
                          ? ::ftruncate(m_image.get(), static_cast<off_t>(end)) == 0
                          : writeAll(m_image.get(), offset, bytes);
    m_length = done ? std::max(m_length, end) : m_length;
    return done;
}

std::optional<QString> CopyFile::keep(const CopyMap& map) const {
    if (::fdatasync(m_image.get()) != 0) {
        return QObject::tr("“%1” cannot be written: %2").arg(m_imagePath, systemWords(errno));
    }
    return storeCopyMap(m_mapPath, map);
}

}  // namespace vantor
