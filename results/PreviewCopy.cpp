// The preview's copy loop: unreadable sectors never end it.
#include "results/PreviewCopy.h"

namespace vantor {

bool copyPreviewSectors(SectorReader& medium, std::uint64_t start, std::uint64_t end,
                        const std::atomic<int>& stop_now,
                        const std::function<bool(const std::uint8_t* sector)>& write) {
    bool allRead = true;
    if (start != 0) {
        medium.seek(start);
    }
    for (std::uint64_t sector = start; sector < end && stop_now != 1; ++sector) {
        if (!medium.read()) {
            // Where this fails too, the bytes at hand are written all the same.
            medium.seek(sector);
            allRead = false;
        }
        if (!write(medium.current())) {
            break;
        }
    }
    return allRead;
}

}  // namespace vantor
