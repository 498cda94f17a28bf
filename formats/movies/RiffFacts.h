// The facts that chunks of RIFF files tell.
#pragma once

#include <cstdint>
#include <string_view>

#include "formats/ByteView.h"

namespace vantor {

// Adds pixel size, date and length from one top-level chunk of a RIFF file with the given form ("AVI ",
// "WEBP", "WAVE", "AIFF"). `bytesPerSecond` is what an earlier chunk told of the sound in a later one.
void addRiffFacts(ByteView& view, std::string_view form, std::string_view name, std::uint64_t body,
                  std::uint64_t bytes, std::uint32_t& bytesPerSecond, Facts& facts);

}  // namespace vantor
