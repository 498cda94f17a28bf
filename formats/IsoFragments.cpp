// The samples of movies in fragments, looked at where the fragments say they are. Source: ISO/IEC 14496-12,
// 8.8.
#include <algorithm>
#include <vector>

#include "formats/IsoSampleCensus.h"

namespace vantor {

namespace {

constexpr std::size_t kMostTracks = 32;
constexpr std::uint32_t kMostInRun = 1 << 16;
// A movie with up to so much data is looked at as a whole; of a longer one so many fragments, spread evenly,
// and so many samples of each run.
constexpr std::uint64_t kSmallMovie = 4 * 1024 * 1024;
constexpr std::size_t kFragmentsLookedAt = 192;
constexpr std::uint32_t kSamplesLookedAt = 4;
// Of all runs whose samples are alike: their number is a word that no table of sizes bears out.
constexpr std::uint32_t kMostAlike = 1 << 20;

struct FragmentedTrack {
    std::uint32_t id = 0;
    std::uint32_t sampleBytes = 0;  // where no fragment says otherwise
    IsoTrack track;
};

std::vector<FragmentedTrack> readTracks(ByteView& view, const IsoBox& movie) {
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

class FragmentCheck {
  public:
    FragmentCheck(ByteView& view, std::span<const FragmentedTrack> tracks, std::span<const DataPlace> data,
                  bool all)
        : m_view(view), m_tracks(tracks), m_all(all) {
        for (const FragmentedTrack& each : tracks)
            m_counted.emplace_back(view, each.track, data);
    }

    void fragment(const IsoBox& box);
    ContentCheck outcome(std::uint64_t dataBytes) const;

  private:
    // What the head of a track's part of a fragment says.
    struct Part {
        SampleCensus* census = nullptr;
        std::uint32_t sampleBytes = 0;
        std::uint64_t base = 0;
        std::uint64_t next = 0;  // where the data of a run begins that does not tell
    };

    Part head(const IsoBox& box, std::uint64_t fragment, std::uint64_t next);
    bool run(const IsoBox& box, Part& part);

    ByteView& m_view;
    const std::span<const FragmentedTrack> m_tracks;
    const bool m_all;
    std::uint32_t m_alikeLeft = kMostAlike;
    bool m_cut = false;  // samples were left out
    std::vector<SampleCensus> m_counted;
};

FragmentCheck::Part FragmentCheck::head(const IsoBox& box, std::uint64_t fragment, std::uint64_t next) {
    Cursor in(m_view, box.body);
    const auto flags = in.u32();
    const auto id = in.u32();
    Part part;
    part.base = fragment;
    part.next = next;
    if ((flags & 1) != 0)
        part.base = part.next = in.u64();
    in.skip(((flags & 2) != 0 ? 4U : 0U) + ((flags & 8) != 0 ? 4U : 0U));
    for (std::size_t i = 0; i < m_tracks.size(); ++i) {
        if (m_tracks[i].id == id) {
            part.census = &m_counted[i];
            part.sampleBytes = m_tracks[i].sampleBytes;
        }
    }
    if ((flags & 16) != 0)
        part.sampleBytes = in.u32();
    return part;
}

// False where the run cannot be followed to its end.
bool FragmentCheck::run(const IsoBox& box, Part& part) {
    Cursor in(m_view, box.body);
    const auto flags = in.u32();
    const auto samples = in.u32();
    std::uint64_t at = part.next;
    if ((flags & 1) != 0)
        at = part.base + static_cast<std::uint64_t>(std::int64_t{static_cast<std::int32_t>(in.u32())});
    in.skip((flags & 4) != 0 ? 4 : 0);
    const std::uint64_t before = (flags & 0x100) != 0 ? 4 : 0;
    const bool told = (flags & 0x200) != 0;
    const std::uint64_t behind = ((flags & 0x400) != 0 ? 4U : 0U) + ((flags & 0x800) != 0 ? 4U : 0U);
    if (samples > kMostInRun)
        return false;
    if (!told && before + behind == 0) {
        m_cut = m_cut || samples > m_alikeLeft;
        if (m_cut)
            return false;
        m_alikeLeft -= samples;
    }
    std::vector<std::uint64_t> sizes;  // read in one go, as the samples lie elsewhere
    for (std::uint32_t i = 0; i < samples; ++i) {
        in.skip(before);
        sizes.push_back(told ? in.u32() : part.sampleBytes);
        in.skip(behind);
        if (!in.ok() || in.at() > box.end)
            return false;
    }
    for (std::uint32_t i = 0; i < samples; ++i) {
        if (part.census != nullptr && (m_all || i < kSamplesLookedAt))
            part.census->add(at, sizes[i]);
        at = addClamped(at, sizes[i]);
    }
    part.next = at;
    return true;
}

void FragmentCheck::fragment(const IsoBox& box) {
    std::uint64_t next = box.at;
    forIsoBoxes(m_view, box.body, box.end, [&](const IsoBox& traf) {
        if (traf.text() != "traf")
            return;
        Part part;
        bool follows = true;
        forIsoBoxes(m_view, traf.body, traf.end, [&](const IsoBox& inner) {
            if (inner.text() == "tfhd")
                part = head(inner, box.at, next);
            else if (inner.text() == "trun" && follows)
                follows = run(inner, part);
        });
        next = part.next;
    });
}

ContentCheck FragmentCheck::outcome(std::uint64_t dataBytes) const {
    ContentCheck all;
    bool everyVideo = true;
    for (std::size_t i = 0; i < m_counted.size(); ++i) {
        const ContentCheck check = m_counted[i].outcome(m_all && !m_cut, dataBytes);
        if (check.outcome == ContentCheck::Outcome::Broken)
            return check;
        everyVideo =
            everyVideo && (!m_tracks[i].track.isVideo() || check.outcome != ContentCheck::Outcome::Silent);
        if (all.outcome == ContentCheck::Outcome::Silent)
            all = check;
    }
    // A stream of pictures that could not be judged may be anything.
    return everyVideo ? all : ContentCheck{};
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
    const auto tracks = readTracks(view, *movie);
    FragmentCheck check(view, tracks, data, all);
    const std::size_t picks = std::min(fragments.size(), kFragmentsLookedAt);
    for (std::size_t pick = 0; pick < picks; ++pick)
        check.fragment(fragments[pick * fragments.size() / picks]);
    return check.outcome(bytes);
}

}  // namespace vantor
