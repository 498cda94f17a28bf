// Whether a movie can be played, tried on its beginning. Runs in the movie helper only.
#pragma once

#include <cstdint>
#include <vector>

namespace vantor::decode {

// Takes the descriptor over. Ends after so many milliseconds, or a step's time when that is longer; with
// `onlyWhole` as soon as not all of it can be judged and without complaint. The numbers of a
// MovieTrialCounts; empty when the bytes are no movie.
std::vector<std::uint32_t> tryMovie(int descriptor, std::int64_t mostMs, bool onlyWhole);

}  // namespace vantor::decode
