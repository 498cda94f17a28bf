// Starting a movie helper with a file, and the requests that follow.
#include "decode/MovieHelper.h"

#include <utility>

#include "decode/DecodePool.h"
#include "decode/RegularFile.h"

namespace vantor::decode {

QString movieHelperOf(const MovieReaderOptions& options) {
    return options.helper.isEmpty() ? DecodePool::helperPath(QStringLiteral("vantor-decode-movie"))
                                    : options.helper;
}

MovieHelper::MovieHelper(std::unique_ptr<HelperProcess> process, QSize bound, MovieReaderOptions options)
    : m_process(std::move(process)), m_bound(bound), m_options(std::move(options)) {}

std::unique_ptr<MovieHelper> MovieHelper::open(RequestKind kind, const QString& path, QSize bound,
                                               MovieReaderOptions options, Answer& answer) {
    const RegularFile file(path);
    if (bound.isEmpty() || !file.isOpen()) {
        return nullptr;
    }
    auto process =
        HelperProcess::start(movieHelperOf(options), options.startDeadline, options.cancelDescriptor());
    if (!process) {
        return nullptr;
    }
    std::unique_ptr<MovieHelper> helper(new MovieHelper(std::move(process), bound, std::move(options)));
    const bool opened = helper->exchange(kind, file.descriptor(), -1, helper->m_options.openDeadline, answer);
    return opened ? std::move(helper) : nullptr;
}

bool MovieHelper::ask(RequestKind kind, std::int64_t timeMs, Answer& answer) {
    return exchange(kind, -1, timeMs, m_options.frameDeadline, answer);
}

bool MovieHelper::exchange(RequestKind kind, int file, std::int64_t timeMs,
                           std::chrono::milliseconds deadline, Answer& answer) {
    if (!m_process) {
        return false;
    }
    Request request;
    request.kind = kind;
    request.timeMs = timeMs;
    request.maxWidth = static_cast<std::uint32_t>(m_bound.width());
    request.maxHeight = static_cast<std::uint32_t>(m_bound.height());
    if (m_process->askFile(request, file, deadline, answer) != AskOutcome::Answered) {
        m_process.reset();
        return false;
    }
    return answer.status == AnswerStatus::Ok;
}

}  // namespace vantor::decode
