#include "filesystem/CardTable.h"

#include <algorithm>

namespace vantor {

namespace {

// The first run that ends behind the sector.
std::vector<SectorRun>::const_iterator runBehind(const std::vector<SectorRun>& runs, std::uint64_t sector) {
    return std::upper_bound(runs.begin(), runs.end(), sector,
                            [](std::uint64_t s, const SectorRun& run) { return s < run.end; });
}

}  // namespace

bool CardTable::isInUse(std::uint64_t sector) const {
    const auto run = runBehind(inUse, sector);
    return run != inUse.end() && run->first <= sector;
}

SectorRun CardTable::freeRunFrom(std::uint64_t from, std::uint64_t end) const {
    for (auto run = runBehind(inUse, from); run != inUse.end() && run->first <= from; ++run) {
        from = run->end;
    }
    if (from >= end) {
        return {end, end};
    }
    const auto next = runBehind(inUse, from);
    return {from, next == inUse.end() ? end : std::min(end, next->first)};
}

void joinRuns(std::vector<SectorRun>& runs) {
    std::erase_if(runs, [](const SectorRun& run) { return run.end <= run.first; });
    std::sort(runs.begin(), runs.end(),
              [](const SectorRun& a, const SectorRun& b) { return a.first < b.first; });
    std::size_t kept = 0;
    for (const SectorRun& run : runs) {
        if (kept > 0 && run.first <= runs[kept - 1].end) {
            runs[kept - 1].end = std::max(runs[kept - 1].end, run.end);
        } else {
            runs[kept++] = run;
        }
    }
    runs.resize(kept);
}

}  // namespace vantor
