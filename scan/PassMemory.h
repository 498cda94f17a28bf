// What a pass learns, while it reads, for the pass behind it.
#pragma once

#include <QStringList>
#include <cstdint>
#include <memory>

#include "media/SectorScreen.h"
#include "scan/HeaderMatcher.h"
#include "scan/ReadSectors.h"

namespace vantor {

// With it the later pass asks the medium only for the sectors in which one of its records begins.
class PassMemory final : public ReadSectors {
  public:
    // `laterRecords`: all that the pass behind this one searches for. `mediumSectors` tells one medium from
    // another as far as a size does.
    PassMemory(const QStringList& laterRecords, std::uint64_t mediumSectors);

    bool isFor(const QStringList& records, std::uint64_t mediumSectors) const {
        return records == m_records && mediumSectors == m_mediumSectors;
    }

    // Screens for the pass that runs and for the later one.
    std::shared_ptr<const SectorScreen> screenBeside(std::shared_ptr<const HeaderMatcher> now) const;

    // For every sector that was read; `looks` is what the screen said of it.
    void note(std::uint64_t sector, std::uint8_t looks) { add(sector, (looks & kLookLater) != 0); }

  private:
    const QStringList m_records;
    const std::uint64_t m_mediumSectors;
    const std::shared_ptr<const HeaderMatcher> m_later;
};

}  // namespace vantor
