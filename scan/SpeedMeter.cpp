// The moments of the last minute.
#include "scan/SpeedMeter.h"

#include "media/SectorReader.h"

namespace vantor {

namespace {

constexpr auto kWindow = std::chrono::minutes(1);

}  // namespace

void SpeedMeter::note(Clock::time_point when, std::uint64_t sectorsDone) {
    if (!m_moments.empty() && sectorsDone < m_moments.back().sectors) {
        m_moments.clear();  // another pass began
    }
    m_moments.push_back({when, sectorsDone});
    while (m_moments.size() > 2 && when - m_moments.front().when > kWindow) {
        m_moments.pop_front();
    }
}

double SpeedMeter::bytesPerSecond() const {
    if (m_moments.size() < 2) {
        return 0;
    }
    const std::chrono::duration<double> span = m_moments.back().when - m_moments.front().when;
    const auto sectors = static_cast<double>(m_moments.back().sectors - m_moments.front().sectors);
    return span.count() > 0 ? sectors * static_cast<double>(kSectorBytes) / span.count() : 0;
}

double SpeedMeter::secondsFor(std::uint64_t sectors) const {
    const double speed = bytesPerSecond();
    return speed > 0 ? static_cast<double>(sectors) * static_cast<double>(kSectorBytes) / speed : -1;
}

}  // namespace vantor
