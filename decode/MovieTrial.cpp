#include "decode/MovieTrial.h"

#include <cstring>

namespace vantor {

std::optional<MovieTrial> tryMovie(int descriptor, const MovieReaderOptions& options) {
    const auto process = decode::HelperProcess::start(decode::movieHelperOf(options), options.startDeadline,
                                                      options.cancelDescriptor());
    decode::Request request;
    request.kind = decode::RequestKind::TryMovie;
    request.maxWidth = decode::kMovieTrialWords;
    request.maxHeight = 1;
    decode::Answer answer;
    if (!process ||
        process->askFile(request, descriptor, options.openDeadline, answer) != decode::AskOutcome::Answered ||
        answer.status != decode::AnswerStatus::Ok || answer.width != decode::kMovieTrialWords) {
        return std::nullopt;
    }
    decode::MovieTrialCounts counts;
    std::memcpy(&counts, process->pixels(), sizeof counts);
    return MovieTrial{counts.pictures, counts.soundFrames, counts.errors};
}

}  // namespace vantor
