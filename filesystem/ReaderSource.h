// A scan's kind of medium, read in any order.
#pragma once

#include <cstdint>
#include <list>
#include <unordered_map>
#include <vector>

#include "filesystem/SectorSource.h"
#include "media/SectorReader.h"

namespace vantor {

// Directories lie close to each other, and a reader fetches much at a time: the pieces read last are kept.
class ReaderSource final : public SectorSource {
  public:
    // The medium outlives it and is nobody else's meanwhile.
    ReaderSource(SectorReader& medium, std::uint64_t sectors) : m_medium(medium), m_sectors(sectors) {}

    std::uint64_t sectors() const override { return m_sectors; }
    bool readAt(std::uint64_t sector, std::span<std::uint8_t> into) override;

  private:
    struct Piece {
        std::vector<std::uint8_t> bytes;
        std::vector<bool> isRead;  // one a sector
    };

    const Piece& piece(std::uint64_t number);

    SectorReader& m_medium;
    const std::uint64_t m_sectors;
    std::unordered_map<std::uint64_t, Piece> m_pieces;
    std::list<std::uint64_t> m_order;  // the piece asked for last is first
};

}  // namespace vantor
