// Two screens in one, and the sectors that both passes look at.
#include "scan/PassMemory.h"

#include <algorithm>
#include <utility>

#include "catalogue/SignatureRecord.h"
#include "media/SectorReader.h"

namespace vantor {

namespace {

class ScreenOfTwoPasses final : public SectorScreen {
  public:
    ScreenOfTwoPasses(std::shared_ptr<const HeaderMatcher> now, std::shared_ptr<const HeaderMatcher> later,
                      const QStringList& recordsOfBoth)
        : m_now(std::move(now)), m_later(std::move(later)), m_both(recordsOfBoth) {}

    // Most sectors are of no pass, which is asked once.
    void screen(const std::uint8_t* bytes, std::size_t count, std::uint8_t* looks) const override {
        for (std::size_t n = 0; n < count; ++n) {
            const std::uint8_t* const sector = bytes + n * kSectorBytes;
            looks[n] = m_both.firstMatch(sector) ? looksOf(sector) : std::uint8_t{0};
        }
    }

  private:
    std::uint8_t looksOf(const std::uint8_t* sector) const {
        const unsigned now = m_now->firstMatch(sector) ? kLookNow : 0U;
        const unsigned later = m_later->firstMatch(sector) ? kLookLater : 0U;
        return static_cast<std::uint8_t>(now | later);
    }

    const std::shared_ptr<const HeaderMatcher> m_now;
    const std::shared_ptr<const HeaderMatcher> m_later;
    const HeaderMatcher m_both;
};

}  // namespace

PassMemory::PassMemory(const QStringList& laterRecords, std::uint64_t mediumSectors)
    : m_records(laterRecords),
      m_mediumSectors(mediumSectors),
      m_later(std::make_shared<const HeaderMatcher>(laterRecords)) {}

void PassMemory::keep(std::uint64_t sector, const std::uint8_t* bytes) {
    KeptSector& kept = m_kept.emplace_back();
    kept.sector = sector;
    std::copy_n(bytes, kSectorBytes, kept.bytes.begin());
}

const std::uint8_t* PassMemory::bytesOf(std::uint64_t sector) const {
    const auto kept = std::ranges::lower_bound(m_kept, sector, {}, &KeptSector::sector);
    return kept != m_kept.end() && kept->sector == sector ? kept->bytes.data() : nullptr;
}

std::shared_ptr<const SectorScreen> PassMemory::screenBeside(std::shared_ptr<const HeaderMatcher> now,
                                                             const QStringList& recordsNow) const {
    return std::make_shared<const ScreenOfTwoPasses>(
        std::move(now), m_later, recordsNow.first(recordCount(recordsNow) * kRecordStride) + m_records);
}

}  // namespace vantor
