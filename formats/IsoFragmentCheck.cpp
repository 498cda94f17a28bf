// The samples of movies in fragments, looked at where the fragments say they are.
#include <algorithm>
#include <vector>

#include "formats/IsoFragments.h"
#include "formats/IsoSampleCensus.h"

namespace vantor {

namespace {

// A movie with up to so much data is looked at as a whole; of a longer one so many fragments, spread evenly,
// and so many samples of each run.
constexpr std::uint64_t kSmallMovie = 4 * 1024 * 1024;
constexpr std::size_t kFragmentsLookedAt = 192;
constexpr std::size_t kSamplesLookedAt = 4;

ContentCheck outcomeOf(std::span<const SampleCensus> counted, std::span<const FragmentedTrack> tracks,
                       bool all, std::uint64_t dataBytes) {
    ContentCheck sum;
    bool everyVideo = true;
    for (std::size_t i = 0; i < counted.size(); ++i) {
        const ContentCheck check = counted[i].outcome(all, dataBytes);
        if (check.outcome == ContentCheck::Outcome::Broken)
            return check;
        everyVideo =
            everyVideo && (!tracks[i].track.isVideo() || check.outcome != ContentCheck::Outcome::Silent);
        if (sum.outcome == ContentCheck::Outcome::Silent)
            sum = check;
    }
    // A stream of pictures that could not be judged may be anything.
    return everyVideo ? sum : ContentCheck{};
}

}  // namespace

ContentCheck checkFragments(ByteView& view, const std::optional<IsoBox>& movie,
                            std::span<const IsoBox> fragments, std::span<const DataPlace> data) {
    if (!movie || fragments.empty())
        return {};
    std::uint64_t bytes = 0;
    for (const DataPlace& place : data)
        bytes = addClamped(bytes, place.to - place.from);
    const bool all = bytes <= kSmallMovie && fragments.size() <= kFragmentsLookedAt;
    const auto tracks = fragmentedTracks(view, *movie);
    std::vector<SampleCensus> counted;
    for (const FragmentedTrack& each : tracks)
        counted.emplace_back(view, each.track, data);
    std::uint32_t alikeLeft = kMostAlikeSamples;
    bool cut = false;  // samples were left out
    const std::size_t picks = std::min(fragments.size(), kFragmentsLookedAt);
    for (std::size_t pick = 0; pick < picks; ++pick) {
        const auto outcome = forFragmentRuns(
            view, tracks, fragments[pick * fragments.size() / picks], alikeLeft, [&](const FragmentRun& run) {
                std::uint64_t at = run.at;
                const std::size_t most = all ? run.sizes.size() : kSamplesLookedAt;
                for (std::size_t i = 0; i < std::min(most, run.sizes.size()); ++i) {
                    if (run.track < counted.size())
                        counted[run.track].add(at, run.sizes[i]);
                    at = addClamped(at, run.sizes[i]);
                }
            });
        cut = cut || outcome == FragmentOutcome::Cut;
    }
    return outcomeOf(counted, tracks, all && !cut, bytes);
}

}  // namespace vantor
