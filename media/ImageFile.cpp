// Reading an image file, whole or in parts.
#include "media/ImageFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>

#include "media/PositionedRead.h"
#include "media/SectorReader.h"

namespace vantor {

std::optional<std::vector<FileDescriptor>> openParts(const QStringList& parts) {
    if (parts.size() > ImageFile::kMostParts) {
        errno = EMFILE;
        return std::nullopt;
    }
    std::vector<FileDescriptor> opened;
    for (const QString& path : parts) {
        // Not blocking: a pipe of that name would otherwise wait for a writer for ever.
        FileDescriptor descriptor(
            ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
        struct stat info {};
        if (!descriptor || ::fstat(descriptor.get(), &info) != 0) {
            return std::nullopt;
        }
        if (!S_ISREG(info.st_mode)) {
            errno = EINVAL;
            return std::nullopt;
        }
        ::posix_fadvise(descriptor.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
        opened.push_back(std::move(descriptor));
    }
    return opened;
}

std::unique_ptr<ImageFile> ImageFile::open(const QStringList& parts) {
    auto opened = openParts(parts);
    if (!opened) {
        return nullptr;
    }
    std::unique_ptr<ImageFile> image(new ImageFile);
    std::uint64_t at = 0;
    for (FileDescriptor& descriptor : *opened) {
        struct stat info {};
        if (::fstat(descriptor.get(), &info) != 0) {
            return nullptr;
        }
        const auto bytes = static_cast<std::uint64_t>(info.st_size);
        image->m_parts.push_back({std::move(descriptor), at, at + bytes});
        at += bytes;
    }
    return image;
}

std::uint64_t ImageFile::sectors() const {
    return m_parts.empty() ? 0 : m_parts.back().end / kSectorBytes;
}

std::int64_t ImageFile::readAt(std::uint64_t sector, std::span<std::uint8_t> into) {
    if (sector >= sectors()) {
        return -1;
    }
    const std::uint64_t rest = sectors() - sector;
    const std::size_t wanted = rest < into.size() / kSectorBytes ? rest * kSectorBytes : into.size();
    const std::uint64_t begin = sector * kSectorBytes;
    std::size_t done = 0;
    auto part = std::upper_bound(m_parts.begin(), m_parts.end(), begin,
                                 [](std::uint64_t byte, const Part& p) { return byte < p.end; });
    while (done < wanted) {
        const std::uint64_t at = begin + done;
        const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(wanted - done, part->end - at));
        const std::int64_t got =
            positionedRead(part->descriptor.get(), at - part->first, into.subspan(done, length));
        if (got < 0) {
            if (errno == ENODEV || errno == ENXIO || errno == ESTALE) {
                m_gone = true;
            }
            break;
        }
        done += static_cast<std::size_t>(got);
        if (static_cast<std::size_t>(got) < length) {
            if (got == 0 || hasShrunk(*part)) {
                m_gone = true;
            }
            break;
        }
        while (part != m_parts.end() && begin + done >= part->end) {
            ++part;
        }
    }
    return done == 0 ? -1 : static_cast<std::int64_t>(done);
}

bool ImageFile::hasShrunk(const Part& part) {
    struct stat info {};
    return ::fstat(part.descriptor.get(), &info) != 0 ||
           static_cast<std::uint64_t>(info.st_size) < part.end - part.first;
}

}  // namespace vantor
