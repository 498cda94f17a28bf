// Whether what stands within a movie's frames is theirs, tried in the movie helper as far as time allows.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "decode/MovieHelper.h"
#include "formats/ByteSource.h"
#include "media/AbandonableSource.h"
#include "media/FileDescriptor.h"

namespace vantor {

// Longer movies are not tried, nor is any in more time; nor what comes when the time for all is over.
struct TrialBounds {
    std::uint64_t bytes = std::uint64_t{128} << 20;
    std::chrono::milliseconds forOne{20000};
    std::chrono::milliseconds forAll{300000};
};

// Whether all of the opened file decodes without an error; false where that was not tried to the end. Ends
// soon after `stop` says so.
using ContentDecoder = std::function<bool(int descriptor, const StopRequest& stop)>;

// Any one thread.
class ContentTrials {
  public:
    // For those who wait for a look at many files.
    static constexpr TrialBounds kInPassing{std::uint64_t{32} << 20, std::chrono::milliseconds{3000},
                                            std::chrono::milliseconds{300000}};

    explicit ContentTrials(TrialBounds bounds = {}, MovieReaderOptions options = {})
        : m_options(std::move(options)), m_bounds(bounds) {}

    // As a ContentDecoder does, of a photo with a movie behind it the movie.
    bool decodes(int descriptor, const StopRequest& stop);
    // Whether there is time for a file of so many bytes.
    bool mayTry(std::uint64_t bytes) const;

  private:
    bool decodesMovie(int descriptor, const StopRequest& stop);

    MovieReaderOptions m_options;
    TrialBounds m_bounds;  // what is left of them
};

// The first `bytes` bytes of the source as a file in memory; not open when not all of them arrived, or once
// `stop` says so.
FileDescriptor inMemory(ByteSource& source, std::uint64_t bytes, const StopRequest& stop);

}  // namespace vantor
