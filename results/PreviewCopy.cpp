// The preview's copy loop: unreadable sectors never end it.
#include "results/PreviewCopy.h"

namespace vantor {

PreviewCopyResult copyPreviewSectors(SectorReader& medium, std::uint64_t start, std::uint64_t end,
                                     const std::atomic<int>& stop_now,
                                     const std::function<bool(const std::uint8_t* sector)>& write) {
    PreviewCopyResult result;
    if (start != 0) {
        medium.seek(start);
    }
    for (std::uint64_t sector = start; sector < end; ++sector) {
        if (stop_now == 1) {
            result.end = PreviewCopyEnd::Stopped;
            return result;
        }
        if (!medium.read()) {
            ++result.readsFailed;
            // Where this fails too, the bytes at hand are written all the same.
            medium.seek(sector);
        }
        if (!write(medium.current())) {
            result.end = PreviewCopyEnd::WriteFailed;
            return result;
        }
        ++result.sectorsWritten;
    }
    return result;
}

}  // namespace vantor
