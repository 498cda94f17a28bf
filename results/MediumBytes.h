// The bytes of one item as the format walkers and the saving read them: from the medium, each place once.
#pragma once

#include <QByteArrayView>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <vector>

#include "formats/ByteSource.h"
#include "media/SectorReader.h"
#include "media/SectorSet.h"
#include "results/CarvedRun.h"
#include "results/PlaceBudget.h"

namespace vantor {

class CardIndex;
struct CardFile;
struct Mend;

// What is known of an item beside the run that it was carved from.
struct ItemHints {
    std::shared_ptr<const CardIndex> card = nullptr;  // what the card's directories tell; null: nothing
    // Nothing was found there: the item is this file of the card's, or none.
    std::shared_ptr<const CardFile> told = nullptr;
    // The item is as it was put together, in place of as it was found; null: as found. Only what is proved
    // belongs here but for who wants to look at it.
    std::shared_ptr<const Mend> mend = nullptr;
};

// Where an item's bytes come from.
struct ItemSource {
    CarvedRun carved;
    QByteArrayView firstBytes = {};  // the carved bytes as published, where they are at hand; borrowed
    // The medium, when bytes beyond firstBytes are wanted; null when it cannot be opened.
    std::function<SectorReader*()> medium;
    std::uint64_t mediumSectors = 0;  // 0: nothing is read beyond the carved run
    bool asPublished = false;         // exactly the carved sectors, one behind the other
    // What was read behind carved runs in vain, place by place; null where nobody counts.
    const PlaceBudget* readInVain = nullptr;
    ItemHints hints = {};
};

// How often each place may be read in vain to find out where files end that begin in front of it: all places
// together so often that it takes about four gigabytes of reading, and twice on larger media.
std::uint64_t mostVainReads(std::uint64_t mediumSectors);

// The carved run, and behind it the medium up to its end. A gap between two runs that follow each other is a
// sector that was refused: it belongs to the item, and what is behind it keeps its place.
//
// The first bytes, up to kMostKept, stay in memory as they are read, so that what was walked is not read
// again to be written. A sector that cannot be read becomes zeros. A zone of the file that refuses many
// sectors in a row is passed over: its end is looked for in growing steps, and what lies behind it is read.
// Reading ends early (a short read) when the medium has gone, and before a long unreadable stretch where no
// more of the file is expected. One thread.
class MediumBytes final : public ByteSource {
  public:
    static constexpr std::uint64_t kMostKept = std::uint64_t{64} * 1024 * 1024;
    static constexpr std::uint64_t kHopelessSectors = 64;
    // So many refusals in a row make a bad zone, whose end is looked for in steps of kMostZoneStep at most.
    static constexpr std::uint64_t kZoneRefusals = 16;
    static constexpr std::uint64_t kMostZoneStep = 1024;

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
    // Of the medium; 0 where there is none.
    std::uint64_t firstSector() const { return m_runs.empty() ? 0 : m_runs.front().first; }
    // Narrows the view, never below the carved run.
    void limitTo(std::uint64_t bytes);
    // So long is the file: bad zones up to there are passed over, as they are within the carved run.
    void expect(std::uint64_t bytes);
    // Whether the view ends where the medium does.
    bool endsWithMedium() const { return m_size == m_wholeSize; }

    // Of the sectors read so far among the first `bytes` bytes.
    std::uint64_t sectorsUnreadable(std::uint64_t bytes) const;
    // Whether of the first `bytes` bytes, which were read, not one sector was good.
    bool nothingReadable(std::uint64_t bytes) const;
    // Whether the byte stands in a sector that was read in vain.
    bool isUnreadable(std::uint64_t offset) const { return m_unreadable.contains(offset / kSectorBytes); }
    // True when reading ended early; the rest of the medium is as good as unreadable.
    bool gaveUp() const { return m_readableSectors != kNoLimit; }
    bool mediumIsGone() const { return m_mediumIsGone; }
    // From here on the length is known, and what is read is not read in vain.
    void endMeasuring() { m_measuring = false; }
    // Whether the view ended at a place that was read in vain too often, while the length was looked for.
    bool ranOut() const { return m_ranOut; }
    // Adds what was asked of the medium behind the carved run meanwhile.
    void spendReading(PlaceBudget& budget) const;
    // Where the bytes [carvedBytes(), bytes) lie.
    SectorRun stretchBeyond(std::uint64_t bytes) const;

  private:
    static constexpr std::uint64_t kNoLimit = ~std::uint64_t{0};

    std::span<const std::uint8_t> bytesFrom(std::uint64_t offset);
    void keepUpTo(std::uint64_t end);
    std::span<const std::uint8_t> blockAt(std::uint64_t offset);
    std::size_t readSectors(std::uint64_t first, std::span<std::uint8_t> into);
    bool readSector(SectorReader* medium, std::uint64_t sector, std::uint8_t* place);
    std::uint64_t onMedium(std::uint64_t sector) const;
    std::uint64_t endOfRun(std::uint64_t sector) const;
    void noteRefusal(SectorReader& medium, std::uint64_t sector);
    void passOverZone(SectorReader& medium, std::uint64_t sector);
    void holdFirstBytes();
    std::uint64_t readFetched(SectorReader* medium, std::uint64_t sector, std::span<std::uint8_t> into);
    const std::uint8_t* heldSector(std::uint64_t onMedium) const;
    bool holdsAnyFrom(std::uint64_t sector) const;
    bool mayReadOn(std::uint64_t sector);

    // Sectors of the medium, one behind the other.
    struct Held {
        std::uint64_t end = 0;  // sector of the medium
        const std::uint8_t* bytes = nullptr;
    };

    const ItemSource& m_source;
    std::map<std::uint64_t, Held> m_held;  // of the first bytes, by sector of the medium
    std::vector<SectorRun> m_runs;         // the last one reaches to the medium's end
    std::uint64_t m_carvedBytes = 0;
    std::uint64_t m_wholeSize = 0;
    std::uint64_t m_size = 0;

    std::vector<std::uint8_t>& m_kept;  // bytes [m_keptStart, m_keptEnd)
    std::uint64_t m_keptStart = 0;
    std::uint64_t m_keptEnd = 0;
    std::vector<std::uint8_t> m_block;  // one place away from the kept bytes
    std::uint64_t m_blockStart = 0;
    std::size_t m_blockFill = 0;

    // Sectors of the item, from 0.
    SectorSet m_unreadable;
    std::uint64_t m_refusedInRow = 0;
    std::uint64_t m_lastRefused = kNoLimit;
    std::uint64_t m_readableSectors = kNoLimit;
    std::uint64_t m_expected = 0;  // bytes of the file
    bool m_mediumIsGone = false;
    bool m_measuring = true;
    bool m_ranOut = false;
    std::map<std::uint64_t, std::uint64_t> m_readBeyond;  // place of the medium -> sectors
};

}  // namespace vantor
