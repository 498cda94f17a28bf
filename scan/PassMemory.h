// What a pass learns, while it reads, for the pass behind it.
#pragma once

#include <QStringList>
#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>

#include "media/SectorReader.h"
#include "media/SectorScreen.h"
#include "scan/HeaderMatcher.h"
#include "scan/ReadSectors.h"

namespace vantor {

// With it the later pass asks the medium only for the sectors in which one of its records begins, and for
// most of these not even once more.
class PassMemory final : public ReadSectors {
  public:
    // Of those sectors the first are kept; the medium is asked for the others.
    static constexpr std::size_t kMostKept = std::size_t{1} << 14;  // 8 MiB

    // `laterRecords`: all that the pass behind this one searches for. `mediumSectors` tells one medium from
    // another as far as a size does.
    PassMemory(const QStringList& laterRecords, std::uint64_t mediumSectors);

    bool isFor(const QStringList& records, std::uint64_t mediumSectors) const {
        return records == m_records && mediumSectors == m_mediumSectors;
    }

    // Screens for the pass that runs, whose matcher is of these records, and for the later one.
    std::shared_ptr<const SectorScreen> screenBeside(std::shared_ptr<const HeaderMatcher> now,
                                                     const QStringList& recordsNow) const;

    // For every sector that was read; `looks` is what the screen said of its bytes.
    void note(std::uint64_t sector, std::uint8_t looks, const std::uint8_t* bytes) {
        const bool worthALook = (looks & kLookLater) != 0;
        if (add(sector, worthALook) && worthALook && m_kept.size() < kMostKept) {
            keep(sector, bytes);
        }
    }

    const std::uint8_t* bytesOf(std::uint64_t sector) const override;

  private:
    struct KeptSector {
        std::uint64_t sector = 0;
        std::array<std::uint8_t, kSectorBytes> bytes;
    };

    void keep(std::uint64_t sector, const std::uint8_t* bytes);

    const QStringList m_records;
    const std::uint64_t m_mediumSectors;
    const std::shared_ptr<const HeaderMatcher> m_later;
    std::deque<KeptSector> m_kept;  // ascending
};

}  // namespace vantor
