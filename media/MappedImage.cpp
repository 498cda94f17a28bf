// Reads as far as the map allows.
#include "media/MappedImage.h"

#include <algorithm>

#include "media/SectorReader.h"

namespace vantor {

MappedImage::MappedImage(std::unique_ptr<BlockSource> image, const CopyMap& map)
    : m_image(std::move(image)), m_map(map.ofWholeSectors()) {}

std::uint64_t MappedImage::sectors() const {
    return std::max(m_image->sectors(), m_map.bytes() / kSectorBytes);
}

std::int64_t MappedImage::readAt(std::uint64_t sector, std::span<std::uint8_t> into) {
    const std::uint64_t end = m_map.bytes() / kSectorBytes;
    if (sector < end) {
        const CopyRun run = m_map.at(sector * kSectorBytes);
        if (run.state != CopyState::Copied) {
            return -1;
        }
        if (run.end < m_map.bytes()) {
            const std::uint64_t rest = run.end - sector * kSectorBytes;
            into = into.first(static_cast<std::size_t>(std::min<std::uint64_t>(into.size(), rest)));
        }
    }
    // The file is not gone where it ends before the medium did.
    return sector < m_image->sectors() ? m_image->readAt(sector, into) : -1;
}

}  // namespace vantor
