// Whether a movie plays without complaint, tried by the movie helper.
#pragma once

#include <cstdint>
#include <optional>

#include "decode/MovieHelper.h"

namespace vantor {

struct MovieTrial {
    std::uint32_t pictures = 0;  // decoded
    std::uint32_t soundFrames = 0;
    std::uint32_t errors = 0;  // complaints of the decoders
};

// Of as much of the opened file, from its beginning on, as is decoded in a step's time. Nothing when it is no
// movie or no helper can be had. Blocks until the deadlines of the options.
std::optional<MovieTrial> tryMovie(int descriptor, const MovieReaderOptions& options = {});

}  // namespace vantor
