// The samples that a movie's index promises, and whether bytes keep the promise.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "formats/ByteSource.h"
#include "formats/IsoTracks.h"

namespace vantor {

struct PromisedSample {
    std::uint64_t at = 0;  // in the file
    std::uint64_t bytes = 0;
    Coding coding = Coding::Unknown;
    unsigned lengthBytes = 4;
    std::array<char, 4> chunk{};  // name of the chunk that it is, head and all; zeros where it is none

    bool isChunk() const { return chunk[0] != 0; }
    // Whether anything can be said of bytes that may be it.
    bool tells() const { return coding != Coding::Unknown || isChunk(); }
    // Whether its first bytes tell how long it is.
    bool tellsLength() const {
        return coding == Coding::Avc || coding == Coding::Hevc || coding == Coding::ProRes || isChunk();
    }
};

// All samples of all tracks in the order of the file; nothing where the index is broken, points outside
// `data` or tells of less than half of it.
std::optional<std::vector<PromisedSample>> promisedSamples(ByteSource& file, const IsoBox& index,
                                                           const DataPlace& data);

// All chunks that the index of an AVI movie lists; as above. `data` are the chunks, behind their list's name.
// Source: Microsoft, AVI RIFF file reference.
std::optional<std::vector<PromisedSample>> promisedChunks(ByteSource& file, const DataPlace& index,
                                                          const DataPlace& data);

enum class Likeness {
    Contradicted,  // not the sample
    Possible,      // nothing that could be checked
    Likely,        // chance does it once in tens of thousands
    Certain,       // chance is out of the question
};
// Whether the sample may begin with these bytes; all of it is not needed.
Likeness beginsAs(const PromisedSample& sample, std::span<const std::uint8_t> bytes);

// Whether the whole sample is there, as far as its syntax tells.
bool isWholeSample(ByteView& view, const PromisedSample& sample);

// Whether the codes of a picture come out even from its first to its last; nothing where they are not
// followed. Of JPEG pictures.
std::optional<bool> isEvenPicture(ByteView& view, const PromisedSample& sample);

}  // namespace vantor
