// What phones and cameras of some makers put behind a photo's end.
#pragma once

#include <cstdint>

#include "formats/ByteView.h"

namespace vantor {

// Behind the trailer whose first block stands at `at`; 0 where none does. Two zero bytes, the block's kind
// and the length of its name (little-endian) begin a block; "SEFH" begins the list, which tells of every
// block how far before it that begins; its own length and "SEFT" end it. Source: public notes on the Samsung
// Extended Format, among them those of the ExifTool forum, and on motion photos.
std::uint64_t endOfMakerTrailer(ByteView& view, std::uint64_t at);

// Behind the trailer that begins at `at` in photos of cameras that see all around; 0 where none does. It
// holds what the camera noted of its movement, and ends with 32 letters that are always the same; forty bytes
// before its end stands how long it is (little-endian). Source: public notes on INSV and INSP files.
std::uint64_t endOfSphereTrailer(ByteView& view, std::uint64_t at);

// Behind the recipe that a camera maker's raw converter leaves behind a picture it changed; 0 where none
// begins at `at`. "CANON OPTIONAL DATA" begins a head of 28 bytes, which ends with the length of what follows
// (big-endian), and the 64 bytes behind that. Source: public notes on VRD files, among them ExifTool's.
std::uint64_t endOfRecipeTrailer(ByteView& view, std::uint64_t at);

// Behind the words that a server, a mail program or an editor left behind a file's end at `at`, else `at`: a
// line end of two bytes, or a dozen letters of ASCII and more. What begins at a sector's start is another's.
std::uint64_t behindStrayText(ByteView& view, std::uint64_t at);

}  // namespace vantor
