// A scan's kind of medium, read in any order.
#pragma once

#include <cstdint>
#include <cstring>

#include "filesystem/SectorSource.h"
#include "media/SectorReader.h"

namespace vantor {

// The medium outlives it and is nobody else's meanwhile.
class ReaderSource final : public SectorSource {
  public:
    ReaderSource(SectorReader& medium, std::uint64_t sectors) : m_medium(medium), m_sectors(sectors) {}

    std::uint64_t sectors() const override { return m_sectors; }

    bool readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        bool all = true;
        for (std::size_t done = 0; done < into.size(); done += kSectorBytes, ++sector) {
            const bool isThere = m_medium.position() == sector || m_medium.seek(sector);
            if (isThere && !m_medium.isGone() && m_medium.read()) {
                std::memcpy(into.data() + done, m_medium.current(), kSectorBytes);
            } else {
                std::memset(into.data() + done, 0, kSectorBytes);
                all = false;
            }
        }
        return all;
    }

  private:
    SectorReader& m_medium;
    const std::uint64_t m_sectors;
};

}  // namespace vantor
