// Numbers and sizes as the program says them everywhere: in its window, on the terminal and in its report.
#pragma once

#include <QLocale>
#include <QString>
#include <cstdint>

namespace vantor {

// That of the program's texts, whatever the desktop's.
inline QLocale localeOfTexts() {
    return {QLocale::English, QLocale::UnitedStates};
}

// "1,234,567".
inline QString numberForPeople(std::uint64_t number) {
    return localeOfTexts().toString(static_cast<qulonglong>(number));
}

// "164.4 kB": decimal units, as cards are sold and desktops count. Media are told by getMPSize().
inline QString sizeForPeople(std::uint64_t bytes, int decimals = 1) {
    return localeOfTexts().formattedDataSize(static_cast<qint64>(bytes), decimals, QLocale::DataSizeSIFormat);
}

}  // namespace vantor
