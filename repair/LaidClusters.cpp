#include "repair/LaidClusters.h"

namespace vantor {

void LaidClusters::place(std::uint64_t number, std::uint64_t cluster) {
    places[static_cast<std::size_t>(number)] = cluster;
    used[static_cast<std::size_t>(cluster)] = true;
}

void LaidClusters::lift(std::uint64_t before, std::uint64_t end) {
    for (std::uint64_t number = before + 1; number < end; ++number) {
        if (isPlaced(number)) {
            used[static_cast<std::size_t>(at(number))] = false;
            places[static_cast<std::size_t>(number)] = kUnplaced;
        }
    }
}

void LaidClusters::liftAll() {
    for (std::uint64_t& cluster : places) {
        if (cluster != kUnplaced) {
            used[static_cast<std::size_t>(cluster)] = false;
            cluster = kUnplaced;
        }
    }
}

bool LaidClusters::lay(std::uint64_t before, std::uint64_t end, std::uint64_t ahead, const Step& behind,
                       const Step& inFront) {
    const auto put = [&](std::uint64_t number, std::optional<std::uint64_t> cluster) {
        if (!cluster || isUsed(*cluster)) {
            lift(before, end);
            return false;
        }
        place(number, *cluster);
        return true;
    };
    for (std::uint64_t number = before + 1; number < end && number - before <= ahead; ++number) {
        if (!put(number, behind(number, at(number - 1)))) {
            return false;
        }
    }
    for (std::uint64_t number = end - 1; number > before + ahead; --number) {
        if (!put(number, inFront(number, at(number + 1)))) {
            return false;
        }
    }
    return true;
}

}  // namespace vantor
