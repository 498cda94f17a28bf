// Between two known clusters the others' show as ordinals that are left out. Where turns are of one length
// each known cluster bounds the place in its turn of the first, and lengths for which no place remains drop
// out.
#include "repair/WrittenInTurns.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace vantor {

namespace {

constexpr std::uint64_t kLongestTurn = 1024;  // clusters
constexpr std::uint64_t kFewestTurns = 4;
constexpr std::size_t kLookedAhead = 64;  // known clusters, for the length of the others' turns
constexpr std::size_t kFewTold = 8;  // of these, what speaks for itself where others lie in the way later

// A length of turns, and the places in its turn that the first known cluster may have.
struct Length {
    std::uint64_t own = 0;
    std::uint64_t from = 0;
    std::uint64_t last = 0;

    // Whether any place is left when `turns` lie before the cluster `further` ones behind the first.
    bool bound(std::uint64_t further, std::uint64_t turns) {
        const std::uint64_t begin = turns * own;
        const std::uint64_t end = begin + own - 1;
        if (end < further) {
            return false;
        }
        from = std::max(from, begin > further ? begin - further : 0);
        last = std::min(last, end - further);
        return from <= last;
    }
};

std::uint64_t leftOut(const KnownCluster& before, const KnownCluster& behind) {
    return behind.ordinal - before.ordinal - (behind.number - before.number);
}

// What may lie between two turns, by what is left out between the first known clusters: the least of it where
// these lie densely, else what divides all of it.
std::set<std::uint64_t> othersBehind(std::span<const KnownCluster> known) {
    std::set<std::uint64_t> all;
    std::uint64_t least = 0;
    std::uint64_t divisor = 0;
    for (std::size_t i = 1; i < std::min(known.size(), kLookedAhead); ++i) {
        const std::uint64_t here = leftOut(known[i - 1], known[i]);
        if (here == 0) {
            continue;
        }
        least = least == 0 ? here : std::min(least, here);
        divisor = std::gcd(divisor, here);
        const std::uint64_t apart = known[i].number - known[i - 1].number;
        if (i <= kFewTold && here % apart == 0) {
            all.insert(here / apart);  // turns of one cluster
        }
        if (i <= kFewTold || i + 1 == kLookedAhead) {
            all.insert(divisor);
        }
    }
    if (least != 0) {
        all.insert(least);
        all.insert(divisor);
    }
    return all;
}

// Turns are mostly so many clusters of the file from its first on, and mostly a power of two.
Turns likeliest(const std::vector<Length>& lengths, std::uint64_t firstNumber) {
    Turns turns;
    unsigned best = 0;
    for (const Length& length : lengths) {
        const std::uint64_t inOrder = firstNumber % length.own;
        const bool fits = inOrder >= length.from && inOrder <= length.last;
        const bool even = (length.own & (length.own - 1)) == 0;
        const unsigned worth = 1 + (fits ? 2 : 0) + (even ? 1 : 0);
        if (worth > best) {
            best = worth;
            turns.own = length.own;
            turns.phase = fits ? inOrder : length.from;
        }
    }
    return turns;
}

// From the first of them on, as far as they fit.
Turns turnsFrom(std::span<const KnownCluster> known, std::uint64_t others) {
    std::vector<Length> lengths;
    for (std::uint64_t own = 1; own <= kLongestTurn; ++own) {
        lengths.push_back({own, 0, own - 1});
    }
    std::size_t count = 1;
    std::uint64_t turns = 0;
    for (std::uint64_t out = 0; count < known.size(); ++count) {
        out += leftOut(known[count - 1], known[count]);
        std::vector<Length> left = lengths;
        std::erase_if(left, [&](Length& length) {
            return !length.bound(known[count].number - known.front().number, out / others);
        });
        if (out % others != 0 || left.empty()) {
            break;
        }
        turns = out / others;
        lengths = std::move(left);
    }
    Turns found;
    if (turns >= kFewestTurns) {
        found = likeliest(lengths, known.front().number);
    }
    found.others = others;
    found.first = known.front();
    found.to = count;
    return found;
}

}  // namespace

std::vector<Turns> turnsOf(std::span<const KnownCluster> known) {
    std::vector<Turns> all;
    for (std::size_t from = 0; from + 1 < known.size();) {
        const std::set<std::uint64_t> lengths = othersBehind(known.subspan(from));
        if (lengths.empty()) {
            from += std::min(known.size() - from, kLookedAhead) - 1;
            continue;
        }
        Turns turns;
        for (const std::uint64_t others : lengths) {  // of those that explain the same, the shortest
            const Turns each = turnsFrom(known.subspan(from), others);
            if (each.to > turns.to) {
                turns = each;
            }
        }
        turns.to += from;
        turns.from = from;
        from = turns.to;
        if (turns.own != 0) {
            all.push_back(turns);
        }
    }
    return all;
}

}  // namespace vantor
