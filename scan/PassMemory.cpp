// Two screens in one.
#include "scan/PassMemory.h"

#include <utility>

#include "media/SectorReader.h"

namespace vantor {

namespace {

class ScreenOfTwoPasses final : public SectorScreen {
  public:
    ScreenOfTwoPasses(std::shared_ptr<const HeaderMatcher> now, std::shared_ptr<const HeaderMatcher> later)
        : m_now(std::move(now)), m_later(std::move(later)) {}

    void screen(const std::uint8_t* bytes, std::size_t count, std::uint8_t* looks) const override {
        for (std::size_t n = 0; n < count; ++n) {
            const std::uint8_t* const sector = bytes + n * kSectorBytes;
            const unsigned now = m_now->firstMatch(sector) ? kLookNow : 0U;
            const unsigned later = m_later->firstMatch(sector) ? kLookLater : 0U;
            looks[n] = static_cast<std::uint8_t>(now | later);
        }
    }

  private:
    const std::shared_ptr<const HeaderMatcher> m_now;
    const std::shared_ptr<const HeaderMatcher> m_later;
};

}  // namespace

PassMemory::PassMemory(const QStringList& laterRecords, std::uint64_t mediumSectors)
    : m_records(laterRecords),
      m_mediumSectors(mediumSectors),
      m_later(std::make_shared<const HeaderMatcher>(laterRecords)) {}

std::shared_ptr<const SectorScreen> PassMemory::screenBeside(std::shared_ptr<const HeaderMatcher> now) const {
    return std::make_shared<const ScreenOfTwoPasses>(std::move(now), m_later);
}

}  // namespace vantor
