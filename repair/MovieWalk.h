// The pictures and what lies between them in a movie's data that no index describes.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <vector>

#include "formats/ByteView.h"
#include "formats/IsoTracks.h"
#include "repair/CodedPicture.h"
#include "repair/ReferenceMovie.h"

namespace vantor {

// What lies between pictures: sound and whatever else a camera writes.
struct MovieGap {
    DataPlace place;
    std::vector<IsoSample> packets;  // of the sound, in order
};

struct MovieWalk {
    std::vector<CodedPicture> pictures;
    std::vector<MovieGap> gaps;  // between, before and behind them, never empty, in order
    // Places, in order, of pictures behind bytes that the movie's sound does not explain: another file's may
    // have begun there. None where the camera writes notes of its own.
    std::vector<std::size_t> doubtful;
    std::uint64_t end = 0;  // behind the last picture, or as far behind it as sound may reach
};

// Lengths of the packets of coded sound that follow each other from the first byte of the place on.
using SplitSound = std::function<std::vector<std::uint32_t>(const DataPlace&)>;

struct WalkLimits {
    std::size_t pictures = 2'000'000;  // a day at 24 a second
    const std::atomic<int>* stop = nullptr;
};

// Walks from `from`, the beginning of the data, to `to` at most. Ends where no picture follows within the
// distance that the reference knows, or where another file begins. Where sound looks like a picture, the one
// is taken before which the sound comes out even. `split` may be empty.
MovieWalk walkMovie(ByteView& view, const ReferenceMovie& reference, const DataPlace& data,
                    const SplitSound& split, const WalkLimits& limits);

}  // namespace vantor
