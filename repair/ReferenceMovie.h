// A whole movie, taken apart into what another movie of the same camera lacks when its index was never
// written.
#pragma once

#include <QByteArray>
#include <array>
#include <bitset>
#include <cstdint>
#include <optional>

#include "formats/ByteSource.h"
#include "repair/PictureSyntax.h"

namespace vantor {

struct ReferenceTrack {
    std::array<char, 4> codingName{};
    std::uint32_t timescale = 0;  // units a second
    std::uint32_t duration = 0;   // of one sample, in units
    // Boxes as they stand in the index; the shape is the end of the track's head: turning and size.
    QByteArray description, handler, mediaHead, shape;
};

struct ReferenceMovie {
    QByteArray typeBox;  // "ftyp"; may be absent from old movies
    ReferenceTrack video;
    PictureSyntax syntax;
    unsigned slices = 0;  // of most pictures
    std::optional<ReferenceTrack> sound;
    std::uint64_t plainSoundBytes = 0;  // of a sample frame; 0: the sound is coded in packets
    QByteArray soundConfiguration;      // what a decoder of the packets has to know
    std::bitset<256> soundHeads;        // first bytes of its packets
    std::uint64_t mostSoundBytes = 0;   // of a packet
    bool more = false;                  // than pictures and sound: a camera's own notes
    std::uint64_t widestGap = 0;        // bytes between one picture and the next, or before the first
};

// Nothing when the bytes are no whole movie, or its pictures are of a kind that is not found without an
// index.
std::optional<ReferenceMovie> readReference(ByteSource& movie);

// The ftyp box that a file begins with; empty where it begins with none.
QByteArray typeBoxOf(ByteSource& movie);

}  // namespace vantor
