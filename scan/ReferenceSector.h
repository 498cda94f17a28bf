// The sector that others are compared with to tell the ones worth a header search.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>

#include "media/SectorReader.h"

namespace vantor {

// All zeros, until a sector that could neither be read nor passed over takes its place.
class ReferenceSector {
  public:
    bool equals(const std::uint8_t* sector) const {
        return std::memcmp(m_bytes.data(), sector, kSectorBytes) == 0;
    }
    // On a medium that is gone every sector comes by here, most of them equal already.
    void become(const std::uint8_t* sector) {
        if (!equals(sector)) {
            std::memcpy(m_bytes.data(), sector, kSectorBytes);
        }
    }

  private:
    std::array<std::uint8_t, kSectorBytes> m_bytes{};
};

}  // namespace vantor
