// The preview's copy loop: unreadable sectors never end it.
#include "results/PreviewCopy.h"

namespace vantor {

bool copyPreviewSectors(SectorReader& medium, std::uint64_t start, std::uint64_t end,
                        const std::atomic<int>& stop_now,
                        const std::function<bool(const std::uint8_t* sector)>& write) {
    bool faithful = start == 0 || medium.seek(start);
    for (std::uint64_t sector = start; sector < end; ++sector) {
        if (stop_now == 1) {
            return false;
        }
        if (!medium.read()) {
            faithful = false;
            // Where this fails too, the bytes at hand are written all the same.
            medium.seek(sector);
        }
        if (!write(medium.current())) {
            return false;
        }
    }
    return faithful;
}

}  // namespace vantor
