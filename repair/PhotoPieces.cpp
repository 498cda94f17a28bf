// The units are read on from cluster to cluster as long as they can be. Where that fails, the place is looked
// for at which a foreign piece began: most often a row that does not join the one above. From there each
// cluster that may hold units is tried for as long as a row; those that join best are read to the end.
#include "repair/PhotoPieces.h"

#include <algorithm>

#include "repair/ClusterFile.h"

namespace vantor {

namespace {

constexpr std::size_t kMostCuts = 10;
constexpr std::size_t kMostFollowed = 8;
constexpr std::size_t kMostTried = 4096;  // clusters, of each cut
constexpr std::uint64_t kStepUnits = 16;  // between two looks at how a trial goes
constexpr std::size_t kMostSnapshotBytes = std::size_t{64} << 20;

// How badly rows join: the less for a picture that would join as well elsewhere.
float misfitOf(const SeamCost& cost) {
    if (cost.seams == 0) {
        return 0;
    }
    const float own = cost.own / static_cast<float>(cost.seams);
    const float shifted = cost.shifted / static_cast<float>(cost.seams);
    return own * own / std::max(shifted, 0.25F);
}

}  // namespace

ClusterRow PhotoPieces::rowOf(std::vector<std::uint64_t> clusters) const {
    return {m_medium, m_free, [this](std::uint64_t cluster) { return m_kinds.mayHoldUnits(cluster); },
            std::move(clusters)};
}

std::optional<PiecedPhoto> PhotoPieces::assemble(std::uint64_t firstCluster, std::uint64_t& units) {
    const std::uint64_t cluster = m_free.clusterBytes();
    std::vector<std::uint64_t> clusters;
    for (std::uint64_t number = 0; number * cluster < JpegHead::kMostBytes; ++number) {
        if (!m_free.isFree(firstCluster + number)) {
            break;
        }
        clusters.push_back(firstCluster + number);
    }
    {
        ClusterFile file(m_medium, m_free, clusters, clusters.size() * cluster);
        ByteView view(file);
        m_head = readJpegHead(view);
    }
    const auto headClusters = m_head ? static_cast<std::size_t>(m_head->scanAt / cluster + 1) : 0;
    if (headClusters == 0 || headClusters > clusters.size()) {
        return std::nullopt;
    }
    clusters.resize(headClusters);
    const std::uint64_t allowed = std::min(units, kMostUnitsAtOnce);
    std::uint64_t spent = 0;
    m_found = {};
    Cut start;
    bool found = false;
    for (const std::size_t joins : {std::size_t{1}, kMostJoins}) {
        // What one join costs leaves as much for several.
        const std::uint64_t share = joins == 1 ? allowed / 2 : allowed - spent;
        m_unitsLeft = share;
        found = found || (m_stop == 0 && solve(start, clusters, joins, true));
        spent += share - m_unitsLeft;
    }
    units -= spent;
    return found ? std::optional(m_found) : std::nullopt;
}

// Tries a cluster behind the cut; nothing when it cannot be.
std::optional<PhotoPieces::Trial> PhotoPieces::tryAt(JpegUnits& units, ClusterRow& supply, const Cut& cut,
                                                     std::uint64_t cluster, float limit) {
    spend(1 + m_head->unitsAcross / 16);  // what it takes to begin
    supply.restart(cut.number, cluster);
    units.resume(cut.before);
    SeamCost cost;
    for (std::uint64_t read = 0; read < m_head->unitsAcross; ++read) {
        const auto outcome = units.next();
        if (outcome == JpegUnits::Outcome::Broken || m_unitsLeft == 0) {
            return std::nullopt;
        }
        if (outcome == JpegUnits::Outcome::OutOfData) {
            break;
        }
        if (outcome == JpegUnits::Outcome::Complete) {
            if (units.end() == 0) {
                return std::nullopt;
            }
            break;
        }
        spend(1);
        cost.add(units.cost());
        if (read % kStepUnits == kStepUnits - 1 && read > kStepUnits && misfitOf(cost) > 1.5F * limit) {
            return std::nullopt;
        }
    }
    const float misfit = misfitOf(cost);
    return misfit > limit ? std::nullopt : std::optional(Trial{cluster, misfit, cost.seams != 0});
}

// The best joining first.
std::vector<PhotoPieces::Trial> PhotoPieces::trialsAt(const Cut& cut,
                                                      const std::vector<std::uint64_t>& clusters,
                                                      float limit) {
    ClusterRow supply = rowOf(clusters);
    JpegUnits units(*m_head, m_free.clusterBytes(), supply);
    std::vector<Trial> trials;
    std::size_t tried = 0;
    const std::uint64_t from = clusters[cut.number - 1];
    const std::uint64_t usual = from + 1;
    m_kinds.eachCoded(from, [&](std::uint64_t cluster) {
        const auto kept = clusters.begin() + static_cast<std::ptrdiff_t>(cut.number);
        const bool isItself = cluster == usual && cut.number < clusters.size();
        if (!m_kinds.mayHoldUnits(cluster) || isItself ||
            std::find(clusters.begin(), kept, cluster) != kept) {
            return m_stop == 0;
        }
        if (const auto trial = tryAt(units, supply, cut, cluster, limit)) {
            trials.push_back(*trial);
        }
        return ++tried < kMostTried && m_stop == 0;
    });
    std::stable_sort(trials.begin(), trials.end(),
                     [](const Trial& a, const Trial& b) { return a.misfit < b.misfit; });
    return trials;
}

bool PhotoPieces::solve(const Cut& from, std::vector<std::uint64_t> clusters, std::size_t joins,
                        bool joinsShow) {
    const std::uint64_t cluster = m_free.clusterBytes();
    ClusterRow supply = rowOf(std::move(clusters));
    JpegUnits units(*m_head, cluster, supply);
    if (from.number != 0) {
        units.resume(from.before);
    }
    std::deque<Cut> cuts;
    std::size_t boundary = supply.clusters().size();
    const std::size_t snapshotBytes =
        sizeof(Cut) + m_head->components.size() * m_head->unitsAcross * 4 * 2 * 2 * sizeof(std::int16_t);
    const std::size_t mostCuts = std::max<std::size_t>(kMostSnapshotBytes / snapshotBytes, 16);
    auto outcome = JpegUnits::Outcome::Unit;
    while (m_unitsLeft != 0 && m_stop == 0) {
        outcome = units.next();
        for (; units.place().seen > boundary * cluster; ++boundary) {
            Cut& cut = cuts.emplace_back();
            cut.number = boundary;
            units.snapshotBefore(cut.before);
            if (cuts.size() > mostCuts) {
                cuts.pop_front();
            }
        }
        if (outcome != JpegUnits::Outcome::Unit) {
            break;
        }
        spend(1);
        const auto count = static_cast<std::size_t>(units.place().unit);
        m_own.resize(count);
        m_shifted.resize(count);
        m_seams.resize(count);
        m_own.back() = units.cost().own;
        m_shifted.back() = units.cost().shifted;
        m_seams.back() = units.cost().seams;
    }
    if (outcome == JpegUnits::Outcome::Complete) {
        if (const std::uint64_t end = units.end(); end != 0) {
            m_found.clusters = supply.clusters();
            m_found.clusters.resize(static_cast<std::size_t>((end + cluster - 1) / cluster));
            m_found.bytes = end;
            m_found.joinsShow = joinsShow;
            return true;
        }
    }
    if (joins == 0 || m_unitsLeft == 0 || m_stop != 0) {
        return false;
    }
    const auto read = static_cast<std::size_t>(units.place().unit);
    const auto misfitFrom = [&](std::size_t first) {
        SeamCost cost;
        for (std::size_t i = first; i < std::min<std::size_t>(first + m_head->unitsAcross, read); ++i) {
            cost.add({m_own[i], m_shifted[i], m_seams[i]});
        }
        return misfitOf(cost);
    };
    std::vector<float> rows;
    for (std::size_t row = 0; row < read; row += m_head->unitsAcross) {
        rows.push_back(misfitFrom(row));
    }
    // A page of text has blank rows beside those with many edges.
    float limit = 1.6F;
    if (!rows.empty()) {
        std::sort(rows.begin(), rows.end());
        limit = std::max({limit, 2 * rows[rows.size() / 2], 1.6F * rows[rows.size() * 9 / 10]});
    }
    struct Suspect {
        const Cut* cut = nullptr;
        float misfit = 0;
    };
    std::vector<Suspect> suspects;
    for (const Cut& cut : cuts) {
        const auto first = static_cast<std::size_t>(cut.before.place.unit);
        suspects.push_back({&cut, misfitFrom(first)});
    }
    // The last ones have little behind them that would show.
    const std::size_t last = std::min<std::size_t>(suspects.size(), 2);
    std::stable_sort(suspects.begin(), suspects.end() - static_cast<std::ptrdiff_t>(last),
                     [](const Suspect& a, const Suspect& b) { return a.misfit > b.misfit; });
    std::rotate(suspects.begin(), suspects.end() - static_cast<std::ptrdiff_t>(last), suspects.end());
    suspects.resize(std::min(suspects.size(), kMostCuts));
    const std::vector<std::uint64_t> way = supply.clusters();
    for (const Suspect& suspect : suspects) {
        const auto trials = trialsAt(*suspect.cut, way, limit);
        for (std::size_t i = 0; i < std::min(trials.size(), kMostFollowed); ++i) {
            std::vector<std::uint64_t> next(way.begin(),
                                            way.begin() + static_cast<std::ptrdiff_t>(suspect.cut->number));
            next.push_back(trials[i].cluster);
            if (solve(*suspect.cut, std::move(next), joins - 1, joinsShow && trials[i].shows)) {
                ++m_found.joins;
                return true;
            }
        }
    }
    return false;
}

}  // namespace vantor
