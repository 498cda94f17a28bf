// Sectors in any order: how the readers of file systems ask for a medium's bytes.
#pragma once

#include <cstdint>
#include <span>

namespace vantor {

// One thread at a time.
class SectorSource {
  public:
    SectorSource() = default;
    SectorSource(const SectorSource&) = delete;
    SectorSource& operator=(const SectorSource&) = delete;
    virtual ~SectorSource() = default;

    // Sectors of the medium; nothing at or behind that is ever asked for.
    virtual std::uint64_t sectors() const = 0;

    // Fills `into` (a multiple of 512 bytes) from the sector on. A sector that cannot be read comes as zeros,
    // and the answer is false.
    virtual bool readAt(std::uint64_t sector, std::span<std::uint8_t> into) = 0;
};

}  // namespace vantor
