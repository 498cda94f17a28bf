// Opened by name once; after that by name only where that leads to the same file.
#include "media/HeldImage.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <utility>

#include "media/ImageFile.h"

namespace vantor {

namespace {

// Not blocking: a pipe of that name would otherwise wait for a writer for ever.
FileDescriptor openToRead(const QByteArray& path) {
    return FileDescriptor(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
}

bool isSameFile(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

#ifdef Q_OS_MACOS
const timespec& lastWriting(const struct stat& info) {
    return info.st_mtimespec;
}
#else
const timespec& lastWriting(const struct stat& info) {
    return info.st_mtim;
}
#endif

bool isUnchanged(const HeldImage::Part& part) {
    struct stat now {};
    return ::fstat(part.descriptor.get(), &now) == 0 && lastWriting(now).tv_sec == part.written.tv_sec &&
           lastWriting(now).tv_nsec == part.written.tv_nsec &&
           static_cast<std::uint64_t>(now.st_size) == part.bytes;
}

bool isNamed(const HeldImage::Part& part) {
    struct stat held {
    }, named{};
    return ::fstat(part.descriptor.get(), &held) == 0 &&
           ::stat(QFile::encodeName(part.path).constData(), &named) == 0 && isSameFile(held, named);
}

// A copy of the descriptor would share its position.
FileDescriptor openApartFrom(const HeldImage::Part& part) {
    struct stat held {
    }, named{};
    FileDescriptor byName = openToRead(QFile::encodeName(part.path));
    if (byName && ::fstat(part.descriptor.get(), &held) == 0 && ::fstat(byName.get(), &named) == 0 &&
        isSameFile(held, named)) {
        return byName;
    }
    return openToRead("/dev/fd/" + QByteArray::number(part.descriptor.get()));
}

// Null with errno.
std::shared_ptr<const std::vector<HeldImage::Part>> openByName(const QStringList& names) {
    if (names.size() > ImageFile::kMostParts) {
        errno = EMFILE;
        return nullptr;
    }
    auto parts = std::make_shared<std::vector<HeldImage::Part>>();
    for (const QString& path : names) {
        struct stat info {};
        FileDescriptor descriptor = openToRead(QFile::encodeName(path));
        if (!descriptor || ::fstat(descriptor.get(), &info) != 0) {
            return nullptr;
        }
        if (!S_ISREG(info.st_mode)) {
            errno = EINVAL;
            return nullptr;
        }
        ::posix_fadvise(descriptor.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
        parts->push_back(
            {path, std::move(descriptor), static_cast<std::uint64_t>(info.st_size), lastWriting(info)});
    }
    return parts;
}

}  // namespace

HeldImage::Parts HeldImage::open(const QStringList& names) {
    const std::lock_guard lock(m_mutex);
    if (!m_parts) {
        m_parts = openByName(names);
    }
    return m_parts;
}

std::optional<std::vector<FileDescriptor>> HeldImage::openApart() const {
    const Parts held = parts();
    if (!held) {
        errno = ENOENT;
        return std::nullopt;
    }
    std::vector<FileDescriptor> opened;
    for (const Part& part : *held) {
        opened.push_back(openApartFrom(part));
        if (!opened.back()) {
            return std::nullopt;
        }
    }
    return opened;
}

HeldImage::Parts HeldImage::parts() const {
    const std::lock_guard lock(m_mutex);
    return m_parts;
}

bool HeldImage::wasWrittenTo() const {
    const Parts held = parts();
    return held && !std::all_of(held->begin(), held->end(), isUnchanged);
}

bool HeldImage::isAsNamed() const {
    const Parts held = parts();
    return !held || std::all_of(held->begin(), held->end(),
                                [](const Part& part) { return isNamed(part) && isUnchanged(part); });
}

}  // namespace vantor
