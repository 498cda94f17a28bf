// What a format says of itself. Each is one constant in the file of its format, beside its walk function:
//
//     extern constexpr Format kQoi = {.name = "QOI", .group = Group::Pictures, .walk = walkQoi, …};
//
// and one line in Formats.inc, from which the registry gathers them. A walk function begins at the file's
// first byte. All behave alike:
// - Unknown when the first bytes are not of the format, or when nothing in the format tells the end;
// - never an end beyond the source, no allocation by a size read from the file, no recursion by its depth;
// - time in proportion to the structures met, and at most ByteView's cap of bytes read.
#pragma once

#include <cstdint>
#include <string_view>

#include "formats/ByteView.h"

namespace vantor {

// The folder that a format's file stands in.
enum class Group : std::uint8_t { Pictures, Movies, Sounds, Documents, Archives, Systems };

struct Format {
    std::string_view name;  // for people and tests: "JPEG", "ISO media"
    Group group;
    Extent (*walk)(ByteView& view);
    std::string_view extensions;  // upper case, separated and framed by spaces: " JPG JPEG "
    // Whether the first bytes alone prove the format, so that it may be tried on files of any type.
    bool strongMagic = true;
    // Whether its files reach gigabytes; all others are pictures, documents, songs.
    bool large = false;
    // Whether it is a row of frames, packets or lines without a beginning of their own: what begins inside
    // such a file is a part of it, however whole it looks.
    bool frameStream = false;
    // Whether every file that the walk calls complete was checked (see Extent). Walks that check some files
    // and not others leave this and say it of each.
    bool checksContent = false;
    // Whether the walk recognises files whose end it cannot tell, so that Unknown proves nothing.
    bool mayNotTellEnd = false;
};

}  // namespace vantor
