// The copy of a medium on a disk: an image file and its map.
#pragma once

#include <QString>
#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "media/CopyMap.h"
#include "media/FileDescriptor.h"

namespace vantor {

// Begins a copy, or goes on with one of a medium of the same size, also one that GNU ddrescue began. Nothing
// else is ever written over: an image without a map is refused, as is a map without its image, and one that
// another program is writing.
class CopyFile {
  public:
    // Null, and a sentence for the user, when there can be no such copy. `sectors` are those of the medium.
    static std::unique_ptr<CopyFile> open(const QString& imagePath, std::uint64_t sectors, QString* why);

    const QString& imagePath() const { return m_imagePath; }
    const QString& mapPath() const { return m_mapPath; }
    // As it was on the disk; of whole sectors.
    const CopyMap& mapFound() const { return m_found; }

    // As BlockSource::readAt(), of the image. Any thread.
    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) const;

    // Zeros at the end of the image take no room where the file system allows that. False, with errno, when
    // not all could be written. Any one thread.
    bool writeAt(std::uint64_t sector, std::span<const std::uint8_t> bytes);

    // Brings to the disk first what was written and then the map, which was true before the call. A sentence
    // for the user when that fails; the map is then as it was. Any one thread.
    std::optional<QString> keep(const CopyMap& map) const;

  private:
    CopyFile() = default;

    QString m_imagePath, m_mapPath;
    FileDescriptor m_image;
    CopyMap m_found;
    std::uint64_t m_length = 0;  // bytes of the image
};

}  // namespace vantor
