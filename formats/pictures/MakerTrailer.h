// What phones of one maker put behind a photo's end: named blocks, and a list of them.
#pragma once

#include <cstdint>

#include "formats/ByteView.h"

namespace vantor {

// Behind the trailer whose first block stands at `at`; 0 where none does. Two zero bytes, the block's kind
// and the length of its name (little-endian) begin a block; "SEFH" begins the list, which tells of every
// block how far before it that begins; its own length and "SEFT" end it. Source: public notes on the Samsung
// Extended Format, among them those of the ExifTool forum, and on motion photos.
std::uint64_t endOfMakerTrailer(ByteView& view, std::uint64_t at);

}  // namespace vantor
