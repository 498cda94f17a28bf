// Opening a movie and asking for its frames.
#include "decode/MovieReader.h"

#include <algorithm>
#include <utility>

#include "decode/SharedPixels.h"

namespace vantor {

using decode::Answer;
using decode::MovieHelper;
using decode::RequestKind;

MovieReader::MovieReader(std::unique_ptr<MovieHelper> helper, const Answer& answer)
    : m_helper(std::move(helper)),
      m_fullSize(decode::fullSizeOf(answer)),
      m_durationMs(std::max<std::int64_t>(0, answer.durationMs)),
      m_hasSound((answer.flags & decode::kHasSound) != 0),
      m_poster(frameOf(answer)) {}

std::unique_ptr<MovieReader> MovieReader::open(const QString& path, QSize bound, MovieReaderOptions options) {
    return openAs(RequestKind::OpenMovie, path, bound, std::move(options));
}

QImage MovieReader::cover(const QString& path, QSize bound, MovieReaderOptions options) {
    const auto reader = openAs(RequestKind::OpenCover, path, bound, std::move(options));
    return reader ? reader->poster().image : QImage();
}

std::unique_ptr<MovieReader> MovieReader::openAs(RequestKind kind, const QString& path, QSize bound,
                                                 MovieReaderOptions options) {
    Answer answer;
    auto helper = MovieHelper::open(kind, path, bound, std::move(options), answer);
    return helper ? std::unique_ptr<MovieReader>(new MovieReader(std::move(helper), answer)) : nullptr;
}

std::optional<MovieFrame> MovieReader::next() {
    return frameAt(-1);
}

std::optional<MovieFrame> MovieReader::seek(std::int64_t timeMs) {
    return frameAt(std::max<std::int64_t>(0, timeMs));
}

std::optional<MovieFrame> MovieReader::frameAt(std::int64_t timeMs) {
    Answer answer;
    return m_helper->ask(RequestKind::NextFrame, timeMs, answer) ? std::optional(frameOf(answer))
                                                                 : std::nullopt;
}

MovieFrame MovieReader::frameOf(const Answer& answer) const {
    return {decode::copyOfPixels(m_helper->process(), answer), std::max<std::int64_t>(0, answer.timeMs)};
}

}  // namespace vantor
