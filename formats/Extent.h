// What a walker can say of a file: where it ends, whether it is sound, and what it told in passing.
#pragma once

#include <cstdint>
#include <optional>

namespace vantor {

enum class Verdict {
    Unknown,   // not this format, or nothing in the bytes tells where it ends: rely on the carved run
    Complete,  // well-formed up to `end`
    CutOff,    // the view (or an unreadable place) ended before the file did
    Damaged,   // the structure is violated
};

// A date as the file writes it. Cameras mostly write local time without a zone; containers mostly UTC.
struct CivilTime {
    std::int32_t year = 0;
    std::uint8_t month = 0;  // 1..12
    std::uint8_t day = 0;    // 1..31
    std::uint8_t hour = 0;
    std::uint8_t minute = 0;
    std::uint8_t second = 0;
    bool utc = false;

    friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

// Facts met on the way to the end; absent ones stay empty. Never a reason to read more than a few headers.
struct Facts {
    std::uint32_t width = 0;   // pixels, as stored (before any rotation); 0 = not told
    std::uint32_t height = 0;  // pixels
    std::optional<CivilTime> taken;
    std::uint64_t durationMs = 0;  // of a movie or sound, as its head tells; 0 = not told
};

// The answer of a walker.
struct Extent {
    Verdict verdict = Verdict::Unknown;

    // Bytes from the first that are worth keeping. Complete: the file's length. CutOff and Damaged: up to the
    // last that still belong to the file. Unknown: a tag in front, else 0. Never more than the source holds.
    std::uint64_t end = 0;

    // False where the format does not mark its end and `end` is the last byte that still fits it (plain text,
    // raw frame streams, TIFF directories): a few bytes more or fewer may belong to the file.
    bool exactEnd = true;

    Facts facts;

    // Of a complete file: whether its content was looked at up to the end, by sums, syntax or frames (of a
    // long movie: at many places). False where only lengths were followed: the file ends where it says, and
    // whatever stands between may be another's. Never true where the end is not exact.
    bool checked = false;

    // Of a checked movie or sound: only the heads and lengths of its frames were followed, and what stands
    // within one may be another's. Whether they decode tells.
    bool framesOnly = false;

    // Of a damaged file: whether its own end was found all the same, behind what is spoilt. `end` is then the
    // file's length; else what follows a break may still be the file's.
    bool endFound = false;
};

}  // namespace vantor
