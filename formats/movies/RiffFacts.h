// The facts that chunks of RIFF files tell.
#pragma once

#include <cstdint>
#include <string_view>

#include "formats/ByteView.h"

namespace vantor {

// Adds pixel size and date from one top-level chunk of a RIFF file with the given form ("AVI ", "WEBP",
// "WAVE").
void addRiffFacts(ByteView& view, std::string_view form, std::string_view name, std::uint64_t body,
                  std::uint64_t bytes, Facts& facts);

}  // namespace vantor
