// CHM help files. Source: public notes on the CHM layout.
#include <optional>

#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkChm(ByteView& view) {
    if (!view.matches(0, std::string_view("ITSF\x03\0\0\0", 8)))
        return unknownExtent();
    const auto section = view.le64(0x38);
    const auto end = section ? view.le64(addClamped(*section, 8)) : std::nullopt;
    if (!end)
        return cutOffAt(view, view.size());
    if (*end < 0x60)
        return damagedAt(view, 0x60);
    return completeAt(view, *end);
}

}  // namespace

extern constexpr Format kChm = {
    .name = "CHM",
    .group = Group::Documents,
    .walk = walkChm,
    .extensions = " CHM ",
};

}  // namespace vantor
