// Dates as FAT and exFAT store them.
#pragma once

#include <cstdint>
#include <optional>

namespace vantor {

// Seconds since 1970 of a date and time that stand without a time zone, or with one (`minutesEast`); nothing
// when there is no such day or hour. `hundredths` (0 to 199) are added, in whole seconds.
std::optional<std::int64_t> secondsOfDosTime(std::uint16_t date, std::uint16_t time, unsigned hundredths,
                                             std::optional<int> minutesEast = {});

}  // namespace vantor
