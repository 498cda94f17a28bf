#include "decode/MovieTrial.h"

#include <cstring>

namespace vantor {

namespace {

std::optional<decode::MovieTrialCounts> countsOf(int descriptor, std::chrono::milliseconds most,
                                                 std::uint32_t flags, const MovieReaderOptions& options) {
    const auto process = decode::HelperProcess::start(decode::movieHelperOf(options), options.startDeadline,
                                                      options.cancelDescriptor());
    decode::Request request;
    request.kind = decode::RequestKind::TryMovie;
    request.maxWidth = decode::kMovieTrialWords;
    request.maxHeight = 1;
    request.flags = flags;
    request.timeMs = most.count();
    decode::Answer answer;
    if (!process ||
        process->askFile(request, descriptor, options.openDeadline + most, answer) !=
            decode::AskOutcome::Answered ||
        answer.status != decode::AnswerStatus::Ok || answer.width != decode::kMovieTrialWords) {
        return std::nullopt;
    }
    decode::MovieTrialCounts counts;
    std::memcpy(&counts, process->pixels(), sizeof counts);
    return counts;
}

}  // namespace

std::optional<MovieTrial> tryMovie(int descriptor, TrialLength length, const MovieReaderOptions& options) {
    const auto most = length == TrialLength::Whole ? kMostTrialTime : std::chrono::milliseconds(0);
    const auto counts = countsOf(descriptor, most, 0, options);
    return counts ? std::optional(MovieTrial{counts->pictures, counts->soundFrames, counts->errors})
                  : std::nullopt;
}

bool decodesInFull(int descriptor, std::chrono::milliseconds most, const MovieReaderOptions& options) {
    const auto counts = countsOf(descriptor, most, decode::kOnlyWhole, options);
    return counts && counts->whole == 1 && counts->errors == 0 &&
           (counts->pictures != 0 || counts->soundFrames != 0);
}

}  // namespace vantor
