// The moment at which all that is on the card was made: 1 June 2024, ten o'clock.
#pragma once

#include <cstdint>

namespace vantor::samples {

// As FAT, ZIP and CAB write it.
constexpr int kDosDate = (2024 - 1980) << 9 | 6 << 5 | 1;
constexpr int kDosTime = 10 << 11;
constexpr std::int64_t kUnixTime = 1717236000;  // UTC

}  // namespace vantor::samples
