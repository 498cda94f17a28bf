// Coded pictures as they follow each other in a movie's data, told without an index.
#pragma once

#include <cstdint>
#include <optional>

#include "formats/ByteView.h"
#include "repair/PictureSyntax.h"

namespace vantor {

struct CodedPicture {
    std::uint64_t at = 0;
    std::uint64_t end = 0;
    bool sync = false;           // what follows can be decoded from here
    bool restartsOrder = false;  // the order of display begins anew
    bool refersOnly = false;     // others are decoded from it
    bool aside = false;          // (HEVC) does not count for the order of those that follow
    std::uint32_t order = 0;     // low bits of its place in the order of display
    std::uint32_t number = 0;    // (AVC) frame number
    unsigned slices = 0;
};

// The picture that begins exactly at `at` and ends before `limit`; nothing where none does. AVC and HEVC: all
// units of it are followed to their last byte, and hold no bytes that a coded unit cannot hold. JPEG and
// ProRes: to the end that the picture itself marks.
std::optional<CodedPicture> pictureAt(ByteView& view, const PictureSyntax& syntax, std::uint64_t at,
                                      std::uint64_t limit);

// Whether a picture may stand at `at`, by its first bytes alone.
bool mayBeginPicture(ByteView& view, const PictureSyntax& syntax, std::uint64_t at);

// Whether units of AVC or HEVC fill [from, to), none with bytes that a coded unit cannot hold.
bool isWholeUnitChain(ByteView& view, Coding coding, unsigned lengthBytes, std::uint64_t from,
                      std::uint64_t to);

// Whether the numbers of `next` go on from those of `last`.
bool follows(const PictureSyntax& syntax, const CodedPicture& last, const CodedPicture& next);

}  // namespace vantor
