#include "decode/ErasedCardCheck.h"

#include "filesystem/ErasedCard.h"
#include "filesystem/ReaderSource.h"

namespace vantor {

bool looksErased(SectorReader& medium, std::uint64_t sectors, const CardHelperOptions& options) {
    if (sectors < kSmallestErased) {
        return false;  // what cannot be told is not read for
    }
    ReaderSource source(medium, sectors);
    const std::vector<std::uint64_t> written = writtenPlaces(source);
    if (medium.isGone() || written.size() > kLooksForErasure / 8) {
        return false;
    }
    const auto table = readCardInHelper(medium, sectors, {}, {}, options);
    return table && isErased(source, written, *table);
}

}  // namespace vantor
