// An image of a medium kept in one file, or in numbered parts.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "media/BlockSource.h"
#include "media/HeldImage.h"

namespace vantor {

// A sentence for the user that says what to do, when the file holds a medium packed in a form that cannot be
// searched as it stands: an archive, a compressed file, a container of a virtual machine or of an evidence
// tool. Looks at a few bytes only; nothing for a plain image or for a file that cannot be read.
std::optional<QString> refusePackedImage(const QString& path);

// Reads the parts of an image as one medium of floor(bytes / 512) sectors. A part that ends early or turns
// into another file makes the medium gone, as does an error that says so.
class ImageFile : public BlockSource {
  public:
    static constexpr qsizetype kMostParts = 512;  // all stay open; the usual limit is 1,024 descriptors

    // Null when there is nothing to read from, as HeldImage::open() found with its errno.
    static std::unique_ptr<ImageFile> open(HeldImage::Parts parts);

    std::uint64_t sectors() const override;

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override;
    bool usable() override { return !m_gone; }
    bool mayBeReadAhead() const override { return true; }

  private:
    struct Place {
        int descriptor = -1;
        std::uint64_t first = 0;  // bytes
        std::uint64_t end = 0;
    };

    ImageFile() = default;
    static bool hasShrunk(const Place& part);

    HeldImage::Parts m_held;
    std::vector<Place> m_parts;
    std::atomic<bool> m_gone = false;  // told by usable(); what can still be read is read
};

}  // namespace vantor
