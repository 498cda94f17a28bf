// Whether a movie can be played, tried on its beginning. Runs in the movie helper only.
#pragma once

#include <cstdint>
#include <vector>

namespace vantor::decode {

// Takes the descriptor over. The numbers of a MovieTrialCounts; empty when the bytes are no movie.
std::vector<std::uint32_t> tryMovie(int descriptor);

}  // namespace vantor::decode
