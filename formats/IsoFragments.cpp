#include "formats/IsoFragments.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr std::size_t kMostTracks = 32;
constexpr std::uint32_t kMostInRun = 1 << 16;

// What the head of a track's part of a fragment says.
struct FragmentPart {
    std::size_t track = 0;
    std::uint32_t sampleBytes = 0;
    std::uint64_t base = 0;
    std::uint64_t next = 0;  // where the data of a run begins that does not tell
};

FragmentPart partOf(ByteView& view, std::span<const FragmentedTrack> tracks, const IsoBox& box,
                    std::uint64_t fragment, std::uint64_t next) {
    Cursor in(view, box.body);
    const auto flags = in.u32();
    const auto id = in.u32();
    FragmentPart part;
    part.track = tracks.size();
    // Without a position of its own the data goes on where that of the track before ended.
    constexpr std::uint32_t kFromFragment = 0x020000;
    part.base = (flags & kFromFragment) != 0 ? fragment : next;
    part.next = next;
    if ((flags & 1) != 0)
        part.base = part.next = in.u64();
    in.skip(((flags & 2) != 0 ? 4U : 0U) + ((flags & 8) != 0 ? 4U : 0U));
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        if (tracks[i].id == id) {
            part.track = i;
            part.sampleBytes = tracks[i].sampleBytes;
        }
    }
    if ((flags & 16) != 0)
        part.sampleBytes = in.u32();
    return part;
}

FragmentOutcome readRun(ByteView& view, const IsoBox& box, const FragmentPart& part, std::uint32_t& alikeLeft,
                        FragmentRun& run) {
    Cursor in(view, box.body);
    const auto flags = in.u32();
    const auto samples = in.u32();
    run = {part.track, part.next, {}};
    if ((flags & 1) != 0)
        run.at = part.base + static_cast<std::uint64_t>(std::int64_t{static_cast<std::int32_t>(in.u32())});
    in.skip((flags & 4) != 0 ? 4 : 0);
    const std::uint64_t before = (flags & 0x100) != 0 ? 4 : 0;
    const bool told = (flags & 0x200) != 0;
    const std::uint64_t behind = ((flags & 0x400) != 0 ? 4U : 0U) + ((flags & 0x800) != 0 ? 4U : 0U);
    if (samples > kMostInRun)
        return FragmentOutcome::Broken;
    if (!told && before + behind == 0) {
        if (samples > alikeLeft) {
            alikeLeft = 0;
            return FragmentOutcome::Cut;
        }
        alikeLeft -= samples;
    }
    // Read in one go, as the samples lie elsewhere.
    for (std::uint32_t i = 0; i < samples; ++i) {
        in.skip(before);
        run.sizes.push_back(told ? in.u32() : part.sampleBytes);
        in.skip(behind);
        if (!in.ok() || in.at() > box.end)
            return FragmentOutcome::Broken;
    }
    return FragmentOutcome::Whole;
}

}  // namespace

std::vector<FragmentedTrack> fragmentedTracks(ByteView& view, const IsoBox& movie) {
    std::vector<FragmentedTrack> tracks;
    const auto ofId = [&](std::uint32_t id) {
        return std::find_if(tracks.begin(), tracks.end(), [&](const auto& each) { return each.id == id; });
    };
    forIsoBoxes(view, movie.body, movie.end, [&](const IsoBox& box) {
        if (box.text() == "trak" && tracks.size() < kMostTracks) {
            IsoTrack track = readIsoTrack(view, box);
            const bool wide = view.u8(track.head.body) == std::uint8_t{1};
            tracks.push_back({view.be32(track.head.body + (wide ? 20 : 12)).value_or(0), 0, track});
        }
    });
    forIsoBoxes(view, movie.body, movie.end, [&](const IsoBox& box) {
        if (box.text() != "mvex")
            return;
        forIsoBoxes(view, box.body, box.end, [&](const IsoBox& defaults) {
            const auto track = ofId(view.be32(defaults.body + 4).value_or(0));
            if (defaults.text() == "trex" && track != tracks.end())
                track->sampleBytes = view.be32(defaults.body + 16).value_or(0);
        });
    });
    return tracks;
}

FragmentOutcome forFragmentRuns(ByteView& view, std::span<const FragmentedTrack> tracks,
                                const IsoBox& fragment, std::uint32_t& alikeLeft,
                                const std::function<void(const FragmentRun&)>& visit) {
    FragmentOutcome all = FragmentOutcome::Whole;
    std::uint64_t next = fragment.at;
    forIsoBoxes(view, fragment.body, fragment.end, [&](const IsoBox& traf) {
        if (traf.text() != "traf")
            return;
        FragmentPart part;
        part.track = tracks.size();
        bool follows = true;
        forIsoBoxes(view, traf.body, traf.end, [&](const IsoBox& inner) {
            if (inner.text() == "tfhd") {
                part = partOf(view, tracks, inner, fragment.at, next);
            } else if (inner.text() == "trun" && follows) {
                FragmentRun run;
                const FragmentOutcome outcome = readRun(view, inner, part, alikeLeft, run);
                follows = outcome == FragmentOutcome::Whole;
                if (!follows) {
                    all = std::max(all, outcome);
                    return;
                }
                visit(run);
                part.next = run.at;
                for (const std::uint64_t bytes : run.sizes)
                    part.next = addClamped(part.next, bytes);
            }
        });
        next = part.next;
    });
    return all;
}

}  // namespace vantor
