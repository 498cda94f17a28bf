// What lies between two anchors of a movie in pieces.
#include <algorithm>

#include "repair/MoviePieces.h"

namespace vantor {

void MoviePieces::fillBetween() {
    for (std::size_t number = 1; number < m_places.size();) {
        if (m_places[number] != kUnplaced) {
            ++number;
            continue;
        }
        std::size_t end = number;
        while (end < m_places.size() && m_places[end] == kUnplaced) {
            ++end;
        }
        fillRow(number - 1, end);
        number = end;
    }
}

// Places the clusters of the file in (before, end): `ahead` of them `step` free ones apart from the one
// before, the others in a row up to the one behind. False where some of these are not to be had; nothing is
// placed then.
bool MoviePieces::lay(std::uint64_t before, std::uint64_t end, std::uint64_t ahead, std::uint64_t step) {
    for (std::uint64_t number = before + 1; number < end; ++number) {
        const std::uint64_t steps = number - before;
        const auto cluster = steps <= ahead
                                 ? m_free.ahead(m_places[static_cast<std::size_t>(number - 1)], step)
                                 : m_free.back(m_places[static_cast<std::size_t>(end)], end - number);
        if (!cluster || m_used[static_cast<std::size_t>(*cluster)]) {
            lift(before, number);
            return false;
        }
        place(number, *cluster);
    }
    return true;
}

void MoviePieces::lift(std::uint64_t before, std::uint64_t end) {
    for (std::uint64_t number = before + 1; number < end; ++number) {
        std::uint64_t& cluster = m_places[static_cast<std::size_t>(number)];
        m_used[static_cast<std::size_t>(cluster)] = false;
        cluster = kUnplaced;
    }
}

// Of the samples that reach into the clusters of the file in (before, end).
MoviePieces::RowLook MoviePieces::lookAtRow(std::uint64_t before, std::uint64_t end) {
    const std::uint64_t from = (before + 1) * m_free.clusterBytes();
    const std::uint64_t to = end * m_free.clusterBytes();
    ClusterFile file(m_medium, m_free, m_places, m_layout.bytes);
    ByteView view(file);
    auto sample = std::lower_bound(
        m_samples.begin(), m_samples.end(), from,
        [](const PromisedSample& each, std::uint64_t at) { return each.at + each.bytes <= at; });
    RowLook look;
    for (; sample != m_samples.end() && sample->at < to; ++sample) {
        const auto even = isEvenPicture(view, *sample);
        const bool broken = even ? !*even : sample->tells() && !isWholeSample(view, *sample);
        look.broken += broken ? 1 : 0;
        look.proved = look.proved && even.value_or(false);
    }
    return look;
}

// The ways in which clusters are given out, the likeliest first: evenly, as while movies are written in turn;
// on behind the one before; and in a row from somewhere else up to the one behind. The one is taken that
// leaves the fewest samples broken.
void MoviePieces::fillRow(std::uint64_t before, std::uint64_t end) {
    struct Way {
        std::uint64_t ahead = 0;
        std::uint64_t step = 1;
    };
    constexpr std::uint64_t kMostWays = 64;
    const std::uint64_t missing = end - before - 1;
    const bool open = end >= m_places.size();
    const std::uint64_t apart = open ? 0
                                     : m_free.stepsBetween(m_places[static_cast<std::size_t>(before)],
                                                           m_places[static_cast<std::size_t>(end)]);
    std::vector<Way> ways;
    if (open) {
        ways.push_back({missing, m_step});
    } else if (apart > missing && apart % (missing + 1) == 0) {
        ways.push_back({missing, apart / (missing + 1)});
    }
    ways.push_back({missing, 1});
    for (std::uint64_t back = 1; !open && back <= std::min(missing, kMostWays); ++back) {
        ways.push_back({missing - back, 1});
    }
    const bool onlyWay = apart == missing + 1;
    std::optional<Way> best;
    std::size_t fewest = 0;
    for (const Way& way : ways) {
        if (m_stop != 0 || !lay(before, end, way.ahead, way.step)) {
            continue;
        }
        const RowLook look = onlyWay ? RowLook() : lookAtRow(before, end);
        if (look.broken == 0) {
            m_guessed += look.proved ? 0 : static_cast<std::size_t>(missing);
            return;
        }
        if (!best || look.broken < fewest) {
            best = way;
            fewest = look.broken;
        }
        lift(before, end);
    }
    if (best && lay(before, end, best->ahead, best->step)) {
        m_guessed += static_cast<std::size_t>(missing);
    }
}

}  // namespace vantor
