// Source: Microsoft's published descriptions of FAT and exFAT, sections on dates and times.
#include "filesystem/DosTime.h"

#include <QDate>
#include <ctime>

namespace vantor {

std::optional<std::int64_t> secondsOfDosTime(std::uint16_t date, std::uint16_t time, unsigned hundredths,
                                             std::optional<int> minutesEast) {
    const int year = 1980 + (date >> 9);
    const int month = date >> 5 & 15;
    const int day = date & 31;
    const int hour = time >> 11;
    const int minute = time >> 5 & 63;
    const int second = (time & 31) * 2;
    if (!QDate::isValid(year, month, day) || hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    const std::int64_t more = hundredths < 200 ? hundredths / 100 : 0;
    if (!minutesEast) {
        std::tm local{};
        local.tm_year = year - 1900;
        local.tm_mon = month - 1;
        local.tm_mday = day;
        local.tm_hour = hour;
        local.tm_min = minute;
        local.tm_sec = second;
        local.tm_isdst = -1;
        return std::int64_t{std::mktime(&local)} + more;
    }
    constexpr std::int64_t kDay = 24 * 60 * 60;
    const std::int64_t days = QDate(year, month, day).toJulianDay() - QDate(1970, 1, 1).toJulianDay();
    return days * kDay + hour * 3600 + minute * 60 + second + more - std::int64_t{*minutesEast} * 60;
}

}  // namespace vantor
