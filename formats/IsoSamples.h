// Whether a movie's media data is what its index says: the samples that the tables point at, looked at by the
// syntax of their coding.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "formats/IsoBox.h"

namespace vantor {

// How the samples of a track, or the data of a picture, are coded, as far as it can be judged without
// decoding.
enum class Coding : std::uint8_t {
    Unknown,
    Avc,
    Hevc,
    Av1,
    Vp9,
    Mpeg4,
    H263,
    Jpeg,
    ProRes,
    Amr,
    Ac3,
    Aac,
    Alac,
    Flac,
    MpegAudio
};

// By the name of its sample entry or of its item; Unknown where its data cannot be told from noise.
Coding codingOf(std::string_view name);
// Looks at the `bytes` bytes from `at` on as one sample; `lengthBytes` is the width of the lengths within.
// Nothing when it is none, else the longest stretch in it of which nothing was looked at.
std::optional<std::uint64_t> lookAtSample(ByteView& view, Coding coding, unsigned lengthBytes,
                                          std::uint64_t at, std::uint64_t bytes);
// Of a sound track whose sample entry "mp4a" stands in [from, to): what its decoder configuration says.
Coding codingOfMpeg4Sound(ByteView& view, std::uint64_t from, std::uint64_t to);
// The width that a configuration box (avcC, hvcC) among the boxes in [from, to) tells; 4 without one.
unsigned lengthBytesIn(ByteView& view, std::uint64_t from, std::uint64_t to);

// Where media data lies in the file: the body of a data box.
struct DataPlace {
    std::uint64_t from = 0;
    std::uint64_t to = 0;
};

struct ContentCheck {
    enum class Outcome {
        Silent,  // nothing that could be judged, or too little of the whole
        Sound,   // all that was looked at is as it should be
        Broken,  // some is and some is not
    };

    Outcome outcome = Outcome::Silent;
};

// Whether looking at `all` bytes with blind stretches of at most `widest` says something of the whole.
inline bool isEnough(std::uint64_t widest, std::uint64_t all) {
    return all != 0 && widest <= all / 4;
}

// Looks at the samples of a moov box: at all of a small movie, else at a spread of them, by a bounded number
// of short reads.
ContentCheck checkSamples(ByteView& view, const IsoBox& movie, std::span<const DataPlace> data);
// The same of a movie in fragments (moof boxes), whose moov box may be another file's.
ContentCheck checkFragments(ByteView& view, const std::optional<IsoBox>& movie,
                            std::span<const IsoBox> fragments, std::span<const DataPlace> data);
// Looks at the coded pictures that a meta box places in the file.
ContentCheck checkItems(ByteView& view, const IsoBox& meta);

}  // namespace vantor
