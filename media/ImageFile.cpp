// Reading an image file, whole or in parts.
#include "media/ImageFile.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "media/PositionedRead.h"
#include "media/SectorReader.h"

namespace vantor {

std::unique_ptr<ImageFile> ImageFile::open(HeldImage::Parts parts) {
    if (!parts) {
        return nullptr;
    }
    std::unique_ptr<ImageFile> image(new ImageFile);
    std::uint64_t at = 0;
    for (const HeldImage::Part& part : *parts) {
        image->m_parts.push_back({part.descriptor.get(), at, at + part.bytes});
        at += part.bytes;
    }
    image->m_held = std::move(parts);
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
                                 [](std::uint64_t byte, const Place& p) { return byte < p.end; });
    while (done < wanted) {
        const std::uint64_t at = begin + done;
        const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(wanted - done, part->end - at));
        const std::int64_t got =
            positionedRead(part->descriptor, at - part->first, into.subspan(done, length));
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

bool ImageFile::hasShrunk(const Place& part) {
    struct stat info {};
    return ::fstat(part.descriptor, &info) != 0 ||
           static_cast<std::uint64_t>(info.st_size) < part.end - part.first;
}

}  // namespace vantor
