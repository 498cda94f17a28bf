// Keeps the pieces of a medium that were read last.
#pragma once

#include <cstdint>
#include <list>
#include <unordered_map>
#include <vector>

#include "filesystem/SectorSource.h"

namespace vantor {

// Directories lie close to each other, and a medium gives much at a time as fast as little.
class CachedSource final : public SectorSource {
  public:
    static constexpr std::uint64_t kPieceSectors = 512;  // 256 KiB

    // The source outlives it.
    explicit CachedSource(SectorSource& source) : m_source(source) {}

    std::uint64_t sectors() const override { return m_source.sectors(); }
    bool readAt(std::uint64_t sector, std::span<std::uint8_t> into) override;

  private:
    struct Piece {
        std::vector<std::uint8_t> bytes;
        std::vector<bool> isRead;  // one a sector
    };

    const Piece& piece(std::uint64_t number);

    SectorSource& m_source;
    std::unordered_map<std::uint64_t, Piece> m_pieces;
    std::list<std::uint64_t> m_order;  // the piece asked for last is first
};

}  // namespace vantor
