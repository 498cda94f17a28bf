// Numbers and sizes as the program says them everywhere: in its window, on the terminal and in its report, by
// the customs of the language it speaks.
#pragma once

#include <QString>
#include <cstdint>
#include <limits>

#include "catalogue/Language.h"

namespace vantor {

// "1,234,567".
inline QString numberForPeople(std::uint64_t number) {
    return localeOfTexts().toString(static_cast<qulonglong>(number));
}

// "164.4 kB": decimal units, as cards are sold and desktops count. Media are told by getMPSize().
inline QString sizeForPeople(std::uint64_t bytes, int decimals = 1) {
    return localeOfTexts().formattedDataSize(static_cast<qint64>(bytes), decimals, QLocale::DataSizeSIFormat);
}

// What chooses the plural form of a text. Forms follow the last digits at most, so those of a number that is
// too large for the toolkit stand for it.
inline int pluralOf(std::uint64_t number) {
    constexpr std::uint64_t kMillion = 1'000'000;
    return static_cast<int>(number <= std::numeric_limits<int>::max() ? number
                                                                      : kMillion + number % kMillion);
}

}  // namespace vantor
