// Drawing of the progress line, and the speed behind it.
#include "cli/ProgressLine.h"

#include <condition_variable>
#include <cstdio>
#include <mutex>

#include "cli/CliSession.h"
#include "scan/ProgressText.h"

namespace vantor {

namespace {

constexpr auto kTick = std::chrono::milliseconds(500);
constexpr double kMegabyte = 1e6;

}  // namespace

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
