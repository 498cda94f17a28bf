// Sectors of a medium in any order, each stretch of it asked for once.
#pragma once

#include <cstdint>
#include <list>
#include <span>
#include <unordered_map>
#include <vector>

#include "media/SectorReader.h"

namespace vantor {

// Keeps the blocks that were read last. What cannot be read is zeros. Any one thread.
class MediumBlocks {
  public:
    static constexpr std::uint64_t kBlockSectors = 512;
    static constexpr std::size_t kMostBlocks = 384;  // 96 MiB

    explicit MediumBlocks(SectorReader& medium) : m_medium(medium) {}

    std::uint64_t sectors() const { return m_medium.mediumSectors(); }
    // Bytes from a byte of the medium on; zeros behind its end.
    void read(std::uint64_t at, std::span<std::uint8_t> into);
    // The block that the sector lies in, from its first sector on; valid until the next call.
    std::span<const std::uint8_t> blockOf(std::uint64_t sector);
    // How many were read so far, those read anew counted again.
    std::uint64_t fetched() const { return m_fetched; }

  private:
    struct Block {
        std::uint64_t number = 0;
        std::vector<std::uint8_t> bytes;
    };

    SectorReader& m_medium;
    std::uint64_t m_fetched = 0;
    std::list<Block> m_blocks;  // the one asked for last in front
    std::unordered_map<std::uint64_t, std::list<Block>::iterator> m_places;
};

}  // namespace vantor
