// Where the fragments of a movie say that its samples stand. Source: ISO/IEC 14496-12, 8.8.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "formats/IsoTracks.h"

namespace vantor {

struct FragmentedTrack {
    std::uint32_t id = 0;
    std::uint32_t sampleBytes = 0;  // where no fragment says otherwise
    IsoTrack track;
};

// Of a moov box.
std::vector<FragmentedTrack> fragmentedTracks(ByteView& view, const IsoBox& movie);

// Samples of one track that follow each other in the file.
struct FragmentRun {
    std::size_t track = 0;  // its place among the tracks; their count where none of them is meant
    std::uint64_t at = 0;
    std::vector<std::uint64_t> sizes;
};

enum class FragmentOutcome {
    Whole,
    Cut,     // too many samples of one size, whose number nothing bears out
    Broken,  // a run tells more than it can hold
};
// Of all runs whose samples are alike.
constexpr std::uint32_t kMostAlikeSamples = 1 << 20;

// Calls `visit` with each run of a moof box that can be followed. Takes samples of which the box holds
// nothing but their number off `alikeLeft`.
FragmentOutcome forFragmentRuns(ByteView& view, std::span<const FragmentedTrack> tracks,
                                const IsoBox& fragment, std::uint32_t& alikeLeft,
                                const std::function<void(const FragmentRun&)>& visit);

}  // namespace vantor
