// Clusters of a file, and which of the medium's they are taken to be.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace vantor {

struct LaidClusters {
    static constexpr std::uint64_t kUnplaced = ~std::uint64_t{0};

    std::vector<std::uint64_t> places;  // cluster of the medium for each of the file
    std::vector<bool> used;             // clusters of the medium that are placed

    bool isPlaced(std::uint64_t number) const { return at(number) != kUnplaced; }
    std::uint64_t at(std::uint64_t number) const { return places[static_cast<std::size_t>(number)]; }
    bool isUsed(std::uint64_t cluster) const { return used[static_cast<std::size_t>(cluster)]; }

    void place(std::uint64_t number, std::uint64_t cluster);
    // Takes those of the file in (before, end) back, as far as they are placed.
    void lift(std::uint64_t before, std::uint64_t end);
    void liftAll();

    // From the place of one cluster of the file to that of its neighbour.
    using Step = std::function<std::optional<std::uint64_t>(std::uint64_t number, std::uint64_t neighbour)>;
    // Places those in (before, end): `ahead` of them each behind the one before, the others each in front of
    // the one behind. False where one is not to be had; none of them is placed then.
    bool lay(std::uint64_t before, std::uint64_t end, std::uint64_t ahead, const Step& behind,
             const Step& inFront);
};

}  // namespace vantor
