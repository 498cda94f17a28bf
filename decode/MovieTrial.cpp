#include "decode/MovieTrial.h"

#include <cstring>

namespace vantor {

std::optional<MovieTrial> tryMovie(int descriptor, TrialLength length, const MovieReaderOptions& options) {
    const auto process = decode::HelperProcess::start(decode::movieHelperOf(options), options.startDeadline,
                                                      options.cancelDescriptor());
    decode::Request request;
    request.kind = decode::RequestKind::TryMovie;
    request.maxWidth = decode::kMovieTrialWords;
    request.maxHeight = 1;
    const auto wanted = length == TrialLength::Whole ? kMostTrialTime : std::chrono::milliseconds(0);
    request.timeMs = wanted.count();
    decode::Answer answer;
    if (!process ||
        process->askFile(request, descriptor, options.openDeadline + wanted, answer) !=
            decode::AskOutcome::Answered ||
        answer.status != decode::AnswerStatus::Ok || answer.width != decode::kMovieTrialWords) {
        return std::nullopt;
    }
    decode::MovieTrialCounts counts;
    std::memcpy(&counts, process->pixels(), sizeof counts);
    return MovieTrial{counts.pictures, counts.soundFrames, counts.errors};
}

}  // namespace vantor
