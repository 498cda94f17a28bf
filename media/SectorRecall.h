// The seam by which a search tells a reader what it knows of the sectors already.
#pragma once

#include <cstdint>

namespace vantor {

// What an earlier reading of the same medium left behind. Never changes while a reader has it.
class SectorRecall {
  public:
    SectorRecall() = default;
    SectorRecall(const SectorRecall&) = delete;
    SectorRecall& operator=(const SectorRecall&) = delete;
    virtual ~SectorRecall() = default;

    // The end of the row of quiet sectors that begins at the sector: they were read without failure, and
    // their bytes are not worth a look. The sector itself where it is not quiet.
    virtual std::uint64_t quietUntil(std::uint64_t sector) const = 0;

    // The 512 bytes of a sector that is not quiet, where they were kept; null where the medium has to be
    // asked.
    virtual const std::uint8_t* bytesOf(std::uint64_t) const { return nullptr; }
};

}  // namespace vantor
