// The bytes of one item as the format walkers and the saving read them: from the medium, each place once.
#pragma once

#include <QByteArrayView>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "formats/ByteSource.h"
#include "media/SectorReader.h"
#include "media/SectorSet.h"
#include "results/CarvedRun.h"

namespace vantor {

// Where an item's bytes come from.
struct ItemSource {
    CarvedRun carved;
    QByteArrayView firstBytes = {};  // the carved bytes, where they are at hand; borrowed
    // The medium, when bytes beyond firstBytes are wanted; null when it cannot be opened.
    std::function<SectorReader*()> medium;
    std::uint64_t mediumSectors = 0;  // 0: nothing is read beyond the carved run
    bool asPublished = false;         // exactly the carved sectors, one behind the other
};

// The carved run, and behind it the medium up to its end. A gap between two runs that follow each other is a
// sector that was refused: it belongs to the item, and what is behind it keeps its place.
//
// The first bytes, up to kMostKept, stay in memory as they are read, so that what was walked is not read
// again to be written. A sector that cannot be read becomes zeros. Reading ends early (a short read) before a
// long unreadable stretch behind the carved run, and when the medium took kPatienceSeconds for refusals. One
// thread.
class MediumBytes final : public ByteSource {
  public:
    static constexpr std::uint64_t kMostKept = std::uint64_t{64} * 1024 * 1024;
    static constexpr std::uint64_t kHopelessSectors = 64;
    static constexpr int kPatienceSeconds = 30;

    // `kept` is the memory for the bytes that are kept, lent so that it serves many items.
    MediumBytes(const ItemSource& source, std::vector<std::uint8_t>& kept);

    std::uint64_t size() const override { return m_size; }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override;
    std::span<const std::uint8_t> atHand(std::uint64_t offset) override { return keptFrom(offset); }

    // The bytes from the offset on that are in memory; valid until the next read().
    std::span<const std::uint8_t> keptFrom(std::uint64_t offset) const;
    // As read(), without keeping what was not kept before.
    std::size_t readPast(std::uint64_t offset, std::span<std::uint8_t> into);

    std::uint64_t carvedBytes() const { return m_carvedBytes; }
    // Narrows the view, never below the carved run.
    void limitTo(std::uint64_t bytes);
    // Whether the view ends where the medium does.
    bool endsWithMedium() const { return m_size == m_wholeSize; }

    // Of the sectors read so far among the first `bytes` bytes.
    std::uint64_t sectorsUnreadable(std::uint64_t bytes) const;
    // Whether the byte stands in a sector that was read in vain.
    bool isUnreadable(std::uint64_t offset) const { return m_unreadable.contains(offset / kSectorBytes); }
    // True when reading ended early; the rest of the medium is as good as unreadable.
    bool gaveUp() const { return m_readableSectors != kNoLimit; }
    // How much was asked of the medium behind the carved run.
    std::uint64_t bytesReadBeyond() const { return m_bytesReadBeyond; }

  private:
    static constexpr std::uint64_t kNoLimit = ~std::uint64_t{0};

    std::span<const std::uint8_t> bytesFrom(std::uint64_t offset);
    void keepUpTo(std::uint64_t end);
    std::span<const std::uint8_t> blockAt(std::uint64_t offset);
    std::size_t readSectors(std::uint64_t first, std::span<std::uint8_t> into);
    std::uint64_t onMedium(std::uint64_t sector) const;
    void noteRefusal(std::uint64_t sector, double seconds);

    const ItemSource& m_source;
    std::vector<SectorRun> m_runs;  // the last one reaches to the medium's end
    std::uint64_t m_carvedBytes = 0;
    std::uint64_t m_wholeSize = 0;
    std::uint64_t m_size = 0;

    std::vector<std::uint8_t>& m_kept;  // bytes [m_keptStart, m_keptEnd)
    const std::uint64_t m_keptStart;
    std::uint64_t m_keptEnd;
    std::vector<std::uint8_t> m_block;  // one place away from the kept bytes
    std::uint64_t m_blockStart = 0;
    std::size_t m_blockFill = 0;

    // Sectors of the item, from 0.
    SectorSet m_unreadable;
    std::uint64_t m_refusedInRow = 0;
    std::uint64_t m_lastRefused = kNoLimit;
    std::uint64_t m_readableSectors = kNoLimit;
    double m_secondsRefused = 0;
    std::uint64_t m_bytesReadBeyond = 0;
};

}  // namespace vantor
