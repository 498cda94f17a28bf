// Reads a medium in large windows while every failure still surfaces at its own sector.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "media/BlockSource.h"
#include "media/ReadAhead.h"
#include "media/RefusedSectors.h"
#include "media/SectorReader.h"
#include "media/SectorSet.h"

namespace vantor {

// Fetches windows of kWindowSectors. Where one is refused it goes on in single sectors, for the length of a
// window beyond the last refusal, so that one unreadable sector is one failed read.
//
// A refused sector is asked for once more and no further: the refused window and the single read behind it
// are the two attempts; a sector first met alone is repeated alone. What was refused twice stays refused for
// this reader and those it shares its refusals with, without another word to the medium, and so does the rest
// of its block.
//
// Positioning succeeds on bad sectors, as in any stream, so a scan looks once more at the sector that it read
// last. On a medium that stays in its slot but no longer reads that would never end: where kDeadStretch
// sectors in a row were refused, or kMostRefusals in all, it cannot be positioned at a sector that it refuses
// either, from where it stands in such a stretch. Which sectors are read, and in what order, is the same with
// and without.
class WindowedReader : public SectorReader {
  public:
    // Whether the windows of a sequential reading are fetched on the reader's own threads ahead of time. The
    // source is then asked from several threads at once.
    enum class Fetching { WhenAsked, Ahead };

    static constexpr std::size_t kWindowSectors = 512;       // 256 KiB, which stays in the second-level cache
    static constexpr std::uint64_t kDeadStretch = 2048;      // sectors: 1 MiB
    static constexpr std::uint64_t kMostRefusals = 1 << 16;  // sectors

    // Smaller windows are for tests, in which a short medium is to have many.
    explicit WindowedReader(std::unique_ptr<BlockSource> source, Fetching fetching = Fetching::WhenAsked,
                            std::size_t windowSectors = kWindowSectors);
    ~WindowedReader() override;

    std::uint64_t mediumSectors() const override { return m_source->sectors(); }
    bool isGone() override { return noteWhetherGone(); }
    void setScreen(std::shared_ptr<const SectorScreen> screen) override;
    void setRecall(std::shared_ptr<const SectorRecall> recall) override { m_recall = std::move(recall); }
    void wantBytes(bool wanted) override;
    void bringCurrent() override;
    void shareRefusals(std::shared_ptr<RefusedSectors> refusals) override {
        m_refusedForAll = std::move(refusals);
    }

  protected:
    bool fetch() override;
    bool moveTo(std::uint64_t sector) override;

  private:
    bool fetchQuiet();
    bool fetchKept();
    bool fetchHeld();
    void hold(const std::uint8_t* bytes, std::size_t sectors, const std::uint8_t* looks);
    std::uint8_t* spare();
    std::size_t sectorsToFetch() const;
    bool fetchWindow(std::size_t wanted, bool isReadAhead);
    bool fetchSingle();
    const std::uint8_t* screened(const std::uint8_t* bytes, std::size_t sectors);
    bool readSingleOrRefuse(std::uint64_t sector);
    void refuseRestOfBlock(std::uint64_t sector);
    void noteRefused(std::uint64_t first, std::uint64_t end);
    bool isRefusedForAll(std::uint64_t sector) const {
        return m_refusedForAll && m_refusedForAll->contains(sector);
    }
    bool isInDeadStretch(std::uint64_t sector) const;
    bool takeAttempt(std::uint64_t sector);
    std::uint64_t firstAttemptFrom(std::uint64_t sector) const;
    void stopReadingAhead();
    bool readSingle(std::uint64_t sector);
    void goSingle(std::uint64_t from);
    bool noteWhetherGone();

    std::unique_ptr<BlockSource> m_source;
    const std::size_t m_windowSectors;
    std::unique_ptr<ReadAhead> m_ahead;  // absent when nothing is fetched ahead
    std::shared_ptr<const SectorScreen> m_screen;
    std::vector<std::uint8_t> m_looks;  // of a window that was not read ahead
    std::shared_ptr<const SectorRecall> m_recall;
    bool m_bytesWanted = false;
    std::array<std::uint8_t, kSectorBytes> m_quiet{};  // current() while that is a quiet sector
    bool m_quietBrought = false;
    std::array<std::uint8_t, kSectorBytes> m_kept{};  // current() while the recall gave its bytes
    std::uint64_t m_quietEnd = 0;                     // sector behind the last quiet one that was read
    std::uint64_t m_windowEnd = 0;                    // sector behind the last full window
    // Two windows: a fetch that fails must leave the bytes of the last good sector in place.
    std::unique_ptr<std::uint8_t[]> m_storage;
    std::uint8_t* m_front;
    std::uint8_t* m_back;
    // The sectors that were handed over last, and those before them, as long as their bytes are in place.
    struct Held {
        SectorRun run;
        const std::uint8_t* bytes = nullptr;
    };
    Held m_held;  // never in m_back
    Held m_heldBefore;
    // Sectors that are read one by one.
    std::uint64_t m_singleFrom = 0;
    std::uint64_t m_singleUntil = 0;
    // The sectors for the first of which to be refused alone that is the second attempt, after their window.
    std::uint64_t m_attemptedFrom = 0;
    std::uint64_t m_attemptedUntil = 0;
    // The same of windows that were read ahead and never taken, in their order.
    std::vector<SectorRun> m_attemptedAhead;
    SectorSet m_refused;
    std::uint64_t m_refusals = 0;  // sectors
    std::shared_ptr<RefusedSectors> m_refusedForAll;
    bool m_gone = false;
};

}  // namespace vantor
