// Runs through a deflate stream without keeping its output, to learn where the stream ends and whether it is
// sound.
#pragma once

#include <cstdint>
#include <limits>

#include "formats/ByteView.h"

namespace vantor {

enum class InflateOutcome {
    Done,
    Cut,      // the view ended first
    Broken,   // not a deflate stream from some point on
    TooMuch,  // given up: more output than `mostOutput`, or than real files of that length unpack to
};

struct InflateResult {
    InflateOutcome outcome = InflateOutcome::Broken;
    std::uint64_t end = 0;  // behind the last byte used; where it stopped unless Done
    std::uint64_t produced = 0;
    std::uint32_t crc = 0;    // CRC-32 of the output
    std::uint32_t adler = 1;  // Adler-32 of the output
};

constexpr std::uint64_t kAnyOutput = std::numeric_limits<std::uint64_t>::max();

// Walks the deflate stream (RFC 1951) that begins at `at`. Memory use is fixed.
InflateResult inflate(ByteView& view, std::uint64_t at, std::uint64_t mostOutput);
// The same for a zlib stream (RFC 1950) with its header and checksum.
InflateResult inflateZlib(ByteView& view, std::uint64_t at, std::uint64_t mostOutput);

}  // namespace vantor
