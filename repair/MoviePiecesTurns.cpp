// What lies between two anchors of a movie that was written in turn with others, by the turns that show
// between the anchors.
#include "repair/MoviePieces.h"

namespace vantor {

namespace {

constexpr std::uint64_t kWidestGap = 8192;  // clusters of the medium between two anchors

}  // namespace

void MoviePieces::placeInTurns() {
    std::vector<KnownCluster> known;
    for (std::uint64_t number = 0; number < m_laid.places.size() && m_stop == 0; ++number) {
        const std::uint64_t cluster = m_laid.at(number);
        if (cluster == LaidClusters::kUnplaced) {
            continue;
        }
        if (!known.empty()) {
            const std::uint64_t last = m_laid.places[static_cast<std::size_t>(known.back().number)];
            const bool near = cluster > last && cluster - last <= kWidestGap;
            const std::uint64_t steps = near ? m_free.stepsBetween(last, cluster) : 0;
            if (steps >= number - known.back().number) {
                known.push_back({number, known.back().ordinal + steps});
                continue;
            }
            placeInTurns(known);
            known.clear();
        }
        known.push_back({number, 0});
    }
    placeInTurns(known);
}

// Where nothing contradicts. What leaves no choice is left to be found out.
void MoviePieces::placeInTurns(const std::vector<KnownCluster>& known) {
    for (const Turns& turns : turnsOf(known)) {
        for (std::size_t i = turns.from; i + 1 < turns.to && m_stop == 0; ++i) {
            const std::uint64_t before = known[i].number;
            const std::uint64_t end = known[i + 1].number;
            const std::uint64_t from = m_laid.at(before);
            const std::uint64_t to = m_laid.at(end);
            if (end == before + 1 || m_left.stepsBetween(from, to) == end - before) {
                continue;
            }
            const bool there = m_laid.lay(
                before, end, end - before,
                [&](std::uint64_t number, std::uint64_t last) {
                    return ifLeft(m_free.ahead(last, turns.ordinalOf(number) - turns.ordinalOf(number - 1)));
                },
                {});
            const RowLook look = there ? lookAtRow(before, end) : RowLook();
            if (there && look.broken != 0) {
                m_laid.lift(before, end);
            } else if (there && !look.proved) {
                m_guessed += static_cast<std::size_t>(end - before - 1);
            }
        }
    }
}

}  // namespace vantor
