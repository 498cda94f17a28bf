// What a movie's parameter sets say of how its pictures are written.
#pragma once

#include <bitset>
#include <cstdint>
#include <optional>
#include <span>

#include "formats/IsoSamples.h"

namespace vantor {

// Of one stream. Sources: ISO/IEC 14496-10, 7.3.2 (AVC); 23008-2, 7.3.2 (HEVC); 14496-15 for the boxes.
struct PictureSyntax {
    Coding coding = Coding::Unknown;
    unsigned lengthBytes = 4;
    std::bitset<256> heads;  // first bytes of units that the stream is known to use
    std::bitset<256> sets;   // numbers of its picture parameter sets

    unsigned orderBits = 0;  // of a picture's place in the order of display; 0: they come in that order
    bool separatePlanes = false;
    // AVC
    unsigned frameNumberBits = 4;
    bool framesOnly = true;
    // HEVC
    bool outputFlag = false;
    unsigned extraSliceBits = 0;
};

// From the body of an avcC or hvcC box; nothing when it holds no parameter sets that can be read.
std::optional<PictureSyntax> avcSyntax(std::span<const std::uint8_t> configuration);
std::optional<PictureSyntax> hevcSyntax(std::span<const std::uint8_t> configuration);

}  // namespace vantor
