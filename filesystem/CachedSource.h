// Keeps the pieces of a medium that were read last.
#pragma once

#include <array>
#include <cstdint>
#include <list>
#include <unordered_map>
#include <vector>

#include "filesystem/SectorSource.h"

namespace vantor {

// Directories lie close to each other, and a medium gives much at a time as fast as little. A look at one
// sector far from all others, as at where a file began, reads that one: the piece around it comes with the
// second look.
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

    bool isFirstLook(std::uint64_t number);
    const Piece& piece(std::uint64_t number);

    SectorSource& m_source;
    std::unordered_map<std::uint64_t, Piece> m_pieces;
    std::list<std::uint64_t> m_order;  // the piece asked for last is first
    // Pieces that one sector was read of, by the lowest part of their number; one more than that.
    std::array<std::uint64_t, 256> m_looked{};
};

}  // namespace vantor
