// Drawing of the progress line, and the speed behind it.
#include "cli/ProgressLine.h"

#include <QObject>
#include <condition_variable>
#include <cstdio>
#include <mutex>

#include "cli/CliSession.h"
#include "saving/CopyWords.h"
#include "scan/ProgressText.h"

namespace vantor {

namespace {

constexpr auto kTick = std::chrono::milliseconds(500);

}  // namespace

ProgressLine::ProgressLine(const CliSession& session, std::shared_ptr<const MediumCopy> copy)
    : m_session(session), m_copy(std::move(copy)), m_thread([this](const std::stop_token& stop) {
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
    const auto drawn = [](const CompletionProgress& progress, const char* words) {
        if (progress.of == 0) {
            return false;
        }
        std::fprintf(stderr, "\r\033[K%s",
                     qPrintable(QObject::tr(words).arg(progress.looked.load()).arg(progress.of.load())));
        std::fflush(stderr);
        return true;
    };
    if (drawn(m_session.checking(),
              QT_TRANSLATE_NOOP("QObject", "Checking the content of saved files: %1 of %2")) ||
        drawn(m_session.completing(), QT_TRANSLATE_NOOP("QObject", "Completing broken files: %1 of %2"))) {
        return;
    }
    const std::uint64_t index = m_session.for_index;
    const std::uint64_t start = m_session.start_sector;
    const std::uint64_t end = m_session.end_sector;
    if (index < start || index > end) {
        return;
    }
    if (const std::uint64_t total = m_session.total_sector; total != m_total || index - start < m_done) {
        m_total = total;
        m_meter.begin(total);  // another pass began
    }
    m_done = index - start;
    const auto now = std::chrono::steady_clock::now() - m_begun;
    m_meter.update(std::chrono::duration_cast<std::chrono::milliseconds>(now).count(), m_done);
    QString text = QStringLiteral("%1%   %2")
                       .arg(percentDone(index, start, m_session.total_sector), 3)
                       .arg(m_meter.text(m_session.publishedCount()));
    if (m_copy) {
        text += QStringLiteral("  ·  ") + copyWords(m_copy->progress());
    }
    std::fprintf(stderr, "\r\033[K%s", qPrintable(text));
    std::fflush(stderr);
}

}  // namespace vantor
