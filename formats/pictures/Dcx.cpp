// Pages of a fax (DCX): the places of up to 1,023 PCX pictures. Source: public descriptions of the format.
#include <algorithm>

#include "formats/Format.h"
#include "formats/pictures/Pcx.h"

namespace vantor {

namespace {

Extent walkDcx(ByteView& view) {
    constexpr std::uint64_t kMostPages = 1023, kLeastHead = 12;
    if (view.le32(0) != 0x3ADE68B1)
        return unknownExtent();
    std::uint64_t last = 0;
    for (std::uint64_t page = 0; page < kMostPages; ++page) {
        const auto at = view.le32(4 + 4 * page);
        if (!at)
            return cutOffAt(view, view.size());
        if (*at == 0)
            break;
        last = std::max<std::uint64_t>(last, *at);
    }
    return last >= kLeastHead ? walkPcxAt(view, last) : unknownExtent();
}

}  // namespace

extern constexpr Format kDcx = {
    .name = "DCX",
    .group = Group::Pictures,
    .walk = walkDcx,
    .extensions = " DCX ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
