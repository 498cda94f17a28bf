// Sectors of a medium in any order, each stretch of it asked for once.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <list>
#include <span>
#include <unordered_map>
#include <vector>

#include "media/SectorReader.h"

namespace vantor {

// Keeps the blocks that were read last, and which held nothing but zeros: those are read once. What cannot be
// read is zeros. Any one thread.
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
    // Calls `look(bytes, at)` with all of the medium: each block, and `reach` bytes on either side of where
    // two meet, so that what is no longer is seen whole. Ends when a stop is not 0.
    template <typename Look>
    void lookThrough(std::size_t reach, const std::atomic<int>& stop, Look look) {
        std::vector<std::uint8_t> seam(2 * reach, 0);
        const auto middle = seam.begin() + static_cast<std::ptrdiff_t>(reach);
        for (std::uint64_t sector = 0; sector < sectors() && stop == 0; sector += kBlockSectors) {
            const auto block = blockOf(sector);
            std::copy_n(block.begin(), reach, middle);
            if (sector != 0) {
                look(std::span<const std::uint8_t>(seam), sector * kSectorBytes - reach);
            }
            look(block, sector * kSectorBytes);
            std::copy_n(block.end() - static_cast<std::ptrdiff_t>(reach), reach, seam.begin());
        }
    }
    // Whether nothing but zeros was read there; false where not all of it was read yet.
    bool isKnownEmpty(std::uint64_t at, std::uint64_t bytes) const;
    // How many were read so far, those read anew counted again.
    std::uint64_t fetched() const { return m_fetched; }

  private:
    struct Block {
        std::uint64_t number = 0;
        std::vector<std::uint8_t> bytes;
    };

    bool isEmptyBlock(std::uint64_t number) const {
        return number < m_empty.size() && m_empty[static_cast<std::size_t>(number)];
    }
    void fill(Block& block);

    SectorReader& m_medium;
    std::vector<bool> m_empty;  // by number
    const std::vector<std::uint8_t> m_zeros = std::vector<std::uint8_t>(kBlockSectors * kSectorBytes, 0);
    std::uint64_t m_fetched = 0;
    std::list<Block> m_blocks;  // the one asked for last in front
    std::unordered_map<std::uint64_t, std::list<Block>::iterator> m_places;
};

}  // namespace vantor
