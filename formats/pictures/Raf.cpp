// Fujifilm RAF raw pictures, which are no TIFF: their parts are told up front. Source: public descriptions of
// the format.
#include <algorithm>

#include "formats/Format.h"
#include "formats/TiffDirectory.h"

namespace vantor {

namespace {

Extent walkRaf(ByteView& view) {
    if (!view.matches(0, "FUJIFILMCCD-RAW "))
        return unknownExtent();
    std::uint64_t end = 0;
    for (const std::uint64_t field : {84, 92, 100}) {  // preview, raw directory, raw data
        const std::uint64_t at = view.be32(field).value_or(0), bytes = view.be32(field + 4).value_or(0);
        if (at != 0)
            end = std::max(end, at + bytes);
    }
    if (end <= 108)
        return damagedAt(view, 108);
    Facts facts;
    constexpr std::uint64_t kToExif = 12;  // behind SOI, APP1 head and "Exif\0\0"
    addTiffFacts(view, std::uint64_t{view.be32(84).value_or(0)} + kToExif, facts);
    return completeAt(view, end, facts);
}

}  // namespace

extern constexpr Format kRaf = {
    .name = "RAF",
    .group = Group::Pictures,
    .walk = walkRaf,
    .extensions = " RAF ",
};

}  // namespace vantor
