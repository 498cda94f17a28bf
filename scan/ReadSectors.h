// The sectors that a search has read, and those of them that are worth another look.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "media/SectorRecall.h"
#include "media/SectorRun.h"
#include "scan/SectorBits.h"

namespace vantor {

// Filled by one thread, which may be the one that reads by it: what is added lies behind whatever was asked.
class ReadSectors : public SectorRecall {
  public:
    // Rows of good sectors that are kept, 16 bytes each; what lies behind them is read again.
    static constexpr std::size_t kMostRuns = std::size_t{1} << 20;

    ReadSectors() = default;
    // Both ascending.
    ReadSectors(std::vector<SectorRun> runs, SectorBits worthALook)
        : m_runs(std::move(runs)), m_worthALook(std::move(worthALook)) {}

    // In ascending order; false when it is not taken: it is known already, or there are too many rows.
    bool add(std::uint64_t sector, bool worthALook) {
        if (m_runs.empty() || sector > m_runs.back().end) {
            if (m_runs.size() == kMostRuns) {
                return false;
            }
            m_runs.push_back({sector, sector});
        }
        if (sector != m_runs.back().end) {
            return false;
        }
        ++m_runs.back().end;
        if (worthALook) {
            m_worthALook.append(sector);
        }
        return true;
    }

    std::uint64_t quietUntil(std::uint64_t sector) const override;

    const std::vector<SectorRun>& runs() const { return m_runs; }
    const SectorBits& worthALook() const { return m_worthALook; }

  private:
    std::vector<SectorRun> m_runs;
    SectorBits m_worthALook;
};

}  // namespace vantor
