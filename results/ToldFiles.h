// Files that only the card's directory tells of: texts, sidecars and whatever else no signature finds.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "media/SectorRun.h"
#include "results/CardIndex.h"
#include "results/CarvedRun.h"

namespace vantor {

struct ToldWish {
    SectorRun searched;  // files that begin elsewhere were not looked for
    // Whether a file of that name belongs to what was searched for, or to nothing that could be searched for.
    std::function<bool(const QString& name)> isWanted;
};

// Those that begin at none of the found starts (sorted sectors), in the order of the card's table. Of files
// that are gone only those whose place is certain enough: nothing that is there now, no other file that a
// directory tells of and nothing found lies in it. Together they take no more than twice the room of the
// medium: the largest of them are left out, and `beyondRoom` gets how many. They share the index.
std::vector<std::shared_ptr<const CardFile>> toldOnly(const std::shared_ptr<const CardIndex>& card,
                                                      const std::vector<std::uint64_t>& foundStarts,
                                                      const ToldWish& wish,
                                                      std::uint64_t* beyondRoom = nullptr);

// That so many were left out, as a line for people; empty where none was.
QString wordsForBeyondRoom(std::uint64_t files);

// Its bytes as an item's, to be saved: whole sectors.
CarvedRun runsOf(const CardFile& file);

}  // namespace vantor
