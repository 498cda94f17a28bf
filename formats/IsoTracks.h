// The tracks of a movie's index: what they hold and where their sample tables stand. Sources: ISO/IEC
// 14496-12, 8.3 to 8.7; QuickTime File Format, "Sound Sample Descriptions".
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "formats/IsoBox.h"
#include "formats/IsoSamples.h"

namespace vantor {

// A table of a box: where its entries stand and how many.
struct IsoTable {
    std::uint64_t at = 0;
    std::uint64_t count = 0;
    unsigned bits = 32;  // of an entry

    std::optional<std::uint64_t> entry(ByteView& view, std::uint64_t index) const;
};

struct IsoTrack {
    std::array<char, 4> handler{};
    std::array<char, 4> codingName{};
    bool elsewhere = false;  // its data lies in another file
    Coding coding = Coding::Unknown;
    unsigned lengthBytes = 4;
    std::uint32_t timescale = 0;
    std::uint64_t sampleBytes = 0;  // of each; 0: the table tells
    IsoTable sizes, chunks, runs;
    IsoTable durations;  // a count of samples and the duration of each
    // Boxes that describe the track; absent ones end where they begin.
    IsoBox head, handlerBox, mediaHead, description;

    bool isVideo() const { return std::string_view(handler.data(), 4) == "vide"; }
    bool isSound() const { return std::string_view(handler.data(), 4) == "soun"; }
};

// Of a trak box.
IsoTrack readIsoTrack(ByteView& view, const IsoBox& box);

// Bytes of one sample frame of plain sound, all channels; 0 where the track holds no plain sound.
std::uint64_t plainSoundFrameBytes(ByteView& view, const IsoTrack& track);

// Bytes [at, at + bytes) of the file that hold one sample, or all of a chunk of plain sound.
struct IsoSample {
    std::uint64_t at = 0;
    std::uint64_t bytes = 0;
};
// Where the tables place the samples, in the tables' order; no more than `most`, and only as many as the
// tables tell.
std::vector<IsoSample> samplesOf(ByteView& view, const IsoTrack& track, std::size_t most);

// Calls `visit` with each box in [from, to), as long as they follow each other.
template <typename Visit>
void forIsoBoxes(ByteView& view, std::uint64_t from, std::uint64_t to, Visit visit) {
    constexpr int kMostChildren = 256;
    for (int i = 0; i < kMostChildren && from < to; ++i) {
        const auto box = readIsoBox(view, from);
        if (!box || box->toEnd || box->end > to)
            return;
        visit(*box);
        from = box->end;
    }
}

}  // namespace vantor
