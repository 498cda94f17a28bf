// The samples of one track, counted by what they prove.
#pragma once

#include <cstdint>
#include <span>

#include "formats/IsoSamples.h"
#include "formats/IsoTracks.h"

namespace vantor {

class SampleCensus {
  public:
    // Borrows all of them; `data` in the order of the file.
    SampleCensus(ByteView& view, const IsoTrack& track, std::span<const DataPlace> data)
        : m_view(view), m_track(track), m_data(data) {}

    // One sample, at its place in the file.
    void add(std::uint64_t at, std::uint64_t bytes);
    // A place of which only the beginning is known.
    void addPlace(std::uint64_t at);

    // `all` tells that no sample was left out, `dataBytes` how much media data the file has.
    ContentCheck outcome(bool all, std::uint64_t dataBytes) const;

  private:
    bool isInData(std::uint64_t at, std::uint64_t bytes) const;

    ByteView& m_view;
    const IsoTrack& m_track;
    const std::span<const DataPlace> m_data;
    std::uint64_t m_inside = 0;
    std::uint64_t m_outside = 0;
    std::uint64_t m_sound = 0;
    std::uint64_t m_broken = 0;
    std::uint64_t m_widest = 0;
};

}  // namespace vantor
