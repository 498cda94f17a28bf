// The track of the pictures that were found in a movie's data.
#pragma once

#include <cstdint>
#include <vector>

#include "repair/CodedPicture.h"
#include "repair/IndexWriter.h"
#include "repair/ReferenceMovie.h"

namespace vantor {

// Puts samples to a track's chunks: those that lie one behind the other make one.
class TrackBuilder {
  public:
    explicit TrackBuilder(IndexedTrack& track) : m_track(track) {}

    void add(std::uint64_t at, std::uint64_t bytes, std::uint64_t samples) {
        if (m_track.chunks.empty() || at != m_end) {
            m_track.chunks.push_back({at, 0});
        }
        m_track.chunks.back().samples += samples;
        m_end = at + bytes;
    }

  private:
    IndexedTrack& m_track;
    std::uint64_t m_end = 0;
};

// Places count as the pictures' own do. The reference outlives the track.
IndexedTrack pictureTrack(const std::vector<CodedPicture>& pictures, const ReferenceMovie& reference);

}  // namespace vantor
