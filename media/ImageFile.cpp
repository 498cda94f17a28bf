// Reading an image file, whole or in parts.
#include "media/ImageFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>

#include "media/PositionedRead.h"
#include "media/SectorReader.h"

namespace vantor {

namespace {

constexpr qsizetype kSuffixLength = 4;

// "name" of "name.007"; empty for any other path.
QString stemOfPart(const QString& path) {
    if (path.size() <= kSuffixLength || path.at(path.size() - kSuffixLength) != u'.') {
        return {};
    }
    const auto digits = QStringView(path).last(kSuffixLength - 1);
    const bool numbered =
        std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return numbered ? path.chopped(kSuffixLength) : QString();
}

constexpr int kLastPart = 999;

QString pathOfPart(const QString& stem, int number) {
    return QStringLiteral("%1.%2").arg(stem).arg(number, 3, 10, QChar(u'0'));
}

}  // namespace

QStringList imageParts(const QString& path) {
    const QString stem = stemOfPart(path);
    QStringList parts;
    for (int number = 1; !stem.isEmpty() && number <= kLastPart; ++number) {
        const QString part = pathOfPart(stem, number);
        if (!QFileInfo(part).isFile()) {
            break;
        }
        parts << part;
    }
    return parts.contains(path) ? parts : QStringList{path};
}

QString missingPart(const QString& path) {
    const QString stem = stemOfPart(path);
    if (stem.isEmpty()) {
        return {};
    }
    // Two numbered neighbours make a row; a file that merely ends in a number is whole.
    int last = 0, parts = 0;
    for (const QString& name : QFileInfo(path).dir().entryList(QDir::Files)) {
        if (stemOfPart(name) == QFileInfo(stem).fileName()) {
            const int number = QStringView(name).last(kSuffixLength - 1).toInt();
            last = std::max(last, number);
            parts += number > 0 ? 1 : 0;
        }
    }
    for (int number = 1; parts > 1 && number < last; ++number) {
        if (!QFileInfo(pathOfPart(stem, number)).isFile()) {
            return pathOfPart(stem, number);
        }
    }
    return {};
}

std::unique_ptr<ImageFile> ImageFile::open(const QStringList& parts) {
    if (parts.size() > kMostParts) {
        errno = EMFILE;
        return nullptr;
    }
    std::unique_ptr<ImageFile> image(new ImageFile);
    std::uint64_t at = 0;
    for (const QString& path : parts) {
        // Not blocking: a pipe of that name would otherwise wait for a writer for ever.
        FileDescriptor descriptor(
            ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
        struct stat info {};
        if (!descriptor || ::fstat(descriptor.get(), &info) != 0) {
            return nullptr;
        }
        if (!S_ISREG(info.st_mode)) {
            errno = EINVAL;
            return nullptr;
        }
        ::posix_fadvise(descriptor.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
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
