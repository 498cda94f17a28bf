// The rows of quiet sectors between the others.
#include "scan/ReadSectors.h"

#include <algorithm>
#include <iterator>

namespace vantor {

std::uint64_t ReadSectors::quietUntil(std::uint64_t sector) const {
    const auto after = std::upper_bound(m_runs.begin(), m_runs.end(), sector,
                                        [](std::uint64_t s, const SectorRun& run) { return s < run.first; });
    if (after == m_runs.begin() || sector >= std::prev(after)->end) {
        return sector;
    }
    return std::min(std::prev(after)->end, m_worthALook.firstFrom(sector));
}

}  // namespace vantor
