// Drawing of the progress line, and the speed behind it.
#include "cli/ProgressLine.h"

#include <condition_variable>
#include <cstdio>
#include <mutex>

#include "cli/CliSession.h"
#include "media/SectorReader.h"
#include "scan/ProgressText.h"

namespace vantor {

namespace {

constexpr auto kTick = std::chrono::milliseconds(500);
constexpr auto kWindow = std::chrono::minutes(1);
constexpr double kMegabyte = 1e6;

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

QString durationText(double seconds) {
    const auto whole = static_cast<qint64>(seconds + 0.5);
    if (whole < 60) {
        return QStringLiteral("%1 s").arg(whole);
    }
    if (whole < 3600) {
        return QStringLiteral("%1 min %2 s").arg(whole / 60).arg(whole % 60);
    }
    return QStringLiteral("%1 h %2 min").arg(whole / 3600).arg(whole % 3600 / 60);
}

ProgressLine::ProgressLine(const CliSession& session)
    : m_session(session), m_thread([this](const std::stop_token& stop) {
          std::mutex mutex;
          std::condition_variable_any wake;
          std::unique_lock lock(mutex);
          while (!stop.stop_requested()) {
              draw();
              wake.wait_for(lock, stop, kTick, [] { return false; });
          }
          std::fputs("\r\033[K", stderr);
      }) {}

ProgressLine::~ProgressLine() = default;

void ProgressLine::draw() {
    const std::uint64_t index = m_session.for_index;
    const std::uint64_t start = m_session.start_sector;
    const std::uint64_t end = m_session.end_sector;
    if (index < start || index > end) {
        return;
    }
    m_speed.note(SpeedMeter::Clock::now(), index - start);
    const double left = m_speed.secondsFor(end - index);
    const QString text =
        QStringLiteral("%1%  %2 MB/s  %3  %4 found")
            .arg(percentDone(index, start, m_session.total_sector), 3)
            .arg(m_speed.bytesPerSecond() / kMegabyte, 0, 'f', 1)
            .arg(left < 0 ? QStringLiteral("estimating") : durationText(left) + QStringLiteral(" left"))
            .arg(m_session.publishedCount());
    std::fprintf(stderr, "\r\033[K%s", qPrintable(text));
    std::fflush(stderr);
}

}  // namespace vantor
