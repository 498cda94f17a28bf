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

// Behind the notes of a phone that begin at `at` with its maker's name or with "streamdata" and end with
// eleven bytes that are always the same; 0 where none do. Source: public notes of the ExifTool forum on Vivo
// trailers.
std::uint64_t endOfPhoneNotes(ByteView& view, std::uint64_t at);

// Behind the block of notes that a cataloguing program begins at `at` with "AXS!" (or "AXS*", little-endian)
// and ends with the same sign, where the block begins and four bytes more; 0 where none does. Source: public
// notes on AFCP (AXS file concatenation protocol).
std::uint64_t endOfConcatenatedNotes(ByteView& view, std::uint64_t at);

}  // namespace vantor
