// The way into the room: which walker serves a file type, and one call that walks.
#pragma once

#include <span>
#include <string_view>

#include "formats/ByteView.h"

namespace vantor {

struct Walker {
    std::string_view name;  // for people and tests: "JPEG", "ISO media"
    Extent (*walk)(ByteView& view);
    // Whether the first bytes alone prove the format, so that it may be tried on files of any type.
    bool strongMagic = true;
    std::string_view extensions;  // upper case, separated and framed by spaces: " JPG JPEG "
};

// The walker of a type such as "JPG" (upper case, without dot); null when there is none.
const Walker* walkerFor(std::string_view extension);
// All walkers, in the order in which they are tried on unknown content.
std::span<const Walker> allWalkers();

// Walks the file that begins at the source's first byte: with the walker of its type, and when that does not
// know the content, with every walker that recognises its format by itself (a DOC may hold RTF, a ZIP be a
// DOCX). Bounded in memory and reading for any content; end never exceeds source.size().
Extent walk(std::string_view extension, ByteSource& source);

}  // namespace vantor
