// The way into the room: which format serves a file type, and one call that walks.
#pragma once

#include <span>
#include <string_view>

#include "formats/Format.h"

namespace vantor {

#define FORMAT(constant) extern const Format constant;
#include "formats/Formats.inc"
#undef FORMAT

// The format of a type such as "JPG" (upper case, without dot); null when there is none.
const Format* formatFor(std::string_view extension);
// All formats, in the order in which they are tried on unknown content.
std::span<const Format* const> allFormats();

// Walks the file that begins at the view's first byte as one format; tells whether its content was checked.
Extent walkAs(const Format& format, ByteView& view);

// Walks the file that begins at the source's first byte: as the format of its type, and when that does not
// know the content, as every format that is recognised by itself (a DOC may hold RTF, a ZIP be a
// DOCX). Bounded in memory and reading for any content; end never exceeds source.size().
Extent walk(std::string_view extension, ByteSource& source);

}  // namespace vantor
