// A movie's samples, looked at where its tables say they are.
#include "formats/IsoSamples.h"

#include <algorithm>
#include <array>
#include <optional>

#include "formats/IsoSampleCensus.h"

namespace vantor {

namespace {

constexpr int kIsoSamplesMostTracks = 32;
constexpr std::uint64_t kMostRuns = 1 << 16;  // of chunks that hold equally many samples

// A movie with up to so much data, in up to so many samples, is looked at as a whole; of a longer one so many
// chunks of each track, spread evenly, and so many samples of each.
constexpr std::uint64_t kIsoSamplesSmallMovie = 4 * 1024 * 1024;
constexpr std::uint64_t kFewSamples = 4096;
constexpr std::uint64_t kChunksLookedAt = 48;
constexpr std::size_t kIsoSamplesSamplesLookedAt = 4;
// A movie looked at as a whole gets no more than this for all its tracks: where all samples are alike, their
// number is a word of the tables that nothing else bears out.
constexpr std::uint64_t kMostSamplesOfAWhole = 1 << 16;

class TrackCheck {
  public:
    // Takes what it looks at as a whole from `left`.
    TrackCheck(ByteView& view, const IsoTrack& track, std::span<const DataPlace> data, bool all,
               std::uint64_t dataBytes, std::uint64_t& left)
        : m_view(view),
          m_track(track),
          m_all(all),
          m_dataBytes(dataBytes),
          m_left(left),
          m_census(view, track, data) {}

    ContentCheck check();

  private:
    void chunk(std::uint64_t index, std::uint64_t firstSample, std::uint64_t samples);

    ByteView& m_view;
    const IsoTrack& m_track;
    const bool m_all;
    const std::uint64_t m_dataBytes;
    std::uint64_t& m_left;
    SampleCensus m_census;
};

// The sizes are read in one go, so that the window does not jump to and fro between table and data.
void TrackCheck::chunk(std::uint64_t index, std::uint64_t firstSample, std::uint64_t samples) {
    const auto offset = m_track.chunks.entry(m_view, index);
    if (!offset)
        return;
    const bool alike = m_track.sampleBytes != 0;
    if (alike && m_track.coding == Coding::Unknown) {  // plain sound is counted in units of its own
        m_census.addPlace(*offset);
        return;
    }
    std::uint64_t at = *offset;
    for (std::uint64_t done = 0; done < samples;) {
        std::array<std::uint64_t, 64> sizes{};
        std::size_t known = 0;
        const std::uint64_t wanted =
            m_all ? std::min<std::uint64_t>(sizes.size(), m_left) : kIsoSamplesSamplesLookedAt;
        for (; known < std::min<std::uint64_t>(wanted, samples - done); ++known) {
            const auto size = alike ? std::optional(m_track.sampleBytes)
                                    : m_track.sizes.entry(m_view, firstSample + done + known);
            if (!size)
                break;
            sizes[known] = *size;
        }
        for (std::size_t i = 0; i < known; ++i) {
            m_census.add(at, sizes[i]);
            at = addClamped(at, sizes[i]);
        }
        done += known;
        if (known < wanted || !m_all)
            return;
        m_left -= known;
        if (m_left == 0)
            return;
    }
}

ContentCheck TrackCheck::check() {
    const std::uint64_t chunks = m_track.chunks.count;
    const std::uint64_t picks = m_all ? chunks : std::min(chunks, kChunksLookedAt);
    std::uint64_t pick = 0;
    std::uint64_t sample = 0;
    const auto runs = std::min(m_track.runs.count, kMostRuns);
    for (std::uint64_t run = 0; run < runs && pick < picks && m_left != 0; ++run) {
        Cursor in(m_view, m_track.runs.at + run * 12);
        const std::uint64_t first = in.u32();
        const std::uint64_t samples = in.u32();
        in.skip(4);
        const std::uint64_t next = run + 1 < m_track.runs.count ? in.u32() : chunks + 1;
        if (!in.ok() || first == 0 || next < first)
            return {};
        while (pick < picks && m_left != 0) {
            const auto index = m_all ? pick : pick * chunks / picks;
            if (index + 1 < first || index + 1 >= next)
                break;
            chunk(index, addClamped(sample, mulClamped(index + 1 - first, samples)), samples);
            ++pick;
        }
        sample = addClamped(sample, mulClamped(next - first, samples));
    }
    return m_census.outcome(m_all && m_left != 0, m_dataBytes);
}

// Whether the boxes of an index follow each other to the end of the one they stand in, where it holds tracks.
// An index of which a part is another's would leave tracks out unseen.
bool comesOutEven(ByteView& view, const IsoBox& box, int depth) {
    constexpr std::array<std::string_view, 5> kLevels = {"moov", "trak", "mdia", "minf", "stbl"};
    constexpr std::uint64_t kMostPadding = 8;
    const auto level = static_cast<std::size_t>(depth);
    if (level == kLevels.size() || box.text() != kLevels.at(level))
        return true;
    bool even = true;
    std::uint64_t behind = box.body;
    forIsoBoxes(view, box.body, box.end, [&](const IsoBox& inner) {
        even = even && comesOutEven(view, inner, depth + 1);
        behind = inner.end;
    });
    return even && box.end - behind <= kMostPadding;
}

}  // namespace

ContentCheck checkSamples(ByteView& view, const IsoBox& movie, std::span<const DataPlace> data) {
    std::uint64_t bytes = 0;
    for (const DataPlace& place : data)
        bytes = addClamped(bytes, place.to - place.from);
    ContentCheck all;
    bool everyVideo = true;
    int tracks = 0;
    std::uint64_t left = kMostSamplesOfAWhole;
    forIsoBoxes(view, movie.body, movie.end, [&](const IsoBox& box) {
        if (box.text() != "trak" || ++tracks > kIsoSamplesMostTracks)
            return;
        const IsoTrack track = readIsoTrack(view, box);
        if (track.elsewhere || track.chunks.count == 0 || all.outcome == ContentCheck::Outcome::Broken)
            return;
        const bool whole =
            bytes <= kIsoSamplesSmallMovie && std::max(track.sizes.count, track.chunks.count) <= kFewSamples;
        const ContentCheck check = TrackCheck(view, track, data, whole, bytes, left).check();
        everyVideo = everyVideo && (!track.isVideo() || check.outcome != ContentCheck::Outcome::Silent);
        if (check.outcome == ContentCheck::Outcome::Broken || all.outcome == ContentCheck::Outcome::Silent)
            all = check;
    });
    // A stream of pictures that could not be judged may be anything.
    if (all.outcome == ContentCheck::Outcome::Sound && (!everyVideo || !comesOutEven(view, movie, 0)))
        all.outcome = ContentCheck::Outcome::Silent;
    return all;
}

}  // namespace vantor
