// Dates of files as civil time, without the C library's time zone machinery.
#include "formats/Dates.h"

#include <chrono>

namespace vantor {

namespace {

constexpr int kFirstYear = 1970;
constexpr int kLastYear = 2200;

std::optional<int> digits(std::string_view text) {
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return value;
}

}  // namespace

std::optional<CivilTime> parseDate(std::string_view text) {
    if (text.size() < 19)
        return std::nullopt;
    const auto year = digits(text.substr(0, 4)), month = digits(text.substr(5, 2)),
               day = digits(text.substr(8, 2));
    const auto hour = digits(text.substr(11, 2)), minute = digits(text.substr(14, 2)),
               second = digits(text.substr(17, 2));
    if (!year || !month || !day || !hour || !minute || !second)
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(*year),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok() || *year < kFirstYear || *year > kLastYear || *hour > 23 || *minute > 59 || *second > 60)
        return std::nullopt;
    const auto byte = [](int value) { return static_cast<std::uint8_t>(value); };
    return CivilTime{*year, byte(*month), byte(*day), byte(*hour), byte(*minute), byte(*second), false};
}

std::optional<CivilTime> dateFromUnixSeconds(std::int64_t seconds) {
    constexpr std::int64_t kLatest = 7'258'118'400;  // 2200-01-01
    if (seconds <= 0 || seconds >= kLatest)          // 0 is what a clock says that was never set
        return std::nullopt;
    const std::chrono::sys_seconds moment{std::chrono::seconds(seconds)};
    const auto day = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(moment - day);
    return CivilTime{static_cast<int>(date.year()),
                     static_cast<std::uint8_t>(static_cast<unsigned>(date.month())),
                     static_cast<std::uint8_t>(static_cast<unsigned>(date.day())),
                     static_cast<std::uint8_t>(time.hours().count()),
                     static_cast<std::uint8_t>(time.minutes().count()),
                     static_cast<std::uint8_t>(time.seconds().count()),
                     true};
}

std::optional<CivilTime> dateFromSecondsSince1904(std::uint64_t seconds) {
    constexpr std::uint64_t kTo1970 = 2'082'844'800;
    if (seconds < kTo1970 || seconds - kTo1970 > 1'000'000'000'000)
        return std::nullopt;
    return dateFromUnixSeconds(static_cast<std::int64_t>(seconds - kTo1970));
}

std::optional<CivilTime> dateFromTicksSince1601(std::uint64_t ticks) {
    constexpr std::uint64_t kTicksPerSecond = 10'000'000;
    constexpr std::uint64_t kTo1970 = 11'644'473'600;
    const std::uint64_t seconds = ticks / kTicksPerSecond;
    if (seconds < kTo1970)
        return std::nullopt;
    return dateFromUnixSeconds(static_cast<std::int64_t>(seconds - kTo1970));
}

std::optional<CivilTime> dateFromNanosecondsSince2001(std::int64_t nanoseconds) {
    constexpr std::int64_t kFrom1970 = 978'307'200;
    return dateFromUnixSeconds(nanoseconds / 1'000'000'000 + kFrom1970);
}

}  // namespace vantor
