// The bytes of a file that has holes or is packed, read as if they were a medium of their own.
#pragma once

#include <cstdint>
#include <vector>

#include "filesystem/CardFile.h"
#include "media/SectorReader.h"

namespace vantor {

// Its sectors are those of the file. A packed unit of which a sector cannot be read, or that does not unpack,
// cannot be read. One thread; the medium outlives it.
class LaidOutReader final : public SectorReader {
  public:
    LaidOutReader(const CardFile& file, SectorReader& medium);

    std::uint64_t mediumSectors() const override { return m_sectors; }
    bool isGone() override { return m_medium.isGone(); }

  protected:
    bool fetch() override;
    bool moveTo(std::uint64_t sector) override { return sector <= m_sectors; }

  private:
    struct Stretch {
        std::uint64_t first = 0;  // sectors of the file
        std::uint64_t end = 0;
        std::uint64_t place = 0;  // of the medium; of a hole not used
        bool isHole = false;
    };

    std::vector<Stretch>::const_iterator stretchAt(std::uint64_t sector) const;
    bool readPlaced(const SectorRun& sectors, std::uint8_t* into);
    bool readUnit(const SectorRun& unit);
    bool isPacked(const SectorRun& unit) const;

    SectorReader& m_medium;
    const std::uint64_t m_sectors;
    const std::uint64_t m_unit;  // sectors; 0: not packed
    std::vector<Stretch> m_stretches;
    // What was handed over stays while the next is being made.
    std::vector<std::uint8_t> m_bytes;
    std::vector<std::uint8_t> m_next;
    std::uint64_t m_illegible = ~std::uint64_t{0};  // first sector of the unit that was read in vain last
};

}  // namespace vantor
