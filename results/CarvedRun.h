// Where on the medium an item's bytes were truly read from.
#pragma once

#include <cstdint>
#include <vector>

#include "media/SectorRun.h"

namespace vantor {

// The item as it lies on the medium. After a failed read the published sector numbers and the places really
// read drift apart; saving uses these runs.
struct CarvedRun {
    std::vector<SectorRun> runs;  // in the order of the item's bytes
    bool readFailed = false;      // a read failed between the item's first sector and its last
    // Which of the item's published sectors, from 0, only repeat the one before, since their read failed.
    std::vector<SectorRun> repeats = {};

    void add(std::uint64_t sector) { append(runs, sector); }
    void addRepeat(std::uint64_t published) { append(repeats, published); }

    std::uint64_t sectors() const {
        std::uint64_t sum = 0;
        for (const SectorRun& run : runs) {
            sum += run.end - run.first;
        }
        return sum;
    }

  private:
    static void append(std::vector<SectorRun>& to, std::uint64_t sector) {
        if (!to.empty() && to.back().end == sector) {
            ++to.back().end;
        } else {
            to.push_back({sector, sector + 1});
        }
    }
};

}  // namespace vantor
