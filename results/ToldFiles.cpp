// One pass over the table, with the found starts beside it.
#include "results/ToldFiles.h"

#include <algorithm>

namespace vantor {

namespace {

// Beyond what may be found of one with holes where it begins.
bool holdsAnyOf(const CardFile& file, const std::vector<std::uint64_t>& starts) {
    const std::vector<SectorRun> runs = runsOfData(file);
    return std::any_of(runs.begin(), runs.end(), [&](const SectorRun& run) {
        const bool isOwn = !file.holes.empty() && run.first == file.runs.front().first;
        const auto next = std::lower_bound(starts.begin(), starts.end(), run.first + (isOwn ? 1 : 0));
        return next != starts.end() && *next < run.end;
    });
}

// Whether its bytes are where the directory says, as far as can be told without looking at them.
bool hasItsPlace(const CardFile& file, const CardIndex& card, const std::vector<std::uint64_t>& starts) {
    if (file.state == FileState::Live || !file.contents.isEmpty()) {
        return true;
    }
    if (card.isWrittenOver(file) || card.isDisputed(file) || holdsAnyOf(file, starts)) {
        return false;
    }
    return file.runsKnownBy < RunsKnownBy::Guess || card.isInOneFreePiece(file);
}

// What it takes where it is saved: holes are written there.
std::uint64_t sectorsOf(const CardFile& file) {
    std::uint64_t sum = 0;
    for (const auto* const stretches : {&file.runs, &file.holes}) {
        for (const SectorRun& run : *stretches) {
            sum += run.end - run.first;
        }
    }
    return sum;
}

// All files of a sound file system lie beside each other; where many are said to lie in the same place, as on
// a card that was made so, together they take no more than twice the room that there is.
std::uint64_t roomFor(const std::vector<CardFile>& files) {
    std::uint64_t furthest = 0;
    for (const CardFile& file : files) {
        for (const SectorRun& run : file.runs) {
            furthest = std::max(furthest, run.end);
        }
    }
    return 2 * furthest;
}

}  // namespace

std::vector<std::shared_ptr<const CardFile>> toldOnly(const std::shared_ptr<const CardIndex>& card,
                                                      const std::vector<std::uint64_t>& foundStarts,
                                                      const ToldWish& wish) {
    std::vector<std::shared_ptr<const CardFile>> told;
    std::uint64_t left = roomFor(card->table().files);
    for (const CardFile& file : card->table().files) {
        if (file.name.isEmpty() || file.runs.empty() || dataBytesOf(file) == 0) {
            continue;
        }
        const std::uint64_t first = file.runs.front().first;
        const bool searched = first >= wish.searched.first && first < wish.searched.end;
        const bool isFound =
            file.holes.empty() && std::binary_search(foundStarts.begin(), foundStarts.end(), first);
        if (searched && !isFound && sectorsOf(file) <= left && wish.isWanted(file.name) &&
            hasItsPlace(file, *card, foundStarts)) {
            left -= sectorsOf(file);
            told.emplace_back(card, &file);
        }
    }
    return told;
}

CarvedRun runsOf(const CardFile& file) {
    return {runsOfData(file), false};
}

}  // namespace vantor
