// How a pass reads, and who remembers what it reads.
#pragma once

#include "media/RefusedSectors.h"
#include "media/SectorReader.h"
#include "scan/PassMemory.h"
#include "scan/SearchKeeper.h"

namespace vantor {

struct PassReading {
    PassMemory* forLater = nullptr;                // for the pass behind this one
    SearchKeeper* keeper = nullptr;                // for another run of the program
    bool recalls = false;                          // sectors that were read before are not read again
    std::uint64_t stopBefore = SectorBits::kNone;  // sector

    bool remembers() const { return forLater != nullptr || keeper != nullptr; }

    // For every read; `medium` stands behind the sector where it succeeded.
    void note(const SectorReader& medium, bool succeeded, const RefusedSectors& refusals) const {
        if (succeeded && forLater != nullptr) {
            forLater->note(medium.position() - 1, medium.looks(), medium.current());
        }
        if (keeper != nullptr) {
            if (succeeded) {
                keeper->note(medium.position() - 1, medium.looks(), medium.current());
            } else {
                keeper->noteFailure(medium.position());
            }
            keeper->tick(!succeeded, refusals);
        }
    }
};

}  // namespace vantor
