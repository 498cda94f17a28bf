// How a file lies among others that were written at the same time: so many clusters of it, so many of theirs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantor {

// A cluster of a file whose place is known.
struct KnownCluster {
    std::uint64_t number = 0;   // in the file
    std::uint64_t ordinal = 0;  // among the clusters that may be the file's or another's, in their order
};

// Turns of one length, which explain the known clusters [from, to).
struct Turns {
    std::size_t from = 0;
    std::size_t to = 0;
    std::uint64_t own = 0;     // clusters of the file in a turn
    std::uint64_t others = 0;  // of others between two turns
    std::uint64_t phase = 0;   // of the first known one in its turn
    KnownCluster first;

    std::uint64_t ordinalOf(std::uint64_t number) const {
        return first.ordinal + number - first.number + turnsBefore(number) * others;
    }

  private:
    std::uint64_t turnsBefore(std::uint64_t number) const { return (number - first.number + phase) / own; }
};

// What is explained by turns, several of them at least; `known` in the order of the file, whose ordinals rise
// at least as its numbers do.
std::vector<Turns> turnsOf(std::span<const KnownCluster> known);

}  // namespace vantor
