// A movie whose index was never written, made playable.
#pragma once

#include <QByteArray>
#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>

#include "decode/SoundSplitter.h"
#include "formats/ByteSource.h"
#include "formats/IsoSamples.h"
#include "repair/MovieWalk.h"
#include "repair/ReferenceMovie.h"
#include "results/Mend.h"

namespace vantor {

// A twin of the movie, and what is in it.
struct RepairedMovie : Twin {
    std::size_t pictures = 0;
    unsigned slices = 0;  // of the first picture
    double pictureSeconds = 0;
    double soundSeconds = 0;
    std::uint64_t unexplainedBytes = 0;  // between the samples
};

// Where the data of a movie lies that has no index; nothing where it has one, or is no movie. `to` is where
// the movie itself says that it ends, or the end of the source.
std::optional<DataPlace> dataWithoutIndex(ByteSource& movie);

// Where the data of a movie lies behind its index; nothing for other movies. The data may be cut off.
std::optional<DataPlace> dataBehindIndex(ByteSource& movie);

// Whether all pictures of a part of the movie, a twin without sound, decode without an error.
using PartPlays = std::function<bool(const RepairedMovie& part)>;

// The movie's pictures and sound, found with what the reference tells of the camera. Nothing where no picture
// is found. The sound needs a helper; without one the movie is silent. Ends where the pictures go on as no
// decoder takes them: at the last picture and behind bytes that nothing explains `plays` is asked, unless it
// is empty.
std::optional<RepairedMovie> repairMovie(ByteSource& movie, DataPlace data, const ReferenceMovie& reference,
                                         SoundSplitter& splitter, const WalkLimits& limits = {},
                                         const PartPlays& plays = {});

}  // namespace vantor
