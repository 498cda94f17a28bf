// Whether a movie plays without complaint, tried by the movie helper.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "decode/MovieHelper.h"

namespace vantor {

struct MovieTrial {
    std::uint32_t pictures = 0;  // decoded
    std::uint32_t soundFrames = 0;
    std::uint32_t errors = 0;  // complaints of the decoders
};

// As much from the movie's beginning on as is decoded in a moment, or all that is decoded in kMostTrialTime.
enum class TrialLength { Beginning, Whole };
constexpr std::chrono::milliseconds kMostTrialTime{60000};

// Of the opened file. Nothing when it is no movie or no helper can be had. Blocks until the deadlines of the
// options, for a whole movie the trial's time longer.
std::optional<MovieTrial> tryMovie(int descriptor, TrialLength length,
                                   const MovieReaderOptions& options = {});

// Whether all pictures and sound of the opened file decode without a complaint in so much time, by decoders
// that notice what is not theirs; those of some codings take any bytes.
bool decodesInFull(int descriptor, std::chrono::milliseconds most, const MovieReaderOptions& options = {});

}  // namespace vantor
