// One movie helper with a file opened in it: what asking for pictures and asking for sound have in common.
#pragma once

#include <QSize>
#include <QString>
#include <chrono>
#include <cstdint>
#include <memory>

#include "decode/CancelSignal.h"
#include "decode/HelperProcess.h"

namespace vantor {

struct MovieReaderOptions {
    QString helper;  // path of the movie helper; empty = beside the program
    std::chrono::milliseconds startDeadline{10000};
    std::chrono::milliseconds openDeadline{5000};
    std::chrono::milliseconds frameDeadline{3000};
    // Ends the reader at once when it is raised, whatever is under way; must outlive it.
    const CancelSignal* cancel = nullptr;

    int cancelDescriptor() const { return cancel ? cancel->descriptor() : -1; }
};

namespace decode {

// Path of the helper that the options name.
QString movieHelperOf(const MovieReaderOptions& options);

// Made, used and destroyed on one thread, which must outlive it: the system ends the helper with that thread.
class MovieHelper {
  public:
    // Starts a helper, has it open the file and answer the first request; null when it cannot be started or
    // finds nothing of that kind in the file. An answer is no larger than the bound.
    static std::unique_ptr<MovieHelper> open(RequestKind kind, const QString& path, QSize bound,
                                             MovieReaderOptions options, Answer& answer);

    // Whether there is an answer with something in it. Blocks until the deadline of a frame at most; after a
    // crash or a missed deadline the helper is over. `timeMs` below 0 asks for what follows.
    bool ask(RequestKind kind, std::int64_t timeMs, Answer& answer);

    bool isOver() const { return !m_process; }
    pid_t pid() const { return m_process ? m_process->pid() : -1; }
    // Holds the pixels or samples of an answer just given.
    const HelperProcess& process() const { return *m_process; }

  private:
    MovieHelper(std::unique_ptr<HelperProcess> process, QSize bound, MovieReaderOptions options);
    bool exchange(RequestKind kind, int file, std::int64_t timeMs, std::chrono::milliseconds deadline,
                  Answer& answer);

    std::unique_ptr<HelperProcess> m_process;
    const QSize m_bound;
    const MovieReaderOptions m_options;
};

}  // namespace decode
}  // namespace vantor
