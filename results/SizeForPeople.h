// Sizes of files as the program says them everywhere.
#pragma once

#include <QLocale>
#include <QString>
#include <cstdint>

namespace vantor {

// "164.4 kB": decimal units, as cards are sold and desktops count. Media are told by getMPSize().
inline QString sizeForPeople(std::uint64_t bytes, const QLocale& locale = QLocale()) {
    return locale.formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

}  // namespace vantor
