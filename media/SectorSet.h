// A set of sector numbers kept as runs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <map>
#include <vector>

#include "media/SectorRun.h"

namespace vantor {

// Neighbours share one entry, so that a dead stretch costs one. At most `maxRuns` entries are kept; beyond
// them the lowest run is forgotten.
class SectorSet {
  public:
    static constexpr std::size_t kMaxRuns = 4096;

    explicit SectorSet(std::size_t maxRuns = kMaxRuns) : m_maxRuns(maxRuns) {}

    bool contains(std::uint64_t sector) const {
        const auto after = m_runs.upper_bound(sector);
        return after != m_runs.begin() && sector < std::prev(after)->second;
    }

    void add(std::uint64_t sector) {
        if (contains(sector)) {
            return;
        }
        const auto after = m_runs.upper_bound(sector);
        std::uint64_t end = sector + 1;
        if (after != m_runs.end() && after->first == end) {
            end = after->second;
            m_runs.erase(after);
        }
        const auto next = m_runs.upper_bound(sector);
        if (next != m_runs.begin() && std::prev(next)->second == sector) {
            std::prev(next)->second = end;
        } else {
            m_runs.emplace(sector, end);
        }
        if (m_runs.size() > m_maxRuns) {
            m_runs.erase(m_runs.begin());
        }
    }

    // A row that lies apart from all others; one that does not is left out.
    void add(const SectorRun& run) {
        const auto after = m_runs.lower_bound(run.first);
        const bool apart = (after == m_runs.end() || after->first > run.end) &&
                           (after == m_runs.begin() || std::prev(after)->second < run.first);
        if (apart && m_runs.size() < m_maxRuns) {
            m_runs.emplace(run.first, run.end);
        }
    }

    // Ascending.
    std::vector<SectorRun> all() const {
        std::vector<SectorRun> runs;
        for (const auto& [first, end] : m_runs) {
            runs.push_back({first, end});
        }
        return runs;
    }

    // The first sector of the set at or behind `sector`; the largest number there is when none follows.
    std::uint64_t firstFrom(std::uint64_t sector) const {
        if (contains(sector)) {
            return sector;
        }
        const auto after = m_runs.upper_bound(sector);
        return after == m_runs.end() ? std::numeric_limits<std::uint64_t>::max() : after->first;
    }

    // The first sector of the row that ends directly before `sector` or holds it; `sector` when there is
    // none.
    std::uint64_t firstOfRunUpTo(std::uint64_t sector) const {
        const auto after = m_runs.upper_bound(sector);
        return after != m_runs.begin() && sector <= std::prev(after)->second ? std::prev(after)->first
                                                                             : sector;
    }

    std::size_t runs() const { return m_runs.size(); }

  private:
    std::size_t m_maxRuns;
    std::map<std::uint64_t, std::uint64_t> m_runs;  // first sector -> one past the last
};

}  // namespace vantor
