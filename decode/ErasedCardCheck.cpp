#include "decode/ErasedCardCheck.h"

#include <algorithm>
#include <array>
#include <memory>

#include "filesystem/ErasedCard.h"
#include "filesystem/ReaderSource.h"

namespace vantor {

namespace {

// Has a reader ask for the places that are looked at alone: of the windows around them nothing is wanted.
class PlacesAlone final : public SectorRecall {
  public:
    explicit PlacesAlone(std::uint64_t sectors) : m_sectors(sectors) {
        for (std::uint64_t i = 0; i < m_places.size(); ++i) {
            m_places[i] = lookForErasure(i, sectors);
        }
        std::sort(m_places.begin(), m_places.end());
    }

    std::uint64_t quietUntil(std::uint64_t sector) const override {
        const auto next = std::lower_bound(m_places.begin(), m_places.end(), sector);
        return next != m_places.end() ? *next : std::max(sector, m_sectors);
    }

  private:
    const std::uint64_t m_sectors;
    std::array<std::uint64_t, kLooksForErasure> m_places{};
};

}  // namespace

bool looksErased(SectorReader& medium, std::uint64_t sectors, const CardHelperOptions& options) {
    if (sectors < kSmallestErased) {
        return false;  // what cannot be told is not read for
    }
    ReaderSource source(medium, sectors);
    medium.setRecall(std::make_shared<PlacesAlone>(sectors));
    const std::vector<std::uint64_t> written = writtenPlaces(source);
    medium.setRecall(nullptr);
    if (medium.isGone() || written.size() > kLooksForErasure / 8) {
        return false;
    }
    const auto table = readCardInHelper(medium, sectors, {}, {}, options);
    return table && isErased(source, written, *table);
}

}  // namespace vantor
