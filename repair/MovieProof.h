// Movies that were put together or repaired, tried in the movie helper.
#pragma once

#include "decode/MovieHelper.h"
#include "repair/MovieRepair.h"

namespace vantor {

// Longer movies are not tried.
constexpr std::uint64_t kMostTriedBytes = std::uint64_t{128} << 20;

// Whether a repaired movie's pictures decode without an error; of a long one its beginning.
bool playsWithoutErrors(ByteSource& movie, const RepairedMovie& repaired, const MovieReaderOptions& options);

// The same of all pictures; also true where it cannot be tried.
bool mayPlayWholly(ByteSource& movie, const RepairedMovie& repaired, const MovieReaderOptions& options);

// Whether all pictures of the movie, so many, decode without an error.
bool decodesWholly(ByteSource& movie, std::size_t pictures, const MovieReaderOptions& options);

}  // namespace vantor
