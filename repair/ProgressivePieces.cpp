// The scans are read on from cluster to cluster as long as they can be. A foreign piece shows soon behind the
// place where it began, so that only the last boundaries before may be it. From there every cluster is tried
// that may hold coded units; the one with which all scans come out even is it.
#include "repair/ProgressivePieces.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr std::size_t kProgressiveMostCuts = 12;
constexpr std::size_t kProgressiveMostFollowed = 4;
constexpr std::size_t kProgressiveMostTried = 4096;  // clusters, of each cut
constexpr std::uint64_t kTrialUnits = 32;            // that beginning a trial counts for

}  // namespace

std::optional<PiecedPhoto> ProgressivePieces::assemble(std::uint64_t firstCluster, std::uint64_t& units) {
    for (const std::size_t joins : {std::size_t{1}, kMostJoins}) {
        m_row = std::make_unique<ClusterRow>(
            m_medium, m_free,
            // What stands before the first scan may be anything.
            [this](std::uint64_t cluster) {
                return m_units->place().scans == 0 || m_kinds.mayHoldScans(cluster);
            },
            std::vector<std::uint64_t>{firstCluster});
        m_units = std::make_unique<ProgressiveUnits>(m_free.clusterBytes(), *m_row);
        if (m_stop != 0 || !m_units->begin()) {
            return std::nullopt;
        }
        m_found = {};
        // What one join costs leaves as much for several.
        const std::uint64_t share = joins == 1 ? units / 2 : units;
        m_unitsLeft = share;
        const bool found = solve(joins, true);
        units -= share - m_unitsLeft;
        if (found) {
            return m_found;
        }
    }
    return std::nullopt;
}

// Up to where it cannot go on; whether that is the picture's end. Keeps the last boundaries in `cuts`.
bool ProgressivePieces::readOn(std::deque<Cut>& cuts, bool outermost) {
    const std::uint64_t cluster = m_free.clusterBytes();
    std::uint64_t boundary = (m_units->place().seen + cluster - 1) / cluster;
    while (m_unitsLeft != 0 && m_stop == 0) {
        const auto outcome = m_units->next();
        for (; m_units->place().seen > boundary * cluster; ++boundary) {
            cuts.push_back({static_cast<std::size_t>(boundary), m_units->before()});
            if (cuts.size() > kProgressiveMostCuts) {
                cuts.pop_front();
                if (outermost) {
                    m_units->forgetBefore(cuts.front().before);
                }
            }
        }
        if (outcome != ProgressiveUnits::Outcome::Unit) {
            return outcome == ProgressiveUnits::Outcome::Complete;
        }
        m_unitsLeft -= outermost ? 0 : 1;
    }
    return false;
}

void ProgressivePieces::takeFound() {
    const std::uint64_t cluster = m_free.clusterBytes();
    m_found.bytes = m_units->place().at;
    m_found.clusters = m_row->clusters();
    m_found.clusters.resize(static_cast<std::size_t>((m_found.bytes + cluster - 1) / cluster));
}

bool ProgressivePieces::solve(std::size_t joins, bool outermost) {
    std::deque<Cut> cuts;
    if (readOn(cuts, outermost)) {
        takeFound();
        return true;
    }
    const std::vector<std::uint64_t> way = m_row->clusters();
    for (auto cut = cuts.rbegin(); joins != 0 && cut != cuts.rend(); ++cut) {
        if (joinAt(*cut, way, joins)) {
            const auto& scan = cut->before.scan;
            const bool bare = cut->before.inScan && scan.refines && scan.first == 0;
            ++m_found.joins;
            m_found.joinsShow = m_found.joinsShow && !bare && m_found.joins == 1;
            return true;
        }
    }
    return false;
}

// Whether another cluster behind the cut leads to the picture's end.
bool ProgressivePieces::joinAt(const Cut& cut, const std::vector<std::uint64_t>& way, std::size_t joins) {
    const auto kept = way.begin() + static_cast<std::ptrdiff_t>(cut.number);
    const std::uint64_t cutAt = cut.number * m_free.clusterBytes();
    std::vector<Trial> trials;
    std::size_t tried = 0;
    bool found = false;
    m_kinds.eachCoded(way[cut.number - 1], [&](std::uint64_t cluster) {
        const bool isItself = kept != way.end() && cluster == *kept;
        if (isItself || std::find(way.begin(), kept, cluster) != kept) {
            return m_stop == 0;
        }
        m_row->restart(cut.number, cluster);
        m_units->resume(cut.before);
        auto outcome = ProgressiveUnits::Outcome::Unit;
        m_unitsLeft -= std::min(m_unitsLeft, kTrialUnits);
        while (m_unitsLeft != 0 && outcome == ProgressiveUnits::Outcome::Unit) {
            outcome = m_units->next();
            --m_unitsLeft;
        }
        if (outcome == ProgressiveUnits::Outcome::Complete) {
            takeFound();
            found = true;
        } else if (const std::uint64_t reach = m_units->place().seen - cutAt;
                   reach > 2 * m_free.clusterBytes()) {
            trials.push_back({cluster, reach});
        }
        return !found && ++tried < kProgressiveMostTried && m_stop == 0;
    });
    if (found) {
        return true;
    }
    std::stable_sort(trials.begin(), trials.end(),
                     [](const Trial& a, const Trial& b) { return a.reach > b.reach; });
    trials.resize(std::min(trials.size(), joins > 1 ? kProgressiveMostFollowed : 0));
    return std::any_of(trials.begin(), trials.end(), [&](const Trial& trial) {
        m_row->restart(cut.number, trial.cluster);
        m_units->resume(cut.before);
        return solve(joins - 1, false);
    });
}

}  // namespace vantor
