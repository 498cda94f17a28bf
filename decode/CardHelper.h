// The way to the table of a card's files: its directories are hostile input, so a helper reads them.
#pragma once

#include <QString>
#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

#include "filesystem/CardTable.h"
#include "filesystem/CardTraces.h"
#include "media/AbandonableSource.h"
#include "media/SectorReader.h"

namespace vantor {

struct CardHelperOptions {
    QString helper;  // path of the helper executable; empty = beside the program
    std::chrono::milliseconds startDeadline{10000};
    // From one question of the helper's to the next, the medium's own time apart.
    std::chrono::milliseconds stepDeadline{60000};
    // Asked from another thread: a helper that is not done so long after a stop is ended, whatever it is
    // doing.
    StopRequest stop = {};
    std::chrono::milliseconds afterStop{2000};
};

// What readCard() makes of the medium, which is read here for the helper and is nobody else's meanwhile.
// Nothing when no helper can be started or shut in, when it crashes, hangs, says what cannot be or is ended
// by a stop. Blocks; the thread that calls it reads the medium.
std::optional<CardTable> readCardInHelper(SectorReader& medium, std::uint64_t sectors,
                                          const CardTraces& traces, const std::vector<FoundStart>& found,
                                          CardHelperOptions options = {});

}  // namespace vantor
