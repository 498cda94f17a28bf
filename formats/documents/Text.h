// Plain text, for formats that are text in one form and something else in another.
#pragma once

#include "formats/ByteView.h"

namespace vantor {

Extent walkText(ByteView& view);

// Where a text that runs from `from` ends: at the first control byte or at the view's end, less the foreign
// bytes in front of it that happen to be letters.
std::uint64_t readableEnd(ByteView& view, std::uint64_t from);

}  // namespace vantor
