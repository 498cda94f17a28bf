// The ways in which files write dates, brought to one civil time.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "formats/Extent.h"

namespace vantor {

// "YYYY?MM?DD?hh?mm?ss" with any separators (Exif, ISO 8601 without zone); nothing unless plausible.
std::optional<CivilTime> parseDate(std::string_view text);

// Seconds since 1970-01-01 UTC; nothing outside the years 1970 to 2200.
std::optional<CivilTime> dateFromUnixSeconds(std::int64_t seconds);
// Seconds since 1904-01-01 UTC, as ISO media files count; 0 = not set.
std::optional<CivilTime> dateFromSecondsSince1904(std::uint64_t seconds);
// Units of 100 ns since 1601-01-01 UTC, as ASF counts; 0 = not set.
std::optional<CivilTime> dateFromTicksSince1601(std::uint64_t ticks);
// Nanoseconds since 2001-01-01 UTC, as Matroska counts.
std::optional<CivilTime> dateFromNanosecondsSince2001(std::int64_t nanoseconds);

}  // namespace vantor
