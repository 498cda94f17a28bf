// One pass over the table, with the found starts beside it.
#include "results/ToldFiles.h"

#include <QObject>
#include <algorithm>
#include <set>

#include "results/SizeForPeople.h"

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
// a card that was made so, together they take no more than twice the room that there is. The small ones have
// theirs first, so that one row that claims the medium takes away no more than itself.
std::uint64_t roomFor(const std::vector<CardFile>& files) {
    std::uint64_t furthest = 0;
    for (const CardFile& file : files) {
        for (const SectorRun& run : file.runs) {
            furthest = std::max(furthest, run.end);
        }
    }
    return 2 * furthest;
}

// Takes out those that no room is left for, and tells how many; the others keep their order.
std::uint64_t leaveOutBeyond(std::uint64_t room, std::vector<const CardFile*>& files) {
    std::vector<const CardFile*> bySize = files;
    std::stable_sort(bySize.begin(), bySize.end(),
                     [](const CardFile* a, const CardFile* b) { return sectorsOf(*a) < sectorsOf(*b); });
    const auto end = std::find_if(bySize.begin(), bySize.end(), [&room](const CardFile* file) {
        const bool fits = sectorsOf(*file) <= room;
        room -= fits ? sectorsOf(*file) : 0;
        return !fits;
    });
    const std::set<const CardFile*> beyond(end, bySize.end());
    return std::erase_if(files, [&beyond](const CardFile* file) { return beyond.contains(file); });
}

}  // namespace

std::vector<std::shared_ptr<const CardFile>> toldOnly(const std::shared_ptr<const CardIndex>& card,
                                                      const std::vector<std::uint64_t>& foundStarts,
                                                      const ToldWish& wish, std::uint64_t* beyondRoom) {
    std::vector<const CardFile*> wanted;
    for (const CardFile& file : card->table().files) {
        if (file.name.isEmpty() || file.runs.empty() || dataBytesOf(file) == 0) {
            continue;
        }
        const std::uint64_t first = file.runs.front().first;
        const bool searched = first >= wish.searched.first && first < wish.searched.end;
        const bool isFound =
            file.holes.empty() && std::binary_search(foundStarts.begin(), foundStarts.end(), first);
        if (searched && !isFound && wish.isWanted(file.name) && hasItsPlace(file, *card, foundStarts)) {
            wanted.push_back(&file);
        }
    }
    const std::uint64_t beyond = leaveOutBeyond(roomFor(card->table().files), wanted);
    if (beyondRoom != nullptr) {
        *beyondRoom = beyond;
    }
    std::vector<std::shared_ptr<const CardFile>> told;
    for (const CardFile* const file : wanted) {
        told.emplace_back(card, file);
    }
    return told;
}

QString wordsForBeyondRoom(std::uint64_t files) {
    return files == 0 ? QString()
                      : QObject::tr(
                            "%1 left out: all that only the card's directory tells of would fill the "
                            "card more than twice",
                            nullptr, pluralOf(files))
                            .arg(numberForPeople(files));
}

CarvedRun runsOf(const CardFile& file) {
    return {runsOfData(file), false};
}

}  // namespace vantor
