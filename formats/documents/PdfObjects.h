// The objects of a PDF file, read through from its head to its end mark.
#pragma once

#include <cstdint>

#include "formats/ByteView.h"

namespace vantor {

// Whether [0, end) of the view holds nothing but objects, tables and trailers, whose tables name places where
// objects begin unless they may be wrong, and whose streams are mostly of kinds that prove themselves. False
// says nothing: writers leave all kinds of things between objects, and what is encrypted cannot be judged.
enum class PdfTables : std::uint8_t { Hold, MayBeWrong };
bool isRowOfPdfObjects(ByteView& view, std::uint64_t end, PdfTables tables);

}  // namespace vantor
