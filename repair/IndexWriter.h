// Writes the index of a movie: the moov box that lies behind its data.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

#include "repair/ReferenceMovie.h"

namespace vantor {

// Samples of a track that lie one behind the other.
struct IndexedChunk {
    std::uint64_t at = 0;  // in the file to be written
    std::uint64_t samples = 0;
};

struct IndexedTrack {
    const ReferenceTrack* described = nullptr;  // not null
    bool video = false;
    std::vector<IndexedChunk> chunks;  // in order
    std::vector<std::uint32_t> sizes;  // of the samples; empty where all have `sampleBytes`
    std::uint32_t sampleBytes = 0;
    std::vector<std::uint32_t>
        sync;  // numbers, from 1, of the pictures that decoding can begin with; empty: all
    std::vector<std::uint32_t> shown;  // places in the order of display, from 0; empty: as they are stored

    std::uint64_t samples() const;
    // In the track's own units.
    std::uint64_t duration() const { return samples() * described->duration; }
};

// Source: ISO/IEC 14496-12, 8. Tracks without samples are left out; nothing when none is left.
QByteArray writeIndex(const std::vector<IndexedTrack>& tracks);

}  // namespace vantor
