// An image of which a map tells what was read of the medium.
#pragma once

#include <cstdint>
#include <memory>

#include "media/BlockSource.h"
#include "media/CopyMap.h"

namespace vantor {

// The medium that the image was read from: sectors that the map does not call copied are refused, as the
// medium refused them or was never asked for them, and so are copied ones that the image does not reach to.
// What the image has behind the end of the map is read as it is.
class MappedImage : public BlockSource {
  public:
    MappedImage(std::unique_ptr<BlockSource> image, const CopyMap& map);

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override;
    bool usable() override { return m_image->usable(); }
    std::uint64_t sectors() const override;
    bool mayBeReadAhead() const override { return m_image->mayBeReadAhead(); }

  private:
    const std::unique_ptr<BlockSource> m_image;
    const CopyMap m_map;  // of whole sectors
};

}  // namespace vantor
