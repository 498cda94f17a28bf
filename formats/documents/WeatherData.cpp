// Weather reports (GRIB, BUFR). Source: WMO Manual on Codes.
#include "formats/Format.h"

namespace vantor {

namespace {

// Messages of either kind follow each other; each says its length and closes with "7777".
Extent walkWeather(ByteView& view) {
    std::uint64_t at = 0;
    for (;;) {
        const bool grid = view.matches(at, "GRIB");
        const auto edition = view.u8(at + 7).value_or(0);
        if ((!grid && !view.matches(at, "BUFR")) || edition == 0 || edition > 4)
            break;
        const auto bytes = grid && edition == 2 ? view.be64(at + 8) : view.number(at + 4, 3, Endian::Big);
        if (!bytes)
            return cutOffAt(view, view.size());
        if (*bytes < 16)
            return at != 0 ? damagedAt(view, at) : unknownExtent();
        const auto end = addClamped(at, *bytes);
        if (end > view.size())
            return cutOffAt(view, view.size());
        if (!view.matches(end - 4, "7777"))
            return damagedAt(view, at);
        at = end;
    }
    return at != 0 ? inexact(completeAt(view, at)) : unknownExtent();
}

}  // namespace

extern constexpr Format kWeatherData = {
    .name = "Weather data",
    .group = Group::Documents,
    .walk = walkWeather,
    .extensions = " GRIB GRB GRIB2 BUFR ",
    .strongMagic = false,
};

}  // namespace vantor
