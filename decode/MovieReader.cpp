// Opening a movie and asking for its frames.
#include "decode/MovieReader.h"

#include <unistd.h>

#include <algorithm>

#include "decode/DecodePool.h"
#include "decode/RegularFile.h"
#include "decode/SharedPixels.h"

namespace vantor {

using decode::Answer;
using decode::AnswerStatus;
using decode::AskOutcome;
using decode::HelperProcess;
using decode::Request;
using decode::RequestKind;

MovieReader::MovieReader(std::unique_ptr<HelperProcess> helper, QSize bound, MovieReaderOptions options)
    : m_helper(std::move(helper)), m_bound(bound), m_options(std::move(options)) {}

std::unique_ptr<MovieReader> MovieReader::open(const QString& path, QSize bound, MovieReaderOptions options) {
    return openAs(RequestKind::OpenMovie, path, bound, std::move(options));
}

QImage MovieReader::cover(const QString& path, QSize bound, MovieReaderOptions options) {
    const auto reader = openAs(RequestKind::OpenCover, path, bound, std::move(options));
    return reader ? reader->poster().image : QImage();
}

std::unique_ptr<MovieReader> MovieReader::openAs(RequestKind kind, const QString& path, QSize bound,
                                                 MovieReaderOptions options) {
    if (options.helper.isEmpty()) {
        options.helper = DecodePool::helperPath(QStringLiteral("vantor-decode-movie"));
    }
    const decode::RegularFile file(path);
    if (bound.isEmpty() || !file.isOpen()) {
        return nullptr;
    }
    auto helper = HelperProcess::start(options.helper, options.startDeadline, options.cancelDescriptor());
    if (!helper) {
        return nullptr;
    }
    std::unique_ptr<MovieReader> reader(new MovieReader(std::move(helper), bound, std::move(options)));
    Answer answer;
    auto poster = reader->ask(kind, file.descriptor(), -1, reader->m_options.openDeadline, answer);
    if (!poster) {
        return nullptr;
    }
    reader->m_poster = std::move(*poster);
    reader->m_fullSize = decode::fullSizeOf(answer);
    reader->m_durationMs = std::max<std::int64_t>(0, answer.durationMs);
    reader->m_hasSound = (answer.flags & decode::kHasSound) != 0;
    return reader;
}

std::optional<MovieFrame> MovieReader::next() {
    Answer answer;
    return ask(RequestKind::NextFrame, -1, -1, m_options.frameDeadline, answer);
}

std::optional<MovieFrame> MovieReader::seek(std::int64_t timeMs) {
    Answer answer;
    return ask(RequestKind::NextFrame, -1, std::max<std::int64_t>(0, timeMs), m_options.frameDeadline,
               answer);
}

std::optional<MovieFrame> MovieReader::ask(RequestKind kind, int file, std::int64_t timeMs,
                                           std::chrono::milliseconds deadline, Answer& answer) {
    if (!m_helper) {
        return std::nullopt;
    }
    Request request;
    request.kind = kind;
    request.timeMs = timeMs;
    request.maxWidth = static_cast<std::uint32_t>(m_bound.width());
    request.maxHeight = static_cast<std::uint32_t>(m_bound.height());
    const AskOutcome outcome = m_helper->askFile(request, file, deadline, answer);
    if (outcome != AskOutcome::Answered) {
        m_helper.reset();
        return std::nullopt;
    }
    if (answer.status != AnswerStatus::Ok) {
        return std::nullopt;
    }
    return MovieFrame{decode::copyOfPixels(*m_helper, answer), std::max<std::int64_t>(0, answer.timeMs)};
}

}  // namespace vantor
